// The scale of the monitor a window is on: lengths the drawing code knows in
// pixels at 96 DPI (pens, margins, pictures, entry heights) are multiplied
// up from it, so that at 150 % they are half as large again.
#pragma once

#include <windows.h>

namespace kvs::win32 {

inline constexpr UINT kBaseDpi = 96;

// GetDpiForWindow where Windows has it, otherwise the LOGPIXELSX of the
// window's display; 96 when neither answers.
UINT windowDpi(HWND window);

// A length of pixelsAt96 at dpi, rounded, never below 1 for a positive length.
int scaledLength(int pixelsAt96, UINT dpi);

// WM_DPICHANGED's part for a top-level window: takes the rect the system
// suggests (lParam) for the new scale.
void followDpiChange(HWND window, LPARAM suggested);

// Repaints a window and every child, after a change of scale or theme.
void repaintWhole(HWND window);

}  // namespace kvs::win32
