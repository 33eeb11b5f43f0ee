// The layout operations of Win32DialogView: controls in dialog units, so the
// logic places what it adds in the units of the templates it extends.
#include <algorithm>

#include "win32/control_reading.h"
#include "win32/module_instance.h"
#include "win32/win32_dialog_view.h"

namespace kvs::win32 {

namespace {

// Pixels for 4 horizontal and 8 vertical dialog units of this dialog's font.
POINT unitScale(HWND dialog) {
    RECT scale{0, 0, 4, 8};
    MapDialogRect(dialog, &scale);
    return {std::max<LONG>(scale.right, 1), std::max<LONG>(scale.bottom, 1)};
}

int toUnitsX(HWND dialog, int pixels) { return MulDiv(pixels, 4, unitScale(dialog).x); }
int toUnitsY(HWND dialog, int pixels) { return MulDiv(pixels, 8, unitScale(dialog).y); }

RECT toPixels(HWND dialog, const DialogRect& rect) {
    RECT pixels{rect.x, rect.y, rect.right(), rect.bottom()};
    MapDialogRect(dialog, &pixels);
    return pixels;
}

struct AddedClass {
    const char* name;
    DWORD style;
    DWORD exStyle;
};

AddedClass classOf(AddedKind kind) {
    constexpr DWORD child = WS_CHILD | WS_VISIBLE;
    switch (kind) {
    case AddedKind::Label: return {"STATIC", child | SS_LEFT, 0};
    case AddedKind::PushButton: return {"BUTTON", child | WS_TABSTOP | BS_PUSHBUTTON, 0};
    case AddedKind::Edit: return {"EDIT", child | WS_TABSTOP | WS_BORDER | ES_LEFT | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE};
    case AddedKind::ReadOnlyText:
        return {"EDIT", child | WS_TABSTOP | WS_BORDER | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL,
                WS_EX_CLIENTEDGE};
    }
    return {"STATIC", child, 0};
}

}  // namespace

DialogRect Win32DialogView::rectOf(HWND control) const {
    if (!control) return {};
    const RECT frame = rectInParent(control);
    return {toUnitsX(dialog_, frame.left), toUnitsY(dialog_, frame.top), toUnitsX(dialog_, frame.right - frame.left),
            toUnitsY(dialog_, frame.bottom - frame.top)};
}

std::vector<ControlLayout> Win32DialogView::layout() const {
    std::vector<ControlLayout> all;
    for (HWND control = GetWindow(dialog_, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        const int id = GetDlgCtrlID(control);
        ControlLayout entry{id, typeOfControl(control), {}, rectOf(control)};
        if (entry.type == ControlType::Edit) entry.multiLine = (GetWindowLongA(control, GWL_STYLE) & ES_MULTILINE) != 0;
        if (entry.type == ControlType::Button || entry.type == ControlType::Other) entry.text = windowText(control);
        all.push_back(std::move(entry));
    }
    return all;
}

DialogRect Win32DialogView::controlRect(int id) const { return rectOf(child(id)); }

DialogRect Win32DialogView::clientRect() const {
    RECT client{};
    if (!GetClientRect(dialog_, &client)) return {};
    return {0, 0, toUnitsX(dialog_, client.right), toUnitsY(dialog_, client.bottom)};
}

void Win32DialogView::moveControl(int id, const DialogRect& rect) {
    HWND control = child(id);
    if (!control) return;
    const RECT pixels = toPixels(dialog_, rect);
    SetWindowPos(control, nullptr, pixels.left, pixels.top, pixels.right - pixels.left, pixels.bottom - pixels.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// One deferred move for all the controls, so they are redrawn once.
void Win32DialogView::arrange(const std::vector<DialogRect>& rects) {
    std::vector<std::pair<HWND, DialogRect>> moves;
    HWND control = GetWindow(dialog_, GW_CHILD);
    for (std::size_t i = 0; control && i < rects.size(); ++i, control = GetWindow(control, GW_HWNDNEXT))
        moves.emplace_back(control, rects[i]);
    HDWP batch = BeginDeferWindowPos(static_cast<int>(moves.size()));
    for (const auto& [window, rect] : moves) {
        const DialogRect now = rectOf(window);
        UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
        if (now.width == rect.width && now.height == rect.height) flags |= SWP_NOSIZE;
        const RECT pixels = toPixels(dialog_, rect);
        const int width = pixels.right - pixels.left, height = pixels.bottom - pixels.top;
        if (batch) batch = DeferWindowPos(batch, window, nullptr, pixels.left, pixels.top, width, height, flags);
        else SetWindowPos(window, nullptr, pixels.left, pixels.top, width, height, flags);
    }
    if (batch) EndDeferWindowPos(batch);
    // Group boxes and labels leave their old pictures behind otherwise.
    RedrawWindow(dialog_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// A thick frame around the same client area, and the window the smallest
// client area needs inside that frame.
void Win32DialogView::makeResizable(int minWidth, int minHeight) {
    RECT client{};
    if (!GetClientRect(dialog_, &client)) return;
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(dialog_, GWL_STYLE) | WS_THICKFRAME);
    const auto exStyle = static_cast<DWORD>(GetWindowLongPtrA(dialog_, GWL_EXSTYLE));
    SetWindowLongPtrA(dialog_, GWL_STYLE, static_cast<LONG_PTR>(style));
    minUnits_ = {minWidth, minHeight};
    resizable_ = true;
    refreshMinimumTrack();
    RECT frame = client;
    AdjustWindowRectEx(&frame, style, FALSE, exStyle);
    SetWindowPos(dialog_, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void Win32DialogView::refreshMinimumTrack() {
    if (!resizable_) return;
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(dialog_, GWL_STYLE));
    const auto exStyle = static_cast<DWORD>(GetWindowLongPtrA(dialog_, GWL_EXSTYLE));
    RECT smallest = toPixels(dialog_, {0, 0, minUnits_.cx, minUnits_.cy});
    AdjustWindowRectEx(&smallest, style, FALSE, exStyle);
    minTrack_ = {smallest.right - smallest.left, smallest.bottom - smallest.top};
}

void Win32DialogView::growClient(int width, int height) {
    RECT frame{};
    if (!GetWindowRect(dialog_, &frame)) return;
    const RECT grow = toPixels(dialog_, {0, 0, width, height});
    SetWindowPos(dialog_, nullptr, 0, 0, frame.right - frame.left + grow.right, frame.bottom - frame.top + grow.bottom,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool Win32DialogView::addControl(const AddedControl& added) {
    if (child(added.id)) return false;
    const AddedClass cls = classOf(added.kind);
    const RECT pixels = toPixels(dialog_, added.rect);
    const std::string text = added.text.substr(0, added.text.find('\0'));
    HWND control = CreateWindowExA(cls.exStyle, cls.name, text.c_str(), cls.style, pixels.left, pixels.top,
                                   pixels.right - pixels.left, pixels.bottom - pixels.top, dialog_,
                                   reinterpret_cast<HMENU>(static_cast<INT_PTR>(added.id)), moduleInstance(), nullptr);
    if (!control) return false;
    SendMessageA(control, WM_SETFONT, static_cast<WPARAM>(SendMessageA(dialog_, WM_GETFONT, 0, 0)), FALSE);
    // A new window goes to the top of the z-order, which is also the first
    // place in tab order; it belongs after the control it follows.
    HWND previous = added.after ? child(added.after) : HWND_BOTTOM;
    if (previous) SetWindowPos(control, previous, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    controls_.emplace(added.id, control);
    return true;
}

}  // namespace kvs::win32
