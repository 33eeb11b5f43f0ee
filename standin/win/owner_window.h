// The host's main window as the scenario driver and the tour need it: an
// owner for the library's dialogs whose title the library may read.
#pragma once

#include <windows.h>

namespace kvs::standin {

// A hidden top-level window titled title; null on failure.
HWND createOwnerWindow(const char* title);

}  // namespace kvs::standin
