// Data the library exports for the host and the graph module.
#include "include/kvs_dlg.h"

extern "C" {
int32_t bPortrait = 1;
float fPageHeight = 11.0f;
float fPageWidth = 8.5f;
int32_t nGlbGraphCounter = 0;
KvsLogFont lfKvgFont = {};
KvsLogFont lfDefKvgFont = {};
}
