#include "standin/win/global_alloc_hook.h"

#include <cstring>

#include "standin/win/kernel_control.h"

namespace kvs::standin {

namespace {

HGLOBAL WINAPI countedGlobalAlloc(UINT flags, SIZE_T bytes) {
    return KvsStandinTakeAllocation() ? GlobalAlloc(flags, bytes) : nullptr;
}

// The module's import address table entry for KERNEL32!GlobalAlloc, found by
// name in the import descriptors (the loader has already filled it).
IMAGE_THUNK_DATA* importSlot(HMODULE module) {
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    if (dos->e_magic != IMAGE_DOS_SIGNATURE) return nullptr;
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (!imports.VirtualAddress) return nullptr;
    for (auto* d = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress); d->Name; ++d) {
        if (_stricmp(reinterpret_cast<const char*>(base + d->Name), "KERNEL32.dll") != 0) continue;
        const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + d->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + d->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const auto* byName = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(byName->Name), "GlobalAlloc") == 0)
                return slots;
        }
    }
    return nullptr;
}

}  // namespace

bool hookGlobalAlloc(HMODULE module) {
    IMAGE_THUNK_DATA* slot = module ? importSlot(module) : nullptr;
    if (!slot) return false;
    DWORD previous = 0;
    if (!VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &previous)) return false;
    slot->u1.Function = reinterpret_cast<ULONG_PTR>(&countedGlobalAlloc);
    VirtualProtect(slot, sizeof *slot, previous, &previous);
    return true;
}

}  // namespace kvs::standin
