// Puts the library's GlobalAlloc under the stand-in kernel's allocation
// countdown, so a scenario's failalloc reaches the library's own global
// memory as it does under the headless backend.
#pragma once

#include <windows.h>

namespace kvs::standin {

// Redirects the module's import of KERNEL32's GlobalAlloc; false when the
// module has no such import or its table cannot be written.
bool hookGlobalAlloc(HMODULE module);

}  // namespace kvs::standin
