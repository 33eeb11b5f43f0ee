// Exports whose dialogs are not built yet. Each does nothing and answers 0,
// so a host that calls one sees "cancelled" or "nothing done".
#include <windows.h>

#include "include/kvs_dlg.h"

extern "C" {

int32_t KVS_CALL TRAXCallDialog(uint32_t, int32_t, const char*, int32_t, int32_t) { return 0; }

// As a cancelled picker: the colour is left as it is.
int32_t KVS_CALL ColorPickerDialogEx(KvsWindow, double*) { return 0; }

// No bitmaps: an empty table and a count of 0.
int32_t KVS_CALL LoadSymbolBitmapsEx(void** table) {
    if (table) *table = nullptr;
    return 0;
}

void KVS_CALL DeleteSymbolBitmapsEx(void) {}

}  // extern "C"
