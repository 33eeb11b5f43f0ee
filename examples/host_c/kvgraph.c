/* An example graphics module (kvgraph.dll) for the example host: the one
 * function kvs_dlg.dll imports from it, a palette the module owns. */
#include <windows.h>

#include "kvs_imports.h"

static HPALETTE palette;

void* KVS_CALL GetKvgPalEx(void) {
    if (!palette) {
        struct {
            WORD version, count;
            PALETTEENTRY entries[16];
        } colours;
        int i;
        colours.version = 0x300;
        colours.count = 16;
        for (i = 0; i < 16; ++i) {
            colours.entries[i].peRed = (BYTE)(i * 17);
            colours.entries[i].peGreen = (BYTE)(i * 17);
            colours.entries[i].peBlue = (BYTE)(255 - i * 17);
            colours.entries[i].peFlags = 0;
        }
        palette = CreatePalette((const LOGPALETTE*)&colours);
    }
    return palette;
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    (void)instance, (void)reserved;
    if (reason == DLL_PROCESS_DETACH && palette) DeleteObject(palette);
    return TRUE;
}
