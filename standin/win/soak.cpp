#include "standin/win/soak.h"

#include <windows.h>
#include <psapi.h>
#include <winternl.h>

#include <cstdio>
#include <cstring>
#include <random>
#include <vector>

#include "resources/common_ids.h"
#include "standin/host_state.h"
#include "standin/win/help_catcher.h"
#include "standin/win/library.h"
#include "standin/win/owner_window.h"
#include "standin/win/sample_data.h"
#include "standin/win/window_backend.h"
#include "standin/win/window_roles.h"
#include "standin/win/window_watch.h"

namespace kvs::standin {

namespace {

constexpr int kActionsPerDialog = 6;  // random clicks before the dialog is closed

struct Counts {
    DWORD gdi = 0;
    DWORD user = 0;
    int windows = 0;           // the thread's windows, children included
    SIZE_T privateBytes = 0;
};

BOOL CALLBACK countChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK countWindow(HWND window, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    EnumChildWindows(window, countChild, count);
    return TRUE;
}

// Wine's GetGuiResources answers 0. Its GDI handle table is the process's
// own, in the memory the PEB's GdiSharedHandleTable points to: 65,536
// entries of 24 bytes, an entry in use when its type byte (at offset 12) is
// not 0. Counted only under Wine, whose layout this is.
DWORD wineGdiObjects() {
#if defined(_WIN64)
    const HMODULE ntdll = GetModuleHandleA("ntdll.dll");
    if (!ntdll || !GetProcAddress(ntdll, "wine_get_version")) return 0;
    constexpr std::size_t kTableOffset = 0xF8, kEntries = 0x10000, kEntrySize = 24, kTypeOffset = 12;
    using QueryProcess = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<QueryProcess>(
        reinterpret_cast<void*>(GetProcAddress(ntdll, "NtQueryInformationProcess")));
    PROCESS_BASIC_INFORMATION basic{};
    if (!query || query(GetCurrentProcess(), 0, &basic, sizeof basic, nullptr) != 0) return 0;
    const auto* peb = reinterpret_cast<const BYTE*>(basic.PebBaseAddress);
    const BYTE* table = nullptr;
    std::memcpy(&table, peb + kTableOffset, sizeof table);
    MEMORY_BASIC_INFORMATION region{};
    if (!table || !VirtualQuery(table, &region, sizeof region) || region.State != MEM_COMMIT ||
        static_cast<const BYTE*>(region.BaseAddress) + region.RegionSize < table + kEntries * kEntrySize)
        return 0;
    DWORD used = 0;
    for (std::size_t i = 0; i < kEntries; ++i) used += table[i * kEntrySize + kTypeOffset] != 0 ? 1 : 0;
    return used;
#else
    return 0;
#endif
}

Counts counts() {
    Counts c;
    c.gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    if (c.gdi == 0) c.gdi = wineGdiObjects();
    c.user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&c.windows));
    PROCESS_MEMORY_COUNTERS memory{};
    memory.cb = sizeof memory;
    if (GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory)) c.privateBytes = memory.PagefileUsage;
    return c;
}

BOOL CALLBACK collectButton(HWND child, LPARAM found) {
    const int id = GetDlgCtrlID(child);
    // Help would start the help viewer (the library's Help button, or the
    // system's IDHELP); the rest a user may press at random.
    if (hasClass(child, "Button") && IsWindowVisible(child) && IsWindowEnabled(child) && id != IDC_HELPBUTTON &&
        id != IDHELP && id > 0)
        reinterpret_cast<std::vector<int>*>(found)->push_back(id);
    return TRUE;
}

class Soak {
public:
    Soak(std::FILE* out, HWND owner) : out_(out), owner_(owner), backend_(library_, owner) {}

    int run(int rounds) {
        std::string error;
        if (!library_.load(error)) {
            std::fprintf(out_, "soak: %s\n", error.c_str());
            return 1;
        }
        HostState::instance().setSink([](const std::string&) {});
        installSampleData();
        help_.open([](const std::string&) {});
        watch_.start(library_.module(), [](const std::string&) {}, [this](HWND top) { onTick(top); });
        const std::vector<KvsDialogEntry> rows = library_.dialogs();
        round(rows);  // the first round makes what lives as long as the library
        const Counts before = counts();
        for (int i = 1; i < rounds; ++i) round(rows);
        const Counts after = counts();
        watch_.stop();
        std::fprintf(out_, "%d rounds of %zu dialogs: %ld dialog openings, %ld actions\n", rounds, rows.size(),
                     openings_, actions_);
        std::fprintf(out_, "%-22s %14s %14s\n", "", "after round 1", "at the end");
        std::fprintf(out_, "%-22s %14lu %14lu\n", "GDI objects", before.gdi, after.gdi);
        std::fprintf(out_, "%-22s %14lu %14lu\n", "USER objects", before.user, after.user);
        std::fprintf(out_, "%-22s %14d %14d\n", "windows of the thread", before.windows, after.windows);
        std::fprintf(out_, "%-22s %14llu %14llu\n", "private bytes", static_cast<unsigned long long>(before.privateBytes),
                     static_cast<unsigned long long>(after.privateBytes));
        HostState::instance().setSink(nullptr);
        library_.unload();
        return 0;
    }

private:
    void round(const std::vector<KvsDialogEntry>& rows) {
        for (const KvsDialogEntry& row : rows) {
            actionsLeft_ = kActionsPerDialog;
            ++openings_;
            library_.startDialog(row.commandId, owner_, kSampleHelpFile);
        }
    }

    // A message box, chooser or menu is answered as a user giving up would;
    // a dialog gets a few random clicks, then Cancel.
    void onTick(HWND top) {
        if (!top) return;
        if (roleOf(top, library_.module()) != scenario::WindowKind::Dialog || actionsLeft_ <= 0) {
            backend_.dismissTop();
            return;
        }
        --actionsLeft_;
        std::vector<int> buttons;
        EnumChildWindows(top, collectButton, reinterpret_cast<LPARAM>(&buttons));
        if (buttons.empty()) {
            backend_.dismissTop();
            return;
        }
        ++actions_;
        backend_.click(buttons[random_() % buttons.size()]);
    }

    std::FILE* out_;
    HWND owner_;
    Library library_;
    HelpCatcher help_;
    WindowWatch watch_;
    WindowBackend backend_;
    std::mt19937 random_{20261125};
    int actionsLeft_ = 0;
    long openings_ = 0;
    long actions_ = 0;
};

}  // namespace

int runSoak(const std::string& outPath, int rounds) {
    std::FILE* out = std::fopen(outPath.c_str(), "wb");
    if (!out) return 1;
    const HWND owner = createOwnerWindow(kSampleTitle);
    int result = 1;
    if (owner) {
        Soak soak(out, owner);
        result = soak.run(rounds < 2 ? 2 : rounds);
        DestroyWindow(owner);
    }
    std::fclose(out);
    return result;
}

}  // namespace kvs::standin
