// The file filters on the real common Open dialog: every filter the library
// prepares offers exactly its descriptions, in order, in the dialog's file
// type box. The real font dialog: its font-name list shows the longest name
// whole, and what stood right of the list still does. A thread timer reads
// each dialog and cancels it.
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "core/file_filters.h"
#include "core/seam.h"
#include "tests/win/controls_checks.h"

namespace {

constexpr int kFileTypeBox = 0x470;  // cmb1 of the common file dialogs
constexpr char kTitle[] = "Open a File";

std::vector<std::string> shownTypes;
bool dialogSeen = false;

// The descriptions of a filter: every other '|'-separated piece.
std::vector<std::string> descriptionsOf(const std::string& filter) {
    std::vector<std::string> descriptions;
    std::size_t start = 0;
    for (bool description = true; start < filter.size(); description = !description) {
        const std::size_t bar = filter.find('|', start);
        if (bar == std::string::npos) break;
        if (description) descriptions.push_back(filter.substr(start, bar - start));
        start = bar + 1;
    }
    return descriptions;
}

void CALLBACK readAndCancel(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = FindWindowA("#32770", kTitle);
    if (!dialog || !IsWindowVisible(dialog)) return;
    KillTimer(nullptr, timer);
    dialogSeen = true;
    const HWND box = GetDlgItem(dialog, kFileTypeBox);
    const auto count = box ? static_cast<int>(SendMessageA(box, CB_GETCOUNT, 0, 0)) : 0;
    for (int i = 0; i < count; ++i) {
        const auto length = SendMessageA(box, CB_GETLBTEXTLEN, static_cast<WPARAM>(i), 0);
        std::vector<char> buffer(length > 0 ? static_cast<std::size_t>(length) + 1 : 1, '\0');
        SendMessageA(box, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(buffer.data()));
        shownTypes.emplace_back(buffer.data());
    }
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

// What the timer read from the font dialog.
struct FontNamesSeen {
    bool dialog = false;
    int widest = 0;           // the widest name in the list's font
    int listWidth = 0;        // the list part's client width
    int fieldRight = 0;       // the names' right edge, in the dialog
    int leftOfRightColumn = 0;  // the left edge of the first control right of it
    std::string widestName;
} fontNames;

RECT inDialog(HWND dialog, HWND control) {
    RECT r{};
    GetWindowRect(control, &r);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&r), 2);
    return r;
}

void CALLBACK readFontNamesAndCancel(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = FindWindowA("#32770", "Font");
    if (!dialog || !IsWindowVisible(dialog)) return;
    KillTimer(nullptr, timer);
    fontNames.dialog = true;
    const HWND names = GetDlgItem(dialog, kFileTypeBox);  // cmb1 here too
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    RECT list{};
    if (names && GetComboBoxInfo(names, &info) && GetClientRect(info.hwndList, &list)) {
        fontNames.listWidth = list.right;
        const HDC dc = GetDC(names);
        const HGDIOBJ previous = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageA(names, WM_GETFONT, 0, 0)));
        const auto count = static_cast<int>(SendMessageA(names, CB_GETCOUNT, 0, 0));
        for (int i = 0; i < count; ++i) {
            char name[LF_FACESIZE * 2] = {};
            if (SendMessageA(names, CB_GETLBTEXTLEN, static_cast<WPARAM>(i), 0) >= static_cast<LRESULT>(sizeof name))
                continue;
            SendMessageA(names, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(name));
            SIZE size{};
            GetTextExtentPoint32A(dc, name, static_cast<int>(std::strlen(name)), &size);
            if (size.cx > fontNames.widest) {
                fontNames.widest = size.cx;
                fontNames.widestName = name;
            }
        }
        SelectObject(dc, previous);
        ReleaseDC(names, dc);
        fontNames.fieldRight = inDialog(dialog, names).right;
        // The style list (cmb2) heads the column right of the names.
        if (const HWND styles = GetDlgItem(dialog, kFileTypeBox + 1))
            fontNames.leftOfRightColumn = inDialog(dialog, styles).left;
    }
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

}  // namespace

kvs::check::Failures checkFontNames() {
    kvs::check::Failures failures;
    fontNames = FontNamesSeen{};
    SetTimer(nullptr, 0, 50, readFontNamesAndCancel);
    kvs::FontRequest request;
    constexpr char kFace[] = "Arial";
    static_assert(sizeof kFace <= sizeof request.initial.faceName);
    std::memcpy(request.initial.faceName, kFace, sizeof kFace);
    request.initial.height = -16;
    const auto chosen = kvs::ui().chooseFont(request);
    kvs::check::expect(failures, !chosen, "font names: the cancelled dialog returned a font");
    kvs::check::expect(failures, fontNames.dialog, "font names: no Font dialog appeared");
    if (!fontNames.dialog) return failures;
    // Wine draws a name 30 pixels in, after its type picture (at 96 DPI).
    constexpr int kNameIndent = 30;
    kvs::check::expect(failures, fontNames.widest + kNameIndent <= fontNames.listWidth,
                       "font names: \"" + fontNames.widestName + "\" takes " + std::to_string(fontNames.widest) +
                           " pixels after the picture, the list has " + std::to_string(fontNames.listWidth));
    kvs::check::expect(failures, fontNames.leftOfRightColumn >= fontNames.fieldRight,
                       "font names: the style list starts at " + std::to_string(fontNames.leftOfRightColumn) +
                           ", inside the names ending at " + std::to_string(fontNames.fieldRight));
    return failures;
}

kvs::check::Failures checkFileFilters() {
    kvs::check::Failures failures;
    kvs::prepareFileFilters();
    const kvs::FileFilters& f = kvs::fileFilters();
    const struct {
        const char* name;
        const std::string* filter;
    } filters[] = {{"data", &f.data},          {"output", &f.output},         {"picture", &f.picture},
                   {"graph export", &f.graphExport}, {"command", &f.command}, {"all types", &f.allTypes},
                   {"output first", &f.outputFirst}, {"graph first", &f.graphFirst},
                   {"command first", &f.commandFirst}, {"import", &f.import}};
    for (const auto& entry : filters) {
        shownTypes.clear();
        dialogSeen = false;
        SetTimer(nullptr, 0, 50, readAndCancel);
        kvs::FileRequest request;
        request.title = kTitle;
        request.filter = *entry.filter;
        request.flags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;
        const auto chosen = kvs::ui().chooseFile(request);
        const std::string name = std::string("file filter ") + entry.name;
        kvs::check::expect(failures, !chosen, name + ": the cancelled dialog returned a file");
        kvs::check::expect(failures, dialogSeen, name + ": no Open dialog appeared");
        if (dialogSeen)
            kvs::check::expect(failures, shownTypes == descriptionsOf(*entry.filter),
                               name + ": the dialog offers " + std::to_string(shownTypes.size()) +
                                   " types, not the filter's " + std::to_string(descriptionsOf(*entry.filter).size()));
    }
    return failures;
}
