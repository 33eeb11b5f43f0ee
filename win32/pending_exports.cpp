// Exports whose dialogs are not built yet. Each does nothing and answers 0,
// so a host that calls one sees "cancelled" or "nothing done".
#include <windows.h>

#include "include/kvs_dlg.h"

extern "C" {

int32_t KVS_CALL TRAXCallDialog(uint32_t, int32_t, const char*, int32_t, int32_t) { return 0; }

}  // extern "C"
