#include "win32/control_reading.h"

#include <algorithm>

namespace kvs::win32 {

std::string windowText(HWND window) {
    const int length = window ? GetWindowTextLengthA(window) : 0;
    if (length <= 0) return {};
    std::string buffer(static_cast<std::size_t>(length) + 1, '\0');
    const int copied = GetWindowTextA(window, buffer.data(), length + 1);
    buffer.resize(static_cast<std::size_t>(std::clamp(copied, 0, length)));
    return buffer;
}

std::string itemText(HWND control, UINT lengthMessage, UINT textMessage, int index) {
    if (!control || index < 0) return {};
    const LRESULT length = SendMessageA(control, lengthMessage, static_cast<WPARAM>(index), 0);
    if (length <= 0) return {};
    std::string buffer(static_cast<std::size_t>(length) + 1, '\0');
    const LRESULT copied =
        SendMessageA(control, textMessage, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer.data()));
    buffer.resize(static_cast<std::size_t>(std::clamp<LRESULT>(copied, 0, length)));
    return buffer;
}

RECT rectInParent(HWND child) {
    RECT r{};
    if (child && GetWindowRect(child, &r)) MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&r), 2);
    return r;
}

bool isCheckableButton(HWND button) {
    switch (GetWindowLongPtrA(button, GWL_STYLE) & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_RADIOBUTTON:
    case BS_3STATE:
    case BS_AUTO3STATE:
    case BS_AUTORADIOBUTTON: return true;
    default: return false;
    }
}

}  // namespace kvs::win32
