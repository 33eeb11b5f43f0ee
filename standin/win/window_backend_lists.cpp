// The scenario driver's mouse and keyboard in list boxes, and the accessible
// names a screen reader would read: real mouse and key messages to the real
// controls, so the library's own drag and key code runs.
#include "standin/win/window_backend.h"

#include <oleacc.h>

#include <algorithm>
#include <iterator>

#include "standin/win/control_probe.h"

namespace kvs::standin {

namespace {

LPARAM pointParameter(POINT at) {
    return MAKELPARAM(static_cast<WORD>(static_cast<short>(at.x)), static_cast<WORD>(static_cast<short>(at.y)));
}

// The entry's rectangle, scrolled into view first as a user would.
RECT entryRect(HWND list, int entry) {
    RECT item{}, client{};
    GetClientRect(list, &client);
    SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&item));
    if (item.top < client.top || item.bottom > client.bottom) {
        SendMessageA(list, LB_SETTOPINDEX, static_cast<WPARAM>(entry), 0);
        SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&item));
    }
    return item;
}

// Where to let go to drop before entry at: the upper half of that entry;
// below the last entry (at -1 or the count), the lower half of the last
// one, or the top of an empty list.
POINT dropPoint(HWND list, int at) {
    const auto count = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
    if (count <= 0) return {4, 4};
    const bool below = at < 0 || at >= count;
    const RECT item = entryRect(list, below ? count - 1 : at);
    const LONG quarter = (item.bottom - item.top) / 4;
    return {item.left + 4, below ? item.bottom - 1 - quarter : item.top + quarter};
}

int firstSelected(HWND list) {
    if (!isMultiSelectList(list)) return static_cast<int>(SendMessageA(list, LB_GETCURSEL, 0, 0));
    int first = -1;
    return SendMessageA(list, LB_GETSELITEMS, 1, reinterpret_cast<LPARAM>(&first)) == 1 ? first : -1;
}

void sendKey(HWND control, WPARAM key, UINT scanCode) {
    const auto down = static_cast<LPARAM>(1u | (scanCode << 16));
    SendMessageA(control, WM_KEYDOWN, key, down);
    SendMessageA(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001u | (scanCode << 16)));
}

std::string narrow(const wchar_t* text, UINT length) {
    if (!text || length == 0) return {};
    const int size = static_cast<int>(length);
    const int needed = WideCharToMultiByte(CP_ACP, 0, text, size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(needed > 0 ? needed : 0), '\0');
    if (needed > 0) WideCharToMultiByte(CP_ACP, 0, text, size, result.data(), needed, nullptr, nullptr);
    return result;
}

}  // namespace

// The press lands on the first selected entry, the mouse moves past the
// drag threshold and then over the drop point, and is let go there. The
// list pressed in has the mouse captured, so every point is in its client
// coordinates, as Windows would deliver them.
void WindowBackend::dragSelection(int from, int to, int at) {
    const HWND source = item(from);
    const HWND target = item(to);
    const int entry = source ? firstSelected(source) : -1;
    if (!target || entry < 0) return;
    const RECT pressed = entryRect(source, entry);
    const POINT press{pressed.left + 4, (pressed.top + pressed.bottom) / 2};
    SendMessageA(source, WM_LBUTTONDOWN, MK_LBUTTON, pointParameter(press));
    const POINT away{press.x + GetSystemMetrics(SM_CXDRAG) + 2, press.y + GetSystemMetrics(SM_CYDRAG) + 2};
    SendMessageA(source, WM_MOUSEMOVE, MK_LBUTTON, pointParameter(away));
    POINT drop = dropPoint(target, at);
    MapWindowPoints(target, source, &drop, 1);
    SendMessageA(source, WM_MOUSEMOVE, MK_LBUTTON, pointParameter(drop));
    SendMessageA(source, WM_LBUTTONUP, 0, pointParameter(drop));
}

// The key goes to the control as the keyboard's messages; for Ctrl+A the
// thread's key state says Ctrl is down meanwhile, as it would be.
void WindowBackend::pressKeyIn(int id, scenario::Key key) {
    const HWND control = item(id);
    if (!control) return;
    if (GetFocus() != control) SetFocus(control);
    constexpr UINT kDeleteScan = 0x153, kControlScan = 0x1D, kAScan = 0x1E;  // 0x100: an extended key
    if (key == scenario::Key::Delete) {
        sendKey(control, VK_DELETE, kDeleteScan);
        return;
    }
    BYTE before[256] = {};
    GetKeyboardState(before);
    BYTE held[256];
    std::copy(std::begin(before), std::end(before), std::begin(held));
    held[VK_CONTROL] |= 0x80;
    held[VK_LCONTROL] |= 0x80;
    SetKeyboardState(held);
    SendMessageA(control, WM_KEYDOWN, VK_CONTROL, static_cast<LPARAM>(1u | (kControlScan << 16)));
    sendKey(control, 'A', kAScan);
    SetKeyboardState(before);
    SendMessageA(control, WM_KEYUP, VK_CONTROL, static_cast<LPARAM>(0xC0000001u | (kControlScan << 16)));
}

int WindowBackend::focusedControl() {
    const HWND window = dialog();
    HWND focus = GetFocus();
    if (!window || !focus || !IsChild(window, focus)) return 0;
    while (GetParent(focus) != window) focus = GetParent(focus);
    return GetDlgCtrlID(focus);
}

// As a screen reader asks: the control's client object through
// WM_GETOBJECT, and its name.
std::string WindowBackend::accessibleName(int id) {
    const HWND control = item(id);
    if (!control) return {};
    const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    std::string name;
    IAccessible* object = nullptr;
    if (SUCCEEDED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                             reinterpret_cast<void**>(&object))) &&
        object) {
        VARIANT self;
        VariantInit(&self);
        self.vt = VT_I4;
        self.lVal = CHILDID_SELF;
        BSTR text = nullptr;
        if (SUCCEEDED(object->get_accName(self, &text)) && text) {
            name = narrow(text, SysStringLen(text));
            SysFreeString(text);
        }
        object->Release();
    }
    if (SUCCEEDED(com)) CoUninitialize();
    return name;
}

}  // namespace kvs::standin
