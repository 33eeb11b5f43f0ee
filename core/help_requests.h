// Help requests every library dialog makes: its Help button, and the help
// entries 801 to 804 of its system menu.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/seam.h"

namespace kvs {

// The .chm of the same name beside a .hlp file ("C:\K\KORVAN.HLP" ->
// "C:\K\KORVAN.CHM", the extension in the case of the original), or empty
// for a path that names no .hlp file.
std::string htmlHelpBeside(std::string_view helpFile);

// Opens the help file at a topic.
void openHelpTopic(WindowRef owner, std::uint32_t context);
// Contents, search, help on help, or the open dialog's topic; other codes
// are not help requests and do nothing.
void answerHelpCommand(int code);

// Runs a template modally with topic as the open dialog's help topic (the
// system menu's context help), the previous topic restored afterwards.
// Returns what UiServices::runModal returns.
int runModalWithTopic(WindowRef owner, std::string_view templateName, DialogHandler& handler, std::uint32_t topic);

}  // namespace kvs
