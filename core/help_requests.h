// Help requests every library dialog makes: its Help button, and the help
// entries 801 to 804 of its system menu.
#pragma once

#include <cstdint>

#include "core/seam.h"

namespace kvs {

// Opens the help file at a topic.
void openHelpTopic(WindowRef owner, std::uint32_t context);
// Contents, search, help on help, or the open dialog's topic; other codes
// are not help requests and do nothing.
void answerHelpCommand(int code);

}  // namespace kvs
