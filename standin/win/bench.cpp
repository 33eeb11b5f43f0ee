// Opening a variable dialog on a file of N variables (P1) and its OK with N
// variables chosen (P2), against the floor of the same work done the fastest
// documented way on a plain list box of a plain dialog: filled with redraw
// off and its storage reserved, read back item by item. Then keystrokes in
// the search box under Sort's source list, each from the key to the list
// shown again.
#include "standin/win/bench.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "standin/win/kernel_control.h"
#include "standin/win/library.h"
#include "standin/win/owner_window.h"

namespace kvs::standin {

namespace {

constexpr std::uint16_t kDialog = 72;  // Sort: one source list, one target list of any size
constexpr int kSourceList = 4, kAddButton = 6;
constexpr int kRuns = 3;               // the best of these is reported

double now() {
    static LARGE_INTEGER frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return f;
    }();
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// ---- timing a dialog ------------------------------------------------------

// One dialog run: it is timed from the call to its activation (shown, its
// lists filled); then a zero timer does the run's action inside its loop.
struct Run {
    HMODULE module = nullptr;  // whose dialog to watch
    void (*action)(Run&) = nullptr;
    double opened = 0;
    double acted = 0;  // the timed part of the action, in milliseconds
    HWND dialog = nullptr;
    const std::vector<std::string>* names = nullptr;  // the floor's names
};

Run* run = nullptr;

void press(HWND dialog, int id) {
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

void CALLBACK act(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    if (run && run->dialog) run->action(*run);
}

// A CBT hook, not a message hook: a message hook runs on every message and
// under Wine costs more than the list box itself.
LRESULT CALLBACK onActivate(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && run && !run->dialog &&
        reinterpret_cast<HMODULE>(GetWindowLongPtrA(window, GWLP_HINSTANCE)) == run->module) {
        run->opened = now();
        run->dialog = window;
        SetTimer(nullptr, 0, 0, act);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// Runs `show` under the hook; the opening time in milliseconds.
template <typename Show>
double timed(Run& one, Show show) {
    const HHOOK hook = SetWindowsHookExA(WH_CBT, onActivate, nullptr, GetCurrentThreadId());
    run = &one;
    const double start = now();
    show();
    run = nullptr;
    UnhookWindowsHookEx(hook);
    return one.opened - start;
}

// ---- the library -----------------------------------------------------------

void cancelAtOnce(Run& one) { press(one.dialog, IDCANCEL); }

// Every variable chosen, then OK: timed from OK until the dialog is closed
// and its command handed to the host.
void chooseAllThenOk(Run& one) {
    SendDlgItemMessageA(one.dialog, kSourceList, LB_SETSEL, TRUE, -1);
    SendMessageA(one.dialog, WM_COMMAND, MAKEWPARAM(kSourceList, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(GetDlgItem(one.dialog, kSourceList)));
    press(one.dialog, kAddButton);
    const double start = now();
    press(one.dialog, IDOK);
    one.acted = now() - start;
}

// P1 (open) and P2 (OK with every variable chosen) in milliseconds.
std::pair<double, double> timeLibrary(const Library& library, HWND owner) {
    Run open{library.module(), cancelAtOnce};
    const double p1 = timed(open, [&] { library.startDialog(kDialog, owner, "C:\\KORVAN\\KORVAN.HLP"); });
    Run choose{library.module(), chooseAllThenOk};
    timed(choose, [&] { library.startDialog(kDialog, owner, "C:\\KORVAN\\KORVAN.HLP"); });
    library.reinitDialogs(1);
    return {p1, choose.acted};
}

// ---- the floor -------------------------------------------------------------

INT_PTR CALLBACK floorProcedure(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_INITDIALOG) return FALSE;
    const auto& names = *reinterpret_cast<const std::vector<std::string>*>(lParam);
    const HWND list = GetDlgItem(dialog, kSourceList);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LB_INITSTORAGE, names.size(), names.size() * 8);
    for (const std::string& name : names)
        SendMessageA(list, LB_INSERTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name.c_str()));
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    return TRUE;
}

// Every item read back, then the dialog closed.
void readAllThenClose(Run& one) {
    const HWND list = GetDlgItem(one.dialog, kSourceList);
    const double start = now();
    char text[64];
    volatile std::size_t total = 0;  // what was read is used, so the reading is not left out
    const auto count = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i)
        total = total + static_cast<std::size_t>(
                            SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text)));
    EndDialog(one.dialog, 1);
    one.acted = now() - start;
}

// A dialog template in memory: a caption and one list box.
std::vector<WORD> floorTemplate() {
    std::vector<WORD> words(64, 0);
    auto* dialog = reinterpret_cast<DLGTEMPLATE*>(words.data());
    dialog->style = DS_MODALFRAME | WS_POPUP | WS_CAPTION;
    dialog->cdit = 1;
    dialog->cx = 200;
    dialog->cy = 150;
    std::size_t at = sizeof(DLGTEMPLATE) / sizeof(WORD);
    at += 3;  // no menu, the default class, no title
    at = (at + 1) & ~std::size_t{1};  // the item starts on a DWORD boundary
    auto* item = reinterpret_cast<DLGITEMTEMPLATE*>(words.data() + at);
    item->style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOINTEGRALHEIGHT | LBS_EXTENDEDSEL;
    item->x = 7;
    item->y = 7;
    item->cx = 90;
    item->cy = 130;
    item->id = kSourceList;
    at += sizeof(DLGITEMTEMPLATE) / sizeof(WORD);
    words[at++] = 0xFFFF;
    words[at++] = 0x0083;  // the list box class
    words[at++] = 0;       // no text
    words[at++] = 0;       // no creation data
    return words;
}

// ---- the fixed part ---------------------------------------------------------

// A procedure that does nothing: what showing a template costs by itself.
INT_PTR CALLBACK idleProcedure(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG ? TRUE : FALSE; }

void closeAtOnce(Run& one) { EndDialog(one.dialog, 1); }

// The Sort template shown with no work of the library's, against the floor's
// dialog shown with no names: under Wine each child window costs about half
// a millisecond to create, which dominates a small file.
std::pair<double, double> timeTemplates(const Library& library, HWND owner) {
    const std::vector<WORD> plain = floorTemplate();
    double sort = 1e300, floor = 1e300;
    for (int i = 0; i < kRuns; ++i) {
        Run bare{library.module(), closeAtOnce};
        sort = std::min(sort, timed(bare, [&] { DialogBoxParamA(library.module(), "SORT", owner, idleProcedure, 0); }));
        const HMODULE self = GetModuleHandleA(nullptr);
        Run empty{self, closeAtOnce};
        floor = std::min(floor, timed(empty, [&] {
                             DialogBoxIndirectParamA(self, reinterpret_cast<const DLGTEMPLATE*>(plain.data()), owner,
                                                     idleProcedure, 0);
                         }));
    }
    return {sort, floor};
}

std::pair<double, double> timeFloor(const std::vector<std::string>& names, HWND owner) {
    const std::vector<WORD> dialog = floorTemplate();
    const HMODULE self = GetModuleHandleA(nullptr);
    Run floor{self, readAllThenClose};
    floor.names = &names;
    const double opened = timed(floor, [&] {
        DialogBoxIndirectParamA(self, reinterpret_cast<const DLGTEMPLATE*>(dialog.data()), owner, floorProcedure,
                                reinterpret_cast<LPARAM>(&names));
    });
    return {opened, floor.acted};
}

// ---- the search box ----------------------------------------------------------

constexpr int kSearchBox = 962;  // under Sort's source list

// Names as a survey file has them: twenty stems numbered in turn (AGE1,
// INCOME1, ..., Q1, AGE2, ...); "e" is in sixteen stems of the twenty.
std::vector<std::string> surveyNames(int count) {
    static const char* const stems[] = {"AGE",  "INCOME", "REGION", "SCORE", "WEIGHT", "HEIGHT", "ITEM",
                                        "RESP", "TEMP",   "SALES",  "PRICE", "YEAR",   "MONTH",  "DOSE",
                                        "GROUP", "SEX",   "BMI",    "TIME",  "RATE",   "Q"};
    constexpr int kStems = static_cast<int>(sizeof stems / sizeof stems[0]);
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) names.push_back(std::string(stems[i % kStems]).append(std::to_string(i / kStems + 1)));
    return names;
}

// What a user types, a keystroke a step: a character (Backspace among
// them), or "" for selecting the whole text and deleting it.
const std::vector<std::vector<std::string>>& keystrokes() {
    static const std::vector<std::vector<std::string>> sequences = {
        {"e", "i", "g", "h", "t", "4", "2", "1", "\b", ""},   // nearly every name, then WEIGHT and HEIGHT, then a few
        {"s", "c", "o", "r", "e", "1", "2", "\b", "\b", ""},  // a fifth of the names, then SCORE
    };
    return sequences;
}

struct Step {
    std::string typed;  // the box's text after the keystroke
    int shown = 0;      // the names the list shows then
    double ms = 1e300;  // the best time of the keystroke
};

struct SearchTiming {
    double focus = 1e300;  // clicking into the box: the copy of the list
    std::vector<Step> steps;
};

SearchTiming* searchTiming = nullptr;

// A keystroke as the keyboard gives it: WM_CHAR to the edit, which changes
// its text and tells the dialog (EN_CHANGE) before the call returns.
double keystroke(HWND edit, const std::string& key) {
    const double start = now();
    if (key.empty()) {
        SendMessageA(edit, EM_SETSEL, 0, -1);
        SendMessageA(edit, WM_CHAR, VK_BACK, 0);
    } else {
        SendMessageA(edit, WM_CHAR, static_cast<WPARAM>(static_cast<unsigned char>(key[0])), 0);
    }
    return now() - start;
}

void typeIntoTheBox(Run& one) {
    const HWND edit = GetDlgItem(one.dialog, kSearchBox);
    const HWND list = GetDlgItem(one.dialog, kSourceList);
    SearchTiming& timing = *searchTiming;
    const double start = now();
    SetFocus(edit);
    timing.focus = std::min(timing.focus, now() - start);
    std::size_t step = 0;
    for (const std::vector<std::string>& sequence : keystrokes()) {
        for (const std::string& key : sequence) {
            const double ms = keystroke(edit, key);
            if (timing.steps.size() <= step) timing.steps.emplace_back();
            Step& s = timing.steps[step++];
            char text[64] = {};
            GetWindowTextA(edit, text, static_cast<int>(sizeof text));
            s.typed = text;
            s.shown = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
            s.ms = std::min(s.ms, ms);
        }
    }
    press(one.dialog, IDCANCEL);
}

SearchTiming timeSearchBox(const Library& library, HWND owner) {
    SearchTiming timing;
    searchTiming = &timing;
    for (int i = 0; i < kRuns; ++i) {
        Run typing{library.module(), typeIntoTheBox};
        timed(typing, [&] { library.startDialog(kDialog, owner, "C:\\KORVAN\\KORVAN.HLP"); });
    }
    searchTiming = nullptr;
    library.reinitDialogs(1);
    return timing;
}

void reportSearchBox(std::FILE* out, int count, const SearchTiming& timing) {
    std::fprintf(out, "search box of Sort, N = %d: clicking into it %.1f ms, then\n", count, timing.focus);
    std::fprintf(out, "  %-10s %8s %10s\n", "text", "shown", "ms");
    for (const Step& step : timing.steps)
        std::fprintf(out, "  %-10s %8d %10.1f\n", ("\"" + step.typed + "\"").c_str(), step.shown, step.ms);
}

void useNames(const std::vector<std::string>& names) {
    std::vector<const char*> pointers;
    pointers.reserve(names.size());
    for (const std::string& name : names) pointers.push_back(name.c_str());
    KvsStandinSetVariables(static_cast<int>(names.size()), pointers.data());
    KernelState::instance().setVariables(names);
}

}  // namespace

int runBenchmark(const std::string& outPath, const std::vector<int>& counts) {
    std::FILE* out = std::fopen(outPath.c_str(), "wb");
    if (!out) return 1;
    Library library;
    std::string error;
    if (!library.load(error)) {
        std::fprintf(out, "bench: %s\n", error.c_str());
        std::fclose(out);
        return 1;
    }
    HostState::instance().setSink([](const std::string&) {});
    const HWND owner = createOwnerWindow("KORVAN");
    std::fprintf(out, "%-4s %8s %12s %10s %7s %12s\n", "", "N", "library ms", "floor ms", "ratio", "us/variable");
    for (int count : counts) {
        std::vector<std::string> names;
        std::vector<const char*> pointers;
        names.reserve(static_cast<std::size_t>(count));
        for (int i = 1; i <= count; ++i) names.push_back(std::string(1, 'V').append(std::to_string(i)));
        for (const std::string& name : names) pointers.push_back(name.c_str());
        KvsStandinSetVariables(count, pointers.data());
        KernelState::instance().setVariables(names);
        double p1 = 1e300, p2 = 1e300, f1 = 1e300, f2 = 1e300;
        for (int i = 0; i < kRuns; ++i) {
            const auto [open, ok] = timeLibrary(library, owner);
            const auto [fill, read] = timeFloor(names, owner);
            p1 = std::min(p1, open), p2 = std::min(p2, ok), f1 = std::min(f1, fill), f2 = std::min(f2, read);
        }
        std::fprintf(out, "%-4s %8d %12.1f %10.1f %7.2f %12.2f\n", "P1", count, p1, f1, p1 / f1, 1000.0 * p1 / count);
        std::fprintf(out, "%-4s %8d %12.1f %10.1f %7.2f %12.2f\n", "P2", count, p2, f2, p2 / f2, 1000.0 * p2 / count);
        std::fflush(out);
    }
    for (int count : counts) {
        useNames(surveyNames(count));
        reportSearchBox(out, count, timeSearchBox(library, owner));
        std::fflush(out);
    }
    // Measured last, when the classes and the font are warm, as in the rows.
    const auto [sortTemplate, floorDialog] = timeTemplates(library, owner);
    std::fprintf(out, "shown with no work: the Sort template %.1f ms, the floor's dialog %.1f ms\n", sortTemplate,
                 floorDialog);
    DestroyWindow(owner);
    library.unload();
    std::fclose(out);
    return 0;
}

}  // namespace kvs::standin
