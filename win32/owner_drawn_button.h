// The face of an owner-drawn push button: the theme's push button where a
// theme is on, a plain 3D button otherwise, with its text, pushed in while
// pressed, greyed when disabled, with a focus rectangle inset at the
// monitor's scale.
#pragma once

#include <windows.h>

namespace kvs::win32 {

// Draws the item of a WM_DRAWITEM; false when it is not a button.
bool drawOwnerDrawnButton(const DRAWITEMSTRUCT& item);

}  // namespace kvs::win32
