// kvs_dlg.dll, loaded from the folder of KORVAN.exe. Loading it runs its load
// notification; unloading it (the last reference gone) discards every static
// it holds, so each load starts as the first one did.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace kvs::standin {

class Library {
public:
    using StartDialogFn = std::int32_t(__stdcall*)(std::uint32_t, void*, const char*);
    using Int32Fn = std::int32_t(__stdcall*)(std::int32_t);

    Library() = default;
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { unload(); }

    // False with a reason when the DLL or one of the three exports is missing.
    bool load(std::string& error);
    void unload();
    // Takes dialogs whose instance is module as the library's without
    // loading anything or calling into it (tests with templates of their own).
    void watchModule(HMODULE module);
    HMODULE module() const { return module_; }

    std::int32_t startDialog(std::uint32_t id, HWND owner, const char* helpFile) const;
    std::int32_t reinitDialogs(std::int32_t value) const;
    std::int32_t setDlgSortList(std::int32_t value) const;

    // The folder KORVAN.exe runs from, with a trailing backslash.
    static std::string exeFolder();

private:
    HMODULE module_ = nullptr;
    bool owned_ = false;
    StartDialogFn startDialog_ = nullptr;
    Int32Fn reinitDialogs_ = nullptr;
    Int32Fn setDlgSortList_ = nullptr;
};

}  // namespace kvs::standin
