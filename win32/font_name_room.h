// Room for long family names in the system's font dialog.
#pragma once

#include <windows.h>

namespace kvs::win32 {

// Called from the font dialog's hook on WM_INITDIALOG: widens the font-name
// list until the widest name fits (as far as the monitor's work area
// allows); the controls right of it move over by as much, those reaching
// across its right edge grow by as much, and so does the dialog. Nothing
// changes when every name fits.
void widenFontNames(HWND dialog);

}  // namespace kvs::win32
