// Compiled for Windows and linked into a throwaway DLL by
// check_dll_tables.sh: every function of kvs_imports.h against the import
// libraries made from win32/imports/*.def, and every export of kvs_dlg.h
// against the shipped import library. A .def whose Name@bytes disagrees with
// a prototype leaves an undefined reference and the link fails.
#include "include/kvs_dlg.h"
#include "include/kvs_imports.h"

extern "C" __declspec(dllexport) void touchEveryFunction(void) {
    char text[16] = "";
    char* block = nullptr;
    void* memory = nullptr;
    double matrix[1] = {1.0};
    float colour = 0.5f;

    AddCmd(text, nullptr);
    AddTitle(text, text);
    IsThisModuleNameActive(text);
    CheckMainMenuItem(245, 1);
    GetFileVariables(text, &block);
    GetNumVars();
    IsCurrentUseFileAMatrix();
    GetMNType(0, 0);
    IsMGLHActive();
    AbortCommands();
    DoWindowEnable(1);

    reallocate_mem_ex(&memory, 1, 1, 0);
    free_mem_ex(&memory);
    kvs_strlen_ex(text);
    INQFMV_EX();
    INQFML_EX();
    INQKS_EX();
    INQVARNAME_EX(1, text, 12);
    INQPRT_EX();
    DXNUM_EX(1);
    DMIS_EX();
    NBLANK_EX(text, 1);
    choll(matrix, 1);
    CancelSampling(0);
    GetKvgPalEx();

    StartDialog(72, nullptr, text);
    ReinitDialogs(1);
    SetDlgSortList(0);
    StartSamplingDialog(0, 1);
    UpdateSamplingDialog(0, 0);
    ClearSamplingDialog();
    ProcessDlgProc(nullptr, 0, 0, 0);
    DoSaveDataOptionsDlg(nullptr);
    DoImpExpOptionsDlg(nullptr, 0, 0);
    AttachSaveAsOptions(text);
    AttachImpExpOptions(text);
    TRAXCallDialog(0, 0, nullptr, 0, 0);
    ColorPickerDialogEx(nullptr, &colour);
    LoadSymbolBitmapsEx(&memory);
    DeleteSymbolBitmapsEx();
    GetDialogList(nullptr, 0);
    GetLibraryVersion(text, 16);

    bPortrait = fPageHeight > fPageWidth ? 1 : 0;
    ++nGlbGraphCounter;
    lfKvgFont = lfDefKvgFont;
}
