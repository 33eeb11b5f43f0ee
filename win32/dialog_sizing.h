// The window side of a resizable library dialog: its smallest size for
// WM_GETMINMAXINFO, and each WM_SIZE handed on in dialog units.
#pragma once

#include <windows.h>

#include "core/seam.h"
#include "win32/win32_dialog_view.h"

namespace kvs::win32 {

// Fills the MINMAXINFO at info with the view's smallest window size; false
// when the dialog was not made resizable.
bool answerMinMaxInfo(const Win32DialogView& view, LPARAM info);

// Tells the handler the new client size of a resizable dialog (not when it
// is minimised).
void forwardSize(Win32DialogView& view, DialogHandler& handler, WPARAM kind);

}  // namespace kvs::win32
