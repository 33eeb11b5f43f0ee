#include "standin/win/window_backend.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "standin/kernel_state.h"
#include "standin/win/control_probe.h"
#include "standin/win/kernel_control.h"
#include "standin/win/window_roles.h"
#include "resources/common_ids.h"
#include "win32/control_reading.h"

namespace kvs::standin {

using scenario::ControlKind;
using scenario::WindowKind;

void WindowBackend::setVariables(const std::vector<std::string>& names) {
    std::vector<const char*> pointers;
    pointers.reserve(names.size());
    for (const std::string& name : names) pointers.push_back(name.c_str());
    KvsStandinSetVariables(static_cast<int32_t>(pointers.size()), pointers.data());
    // The host knows its data file too (GetNumVars).
    KernelState::instance().setVariables(names);
}

namespace {

// Creates every folder on the way to path (its drive aside), so a declared
// file exists under Wine wherever a scenario puts it, as it does headlessly.
void makeFoldersOf(const std::string& path) {
    for (std::size_t at = path.find_first_of("\\/"); at != std::string::npos; at = path.find_first_of("\\/", at + 1)) {
        const std::string folder = path.substr(0, at);
        if (folder.empty() || folder.back() == ':') continue;
        CreateDirectoryA(folder.c_str(), nullptr);  // fails harmlessly where it exists
    }
}

}  // namespace

void WindowBackend::setFile(const std::string& path, const std::vector<std::string>& names) {
    StandinBackend::setFile(path, names);
    makeFoldersOf(path);
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
}

void WindowBackend::setOwnerTitle(const std::string& title) { SetWindowTextA(owner_, title.c_str()); }
void WindowBackend::failAllocation(int nth) { KvsStandinFailAllocation(nth); }
long WindowBackend::liveAllocations() { return KvsStandinLiveBlocks(); }

std::int32_t WindowBackend::startDialog(std::uint32_t id, const std::string& helpFile) {
    return library_.startDialog(id, owner_, helpFile.c_str());
}

void WindowBackend::reinitDialogs(std::int32_t value) { library_.reinitDialogs(value); }
void WindowBackend::setSortList(std::int32_t value) { library_.setDlgSortList(value); }

WindowKind WindowBackend::topKind() {
    const HWND top = topDialogWindow();
    return top ? roleOf(top, library_.module()) : WindowKind::None;
}

std::string WindowBackend::topText() {
    const HWND top = topDialogWindow();
    if (isMenuWindow(top)) return {};
    return roleOf(top, library_.module()) == WindowKind::Message ? messageText(top) : windowText(top);
}

HWND WindowBackend::dialog() {
    const HWND top = topDialogWindow();
    return roleOf(top, library_.module()) == WindowKind::Dialog ? top : nullptr;
}

HWND WindowBackend::item(int id) {
    const HWND window = dialog();
    return window ? GetDlgItem(window, id) : nullptr;
}

void WindowBackend::notify(HWND window, int id, int code) {
    SendMessageA(window, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(id), static_cast<WORD>(code)),
                 reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
}

std::optional<int> WindowBackend::controlByLabel(std::string_view label) {
    const HWND window = dialog();
    return window ? standin::controlByLabel(window, label, false) : std::nullopt;
}

std::optional<int> WindowBackend::fieldByLabel(std::string_view label) {
    const HWND window = dialog();
    return window ? standin::controlByLabel(window, label, true) : std::nullopt;
}

bool WindowBackend::hasControl(int id) { return item(id) != nullptr; }

std::optional<scenario::ControlInfo> WindowBackend::control(int id) {
    const HWND control = item(id);
    if (!control) return std::nullopt;
    return describeControl(control);
}

// LB_SETSEL and LB_SETCURSEL notify nobody: the selection change is sent as
// the list box would send it after a mouse selection.
void WindowBackend::selectItems(int listId, const std::vector<int>& indices) {
    const HWND window = dialog();
    const HWND list = item(listId);
    if (!list) return;
    if (GetFocus() != list) SetFocus(list);
    if (isMultiSelectList(list)) {
        SendMessageA(list, LB_SETSEL, FALSE, -1);
        // LB_SETSEL also moves the caret to its item and scrolls it into
        // view, a few milliseconds an item under Wine: each run of adjacent
        // indices is selected at once, and the caret moved once, to the last
        // index given.
        std::vector<int> sorted = indices;
        std::sort(sorted.begin(), sorted.end());
        for (std::size_t first = 0; first < sorted.size();) {
            std::size_t last = first;
            while (last + 1 < sorted.size() && sorted[last + 1] <= sorted[last] + 1) ++last;
            SendMessageA(list, LB_SELITEMRANGEEX, static_cast<WPARAM>(sorted[first]), sorted[last]);
            first = last + 1;
        }
        if (!indices.empty()) SendMessageA(list, LB_SETCARETINDEX, static_cast<WPARAM>(indices.back()), FALSE);
    } else if (indices.empty()) {
        SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    } else {
        SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(indices.back()), 0);
    }
    notify(window, listId, LBN_SELCHANGE);
}

namespace {

bool isEditWindow(HWND window) {
    char name[16] = {};
    return window && GetClassNameA(window, name, static_cast<int>(sizeof name)) > 0 && lstrcmpiA(name, "Edit") == 0;
}

// The buttons that end a dialog: leaving a field for them is not checked.
bool endsDialog(int id) { return id == IDOK || id == IDCANCEL || id == IDC_CONTINUE; }

}  // namespace

// The engine has already moved on to the next statement, so a click that
// opens a modal window may be sent: the statements after it run inside.
// Leaving an edit field for another button is clicked as the mouse does it:
// the press is sent and the release posted, so that a field that refuses to
// be left can cancel the press (its own posted release comes first).
void WindowBackend::click(int id) {
    const HWND window = dialog();
    const HWND control = item(id);
    if (!control) return;
    if (controlKind(control) != ControlKind::Button) {
        notify(window, id, BN_CLICKED);
        return;
    }
    const HWND focus = GetFocus();
    if (focus != control && isEditWindow(focus) && IsChild(window, focus) && !endsDialog(id)) {
        RECT r{};
        GetClientRect(control, &r);
        const LPARAM inside = MAKELPARAM(static_cast<WORD>(r.right / 2), static_cast<WORD>(r.bottom / 2));
        SendMessageA(control, WM_LBUTTONDOWN, MK_LBUTTON, inside);
        PostMessageA(control, WM_LBUTTONUP, 0, inside);
        return;
    }
    SendMessageA(control, BM_CLICK, 0, 0);
}

// Tab and Enter go through the dialog's message loop, as typed keys do.
void WindowBackend::pressTab() { pressKey(VK_TAB); }
void WindowBackend::pressEnter() { pressKey(VK_RETURN); }

void WindowBackend::pressKey(WPARAM key) {
    const HWND window = dialog();
    if (!window) return;
    const HWND focus = GetFocus();
    const HWND target = focus && IsChild(window, focus) ? focus : window;
    PostMessageA(target, WM_KEYDOWN, key, 1);
    PostMessageA(target, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001u));
}

void WindowBackend::doubleClick(int listId, int index) {
    selectItems(listId, {index});
    if (const HWND window = dialog()) notify(window, listId, LBN_DBLCLK);
}

// A single-line edit reports WM_SETTEXT itself with EN_CHANGE; a multi-line
// edit and a combo box do not, so the notification a typing user causes is
// sent for them.
// Typing into an edit field first clicks into it: it takes the focus (and
// reports EN_SETFOCUS itself when it did not have it), and the caret ends
// after the typed text.
void WindowBackend::typeText(int id, const std::string& text) {
    const HWND window = dialog();
    const HWND control = item(id);
    if (!control) return;
    const ControlKind kind = controlKind(control);
    if (kind == ControlKind::Edit && IsWindowEnabled(control) && GetFocus() != control) SetFocus(control);
    SetWindowTextA(control, text.c_str());
    if (kind == ControlKind::ComboBox) notify(window, id, CBN_EDITCHANGE);
    else if (kind != ControlKind::Edit || isMultilineEdit(control)) notify(window, id, EN_CHANGE);
    if (kind == ControlKind::Edit) {
        const int length = GetWindowTextLengthA(control);
        SendMessageA(control, EM_SETSEL, static_cast<WPARAM>(length), length);
    }
}

void WindowBackend::chooseEntry(int id, int index) {
    const HWND window = dialog();
    const HWND control = item(id);
    if (!control) return;
    if (controlKind(control) == ControlKind::ComboBox) {
        if (GetFocus() != control && !IsChild(control, GetFocus())) SetFocus(control);
        SendMessageA(control, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        notify(window, id, CBN_SELCHANGE);
    } else {
        selectItems(id, {index});
    }
}

void WindowBackend::sysCommand(int code) {
    if (const HWND window = dialog()) SendMessageA(window, WM_SYSCOMMAND, static_cast<WPARAM>(code), 0);
}

scenario::Buttons WindowBackend::messageButtons() { return standin::messageButtons(topDialogWindow()); }

void WindowBackend::answerMessage(int buttonId) {
    const HWND button = GetDlgItem(topDialogWindow(), buttonId);
    if (button) SendMessageA(button, BM_CLICK, 0, 0);
}

void WindowBackend::answerChooser(const std::optional<std::string>& path) {
    const HWND chooser = topDialogWindow();
    if (roleOf(chooser, library_.module()) != WindowKind::Chooser) return;
    if (path) {
        HWND name = GetDlgItem(chooser, kChooserNameCombo);
        if (!name) name = GetDlgItem(chooser, kChooserNameEdit);
        SetWindowTextA(name, path->c_str());
    }
    const HWND button = GetDlgItem(chooser, path ? IDOK : IDCANCEL);
    if (button) SendMessageA(button, BM_CLICK, 0, 0);
}

// The grid reads the point from the mouse messages themselves.
void WindowBackend::clickAt(int id, int x, int y) {
    const HWND control = item(id);
    if (!control) return;
    const LPARAM at = MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y));
    SendMessageA(control, WM_LBUTTONDOWN, MK_LBUTTON, at);
    if (IsWindow(control)) SendMessageA(control, WM_LBUTTONUP, 0, at);
}

namespace {

// Selects an entry of one of the font dialog's combo boxes as a user's
// click would, with the notification.
bool pickEntry(HWND chooser, int comboId, int index) {
    const HWND combo = GetDlgItem(chooser, comboId);
    if (!combo || index < 0) return false;
    SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageA(chooser, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(comboId), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(combo));
    return true;
}

int findExact(HWND chooser, int comboId, const std::string& text) {
    const auto found = SendDlgItemMessageA(chooser, comboId, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(text.c_str()));
    return found == CB_ERR ? -1 : static_cast<int>(found);
}

// The style entry that is bold and italic as asked ("Regular", "Italic",
// "Bold", "Bold Italic", or a face's own names such as "Oblique").
int findStyle(HWND chooser, bool bold, bool italic) {
    const HWND combo = GetDlgItem(chooser, kFontStyleCombo);
    const auto count = static_cast<int>(SendMessageA(combo, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        const std::string name = win32::itemText(combo, CB_GETLBTEXTLEN, CB_GETLBTEXT, i);
        const bool isBold = name.find("Bold") != std::string::npos;
        const bool isItalic = name.find("Italic") != std::string::npos || name.find("Oblique") != std::string::npos;
        if (isBold == bold && isItalic == italic) return i;
    }
    return -1;
}

}  // namespace

bool WindowBackend::answerFont(const std::optional<scenario::FontAnswer>& font) {
    const HWND chooser = topDialogWindow();
    if (roleOf(chooser, library_.module()) != WindowKind::FontChooser) return false;
    if (!font) {
        SendMessageA(GetDlgItem(chooser, IDCANCEL), BM_CLICK, 0, 0);
        return true;
    }
    if (!pickEntry(chooser, kFontFaceCombo, findExact(chooser, kFontFaceCombo, font->face))) return false;
    if (!pickEntry(chooser, kFontStyleCombo, findStyle(chooser, font->bold, font->italic))) return false;
    const std::string size = std::to_string(font->points);
    const int sizeEntry = findExact(chooser, kFontSizeCombo, size);
    if (sizeEntry >= 0) {
        pickEntry(chooser, kFontSizeCombo, sizeEntry);
    } else {
        SetDlgItemTextA(chooser, kFontSizeCombo, size.c_str());
        notify(chooser, kFontSizeCombo, CBN_EDITCHANGE);
    }
    SendMessageA(GetDlgItem(chooser, IDOK), BM_CLICK, 0, 0);
    return true;
}

std::optional<long> WindowBackend::userWord() {
    const HWND window = dialog();
    if (!window) return std::nullopt;
    return static_cast<long>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

// The library's modeless dialog runs under its exported ProcessDlgProc.
bool WindowBackend::isModeless(HWND window) const {
    const FARPROC procedure = library_.module() ? GetProcAddress(library_.module(), "ProcessDlgProc") : nullptr;
    return procedure && GetWindowLongPtrA(window, DWLP_DLGPROC) == reinterpret_cast<LONG_PTR>(procedure);
}

namespace {

constexpr UINT kGetMenuHandle = 0x01E1;  // MN_GETHMENU: a popup menu window's menu

HMENU shownMenu(HWND window) {
    return isMenuWindow(window) ? reinterpret_cast<HMENU>(SendMessageA(window, kGetMenuHandle, 0, 0)) : nullptr;
}

struct RawItem {
    UINT id = 0;
    std::string text;  // with its "&"
    UINT state = 0;
    bool separator = false;
    bool popup = false;
};

std::vector<RawItem> rawItems(HMENU menu) {
    std::vector<RawItem> items;
    const int count = menu ? GetMenuItemCount(menu) : 0;
    for (int i = 0; i < count; ++i) {
        char text[256] = {};
        MENUITEMINFOA info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE | MIIM_SUBMENU | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = sizeof text - 1;
        if (!GetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &info)) continue;
        items.push_back({info.wID, text, info.fState, (info.fType & MFT_SEPARATOR) != 0, info.hSubMenu != nullptr});
    }
    return items;
}

// The letter after a lone "&", lower-cased; 0 when there is none.
char mnemonicOf(const std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        const char c = text[i + 1];
        if (c != '&') return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        ++i;
    }
    return 0;
}

}  // namespace

std::vector<scenario::MenuEntry> WindowBackend::menuItems() {
    std::vector<scenario::MenuEntry> entries;
    for (const RawItem& item : rawItems(shownMenu(topDialogWindow()))) {
        if (item.separator || item.popup) continue;
        entries.push_back({static_cast<int>(item.id), scenario::shownMenuText(item.text),
                           (item.state & (MFS_GRAYED | MFS_DISABLED)) != 0, (item.state & MFS_CHECKED) != 0});
    }
    return entries;
}

// The menu's own loop takes the keys: the item's mnemonic when no other item
// shares it, else the arrow down to the item and Enter.
void WindowBackend::pickMenuItem(int id) {
    const HWND window = topDialogWindow();
    const std::vector<RawItem> items = rawItems(shownMenu(window));
    int steps = 0;
    const RawItem* target = nullptr;
    for (const RawItem& item : items) {
        if (item.separator) continue;
        ++steps;
        if (!item.popup && static_cast<int>(item.id) == id) {
            target = &item;
            break;
        }
    }
    if (!target) return;
    const char key = mnemonicOf(target->text);
    int sharing = 0;
    for (const RawItem& item : items) sharing += key && !item.separator && mnemonicOf(item.text) == key ? 1 : 0;
    if (key && sharing == 1) {
        PostMessageA(window, WM_CHAR, static_cast<WPARAM>(static_cast<unsigned char>(key)), 0);
        return;
    }
    for (int i = 0; i < steps; ++i) PostMessageA(window, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageA(window, WM_KEYDOWN, VK_RETURN, 0);
}

void WindowBackend::dismissTop() {
    const HWND top = topDialogWindow();
    switch (roleOf(top, library_.module())) {
    case WindowKind::Dialog:
        // A modeless window is closed as its system menu would; ending it as
        // a modal dialog would only hide it.
        if (isModeless(top)) {
            SendMessageA(top, WM_CLOSE, 0, 0);
            break;
        }
        notify(top, IDCANCEL, BN_CLICKED);
        // A dialog that ignores Cancel is ended as closing it would.
        if (IsWindow(top) && IsWindowVisible(top)) EndDialog(top, IDCANCEL);
        break;
    case WindowKind::Message: {
        const scenario::Buttons buttons = standin::messageButtons(top);
        answerMessage(buttons == scenario::Buttons::YesNo      ? IDNO
                      : buttons == scenario::Buttons::OkCancel ? IDCANCEL
                                                               : IDOK);
        break;
    }
    case WindowKind::Chooser: answerChooser(std::nullopt); break;
    case WindowKind::FontChooser: answerFont(std::nullopt); break;
    case WindowKind::Menu: EndMenu(); break;
    case WindowKind::None: break;
    }
}

std::string WindowBackend::clipboardText() {
    std::string text;
    if (!OpenClipboard(nullptr)) return text;
    if (HANDLE data = GetClipboardData(CF_TEXT)) {
        if (const auto* bytes = static_cast<const char*>(GlobalLock(data))) {
            text.assign(bytes, strnlen(bytes, GlobalSize(data)));
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    return text;
}

}  // namespace kvs::standin
