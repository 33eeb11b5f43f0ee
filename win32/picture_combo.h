// Drop-down lists of the graph option sub-dialogs that show pictures beside
// their entries: plot symbols, line styles and axis styles. The entries keep
// their texts (the logic reads positions and texts as from any list); only
// the drawing differs, so this lives with the windows.
#pragma once

#include <windows.h>

namespace kvs::win32 {

// The height of an entry of a picture list at the scale of dialog's
// monitor; false for other controls.
bool measurePictureItem(HWND dialog, MEASUREITEMSTRUCT& item);
// Gives the picture lists of dialog the entry height of its monitor's scale
// now (after a move to a monitor of another scale).
void remeasurePictureLists(HWND dialog);
// Draws an entry: its picture at the monitor's scale (position p shows
// picture p of the set; the first entry, "None" or "Automatic", has none)
// and its text, selected in the system's highlight colours.
bool drawPictureItem(HMODULE module, const DRAWITEMSTRUCT& item);

}  // namespace kvs::win32
