#include "standin/win/library.h"

#include <array>

#include "standin/win/global_alloc_hook.h"

namespace kvs::standin {

namespace {

template <typename Fn>
void find(HMODULE module, const char* name, Fn& fn) {
    fn = reinterpret_cast<Fn>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

template <typename Fn>
bool resolve(HMODULE module, const char* name, Fn& fn, std::string& error) {
    find(module, name, fn);
    if (!fn) error = std::string("kvs_dlg.dll does not export ") + name;
    return fn != nullptr;
}

// The exports scenarios call besides the three every host needs.
void findOthers(HMODULE module, scenario::LibraryExports& e) {
    find(module, "StartSamplingDialog", e.startSamplingDialog);
    find(module, "UpdateSamplingDialog", e.updateSamplingDialog);
    find(module, "ClearSamplingDialog", e.clearSamplingDialog);
    find(module, "DoSaveDataOptionsDlg", e.doSaveDataOptionsDlg);
    find(module, "DoImpExpOptionsDlg", e.doImpExpOptionsDlg);
    find(module, "AttachSaveAsOptions", e.attachSaveAsOptions);
    find(module, "AttachImpExpOptions", e.attachImpExpOptions);
    find(module, "ColorPickerDialogEx", e.colorPickerDialogEx);
    find(module, "LoadSymbolBitmapsEx", e.loadSymbolBitmapsEx);
    find(module, "DeleteSymbolBitmapsEx", e.deleteSymbolBitmapsEx);
    find(module, "TRAXCallDialog", e.traxCallDialog);
    find(module, "GetDialogList", e.getDialogList);
    find(module, "GetLibraryVersion", e.getLibraryVersion);
    find(module, "lfKvgFont", e.kvgFont);
    find(module, "lfDefKvgFont", e.defKvgFont);
}

}  // namespace

std::string Library::exeFolder() {
    std::array<char, MAX_PATH> path{};
    const DWORD length = GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    std::string folder(path.data(), length < path.size() ? length : 0);
    const std::size_t slash = folder.find_last_of("\\/");
    return slash == std::string::npos ? std::string() : folder.substr(0, slash + 1);
}

std::vector<KvsDialogEntry> Library::dialogs() const {
    std::vector<KvsDialogEntry> entries;
    if (!exports_.getDialogList) return entries;
    const std::int32_t count = exports_.getDialogList(nullptr, 0);
    if (count <= 0) return entries;
    entries.resize(static_cast<std::size_t>(count));
    entries.resize(static_cast<std::size_t>(exports_.getDialogList(entries.data(), count)));
    return entries;
}

bool Library::load(std::string& error) {
    unload();
    const std::string path = exeFolder() + "kvs_dlg.dll";
    module_ = LoadLibraryA(path.c_str());
    owned_ = module_ != nullptr;
    if (!module_) {
        error = "cannot load " + path + " (error " + std::to_string(GetLastError()) + ")";
        return false;
    }
    if (resolve(module_, "StartDialog", exports_.startDialog, error) &&
        resolve(module_, "ReinitDialogs", exports_.reinitDialogs, error) &&
        resolve(module_, "SetDlgSortList", exports_.setDlgSortList, error)) {
        findOthers(module_, exports_);
        // failalloc reaches the library's global memory too.
        hookGlobalAlloc(module_);
        return true;
    }
    unload();
    return false;
}

void Library::watchModule(HMODULE module) {
    unload();
    module_ = module;
}

void Library::unload() {
    if (module_ && owned_) FreeLibrary(module_);
    module_ = nullptr;
    owned_ = false;
    exports_ = scenario::LibraryExports{};
}

std::int32_t Library::startDialog(std::uint32_t id, HWND owner, const char* helpFile) const {
    return exports_.startDialog ? exports_.startDialog(id, owner, helpFile) : 0;
}

std::int32_t Library::reinitDialogs(std::int32_t value) const {
    return exports_.reinitDialogs ? exports_.reinitDialogs(value) : 0;
}

std::int32_t Library::setDlgSortList(std::int32_t value) const {
    return exports_.setDlgSortList ? exports_.setDlgSortList(value) : 0;
}

}  // namespace kvs::standin
