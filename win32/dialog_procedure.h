// The one dialog procedure every library dialog runs under. It turns window
// messages into DialogHandler calls on a Win32DialogView of the dialog.
#pragma once

#include <windows.h>

#include <optional>

#include "core/seam.h"
#include "win32/win32_dialog_view.h"

namespace kvs::win32 {

// What one running dialog needs; runModal passes its address as the
// creation parameter and it outlives the dialog window.
struct DialogSession {
    DialogHandler* handler = nullptr;
    std::optional<Win32DialogView> view;
    HWND previousActive = nullptr;  // the library dialog that was active before
};

INT_PTR CALLBACK libraryDialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// The session of a library dialog (its handler and view), or null for a
// window that is none.
DialogSession* librarySession(HWND dialog);

// The innermost library dialog that is open, or null.
HWND activeLibraryDialog();

}  // namespace kvs::win32
