#include "win32/dpi_scale.h"

#include "win32/late_bound.h"

namespace kvs::win32 {

UINT windowDpi(HWND window) {
    if (const UINT dpi = dpiForWindow(window)) return dpi;
    int pixels = 0;
    if (const HDC dc = GetDC(window)) {
        pixels = GetDeviceCaps(dc, LOGPIXELSX);
        ReleaseDC(window, dc);
    }
    return pixels > 0 ? static_cast<UINT>(pixels) : kBaseDpi;
}

int scaledLength(int pixelsAt96, UINT dpi) {
    if (pixelsAt96 <= 0) return pixelsAt96;
    const int length = MulDiv(pixelsAt96, static_cast<int>(dpi), static_cast<int>(kBaseDpi));
    return length > 0 ? length : 1;
}

void followDpiChange(HWND window, LPARAM suggested) {
    const auto* rect = reinterpret_cast<const RECT*>(suggested);
    if (!rect) return;
    SetWindowPos(window, nullptr, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void repaintWhole(HWND window) { RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN); }

}  // namespace kvs::win32
