// The exported entry points of the save-as and import/export options.
#include "data/option_dialogs.h"
#include "core/export_guard.h"
#include "include/kvs_dlg.h"

namespace kvs::data {

void resetSaveAsOptions();
void resetImportExportOptions();

void resetOptionDialogs() {
    resetSaveAsOptions();
    resetImportExportOptions();
}

}  // namespace kvs::data

namespace {

kvs::WindowRef windowRef(KvsWindow window) { return reinterpret_cast<kvs::WindowRef>(window); }

}  // namespace

extern "C" {

int32_t KVS_CALL DoSaveDataOptionsDlg(KvsWindow owner) {
    return kvs::guardedExport(0, [&] { return kvs::data::runSaveAsOptions(windowRef(owner)); });
}

int32_t KVS_CALL DoImpExpOptionsDlg(KvsWindow owner, int32_t exportFlag, int32_t value) {
    return kvs::guardedExport(0, [&] { return kvs::data::runImportExportOptions(windowRef(owner), exportFlag, value); });
}

int32_t KVS_CALL AttachSaveAsOptions(char* commandLine) {
    kvs::guardedExport([&] { kvs::data::attachSaveAsOptions(commandLine); });
    return 1;
}

int32_t KVS_CALL AttachImpExpOptions(char* commandLine) {
    kvs::guardedExport([&] { kvs::data::attachImportExportOptions(commandLine); });
    return 1;
}

}  // extern "C"
