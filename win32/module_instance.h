// The library's module instance, set once by the load notification. Two
// copies are kept, as the dialog code has always had them: one for loading
// the dialog templates, one for everything else (classes, cursors, bitmaps).
#pragma once

#include <windows.h>

namespace kvs::win32 {

void setModuleInstance(HINSTANCE instance);

// Where dialog templates are loaded from.
HINSTANCE dialogInstance();
// Where window classes are registered and other resources are loaded from.
HINSTANCE moduleInstance();

}  // namespace kvs::win32
