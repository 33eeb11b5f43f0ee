// The "Tmicroscroll" window class: the small up/down control beside numeric
// fields (its window procedure is in numeric_field_window).
#pragma once

#include <windows.h>

namespace kvs::win32 {

inline constexpr const char* kMicroscrollClass = "Tmicroscroll";

// Registers the class for instance; false when it could not (for example
// because it is registered already).
bool registerMicroscroll(HINSTANCE instance);
void unregisterMicroscroll(HINSTANCE instance);

}  // namespace kvs::win32
