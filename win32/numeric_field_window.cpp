#include "win32/numeric_field_window.h"

#include <windowsx.h>

#include <new>

#include "win32/control_reading.h"
#include "win32/dpi_scale.h"
#include "win32/microscroll.h"
#include "win32/module_instance.h"
#include "win32/theme_parts.h"
#include "win32/win32_dialog_view.h"

namespace kvs::win32 {

namespace {

constexpr const char* kFieldProperty = "KvsNumericField";
constexpr const char* kUpDownProperty = "KvsUpDownState";
constexpr WPARAM kSelectAllEnd = 32000;
constexpr UINT kDefaultRepeat = 100;
// Where the press and release that cancel a button's pressed state land:
// outside the button, so no click follows.
constexpr short kOutside = -10;

// The library's owner window for deferred reports; it stays null, so the
// report is a thread message (see the header).
constexpr HWND kOwnerWindow = nullptr;

int liveFields = 0;
HHOOK deferredHook = nullptr;
// Set while a field that reported its error takes the focus back: the
// control the focus leaves then is not checked, so two fields never trade
// reports.
bool returningFocus = false;

NumericField* fieldOf(HWND edit) { return static_cast<NumericField*>(GetPropA(edit, kFieldProperty)); }

void selectAll(HWND edit) { SendMessageA(edit, EM_SETSEL, 0, static_cast<LPARAM>(kSelectAllEnd)); }

// Gives a deferred report, posted to no window, to the edit window it names.
LRESULT CALLBACK deferredReportHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && lParam) {
        auto* message = reinterpret_cast<MSG*>(lParam);
        if (!message->hwnd && message->message == kDeferredFieldError) {
            const auto edit = reinterpret_cast<HWND>(message->lParam);
            if (IsWindow(edit) && fieldOf(edit)) message->hwnd = edit;
        }
    }
    return CallNextHookEx(deferredHook, code, wParam, lParam);
}

bool isDialogButton(HWND window, HWND dialog, int id) {
    return window && GetParent(window) == dialog && GetDlgCtrlID(window) == id;
}

bool isButton(HWND window) {
    char name[16] = {};
    return window && GetClassNameA(window, name, static_cast<int>(sizeof name)) > 0 && lstrcmpiA(name, "Button") == 0;
}

HWND dialogOf(const NumericField& field) { return reinterpret_cast<HWND>(field.dialog); }

// The control of dialog that holds window (a combo box for its edit), or
// null when window is not in the dialog.
HWND controlHolding(HWND dialog, HWND window) {
    if (!window || !IsChild(dialog, window)) return nullptr;
    while (GetParent(window) != dialog) window = GetParent(window);
    return window;
}

// Enter or Tab with the notify flag set; the key goes no further.
void confirmKey(HWND edit, NumericField& field, WPARAM key) {
    Win32DialogView view(dialogOf(field));
    if (confirmField(field, view) > kFieldValid) {
        selectAll(edit);
        SetFocus(edit);
        return;
    }
    // The field wants Tab for itself (WM_GETDLGCODE), so after a good check
    // it moves the focus on as the dialog manager would have.
    if (key == VK_TAB) SendMessageA(dialogOf(field), WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0 ? 1 : 0, FALSE);
}

void focusLost(HWND edit, NumericField& field, HWND gaining) {
    if (fieldMessageUp() || returningFocus) return;
    Win32DialogView view(dialogOf(field));
    const int code = leaveField(field, view);
    const HWND dialog = dialogOf(field);
    if (code == kFieldValid) {
        if (gaining != edit && !isDialogButton(gaining, dialog, IDOK) && !isDialogButton(gaining, dialog, IDCANCEL))
            selectAll(edit);
        return;
    }
    // Leaving the dialog (a message box, the dialog closing) is not leaving
    // the field; the buttons that end the dialog check or discard it
    // themselves.
    const HWND control = controlHolding(dialog, gaining);
    if (!control || !leavingIsChecked(GetDlgCtrlID(control))) return;
    selectAll(edit);
    if (isButton(gaining)) {
        const LPARAM outside = MAKELPARAM(static_cast<WORD>(kOutside), static_cast<WORD>(kOutside));
        PostMessageA(gaining, WM_LBUTTONDOWN, MK_LBUTTON, outside);
        PostMessageA(gaining, WM_LBUTTONUP, 0, outside);
    }
    PostMessageA(kOwnerWindow, kDeferredFieldError, static_cast<WPARAM>(code), reinterpret_cast<LPARAM>(edit));
}

void showDeferred(HWND edit, WPARAM code) {
    reportFieldError(static_cast<int>(static_cast<INT_PTR>(code)));
    if (!IsWindow(edit)) return;
    returningFocus = true;
    SetFocus(edit);
    returningFocus = false;
    selectAll(edit);
}

bool wantsKey(LPARAM lParam) {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    return message && (message->message == WM_KEYDOWN || message->message == WM_CHAR) &&
           (message->wParam == VK_RETURN || message->wParam == VK_TAB);
}

void detach(HWND edit, NumericField& field) {
    SetWindowLongPtrA(edit, GWLP_WNDPROC, static_cast<LONG_PTR>(field.previousProcedure));
    RemovePropA(edit, kFieldProperty);
    if (--liveFields == 0 && deferredHook) {
        UnhookWindowsHookEx(deferredHook);
        deferredHook = nullptr;
    }
}

LRESULT handleEdit(HWND edit, NumericField& field, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto previous = reinterpret_cast<WNDPROC>(field.previousProcedure);
    switch (message) {
    case WM_GETDLGCODE: {
        LRESULT code = CallWindowProcA(previous, edit, message, wParam, lParam);
        if (field.notify && wantsKey(lParam)) code |= DLGC_WANTMESSAGE | DLGC_WANTTAB;
        return code;
    }
    case WM_KEYDOWN:
        if (field.notify && (wParam == VK_RETURN || wParam == VK_TAB)) {
            confirmKey(edit, field, wParam);
            return 0;
        }
        break;
    case WM_CHAR:
        if (field.notify && (wParam == '\r' || wParam == '\t')) return 0;
        break;
    case WM_SETFOCUS: rememberFocusText(windowText(edit)); break;
    case WM_KILLFOCUS: {
        const LRESULT result = CallWindowProcA(previous, edit, message, wParam, lParam);
        focusLost(edit, field, reinterpret_cast<HWND>(wParam));
        return result;
    }
    case kDeferredFieldError: showDeferred(edit, wParam); return 0;
    case WM_NCDESTROY: detach(edit, field); return CallWindowProcA(previous, edit, message, wParam, lParam);
    default: break;
    }
    return CallWindowProcA(previous, edit, message, wParam, lParam);
}

LRESULT CALLBACK editProcedure(HWND edit, UINT message, WPARAM wParam, LPARAM lParam) {
    NumericField* field = fieldOf(edit);
    if (!field) return DefWindowProcA(edit, message, wParam, lParam);
    try {
        return handleEdit(edit, *field, message, wParam, lParam);
    } catch (...) {
        return CallWindowProcA(reinterpret_cast<WNDPROC>(field->previousProcedure), edit, message, wParam, lParam);
    }
}

// ---------------------------------------------------------------------------
// The up/down control

struct UpDownState {
    UINT repeat = kDefaultRepeat;
    int pressed = 0;    // kStepUp, kStepDown or 0
    bool over = false;  // the pointer is over the pressed arrow
};

UpDownState* stateOf(HWND window) { return static_cast<UpDownState*>(GetPropA(window, kUpDownProperty)); }
NumericField* upDownField(HWND window) { return reinterpret_cast<NumericField*>(GetWindowLongPtrA(window, 0)); }

RECT arrowRect(HWND window, int arrow) {
    RECT r{};
    GetClientRect(window, &r);
    const LONG middle = (r.top + r.bottom) / 2;
    if (arrow == kStepUp) r.bottom = middle;
    else r.top = middle;
    return r;
}

bool overArrow(HWND window, int arrow, LPARAM point) {
    const RECT r = arrowRect(window, arrow);
    const POINT p{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    return PtInRect(&r, p) != FALSE;
}

UINT_PTR timerOf(int arrow) { return arrow == kStepUp ? kUpTimer : kDownTimer; }

void stopRepeat(HWND window, UpDownState& state) {
    KillTimer(window, kUpTimer);
    KillTimer(window, kDownTimer);
    state.pressed = 0;
    state.over = false;
    if (GetCapture() == window) ReleaseCapture();
    InvalidateRect(window, nullptr, FALSE);
}

void showPosition(HWND window, const NumericField& field) {
    SetWindowTextA(window, upDownText(1, upDownPositions(field), upDownPosition(field)).c_str());
}

void stepOnce(HWND window, UpDownState& state) {
    NumericField* field = upDownField(window);
    if (!field || !state.pressed) return;
    Win32DialogView view(dialogOf(*field));
    const int code = validateField(*field, view);
    if (code != kFieldValid) {
        // The message box would take the capture anyway: let go first.
        stopRepeat(window, state);
        reportFieldError(code);
        return;
    }
    stepField(*field, view, state.pressed);
    showPosition(window, *field);
    const auto edit = reinterpret_cast<HWND>(field->edit);
    // Stepping notified the change already; leaving the field must not again.
    if (edit && GetFocus() == edit) rememberFocusText(windowText(edit));
}

// The theme's spin arrows where a theme is on, the classic scroll arrows
// otherwise.
int themedArrowState(int arrow, bool enabled, bool pushed) {
    if (arrow == kStepUp) return !enabled ? UPS_DISABLED : pushed ? UPS_PRESSED : UPS_NORMAL;
    return !enabled ? DNS_DISABLED : pushed ? DNS_PRESSED : DNS_NORMAL;
}

void paintUpDown(HWND window) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    if (!dc) return;
    const ThemePart theme(window, L"SPIN");
    auto brush = theme ? GetSysColorBrush(COLOR_BTNFACE)
                       : reinterpret_cast<HBRUSH>(GetClassLongPtrA(window, GCLP_HBRBACKGROUND));
    if (brush) FillRect(dc, &paint.rcPaint, brush);
    const UpDownState* state = stateOf(window);
    const bool enabled = IsWindowEnabled(window) != FALSE;
    for (int arrow : {kStepUp, kStepDown}) {
        RECT r = arrowRect(window, arrow);
        const bool pushed = state && state->pressed == arrow && state->over;
        if (theme && theme.drawBackground(dc, arrow == kStepUp ? SPNP_UP : SPNP_DOWN,
                                          themedArrowState(arrow, enabled, pushed), r))
            continue;
        UINT kind = (arrow == kStepUp ? DFCS_SCROLLUP : DFCS_SCROLLDOWN) | (enabled ? 0 : DFCS_INACTIVE);
        if (pushed) kind |= DFCS_PUSHED;
        DrawFrameControl(dc, &r, DFC_SCROLL, kind);
    }
    EndPaint(window, &paint);
}

LRESULT handleUpDown(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    UpDownState* state = stateOf(window);
    switch (message) {
    case WM_PAINT: paintUpDown(window); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_THEMECHANGED:
    case WM_DPICHANGED_AFTERPARENT: InvalidateRect(window, nullptr, FALSE); return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        if (!state) return 0;
        const RECT up = arrowRect(window, kStepUp);
        state->pressed = GET_Y_LPARAM(lParam) < up.bottom ? kStepUp : kStepDown;
        state->over = true;
        SetCapture(window);
        InvalidateRect(window, nullptr, FALSE);
        stepOnce(window, *state);
        if (state->pressed) SetTimer(window, timerOf(state->pressed), state->repeat, nullptr);
        return 0;
    }
    case WM_MOUSEMOVE:
        if (state && state->pressed && GetCapture() == window) {
            const bool over = overArrow(window, state->pressed, lParam);
            if (over != state->over) {
                state->over = over;
                InvalidateRect(window, nullptr, FALSE);
            }
        }
        return 0;
    case WM_TIMER:
        if (state && state->pressed && wParam == timerOf(state->pressed)) {
            if (state->over) stepOnce(window, *state);
            return 0;
        }
        break;
    case WM_LBUTTONUP:
        if (state) stopRepeat(window, *state);
        return 0;
    case WM_CAPTURECHANGED:
        if (state && state->pressed && reinterpret_cast<HWND>(lParam) != window) {
            KillTimer(window, kUpTimer);
            KillTimer(window, kDownTimer);
            state->pressed = 0;
            InvalidateRect(window, nullptr, FALSE);
        }
        return 0;
    case WM_NCDESTROY:
        RemovePropA(window, kUpDownProperty);
        delete state;
        break;
    default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

LRESULT CALLBACK upDownProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return handleUpDown(window, message, wParam, lParam);
    } catch (...) {
        return 0;
    }
}

bool attachNumericField(HWND dialog, NumericField& field) {
    const HWND edit = GetDlgItem(dialog, field.controlId);
    if (!edit || fieldOf(edit)) return false;
    field.dialog = reinterpret_cast<WindowRef>(dialog);
    field.edit = reinterpret_cast<WindowRef>(edit);
    if (!deferredHook) deferredHook = SetWindowsHookExA(WH_GETMESSAGE, deferredReportHook, nullptr, GetCurrentThreadId());
    ++liveFields;
    SetPropA(edit, kFieldProperty, &field);
    field.previousProcedure = static_cast<std::uintptr_t>(
        SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(editProcedure)));
    return true;
}

HWND createUpDown(HWND dialog, int editId, NumericField& field, std::int32_t notify, const char* initialText,
                  UINT repeatMilliseconds) {
    const HWND edit = GetDlgItem(dialog, editId);
    if (!edit) return nullptr;
    if (initialText) SetWindowTextA(edit, initialText);
    field.controlId = static_cast<std::uint16_t>(editId);
    field.notify = notify;

    const RECT r = rectInParent(edit);
    const std::string text = upDownText(1, upDownPositions(field), upDownPosition(field));
    const int width = scaledLength(kUpDownWidth, windowDpi(dialog));
    const HWND upDown = CreateWindowExA(0, kMicroscrollClass, text.c_str(), kUpDownStyle, r.right, r.top, width,
                                        r.bottom - r.top, dialog, nullptr, moduleInstance(), nullptr);
    if (!upDown) return nullptr;
    auto* state = new (std::nothrow) UpDownState;
    if (!state) {
        DestroyWindow(upDown);
        return nullptr;
    }
    state->repeat = repeatMilliseconds ? repeatMilliseconds : kDefaultRepeat;
    SetPropA(upDown, kUpDownProperty, state);
    SetWindowLongPtrA(upDown, 0, reinterpret_cast<LONG_PTR>(&field));
    attachNumericField(dialog, field);
    return upDown;
}

}  // namespace kvs::win32
