// The function kvs_dlg imports from kvgraph.dll.
#include "include/kvs_imports.h"

extern "C" void* KVS_CALL GetKvgPalEx(void) { return nullptr; }
