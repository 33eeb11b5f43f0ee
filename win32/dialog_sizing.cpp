#include "win32/dialog_sizing.h"

namespace kvs::win32 {

bool answerMinMaxInfo(const Win32DialogView& view, LPARAM info) {
    const SIZE smallest = view.minimumTrackSize();
    if (!info || smallest.cx <= 0) return false;
    auto& minMax = *reinterpret_cast<MINMAXINFO*>(info);
    minMax.ptMinTrackSize = {smallest.cx, smallest.cy};
    return true;
}

void forwardSize(Win32DialogView& view, DialogHandler& handler, WPARAM kind) {
    if (kind == SIZE_MINIMIZED || view.minimumTrackSize().cx <= 0) return;
    // The view reads the client area in dialog units, as the layout is.
    const DialogRect client = view.clientRect();
    handler.onResize(view, client.width, client.height);
}

}  // namespace kvs::win32
