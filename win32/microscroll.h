// The "Tmicroscroll" window class: the small spin control beside numeric
// fields. For now its window only paints its background.
#pragma once

#include <windows.h>

namespace kvs::win32 {

inline constexpr const char* kMicroscrollClass = "Tmicroscroll";

// Registers the class for instance; false when it could not (for example
// because it is registered already).
bool registerMicroscroll(HINSTANCE instance);
void unregisterMicroscroll(HINSTANCE instance);

}  // namespace kvs::win32
