#include "standin/win/demo_host.h"

#include <windows.h>

#include <cstdio>
#include <string>

#include "standin/host_state.h"
#include "standin/win/help_catcher.h"
#include "standin/win/kernel_control.h"
#include "standin/win/library.h"
#include "standin/win/sample_data.h"
#include "standin/win/window_watch.h"

namespace kvs::standin {

namespace {

constexpr const char* kClassName = "KorvanStandinDemo";
// Menu ids of the host's own entries, clear of every dialog command id.
constexpr UINT kSortedLists = 40001, kReinit = 40002, kExit = 40003;
// The host's calls of the exports other than StartDialog.
constexpr UINT kSaveOptions = 40010, kImportOptions = 40011, kExportOptions = 40012, kColourPicker = 40013,
               kSamplingJob = 40014;
constexpr std::int32_t kSamples = 40;
constexpr UINT kEntriesPerColumn = 28;
constexpr int kLogId = 100;

struct Demo {
    Library library;
    HelpCatcher help;
    WindowWatch watch;
    HWND window = nullptr;
    HWND log = nullptr;
    bool sorted = false;
};

Demo* demo = nullptr;

// The entries without a template of their own are named here.
std::string entryText(const KvsDialogEntry& row) {
    std::string text;
    if (row.caption) {
        text = row.caption;
    } else {
        switch (row.commandId) {
        case 76: text = "Extract"; break;
        case 78: text = "Labels"; break;
        case 150: text = "Graph Font"; break;
        case 153: text = "Default Graph Font"; break;
        case 242: text = "Series: Clear"; break;
        case 245: text = "Series: Delete Missing"; break;
        case 246: text = "Series: Interpolate Missing"; break;
        default: text = "Command"; break;
        }
    }
    return text + "\t" + std::to_string(row.commandId);
}

bool servesCommand(int id) {
    for (const KvsDialogEntry& row : demo->library.dialogs())
        if (row.commandId == id) return true;
    return false;
}

HMENU buildMenu() {
    const HMENU bar = CreateMenu();
    const HMENU file = CreatePopupMenu();
    AppendMenuA(file, MF_STRING, kSortedLists, "&Sorted Variable Lists");
    AppendMenuA(file, MF_STRING, kReinit, "&Reinitialise Dialogs");
    AppendMenuA(file, MF_SEPARATOR, 0, nullptr);
    AppendMenuA(file, MF_STRING, kExit, "E&xit");
    AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), "&File");

    const struct {
        std::uint16_t family;
        const char* title;
    } families[] = {{0, "&Data"}, {1, "&Graph"}, {2, "&Statistics"}};
    for (const auto& family : families) {
        const HMENU popup = CreatePopupMenu();
        UINT count = 0;
        for (const KvsDialogEntry& row : demo->library.dialogs()) {
            if (row.family != family.family) continue;
            const UINT column = count > 0 && count % kEntriesPerColumn == 0 ? MF_MENUBARBREAK : 0;
            AppendMenuA(popup, MF_STRING | column, row.commandId, entryText(row).c_str());
            ++count;
        }
        AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), family.title);
    }
    const HMENU host = CreatePopupMenu();
    AppendMenuA(host, MF_STRING, kSaveOptions, "Save &Options...");
    AppendMenuA(host, MF_STRING, kImportOptions, "&Import Options...");
    AppendMenuA(host, MF_STRING, kExportOptions, "&Export Options...");
    AppendMenuA(host, MF_SEPARATOR, 0, nullptr);
    AppendMenuA(host, MF_STRING, kColourPicker, "&Colour Picker...");
    AppendMenuA(host, MF_STRING, kSamplingJob, "&Sampling Job");
    AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(host), "&Host");
    return bar;
}

void appendLog(const std::string& line) {
    if (!demo || !demo->log) return;
    const std::string text = line + "\r\n";
    const auto end = static_cast<WPARAM>(GetWindowTextLengthA(demo->log));
    SendMessageA(demo->log, EM_SETSEL, end, static_cast<LPARAM>(end));
    SendMessageA(demo->log, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
}

// The library checks the entries of the two missing-value commands.
void onHostLine(const std::string& line) {
    appendLog(line);
    unsigned id = 0;
    int checked = 0;
    if (demo && std::sscanf(line.c_str(), "CheckMainMenuItem %u %d", &id, &checked) == 2)
        CheckMenuItem(GetMenu(demo->window), id, MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
}

// The kernel's report of a call the library made to it.
void KVS_CALL kernelLine(const char* line) { appendLog(line ? line : ""); }

// A host command line with the options the library attaches.
void attachToLine(const char* call, std::int32_t result, std::int32_t(KVS_CALL* attach)(char*), const char* start) {
    std::string line(10000, '\0');
    std::string(start).copy(line.data(), line.size() - 1);
    if (attach) attach(line.data());
    appendLog(std::string(call) + " = " + std::to_string(result) + ": " + line.c_str());
}

// A job of kSamples samples, one every 100 ms, as the kernel would run it;
// the user may cancel it from the progress window.
void runSamplingJob() {
    const scenario::LibraryExports& e = demo->library.exports();
    if (!e.startSamplingDialog || !e.updateSamplingDialog || !e.clearSamplingDialog) return;
    e.startSamplingDialog(1, kSamples);
    for (std::int32_t remaining = kSamples - 1; remaining >= 1; --remaining) {
        Sleep(100);
        if (e.updateSamplingDialog(remaining, (kSamples - remaining) * 7) != 0) {
            appendLog("the job stopped with " + std::to_string(remaining) + " samples to go");
            break;
        }
    }
    e.clearSamplingDialog();
}

void onHostCommand(HWND window, UINT id) {
    const scenario::LibraryExports& e = demo->library.exports();
    switch (id) {
    case kSaveOptions:
        if (e.doSaveDataOptionsDlg)
            attachToLine("DoSaveDataOptionsDlg", e.doSaveDataOptionsDlg(window), e.attachSaveAsOptions,
                         "SAVE 'C:\\DATA\\COPY.KVD'");
        return;
    case kImportOptions:
    case kExportOptions: {
        if (!e.doImpExpOptionsDlg) return;
        const bool exporting = id == kExportOptions;
        attachToLine("DoImpExpOptionsDlg", e.doImpExpOptionsDlg(window, exporting ? 1 : 0, 0), e.attachImpExpOptions,
                     exporting ? "EXPORT 'C:\\DATA\\BOOK.XLS'" : "IMPORT 'C:\\DATA\\BOOK.XLS'");
        return;
    }
    case kColourPicker: {
        static float colour = 0.5f;
        if (!e.colorPickerDialogEx) return;
        const std::int32_t result = e.colorPickerDialogEx(window, &colour);
        appendLog("ColorPickerDialogEx = " + std::to_string(result) + ", colour " + std::to_string(colour));
        return;
    }
    case kSamplingJob: runSamplingJob(); return;
    default: return;
    }
}

void onCommand(HWND window, UINT id) {
    switch (id) {
    case kExit: DestroyWindow(window); return;
    case kSortedLists:
        demo->sorted = !demo->sorted;
        demo->library.setDlgSortList(demo->sorted ? 1 : 0);
        CheckMenuItem(GetMenu(window), kSortedLists, MF_BYCOMMAND | (demo->sorted ? MF_CHECKED : MF_UNCHECKED));
        appendLog(std::string("SetDlgSortList ") + (demo->sorted ? "1" : "0"));
        return;
    case kReinit:
        demo->library.reinitDialogs(1);
        appendLog("ReinitDialogs 1");
        return;
    case kSaveOptions:
    case kImportOptions:
    case kExportOptions:
    case kColourPicker:
    case kSamplingJob: onHostCommand(window, id); return;
    default:
        if (servesCommand(id)) {
            const auto result = demo->library.startDialog(id, window, kSampleHelpFile);
            appendLog("StartDialog " + std::to_string(id) + " = " + std::to_string(result));
        }
    }
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        demo->log = CreateWindowExA(WS_EX_CLIENTEDGE, "EDIT", "",
                                    WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_READONLY |
                                        ES_AUTOVSCROLL | ES_AUTOHSCROLL,
                                    0, 0, 0, 0, window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kLogId)),
                                    GetModuleHandleA(nullptr), nullptr);
        SendMessageA(demo->log, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT)), FALSE);
        return 0;
    case WM_SIZE:
        MoveWindow(demo->log, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
        return 0;
    case WM_COMMAND:
        if (lParam == 0) onCommand(window, LOWORD(wParam));
        return 0;
    case WM_DESTROY: PostQuitMessage(0); return 0;
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace

int runDemoHost() {
    Demo state;
    demo = &state;
    std::string error;
    if (!state.library.load(error)) {
        MessageBoxA(nullptr, error.c_str(), "KORVAN", MB_ICONSTOP | MB_OK);
        return 1;
    }
    installSampleData();
    HostState::instance().setSink(onHostLine);
    KvsStandinSetLineSink(kernelLine);

    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = kClassName;
    RegisterClassA(&windowClass);
    state.window = CreateWindowExA(0, kClassName, kSampleTitle, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                                   720, 480, nullptr, buildMenu(), instance, nullptr);
    if (!state.window) return 1;
    state.help.open(appendLog);
    state.watch.start(state.library.module(), appendLog, nullptr);
    appendLog("Data file: C:\\DATA\\SAMPLE.KVD, 20 variables. Pick a dialog from the menus.");
    ShowWindow(state.window, SW_SHOWDEFAULT);
    UpdateWindow(state.window);

    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    state.watch.stop();
    HostState::instance().setSink(nullptr);
    KvsStandinSetLineSink(nullptr);
    demo = nullptr;
    return 0;
}

}  // namespace kvs::standin
