// Data the library exports for the host and the graph module.
#include "core/lifecycle.h"
#include "include/kvs_dlg.h"

extern "C" {
int32_t bPortrait = 1;
float fPageHeight = 11.0f;
float fPageWidth = 8.5f;
int32_t nGlbGraphCounter = 0;
KvsLogFont lfKvgFont = {};
KvsLogFont lfDefKvgFont = {};
}

namespace kvs {

void resetExportedData() {
    bPortrait = 1;
    fPageHeight = 11.0f;
    fPageWidth = 8.5f;
    nGlbGraphCounter = 0;
    lfKvgFont = {};
    lfDefKvgFont = {};
}

}  // namespace kvs
