// The library's exports as a scenario reaches them: bound to the linked
// functions by the headless runner, looked up in the loaded DLL under Wine.
// A null entry is an export the library does not have.
#pragma once

#include "include/kvs_dlg.h"

namespace kvs::scenario {

struct LibraryExports {
    decltype(&StartDialog) startDialog = nullptr;
    decltype(&ReinitDialogs) reinitDialogs = nullptr;
    decltype(&SetDlgSortList) setDlgSortList = nullptr;
    decltype(&StartSamplingDialog) startSamplingDialog = nullptr;
    decltype(&UpdateSamplingDialog) updateSamplingDialog = nullptr;
    decltype(&ClearSamplingDialog) clearSamplingDialog = nullptr;
    decltype(&DoSaveDataOptionsDlg) doSaveDataOptionsDlg = nullptr;
    decltype(&DoImpExpOptionsDlg) doImpExpOptionsDlg = nullptr;
    decltype(&AttachSaveAsOptions) attachSaveAsOptions = nullptr;
    decltype(&AttachImpExpOptions) attachImpExpOptions = nullptr;
    decltype(&ColorPickerDialogEx) colorPickerDialogEx = nullptr;
    decltype(&LoadSymbolBitmapsEx) loadSymbolBitmapsEx = nullptr;
    decltype(&DeleteSymbolBitmapsEx) deleteSymbolBitmapsEx = nullptr;
    decltype(&TRAXCallDialog) traxCallDialog = nullptr;
    decltype(&GetDialogList) getDialogList = nullptr;
    decltype(&GetLibraryVersion) getLibraryVersion = nullptr;
    KvsLogFont* kvgFont = nullptr;     // lfKvgFont
    KvsLogFont* defKvgFont = nullptr;  // lfDefKvgFont
};

}  // namespace kvs::scenario
