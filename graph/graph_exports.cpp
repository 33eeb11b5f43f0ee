// The exported entry points of the colour picker and the symbol pictures.
#include "graph/colour_picker.h"
#include "graph/picture_sets.h"
#include "core/export_guard.h"
#include "include/kvs_dlg.h"

extern "C" {

int32_t KVS_CALL ColorPickerDialogEx(KvsWindow owner, float* colour) {
    return kvs::guardedExport(0, [&] { return kvs::graph::runColourPicker(reinterpret_cast<kvs::WindowRef>(owner), colour); });
}

int32_t KVS_CALL LoadSymbolBitmapsEx(void** table) {
    // What could be loaded stays; the count is 22 regardless.
    kvs::guardedExport([] { kvs::graph::loadSymbolPictures(); });
    if (table) *table = kvs::graph::symbolPictures().data();
    return kvs::graph::kSymbolPictures;
}

void KVS_CALL DeleteSymbolBitmapsEx(void) {
    kvs::guardedExport([] { kvs::graph::deleteSymbolPictures(); });
}

}  // extern "C"
