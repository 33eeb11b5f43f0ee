#include "win32/owner_drawn_button.h"

#include <array>

namespace kvs::win32 {

namespace {

constexpr int kFocusInset = 4;

}  // namespace

bool drawOwnerDrawnButton(const DRAWITEMSTRUCT& item) {
    if (item.CtlType != ODT_BUTTON || !item.hDC) return false;
    HDC dc = item.hDC;
    RECT face = item.rcItem;
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    const bool focused = (item.itemState & ODS_FOCUS) != 0;

    DrawFrameControl(dc, &face, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0));

    std::array<char, 128> label{};
    const int length = GetWindowTextA(item.hwndItem, label.data(), static_cast<int>(label.size()));
    if (length > 0) {
        RECT textArea = face;
        if (pressed) OffsetRect(&textArea, 1, 1);
        // The button's own font; selected only for drawing, never created here.
        auto font = reinterpret_cast<HFONT>(SendMessageA(item.hwndItem, WM_GETFONT, 0, 0));
        HGDIOBJ previousFont = font ? SelectObject(dc, font) : nullptr;
        const int previousMode = SetBkMode(dc, TRANSPARENT);
        const COLORREF previousColour = SetTextColor(dc, GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
        DrawTextA(dc, label.data(), length, &textArea, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        SetTextColor(dc, previousColour);
        SetBkMode(dc, previousMode);
        if (previousFont) SelectObject(dc, previousFont);
    }
    if (focused && !disabled) {
        RECT focus = face;
        InflateRect(&focus, -kFocusInset, -kFocusInset);
        DrawFocusRect(dc, &focus);
    }
    return true;
}

}  // namespace kvs::win32
