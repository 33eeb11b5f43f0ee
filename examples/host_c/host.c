/* A minimal host for kvs_dlg.dll in plain C and the Win32 API.
 *
 * It exports the functions the library imports from "KORVAN.exe" (so this
 * program must be named KORVAN.exe), loads kvs_dlg.dll, shows a menu of a
 * few dialogs and prints every command line the library hands back.
 *
 *   KORVAN.exe            the window with its menu
 *   KORVAN.exe --script   runs the Sort dialog once, picks two variables by
 *                         itself, presses OK and prints the lines
 *
 * The data file is the host's business; this one pretends to have five
 * variables. The library asks the statistics kernel (kernkvs.dll) for their
 * names: with the test kernel of the kvs_dlg project they are handed to it
 * through its KvsStandinSetVariables export, which a real kernel does not
 * have. */
#include <windows.h>

#include <stdio.h>
#include <string.h>

#include "include/kvs_dlg.h"

#define HOST_EXPORT __declspec(dllexport)

static const char* const kVariables[] = {"AGE", "INCOME", "EDUC", "STATE$", "WEIGHT"};
enum { kVariableCount = 5 };
static const char kHelpFile[] = "C:\\KORVAN\\KORVAN.HLP";

/* ---- What the library imports from the host ---------------------------- */

/* One command line (and, for a module switch, the module's title). */
HOST_EXPORT int32_t KVS_CALL AddCmd(const char* command, const char* argument) {
    printf("AddCmd \"%s\" %s%s%s\n", command ? command : "", argument ? "\"" : "", argument ? argument : "null",
           argument ? "\"" : "");
    fflush(stdout);
    return 1;
}

HOST_EXPORT int32_t KVS_CALL AddTitle(const char* module, const char* title) {
    printf("AddTitle \"%s\" \"%s\"\n", module ? module : "", title ? title : "");
    return 1;
}

/* No procedure module is active in this host. */
HOST_EXPORT int32_t KVS_CALL IsThisModuleNameActive(const char* module) {
    (void)module;
    return 0;
}

HOST_EXPORT int32_t KVS_CALL CheckMainMenuItem(uint32_t commandId, int32_t checked) {
    printf("CheckMainMenuItem %u %d\n", (unsigned)commandId, (int)checked);
    return 1;
}

/* No other data files: no variables. */
HOST_EXPORT int32_t KVS_CALL GetFileVariables(const char* fileName, char** block) {
    (void)fileName;
    if (block) *block = NULL;
    return 0;
}

HOST_EXPORT int32_t KVS_CALL GetNumVars(void) { return kVariableCount; }
HOST_EXPORT int32_t KVS_CALL IsCurrentUseFileAMatrix(void) { return 0; }
HOST_EXPORT int32_t KVS_CALL GetMNType(int32_t commandId, int32_t selector) {
    (void)commandId, (void)selector;
    return 0;
}
HOST_EXPORT int32_t KVS_CALL IsMGLHActive(void) { return 0; }
HOST_EXPORT int32_t KVS_CALL AbortCommands(void) { return 1; }
HOST_EXPORT int32_t KVS_CALL DoWindowEnable(int32_t enable) {
    (void)enable;
    return 1;
}

/* ---- Loading the library ----------------------------------------------- */

typedef int32_t(KVS_CALL* StartDialogFn)(uint32_t, KvsWindow, const char*);
typedef int32_t(KVS_CALL* VersionFn)(char*, int32_t);
typedef void(KVS_CALL* SetVariablesFn)(int32_t, const char* const*);

static StartDialogFn startDialog;

/* An export of a module as a function pointer of the caller's type (the
 * copy keeps ISO C's rules on casts between pointer kinds). */
static void findExport(HMODULE module, const char* name, void* functionPointer, size_t size) {
    FARPROC found = module ? GetProcAddress(module, name) : NULL;
    if (size == sizeof found) memcpy(functionPointer, &found, size);
}

static int loadLibrary(void) {
    HMODULE library = LoadLibraryA("kvs_dlg.dll");
    HMODULE kernel = GetModuleHandleA("kernkvs.dll"); /* loaded with the library */
    char version[32] = "";
    if (!library) {
        printf("cannot load kvs_dlg.dll (error %lu)\n", (unsigned long)GetLastError());
        return 0;
    }
    VersionFn getVersion = NULL;
    SetVariablesFn setVariables = NULL;
    findExport(library, "StartDialog", &startDialog, sizeof startDialog);
    findExport(library, "GetLibraryVersion", &getVersion, sizeof getVersion);
    if (!startDialog) return 0;
    if (getVersion) getVersion(version, (int32_t)sizeof version);
    printf("kvs_dlg.dll %s\n", version);
    findExport(kernel, "KvsStandinSetVariables", &setVariables, sizeof setVariables);
    if (setVariables) setVariables(kVariableCount, kVariables);
    return 1;
}

/* ---- Scripted run: the Sort dialog picks AGE and INCOME ---------------- */

static int scriptStep;

static void CALLBACK driveSort(HWND window, UINT message, UINT_PTR timer, DWORD time) {
    HWND dialog = FindWindowA("#32770", "Sort");
    (void)window, (void)message, (void)time;
    if (!dialog || !IsWindowEnabled(dialog)) return;
    if (scriptStep == 0) {
        HWND source = GetDlgItem(dialog, 4); /* the variable list */
        int i, count = (int)SendMessageA(source, LB_GETCOUNT, 0, 0);
        for (i = 0; i < count; ++i) {
            char name[64] = "";
            if (SendMessageA(source, LB_GETTEXTLEN, (WPARAM)i, 0) >= (LRESULT)sizeof name) continue;
            SendMessageA(source, LB_GETTEXT, (WPARAM)i, (LPARAM)name);
            if (strcmp(name, "AGE") == 0 || strcmp(name, "INCOME") == 0) SendMessageA(source, LB_SETSEL, TRUE, i);
        }
        SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(4, LBN_SELCHANGE), (LPARAM)source);
        SendMessageA(GetDlgItem(dialog, 6), BM_CLICK, 0, 0); /* Add --> */
        scriptStep = 1;
    } else if (scriptStep == 1) {
        scriptStep = 2;
        KillTimer(NULL, timer);
        PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), (LPARAM)GetDlgItem(dialog, IDOK));
    }
}

static int runScript(void) {
    SetTimer(NULL, 0, 100, driveSort);
    printf("StartDialog 72 = %d\n", (int)startDialog(72, NULL, kHelpFile));
    return scriptStep == 2 ? 0 : 1;
}

/* ---- The window with its menu ------------------------------------------ */

static const struct {
    UINT id;
    const char* text;
} kEntries[] = {{72, "&Sort..."}, {71, "&Rank..."}, {43, "&List Cases..."}, {46, "S&elect..."},
                {245, "Series: &Delete Missing"}};

static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) == 0 && LOWORD(wParam) != 0) {
        printf("StartDialog %u = %d\n", LOWORD(wParam), (int)startDialog(LOWORD(wParam), (KvsWindow)window, kHelpFile));
        fflush(stdout);
        return 0;
    }
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

static int runWindow(void) {
    WNDCLASSA windowClass;
    HMENU bar = CreateMenu(), dialogs = CreatePopupMenu();
    HWND window;
    MSG message;
    size_t i;
    for (i = 0; i < sizeof kEntries / sizeof kEntries[0]; ++i) AppendMenuA(dialogs, MF_STRING, kEntries[i].id, kEntries[i].text);
    AppendMenuA(bar, MF_POPUP, (UINT_PTR)dialogs, "&Dialogs");
    memset(&windowClass, 0, sizeof windowClass);
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleA(NULL);
    windowClass.hCursor = LoadCursorA(NULL, IDC_ARROW);
    windowClass.hbrBackground = (HBRUSH)(COLOR_WINDOW + 1);
    windowClass.lpszClassName = "KvsExampleHost";
    RegisterClassA(&windowClass);
    window = CreateWindowA("KvsExampleHost", "KORVAN - example host", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                           CW_USEDEFAULT, 480, 320, NULL, bar, windowClass.hInstance, NULL);
    if (!window) return 1;
    ShowWindow(window, SW_SHOWDEFAULT);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}

int main(int argc, char** argv) {
    if (!loadLibrary()) return 2;
    return argc > 1 && strcmp(argv[1], "--script") == 0 ? runScript() : runWindow();
}
