// The scenario driver resizing a dialog as a user dragging its frame would:
// the window gets the size whose client area is the one asked for, and the
// dialog hears of it through its own WM_GETMINMAXINFO and WM_SIZE.
#include "standin/win/window_backend.h"

namespace kvs::standin {

bool WindowBackend::resizeDialog(int width, int height) {
    const HWND window = dialog();
    if (!window) return false;
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE));
    if (!(style & WS_THICKFRAME)) return false;
    RECT frame{0, 0, width, height};
    MapDialogRect(window, &frame);
    AdjustWindowRectEx(&frame, style, FALSE, static_cast<DWORD>(GetWindowLongPtrA(window, GWL_EXSTYLE)));
    SetWindowPos(window, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return true;
}

}  // namespace kvs::standin
