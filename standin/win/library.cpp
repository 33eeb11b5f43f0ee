#include "standin/win/library.h"

#include <array>

namespace kvs::standin {

namespace {

template <typename Fn>
bool resolve(HMODULE module, const char* name, Fn& fn, std::string& error) {
    fn = reinterpret_cast<Fn>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    if (!fn) error = std::string("kvs_dlg.dll does not export ") + name;
    return fn != nullptr;
}

}  // namespace

std::string Library::exeFolder() {
    std::array<char, MAX_PATH> path{};
    const DWORD length = GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    std::string folder(path.data(), length < path.size() ? length : 0);
    const std::size_t slash = folder.find_last_of("\\/");
    return slash == std::string::npos ? std::string() : folder.substr(0, slash + 1);
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
    if (resolve(module_, "StartDialog", startDialog_, error) &&
        resolve(module_, "ReinitDialogs", reinitDialogs_, error) &&
        resolve(module_, "SetDlgSortList", setDlgSortList_, error))
        return true;
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
    startDialog_ = nullptr;
    reinitDialogs_ = setDlgSortList_ = nullptr;
}

std::int32_t Library::startDialog(std::uint32_t id, HWND owner, const char* helpFile) const {
    return startDialog_ ? startDialog_(id, owner, helpFile) : 0;
}

std::int32_t Library::reinitDialogs(std::int32_t value) const { return reinitDialogs_ ? reinitDialogs_(value) : 0; }

std::int32_t Library::setDlgSortList(std::int32_t value) const {
    return setDlgSortList_ ? setDlgSortList_(value) : 0;
}

}  // namespace kvs::standin
