// The library's modeless dialog: the progress window of sampling jobs, run
// under the exported ProcessDlgProc. One at a time.
#pragma once

#include <windows.h>

#include <string>

#include "core/seam.h"

namespace kvs::win32 {

// Creates the template under handler; its view, or null.
DialogView* openModelessDialog(HWND owner, const std::string& templateName, DialogHandler& handler);
// Destroys the dialog if it is still there and releases its view.
void closeModelessDialog(DialogView& view);
// Dispatches what is queued for dialog and its controls, without waiting;
// true when a WM_COMMAND for Cancel was among it.
bool pumpDialogMessages(HWND dialog);

}  // namespace kvs::win32
