// The colour picker's grid control, window class "KvsColourGrid": 16 x 4
// cells filled with the colours of the 64 colour values, the cell whose
// index is the window's text framed. A left-button press is passed to the
// dialog as kColourGridClick with the point in the grid's client area.
#pragma once

#include <windows.h>

namespace kvs::win32 {

inline constexpr const char* kColourGridClass = "KvsColourGrid";
// Sent to the parent: wParam the grid's control id, lParam the point as
// WM_LBUTTONDOWN gives it.
inline constexpr UINT kColourGridClick = WM_APP + 0x4B1;

bool registerColourGrid(HINSTANCE instance);
void unregisterColourGrid(HINSTANCE instance);

}  // namespace kvs::win32
