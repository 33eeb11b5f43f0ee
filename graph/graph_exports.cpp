// The exported entry points of the colour picker and the symbol pictures.
#include "graph/colour_picker.h"
#include "graph/picture_sets.h"
#include "include/kvs_dlg.h"

extern "C" {

int32_t KVS_CALL ColorPickerDialogEx(KvsWindow owner, float* colour) {
    try {
        return kvs::graph::runColourPicker(reinterpret_cast<kvs::WindowRef>(owner), colour);
    } catch (...) {
        return 0;
    }
}

int32_t KVS_CALL LoadSymbolBitmapsEx(void** table) {
    try {
        kvs::graph::loadSymbolPictures();
    } catch (...) {
        // What could be loaded stays; the count is 22 regardless.
    }
    if (table) *table = kvs::graph::symbolPictures().data();
    return kvs::graph::kSymbolPictures;
}

void KVS_CALL DeleteSymbolBitmapsEx(void) {
    try {
        kvs::graph::deleteSymbolPictures();
    } catch (...) {
    }
}

}  // extern "C"
