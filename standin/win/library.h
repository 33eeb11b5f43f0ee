// kvs_dlg.dll, loaded from the folder of KORVAN.exe. Loading it runs its load
// notification; unloading it (the last reference gone) discards every static
// it holds, so each load starts as the first one did.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tools/scenario/library_exports.h"

namespace kvs::standin {

class Library {
public:
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
    // The menu commands the library serves, as GetDialogList gives them.
    std::vector<KvsDialogEntry> dialogs() const;
    // Every export; those the DLL lacks are null.
    const scenario::LibraryExports& exports() const { return exports_; }

    // The folder KORVAN.exe runs from, with a trailing backslash.
    static std::string exeFolder();

private:
    HMODULE module_ = nullptr;
    bool owned_ = false;
    scenario::LibraryExports exports_;
};

}  // namespace kvs::standin
