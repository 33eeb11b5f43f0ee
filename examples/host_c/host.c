/* A minimal host for kvs_dlg.dll in plain C and the Win32 API.
 *
 * It exports the functions the library imports from "KORVAN.exe" (so this
 * program must be named KORVAN.exe, and is linked with host/korvan.def),
 * links the library through its import library, shows a menu of a few
 * dialogs and prints every command line the library hands back.
 *
 *   KORVAN.exe            the window with its menu
 *   KORVAN.exe --script   runs Sort and then Scatterplot by itself, choosing
 *                         variables and pressing OK, and prints the lines
 *
 * The data file in use is the kernel's business (kernkvs.dll); the host
 * asks it how many variables there are and allocates the blocks it hands
 * the library with the kernel's allocator. The control ids the script uses
 * are listed in control-ids.md of the release archive. */
#include <windows.h>

#include <stdio.h>
#include <string.h>

#include "kvs_dlg.h"
#include "kvs_imports.h"

static const char kHelpFile[] = "C:\\KORVAN\\KORVAN.HLP";

/* ---- What the library imports from the host ---------------------------- */
/* Exported under their plain names through host/korvan.def. */

/* One command line, or for a module switch the module and its title. */
int32_t KVS_CALL AddCmd(const char* command, const char* argument) {
    printf("AddCmd \"%s\" %s%s%s\n", command ? command : "", argument ? "\"" : "", argument ? argument : "null",
           argument ? "\"" : "");
    fflush(stdout);
    return 1;
}

int32_t KVS_CALL AddTitle(const char* module, const char* title) {
    printf("AddTitle \"%s\" \"%s\"\n", module ? module : "", title ? title : "");
    fflush(stdout);
    return 1;
}

/* No procedure module is active in this host, so statistics dialogs send
 * their module switch first. */
int32_t KVS_CALL IsThisModuleNameActive(const char* module) {
    (void)module;
    return 0;
}

int32_t KVS_CALL CheckMainMenuItem(uint32_t commandId, int32_t checked) {
    printf("CheckMainMenuItem %u %d\n", (unsigned)commandId, (int)checked);
    fflush(stdout);
    return 1;
}

/* The variables of another data file. This host knows one data file, the
 * kernel's; it answers with its names for any file name that is not empty.
 * The block is the kernel's memory: the library frees it with free_mem_ex. */
int32_t KVS_CALL GetFileVariables(const char* fileName, char** block) {
    enum { kEntry = 13 };
    int32_t count = INQFMV_EX(), width = INQFML_EX(), i;
    void* memory = NULL;
    if (block) *block = NULL;
    if (!block || !fileName || !*fileName || count <= 0) return 0;
    if (width > kEntry - 1) width = kEntry - 1;
    if (!reallocate_mem_ex(&memory, count, kEntry, 0)) return 0;
    for (i = 0; i < count; ++i) {
        char* entry = (char*)memory + (size_t)i * kEntry;
        int32_t length;
        INQVARNAME_EX(i + 1, entry, width);
        length = NBLANK_EX(entry, width);
        memset(entry + length, 0, (size_t)(kEntry - length));
    }
    *block = (char*)memory;
    return count;
}

int32_t KVS_CALL GetNumVars(void) { return INQFMV_EX(); }
int32_t KVS_CALL IsCurrentUseFileAMatrix(void) { return INQKS_EX() == 1; }
int32_t KVS_CALL GetMNType(int32_t commandId, int32_t selector) {
    (void)commandId, (void)selector;
    return 0;
}
int32_t KVS_CALL IsMGLHActive(void) { return 0; }

/* A graph dialog calls this before it hands over its command: a host that
 * collects lines before running them discards those not yet run. This one
 * runs each line as it comes, so it has nothing to discard. */
int32_t KVS_CALL AbortCommands(void) {
    printf("AbortCommands\n");
    fflush(stdout);
    return 1;
}

int32_t KVS_CALL DoWindowEnable(int32_t enable) {
    (void)enable;
    return 1;
}

/* ---- Scripted run ------------------------------------------------------- */
/* A thread timer fires inside the dialog's modal loop; each tick does one
 * step on the dialog bearing the step's caption. */

enum { kSourceList = 4, kAdd1 = 6, kAdd2 = 8 };

typedef struct Step {
    const char* caption; /* the dialog to act on */
    const char* names;   /* blank-separated names to select in the source list; null: press OK */
    int button;          /* the Add button to press after selecting */
} Step;

static const Step kSortSteps[] = {{"Sort", "AGE INCOME", kAdd1}, {"Sort", NULL, IDOK}};
static const Step kScatterSteps[] = {{"Scatterplot", "INCOME", kAdd2}, /* Y - variable(s) */
                                     {"Scatterplot", "AGE", kAdd1},    /* X - variable */
                                     {"Scatterplot", NULL, IDOK}};

static const Step* steps;
static int stepCount, stepDone;

static int isNamed(const char* names, const char* name) {
    size_t length = strlen(name);
    const char* at = names;
    while ((at = strstr(at, name)) != NULL) {
        if ((at == names || at[-1] == ' ') && (at[length] == ' ' || at[length] == '\0')) return 1;
        at += length;
    }
    return 0;
}

static void selectNames(HWND dialog, const char* names) {
    HWND source = GetDlgItem(dialog, kSourceList);
    int i, count = (int)SendMessageA(source, LB_GETCOUNT, 0, 0);
    for (i = 0; i < count; ++i) {
        char name[64] = "";
        if (SendMessageA(source, LB_GETTEXTLEN, (WPARAM)i, 0) >= (LRESULT)sizeof name) continue;
        SendMessageA(source, LB_GETTEXT, (WPARAM)i, (LPARAM)name);
        SendMessageA(source, LB_SETSEL, isNamed(names, name) ? TRUE : FALSE, i);
    }
    /* LB_SETSEL sends no notification; the dialog enables its Add buttons on this one. */
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(kSourceList, LBN_SELCHANGE), (LPARAM)source);
}

static void CALLBACK driveDialog(HWND window, UINT message, UINT_PTR timer, DWORD time) {
    const Step* step = stepDone < stepCount ? &steps[stepDone] : NULL;
    HWND dialog = step ? FindWindowA("#32770", step->caption) : NULL;
    (void)window, (void)message, (void)time;
    if (!dialog || !IsWindowEnabled(dialog)) return;
    ++stepDone;
    if (step->names) {
        selectNames(dialog, step->names);
        SendMessageA(GetDlgItem(dialog, step->button), BM_CLICK, 0, 0);
        return;
    }
    KillTimer(NULL, timer);
    /* Posted: a sent OK would return only once the dialog has closed. */
    PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(step->button, BN_CLICKED), (LPARAM)GetDlgItem(dialog, step->button));
}

static int runDialog(UINT commandId, const Step* script, int count) {
    steps = script;
    stepCount = count;
    stepDone = 0;
    SetTimer(NULL, 0, 100, driveDialog);
    printf("StartDialog %u = %d\n", commandId, (int)StartDialog(commandId, NULL, kHelpFile));
    fflush(stdout);
    return stepDone == stepCount;
}

static int runScript(void) {
    int ok = runDialog(72, kSortSteps, (int)(sizeof kSortSteps / sizeof kSortSteps[0]));
    ok = runDialog(101, kScatterSteps, (int)(sizeof kScatterSteps / sizeof kScatterSteps[0])) && ok;
    return ok ? 0 : 1;
}

/* ---- The window with its menu ------------------------------------------ */

static const struct {
    UINT id;
    const char* text;
} kEntries[] = {{72, "&Sort..."},         {71, "&Rank..."},        {43, "&List Cases..."},
                {46, "S&elect..."},       {101, "S&catterplot..."}, {112, "&Histogram..."},
                {245, "Series: &Delete Missing"}};

static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) == 0 && LOWORD(wParam) != 0) {
        printf("StartDialog %u = %d\n", LOWORD(wParam), (int)StartDialog(LOWORD(wParam), (KvsWindow)window, kHelpFile));
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
    char version[32] = "";
    GetLibraryVersion(version, (int32_t)sizeof version);
    printf("kvs_dlg.dll %s\n", version);
    ReinitDialogs(1); /* the data file in use is new to the library */
    return argc > 1 && strcmp(argv[1], "--script") == 0 ? runScript() : runWindow();
}
