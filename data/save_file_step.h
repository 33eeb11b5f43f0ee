// The "Save file" step of the data dialogs: with check box 99 ticked, ask
// for a file and queue "SAVE '...'" before the dialog's own line.
#pragma once

#include <string_view>

#include "core/seam.h"

namespace kvs::data {

// False when the user cancelled the chooser: the OK is then refused.
bool runSaveFileStep(DialogView& view, std::string_view defaultName);

}  // namespace kvs::data
