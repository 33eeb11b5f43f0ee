/* Linked by scripts/release.sh with Microsoft's linker conventions (clang for
 * the MSVC target, lld-link) against the MSVC import library of the release
 * archive: every export of kvs_dlg.h must resolve under the name a caller
 * compiled with that header looks for (_StartDialog@12 on 32-bit). */
#include "include/kvs_dlg.h"

/* No C runtime is linked: the compiler's marker of floating-point use. */
int _fltused = 0;

int __stdcall entry(void) {
    char text[16];
    void* memory = 0;
    float colour = 0.5f;
    int32_t sum = 0;
    KvsDialogEntry entries[1];
    text[0] = '\0';

    sum += StartDialog(72, 0, text);
    sum += ReinitDialogs(1);
    sum += SetDlgSortList(0);
    sum += GetDialogList(entries, 1);
    sum += GetLibraryVersion(text, 16);
    StartSamplingDialog(0, 1);
    sum += UpdateSamplingDialog(0, 0);
    ClearSamplingDialog();
    sum += (int32_t)ProcessDlgProc(0, 0, 0, 0);
    sum += DoSaveDataOptionsDlg(0);
    sum += DoImpExpOptionsDlg(0, 0, 0);
    sum += AttachSaveAsOptions(text);
    sum += AttachImpExpOptions(text);
    sum += TRAXCallDialog(0, 0, 0, 0, 0);
    sum += ColorPickerDialogEx(0, &colour);
    sum += LoadSymbolBitmapsEx(&memory);
    DeleteSymbolBitmapsEx();
    bPortrait = fPageHeight > fPageWidth ? 1 : 0;
    ++nGlbGraphCounter;
    lfKvgFont.height = lfDefKvgFont.height;
    return sum;
}
