#include "win32/dialog_procedure.h"

#include "resources/common_ids.h"
#include "win32/colour_grid_window.h"
#include "win32/dialog_sizing.h"
#include "win32/dpi_scale.h"
#include "win32/list_drag.h"
#include "win32/module_instance.h"
#include "win32/owner_drawn_button.h"
#include "win32/picture_combo.h"

namespace kvs::win32 {

namespace {

HWND activeDialog = nullptr;

// Posted to a dialog by its WM_DPICHANGED, so that what follows the change
// runs once the dialog manager has scaled the dialog's font and controls.
constexpr UINT kAfterDpiChange = WM_APP + 0x4B2;

struct HelpMenuItem {
    UINT id;
    const char* label;
};

constexpr HelpMenuItem kHelpMenu[] = {
    {IDM_HELP_CONTENTS, "Help Contents"},
    {IDM_HELP_SEARCH, "Search for Help On..."},
    {IDM_HELP_ON_HELP, "How to Use Help"},
    {IDM_HELP_CONTEXT, "Help on this Dialog"},
};

// The help requests answer to the system menu, so a user can reach them.
void appendHelpMenu(HWND dialog) {
    HMENU menu = GetSystemMenu(dialog, FALSE);
    if (!menu) return;
    AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
    for (const HelpMenuItem& item : kHelpMenu) AppendMenuA(menu, MF_STRING, item.id, item.label);
}

DialogSession* sessionOf(HWND dialog) {
    return reinterpret_cast<DialogSession*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

INT_PTR initialise(HWND dialog, DialogSession& session) {
    SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&session));
    session.previousActive = activeDialog;
    activeDialog = dialog;
    session.view.emplace(dialog);
    appendHelpMenu(dialog);
    const int focus = session.handler->onInit(*session.view);
    attachListGestures(dialog);
    // FALSE tells the dialog manager the focus is set already.
    return focus != 0 ? FALSE : TRUE;
}

bool isHelpRequest(WPARAM code) { return code >= IDM_HELP_CONTENTS && code <= IDM_HELP_CONTEXT; }

INT_PTR dispatch(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* session = reinterpret_cast<DialogSession*>(lParam);
        return session && session->handler ? initialise(dialog, *session) : TRUE;
    }
    // Entry heights are asked before WM_INITDIALOG.
    if (message == WM_MEASUREITEM)
        return lParam && measurePictureItem(dialog, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)) ? TRUE : FALSE;
    DialogSession* session = sessionOf(dialog);
    if (!session || !session->view) return FALSE;
    Win32DialogView& view = *session->view;
    switch (message) {
    case WM_GETMINMAXINFO:
        return answerMinMaxInfo(view, lParam) ? TRUE : FALSE;
    case WM_SIZE:
        forwardSize(view, *session->handler, wParam);
        return FALSE;
    case WM_COMMAND:
        if (lParam != 0 && viewIsChangingControls()) return TRUE;
        session->handler->onCommand(view, LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_SYSCOMMAND:
        // Windows keeps the low four bits of its own SC_ codes; the
        // library's help commands are compared whole.
        if (!isHelpRequest(wParam)) return FALSE;
        session->handler->onSysCommand(view, static_cast<int>(wParam));
        return TRUE;
    case WM_CLOSE:
        session->handler->onCommand(view, IDCANCEL, BN_CLICKED);
        return TRUE;
    case WM_DRAWITEM: {
        if (!lParam) return FALSE;
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        return drawOwnerDrawnButton(item) || drawPictureItem(moduleInstance(), item) ? TRUE : FALSE;
    }
    case kColourGridClick: {
        RECT client{};
        GetClientRect(GetDlgItem(dialog, static_cast<int>(wParam)), &client);
        const POINTS at = MAKEPOINTS(lParam);
        session->handler->onClick(view, static_cast<int>(wParam), at.x, at.y, client.right, client.bottom);
        return TRUE;
    }
    case WM_DPICHANGED:
        // The dialog manager goes on to scale the font and the controls.
        followDpiChange(dialog, lParam);
        PostMessageA(dialog, kAfterDpiChange, 0, 0);
        return FALSE;
    case kAfterDpiChange:
        // The entries of the picture lists, the smallest size and the
        // layout of a resizable dialog, at the new scale.
        remeasurePictureLists(dialog);
        view.refreshMinimumTrack();
        forwardSize(view, *session->handler, IsIconic(dialog) ? SIZE_MINIMIZED : SIZE_RESTORED);
        repaintWhole(dialog);
        return TRUE;
    case WM_THEMECHANGED:
        // The owner-drawn controls open the theme as they paint.
        repaintWhole(dialog);
        return FALSE;
    case WM_DESTROY:
        activeDialog = session->previousActive;
        return FALSE;
    default:
        return FALSE;
    }
}

}  // namespace

HWND activeLibraryDialog() { return activeDialog; }

DialogSession* librarySession(HWND dialog) {
    return dialog && GetWindowLongPtrA(dialog, DWLP_DLGPROC) == reinterpret_cast<LONG_PTR>(libraryDialogProcedure)
               ? sessionOf(dialog)
               : nullptr;
}

// No exception may cross into the window manager: a failing handler ends
// its dialog as cancelled.
INT_PTR CALLBACK libraryDialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return dispatch(dialog, message, wParam, lParam);
    } catch (...) {
        EndDialog(dialog, IDCANCEL);
        return TRUE;
    }
}

}  // namespace kvs::win32
