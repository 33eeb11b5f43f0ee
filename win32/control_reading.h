// Reading what real controls hold: window text, list and combo items, and
// whether a button can be checked. The library's view and the stand-in
// host's scenario driver read controls the same way.
#pragma once

#include <windows.h>

#include <string>

namespace kvs::win32 {

std::string windowText(HWND window);
// An item of a list box (LB_GETTEXTLEN, LB_GETTEXT) or combo box
// (CB_GETLBTEXTLEN, CB_GETLBTEXT); empty when the index is out of range.
std::string itemText(HWND control, UINT lengthMessage, UINT textMessage, int index);
// A child window's rect in its parent's client coordinates.
RECT rectInParent(HWND child);
// A check box or radio button of any kind.
bool isCheckableButton(HWND button);

}  // namespace kvs::win32
