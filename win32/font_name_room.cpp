#include "win32/font_name_room.h"

#include <dlgs.h>

#include <algorithm>
#include <string>

#include "win32/control_reading.h"
#include "win32/dpi_scale.h"

namespace kvs::win32 {

namespace {

// The font list draws a type picture before each name: the room it takes
// and a margin after the name, in pixels at 96 DPI.
constexpr int kFontNameIndent = 30;
constexpr int kFontNameMargin = 4;
// A bound on the entries measured.
constexpr LRESULT kMostFontNames = 10000;

// The width of the widest entry of the font-name list in the dialog's font.
int widestFontName(HWND dialog, HWND names) {
    const LRESULT count = SendMessageA(names, CB_GETCOUNT, 0, 0);
    HDC dc = GetDC(names);
    if (!dc) return 0;
    auto font = reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0));
    HGDIOBJ previousFont = font ? SelectObject(dc, font) : nullptr;
    int widest = 0;
    for (LRESULT i = 0; i < count && i < kMostFontNames; ++i) {
        const std::string name = itemText(names, CB_GETLBTEXTLEN, CB_GETLBTEXT, static_cast<int>(i));
        SIZE size{};
        if (!name.empty() && GetTextExtentPoint32A(dc, name.data(), static_cast<int>(name.size()), &size))
            widest = std::max<int>(widest, size.cx);
    }
    if (previousFont) SelectObject(dc, previousFont);
    ReleaseDC(names, dc);
    return widest;
}

}  // namespace

void widenFontNames(HWND dialog) {
    const HWND names = GetDlgItem(dialog, cmb1);
    if (!names) return;
    const UINT dpi = windowDpi(dialog);
    const int needed = widestFontName(dialog, names) + scaledLength(kFontNameIndent, dpi) +
                       scaledLength(kFontNameMargin, dpi);
    // The list part's client width: without its scroll bar.
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    RECT list{};
    if (!GetComboBoxInfo(names, &info) || !info.hwndList || !GetClientRect(info.hwndList, &list)) return;
    int extra = needed - (list.right - list.left);
    if (extra <= 0) return;
    RECT frame{};
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (!GetWindowRect(dialog, &frame) ||
        !GetMonitorInfoA(MonitorFromWindow(dialog, MONITOR_DEFAULTTONEAREST), &monitor))
        return;
    const RECT& work = monitor.rcWork;
    extra = std::min<int>(extra, (work.right - work.left) - (frame.right - frame.left));
    if (extra <= 0) return;

    const RECT field = rectInParent(names);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (child == names) continue;
        const RECT r = rectInParent(child);
        if (r.left >= field.right)
            SetWindowPos(child, nullptr, r.left + extra, r.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        else if (r.right > field.right)  // reaching across: a group box keeps what moved inside it
            SetWindowPos(child, nullptr, 0, 0, r.right - r.left + extra, r.bottom - r.top,
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    SetWindowPos(names, nullptr, 0, 0, field.right - field.left + extra, field.bottom - field.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    // Wider by as much, moved left where it would pass the work area's edge.
    const int width = frame.right - frame.left + extra;
    const int left = std::max<int>(work.left, std::min<int>(frame.left, work.right - width));
    SetWindowPos(dialog, nullptr, left, frame.top, width, frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace kvs::win32
