#include "win32/owner_drawn_button.h"

#include <string>

#include "win32/control_reading.h"
#include "win32/dpi_scale.h"
#include "win32/theme_parts.h"

namespace kvs::win32 {

namespace {

constexpr int kFocusInset = 4;  // pixels at 96 DPI
constexpr int kPressedShift = 1;

int themedState(UINT itemState) {
    if (itemState & ODS_DISABLED) return PBS_DISABLED;
    if (itemState & ODS_SELECTED) return PBS_PRESSED;
    if (itemState & ODS_HOTLIGHT) return PBS_HOT;
    if (itemState & (ODS_DEFAULT | ODS_FOCUS)) return PBS_DEFAULTED;
    return PBS_NORMAL;
}

}  // namespace

bool drawOwnerDrawnButton(const DRAWITEMSTRUCT& item) {
    if (item.CtlType != ODT_BUTTON || !item.hDC) return false;
    HDC dc = item.hDC;
    RECT face = item.rcItem;
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    const bool focused = (item.itemState & ODS_FOCUS) != 0;
    const UINT dpi = windowDpi(item.hwndItem);

    // The theme's push button where a theme is on, the classic 3D face
    // otherwise.
    const ThemePart theme(item.hwndItem, L"BUTTON");
    const int state = themedState(item.itemState);
    const bool themed = theme && theme.drawBackground(dc, BP_PUSHBUTTON, state, face);
    if (!themed) DrawFrameControl(dc, &face, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0));

    const std::string label = windowText(item.hwndItem);
    const int length = static_cast<int>(label.size());
    if (length > 0) {
        RECT textArea = face;
        // A classic face sinks when pressed; a themed one shows it itself.
        if (pressed && !themed) {
            const int shift = scaledLength(kPressedShift, dpi);
            OffsetRect(&textArea, shift, shift);
        }
        // The button's own font; selected only for drawing, never created here.
        auto font = reinterpret_cast<HFONT>(SendMessageA(item.hwndItem, WM_GETFONT, 0, 0));
        HGDIOBJ previousFont = font ? SelectObject(dc, font) : nullptr;
        const int previousMode = SetBkMode(dc, TRANSPARENT);
        const UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE | ((item.itemState & ODS_NOACCEL) ? DT_HIDEPREFIX : 0);
        if (!(themed && theme.drawText(dc, BP_PUSHBUTTON, state, label.data(), length, format, textArea))) {
            const COLORREF previousColour =
                SetTextColor(dc, GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
            DrawTextA(dc, label.data(), length, &textArea, format);
            SetTextColor(dc, previousColour);
        }
        SetBkMode(dc, previousMode);
        if (previousFont) SelectObject(dc, previousFont);
    }
    if (focused && !disabled && !(item.itemState & ODS_NOFOCUSRECT)) {
        RECT focus = face;
        const int inset = scaledLength(kFocusInset, dpi);
        InflateRect(&focus, -inset, -inset);
        DrawFocusRect(dc, &focus);
    }
    return true;
}

}  // namespace kvs::win32
