#include "win32/modeless_dialog.h"

#include "win32/visual_styles.h"

#include "core/export_guard.h"

#include <optional>

#include "include/kvs_dlg.h"
#include "resources/progress_ids.h"
#include "win32/dpi_scale.h"
#include "win32/module_instance.h"
#include "win32/win32_dialog_view.h"

namespace kvs::win32 {

namespace {

constexpr COLORREF kBarColour = 0xFFFF00;  // blue and green full, red none
// The pump's message range, and a bound on one pump's work.
constexpr UINT kLastMessage = 9999999;
constexpr int kPumpLimit = 10000;

struct ModelessSession {
    DialogHandler* handler = nullptr;
    HWND window = nullptr;
    std::optional<Win32DialogView> view;
};

ModelessSession session;

DialogView* viewOf(HWND dialog) {
    return session.handler && session.view && session.window == dialog ? &*session.view : nullptr;
}

LONG_PTR drawnPosition(HWND dialog) { return GetWindowLongPtrA(dialog, GWLP_USERDATA); }

// Fills the bar area from its left edge to position / 32767 of its width.
void fillBar(HWND bar, HDC dc, LONG_PTR position) {
    if (position < 0) return;
    RECT r{};
    GetClientRect(bar, &r);
    r.right = r.left + static_cast<LONG>((r.right - r.left) * static_cast<long long>(position) / PROGRESS_BAR_FULL);
    HBRUSH brush = CreateSolidBrush(kBarColour);
    if (!brush) return;
    HGDIOBJ previous = SelectObject(dc, brush);
    FillRect(dc, &r, brush);
    SelectObject(dc, previous);
    DeleteObject(brush);
}

void paintBar(HWND dialog, LONG_PTR position) {
    const HWND bar = GetDlgItem(dialog, IDC_PROGRESS_BAR);
    if (!bar || position < 0) return;
    if (HDC dc = GetDC(bar)) {
        fillBar(bar, dc, position);
        ReleaseDC(bar, dc);
    }
}

// The bar area is an owner-drawn static: a repaint shows the position drawn last.
BOOL drawBarItem(HWND dialog, const DRAWITEMSTRUCT& item) {
    if (item.CtlID != IDC_PROGRESS_BAR) return FALSE;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
    fillBar(item.hwndItem, item.hDC, drawnPosition(dialog));
    return TRUE;
}

INT_PTR userRequest(HWND dialog, WPARAM code, LPARAM value) {
    switch (code) {
    case PROGRESS_RESET_BAR:
        SetWindowLongPtrA(dialog, GWLP_USERDATA, 0);
        if (const HWND bar = GetDlgItem(dialog, IDC_PROGRESS_BAR)) {
            InvalidateRect(bar, nullptr, TRUE);
            UpdateWindow(bar);
        }
        break;
    case PROGRESS_SET_BAR:
        if (value != drawnPosition(dialog)) {
            SetWindowLongPtrA(dialog, GWLP_USERDATA, value);
            paintBar(dialog, value);
        }
        break;
    case PROGRESS_DESTROY: DestroyWindow(dialog); break;
    case PROGRESS_SET_CAPTION: SendMessageA(dialog, WM_SETTEXT, 0, value); break;
    default: break;
    }
    return TRUE;
}

INT_PTR dispatch(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: {
        SetWindowLongPtrA(dialog, GWLP_USERDATA, -1);
        if (lParam != reinterpret_cast<LPARAM>(&session) || !session.handler) return TRUE;
        session.window = dialog;
        session.view.emplace(dialog);
        // The handler has put the focus on Cancel, the window's only tab stop,
        // where the dialog manager puts it too.
        session.handler->onInit(*session.view);
        return TRUE;
    }
    case WM_CLOSE:
        if (DialogView* view = viewOf(dialog)) session.handler->onClose(*view);
        else DestroyWindow(dialog);
        return FALSE;
    case WM_COMMAND:
        if (DialogView* view = viewOf(dialog)) session.handler->onCommand(*view, LOWORD(wParam), HIWORD(wParam));
        return FALSE;
    case WM_USER: return userRequest(dialog, wParam, lParam);
    case WM_DRAWITEM: return lParam ? drawBarItem(dialog, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)) : FALSE;
    case WM_DPICHANGED:
        // The dialog manager goes on to scale the font and the controls.
        followDpiChange(dialog, lParam);
        repaintWhole(dialog);
        return FALSE;
    case WM_THEMECHANGED:
        repaintWhole(dialog);
        return FALSE;
    case WM_DESTROY:
        if (session.window == dialog) session.window = nullptr;
        return FALSE;
    default: return FALSE;
    }
}

}  // namespace

DialogView* openModelessDialog(HWND owner, const std::string& templateName, DialogHandler& handler) {
    if (session.view) closeModelessDialog(*session.view);
    session.handler = &handler;
    // The exported procedure has the DLGPROC shape, spelled without windows.h.
    const auto procedure = reinterpret_cast<DLGPROC>(reinterpret_cast<void (*)()>(&ProcessDlgProc));
    const VisualStyleScope styles;
    const HWND dialog = CreateDialogParamA(dialogInstance(), templateName.c_str(), owner, procedure,
                                           reinterpret_cast<LPARAM>(&session));
    if (!dialog || !session.view) {
        if (dialog) DestroyWindow(dialog);
        session = ModelessSession{};
        return nullptr;
    }
    return &*session.view;
}

void closeModelessDialog(DialogView& view) {
    if (!session.view || &*session.view != &view) return;
    const HWND dialog = session.window;
    session.handler = nullptr;
    if (dialog && IsWindow(dialog)) DestroyWindow(dialog);
    session.window = nullptr;
    session.view.reset();
}

bool pumpDialogMessages(HWND dialog) {
    bool cancel = false;
    MSG message;
    for (int i = 0; i < kPumpLimit && IsWindow(dialog) &&
                    PeekMessageA(&message, dialog, 0, kLastMessage, PM_REMOVE | PM_NOYIELD);
         ++i) {
        if (message.message == WM_COMMAND && message.wParam == IDCANCEL) cancel = true;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return cancel;
}

}  // namespace kvs::win32

// No exception may cross into the window manager.
extern "C" intptr_t KVS_CALL ProcessDlgProc(KvsWindow window, uint32_t message, uintptr_t wParam, intptr_t lParam) {
    return kvs::guardedExport(static_cast<intptr_t>(FALSE),
                              [&] { return kvs::win32::dispatch(static_cast<HWND>(window), message, wParam, lParam); });
}
