#include "win32/picture_combo.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>

#include "resources/graph_ids.h"
#include "win32/control_reading.h"
#include "win32/dpi_scale.h"

namespace kvs::win32 {

namespace {

struct PictureList {
    int id;
    const char* prefix;  // the bitmap resources are prefix1, prefix2, ...
    int height;          // of an entry, in pixels at 96 DPI
};

// Margins around the picture, in pixels at 96 DPI.
constexpr int kPictureLeft = 3;
constexpr int kPictureGap = 6;
constexpr int kPictureRoom = 2;

constexpr PictureList kPictureLists[] = {
    {IDC_SYMBOL_1, "symbol", 20},        {IDC_SYMBOL_2, "symbol", 20},        {IDC_SYMBOL_3, "symbol", 20},
    {IDC_LINE_DASH1, "dash", 16},        {IDC_LINE_DASH2, "dash", 16},        {IDC_LINE_DASH3, "dash", 16},
    {IDC_ALLAXES_AXES2D, "axes2d", 40},  {IDC_ALLAXES_SCALES2D, "axes2d", 40},
    {IDC_ALLAXES_AXES3D, "axes3d", 40},  {IDC_ALLAXES_SCALES3D, "axes3d", 40},
};

const PictureList* pictureList(UINT id) {
    for (const PictureList& list : kPictureLists)
        if (static_cast<UINT>(list.id) == id) return &list;
    return nullptr;
}

// The library's bitmaps by name, loaded once and kept for the process.
HBITMAP picture(HMODULE module, const char* prefix, UINT position) {
    static std::map<std::string, HBITMAP> loaded;
    char name[32];
    std::snprintf(name, sizeof name, "%s%u", prefix, position);
    auto [it, made] = loaded.try_emplace(name, nullptr);
    if (made) it->second = LoadBitmapA(module, name);
    return it->second;
}

}  // namespace

bool measurePictureItem(HWND dialog, MEASUREITEMSTRUCT& item) {
    if (item.CtlType != ODT_COMBOBOX) return false;
    const PictureList* list = pictureList(item.CtlID);
    if (!list) return false;
    item.itemHeight = static_cast<UINT>(scaledLength(list->height, windowDpi(dialog)));
    return true;
}

void remeasurePictureLists(HWND dialog) {
    const UINT dpi = windowDpi(dialog);
    for (const PictureList& list : kPictureLists) {
        const HWND combo = GetDlgItem(dialog, list.id);
        if (!combo) continue;
        const auto height = static_cast<LPARAM>(scaledLength(list.height, dpi));
        // -1 is the closed list's field, 0 every entry of a fixed-height list.
        SendMessageA(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
        SendMessageA(combo, CB_SETITEMHEIGHT, 0, height);
    }
}

bool drawPictureItem(HMODULE module, const DRAWITEMSTRUCT& item) {
    if (item.CtlType != ODT_COMBOBOX || !item.hDC) return false;
    const PictureList* list = pictureList(item.CtlID);
    if (!list) return false;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    const bool selected = (item.itemState & ODS_SELECTED) != 0 && !disabled;
    const UINT dpi = windowDpi(item.hwndItem);
    RECT area = item.rcItem;
    FillRect(item.hDC, &area, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (item.itemID == static_cast<UINT>(-1)) return true;
    const std::string text = itemText(item.hwndItem, CB_GETLBTEXTLEN, CB_GETLBTEXT, static_cast<int>(item.itemID));
    int x = area.left + scaledLength(kPictureLeft, dpi);
    if (item.itemID > 0) {
        if (const HBITMAP bitmap = picture(module, list->prefix, item.itemID)) {
            BITMAP size{};
            GetObjectA(bitmap, sizeof size, &size);
            if (const HDC memory = CreateCompatibleDC(item.hDC)) {
                // Drawn at the monitor's scale; where the closed list's field
                // is lower than a list entry the picture is shrunk to fit,
                // keeping its proportions.
                const int room = std::max<int>(area.bottom - area.top - scaledLength(kPictureRoom, dpi), 1);
                const int height = std::min<int>(scaledLength(size.bmHeight, dpi), room);
                const int width = size.bmHeight > 0 ? MulDiv(size.bmWidth, height, size.bmHeight) : 0;
                const HGDIOBJ old = SelectObject(memory, bitmap);
                const int top = area.top + (area.bottom - area.top - height) / 2;
                SetStretchBltMode(item.hDC, HALFTONE);
                StretchBlt(item.hDC, x, top, width, height, memory, 0, 0, size.bmWidth, size.bmHeight, SRCCOPY);
                SelectObject(memory, old);
                DeleteDC(memory);
                x += width + scaledLength(kPictureGap, dpi);
            }
        }
    }
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC,
                 GetSysColor(disabled ? COLOR_GRAYTEXT : selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    RECT textArea{x, area.top, area.right, area.bottom};
    DrawTextA(item.hDC, text.c_str(), -1, &textArea, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) DrawFocusRect(item.hDC, &area);
    return true;
}

}  // namespace kvs::win32
