#include "win32/win32_dialog_view.h"

#include <algorithm>
#include <string>

#include "win32/accessible_names.h"
#include "win32/control_reading.h"
#include "win32/late_bound.h"

namespace kvs::win32 {

namespace {

int changingDepth = 0;

class ChangingControls {
public:
    ChangingControls() { ++changingDepth; }
    ~ChangingControls() { --changingDepth; }
    ChangingControls(const ChangingControls&) = delete;
    ChangingControls& operator=(const ChangingControls&) = delete;
};

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return lower(x) == lower(y);
           });
}

bool isStaticText(HWND control) {
    char name[16] = {};
    return GetClassNameA(control, name, static_cast<int>(sizeof name)) > 0 && lstrcmpiA(name, "Static") == 0;
}

HWND ofKind(HWND control, ControlType type) { return control && typeOfControl(control) == type ? control : nullptr; }

LRESULT send(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(control, message, wParam, lParam);
}

LONG_PTR styleOf(HWND control) { return GetWindowLongPtrA(control, GWL_STYLE); }

bool multiSelect(HWND list) { return (styleOf(list) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0; }

bool dropList(HWND combo) { return (styleOf(combo) & 0x3) == CBS_DROPDOWNLIST; }

bool validIndex(HWND list, UINT countMessage, int index) {
    const LRESULT count = send(list, countMessage);
    return index >= 0 && count > 0 && index < count;
}

// A Win32 control keeps a C string: the text ends at its first NUL.
std::string cString(std::string_view text) { return std::string(text.substr(0, text.find('\0'))); }

LPARAM textArgument(const std::string& text) { return reinterpret_cast<LPARAM>(text.c_str()); }

// LB_ADDSTRING sorts only in a list box with LBS_SORT; LB_INSERTSTRING at -1 appends.
LRESULT insertItem(HWND list, const std::string& item, ListInsert how) {
    return how == ListInsert::Sorted ? send(list, LB_ADDSTRING, 0, textArgument(item))
                                     : send(list, LB_INSERTSTRING, static_cast<WPARAM>(-1), textArgument(item));
}

}  // namespace

bool viewIsChangingControls() { return changingDepth > 0; }

ControlType typeOfControl(HWND control) {
    char name[32] = {};
    const int length = GetClassNameA(control, name, static_cast<int>(sizeof name));
    const std::string_view cls(name, static_cast<std::size_t>(std::max(length, 0)));
    if (sameName(cls, "Button")) return ControlType::Button;
    if (sameName(cls, "ListBox")) return ControlType::ListBox;
    if (sameName(cls, "ComboBox")) return ControlType::ComboBox;
    if (sameName(cls, "Edit")) return ControlType::Edit;
    return ControlType::Other;
}

// GetDlgItem asks the window server for the dialog's children (under Wine a
// round trip of tens of microseconds), and filling a list calls for a control
// once per variable. A found control is remembered while it stays this
// dialog's child with that id, which costs only local reads to check.
HWND Win32DialogView::child(int id) const {
    const auto known = controls_.find(id);
    if (known != controls_.end()) {
        const HWND window = known->second;
        if (IsWindow(window) && GetParent(window) == dialog_ && GetDlgCtrlID(window) == id) return window;
        controls_.erase(known);
    }
    const HWND window = GetDlgItem(dialog_, id);
    if (window) controls_.emplace(id, window);
    return window;
}

bool Win32DialogView::has(int id) const { return child(id) != nullptr; }

ControlType Win32DialogView::controlType(int id) const { return typeOfControl(child(id)); }

// ---------------------------------------------------------------------------
// Text, state and focus

// A drop-down list combo box answers with its selected item.
std::string Win32DialogView::text(int id) const {
    HWND control = child(id);
    return control ? windowText(control) : std::string();
}

// A drop-down list has no edit field: setting its text changes nothing.
void Win32DialogView::setText(int id, std::string_view text) {
    HWND control = child(id);
    if (!control || (typeOfControl(control) == ControlType::ComboBox && dropList(control))) return;
    ChangingControls changing;
    SetWindowTextA(control, cString(text).c_str());
}

bool Win32DialogView::isEnabled(int id) const {
    HWND control = child(id);
    return control && IsWindowEnabled(control);
}

void Win32DialogView::enable(int id, bool on) {
    HWND control = child(id);
    if (!control) return;
    ChangingControls changing;
    EnableWindow(control, on ? TRUE : FALSE);
}

bool Win32DialogView::isChecked(int id) const {
    HWND button = ofKind(child(id), ControlType::Button);
    return button && isCheckableButton(button) && send(button, BM_GETCHECK) == BST_CHECKED;
}

void Win32DialogView::setChecked(int id, bool on) {
    HWND button = ofKind(child(id), ControlType::Button);
    if (!button || !isCheckableButton(button)) return;
    ChangingControls changing;
    send(button, BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED);
}

// A disabled control does not take the focus.
void Win32DialogView::setFocus(int id) {
    HWND control = child(id);
    if (!control || !IsWindowEnabled(control)) return;
    ChangingControls changing;
    SetFocus(control);
}

// ---------------------------------------------------------------------------
// List boxes

int Win32DialogView::listCount(int id) const {
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list) return 0;
    const LRESULT count = send(list, LB_GETCOUNT);
    return count > 0 ? static_cast<int>(count) : 0;
}

std::string Win32DialogView::listText(int id, int index) const {
    return itemText(ofKind(child(id), ControlType::ListBox), LB_GETTEXTLEN, LB_GETTEXT, index);
}

int Win32DialogView::listAdd(int id, std::string_view text, ListInsert how) {
    textsRead_.erase(id);
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list) return kListError;
    const std::string item = cString(text);
    std::size_t* longest = longestOf(list, id);
    ChangingControls changing;
    const LRESULT result = insertItem(list, item, how);
    if (longest) *longest = std::max(*longest, item.size());
    if (result >= 0) noteListChange(id);
    if (result == LB_ERRSPACE) return kListNoSpace;
    if (result < 0) return kListError;
    return static_cast<int>(result);
}

int Win32DialogView::listInsertAt(int id, int index, std::string_view text) {
    textsRead_.erase(id);
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list) return kListError;
    const std::string item = cString(text);
    if (std::size_t* longest = longestOf(list, id)) *longest = std::max(*longest, item.size());
    ChangingControls changing;
    const LRESULT result = send(list, LB_INSERTSTRING, static_cast<WPARAM>(index), textArgument(item));
    if (result >= 0) noteListChange(id);
    if (result == LB_ERRSPACE) return kListNoSpace;
    return result < 0 ? kListError : static_cast<int>(result);
}

void Win32DialogView::listDelete(int id, int index) {
    textsRead_.erase(id);
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list || !validIndex(list, LB_GETCOUNT, index)) return;
    ChangingControls changing;
    send(list, LB_DELETESTRING, static_cast<WPARAM>(index));
    noteListChange(id);
}

void Win32DialogView::listClear(int id) {
    textsRead_.erase(id);
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list) return;
    ChangingControls changing;
    send(list, LB_RESETCONTENT);
    noteListChange(id, true);
    longest_[id] = 0;
}

// The longest text of a list this view has watched since it was empty, or
// null for a list it found already filled.
std::size_t* Win32DialogView::longestOf(HWND list, int id) {
    if (const auto known = longest_.find(id); known != longest_.end()) return &known->second;
    if (send(list, LB_GETCOUNT) != 0) return nullptr;
    return &longest_[id];
}

// LB_GETSELITEMS for a multi-select list box, LB_GETCURSEL otherwise.
std::vector<int> Win32DialogView::listSelection(int id) const {
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list) return {};
    if (!multiSelect(list)) {
        const LRESULT current = send(list, LB_GETCURSEL);
        if (current < 0) return {};
        return {static_cast<int>(current)};
    }
    const LRESULT count = send(list, LB_GETSELCOUNT);
    if (count <= 0) return {};
    std::vector<int> selected(static_cast<std::size_t>(count));
    const LRESULT got =
        send(list, LB_GETSELITEMS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(selected.data()));
    selected.resize(static_cast<std::size_t>(std::clamp<LRESULT>(got, 0, count)));
    return selected;
}

// Multi-select: LB_SETSEL, where index -1 means every item. Single-select:
// selecting makes the item the only selection; deselecting the selected
// item (or -1) leaves none.
void Win32DialogView::listSelect(int id, int index, bool on) {
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list) return;
    ChangingControls changing;
    if (multiSelect(list)) {
        if (index == -1 || validIndex(list, LB_GETCOUNT, index))
            send(list, LB_SETSEL, on ? TRUE : FALSE, static_cast<LPARAM>(index));
    } else if (on) {
        if (validIndex(list, LB_GETCOUNT, index)) send(list, LB_SETCURSEL, static_cast<WPARAM>(index));
    } else if (index == -1 || (index >= 0 && send(list, LB_GETCURSEL) == index)) {
        send(list, LB_SETCURSEL, static_cast<WPARAM>(-1));
    }
}

// LB_SETCURSEL: not for multi-select list boxes; -1 clears; an index out of
// range changes nothing.
void Win32DialogView::listSetCurrent(int id, int index) {
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list || multiSelect(list)) return;
    if (index != -1 && !validIndex(list, LB_GETCOUNT, index)) return;
    ChangingControls changing;
    send(list, LB_SETCURSEL, static_cast<WPARAM>(index));
}

void Win32DialogView::setRedraw(int id, bool on) {
    HWND control = child(id);
    if (!control) return;
    ChangingControls changing;
    send(control, WM_SETREDRAW, on ? TRUE : FALSE);
    if (on) {
        InvalidateRect(control, nullptr, TRUE);
        UpdateWindow(control);
    }
}

// One look-up of the list for all the texts: a variable list is filled and
// read back whole.
Win32DialogView::ListAddResult Win32DialogView::listAddAll(int id, std::size_t count, const TextAt& textAt,
                                                           ListInsert how) {
    textsRead_.erase(id);
    ListAddResult result;
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list) return result;
    std::size_t* longest = longestOf(list, id);
    ChangingControls changing;
    std::string item;
    std::size_t longestAdded = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view text = textAt(i);
        item.assign(text.substr(0, text.find('\0')));
        longestAdded = std::max(longestAdded, item.size());
        if (insertItem(list, item, how) == LB_ERRSPACE) {
            result.noSpace = true;
            break;
        }
        ++result.added;
    }
    if (longest) *longest = std::max(*longest, longestAdded);
    if (result.added > 0) noteListChange(id);
    return result;
}

const std::vector<std::string>& Win32DialogView::listTexts(int id) const {
    HWND list = ofKind(child(id), ControlType::ListBox);
    const LRESULT count = list ? send(list, LB_GETCOUNT) : 0;
    std::vector<std::string>& texts = textsRead_[id];
    if (count > 0 && texts.size() == static_cast<std::size_t>(count)) return texts;
    texts.clear();
    if (count <= 0) return texts;
    texts.reserve(static_cast<std::size_t>(count));
    // For a list this view filled, one message an item into a buffer that
    // fits the longest text put in (an ANSI text comes back through the list's
    // UTF-16 copy, so a byte may return as up to three); otherwise each
    // item's length is asked first.
    const auto known = longest_.find(id);
    const bool bounded = known != longest_.end();
    const auto bound = bounded ? static_cast<LRESULT>(known->second * 3) : 0;
    std::string buffer(static_cast<std::size_t>(bound) + 1, '\0');
    for (LRESULT i = 0; i < count; ++i) {
        const LRESULT room = bounded ? bound : send(list, LB_GETTEXTLEN, static_cast<WPARAM>(i));
        if (room <= 0) {
            texts.emplace_back();
            continue;
        }
        if (static_cast<std::size_t>(room) + 1 > buffer.size()) buffer.resize(static_cast<std::size_t>(room) + 1);
        const LRESULT got = send(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(buffer.data()));
        texts.emplace_back(buffer.data(), static_cast<std::size_t>(std::clamp<LRESULT>(got, 0, room)));
    }
    return texts;
}

// Item storage and room for names of up to 16 characters.
void Win32DialogView::listReserve(int id, std::size_t count) {
    HWND list = ofKind(child(id), ControlType::ListBox);
    if (!list || count == 0) return;
    send(list, LB_INITSTORAGE, static_cast<WPARAM>(count), static_cast<LPARAM>(count * 16));
}

// ---------------------------------------------------------------------------
// Combo boxes

void Win32DialogView::comboAdd(int id, std::string_view text) {
    HWND combo = ofKind(child(id), ControlType::ComboBox);
    if (!combo) return;
    const std::string item = cString(text);
    ChangingControls changing;
    send(combo, CB_ADDSTRING, 0, textArgument(item));
}

// CB_RESETCONTENT; the edit field is emptied too.
void Win32DialogView::comboClear(int id) {
    HWND combo = ofKind(child(id), ControlType::ComboBox);
    if (!combo) return;
    ChangingControls changing;
    send(combo, CB_RESETCONTENT);
    if (!dropList(combo)) SetWindowTextA(combo, "");
}

int Win32DialogView::comboSelection(int id) const {
    HWND combo = ofKind(child(id), ControlType::ComboBox);
    if (!combo) return -1;
    const LRESULT current = send(combo, CB_GETCURSEL);
    return current < 0 ? -1 : static_cast<int>(current);
}

// CB_SETCURSEL copies the item into the edit field; -1 or an index out of
// range clears both the selection and the edit field.
void Win32DialogView::comboSelect(int id, int index) {
    HWND combo = ofKind(child(id), ControlType::ComboBox);
    if (!combo) return;
    ChangingControls changing;
    if (!validIndex(combo, CB_GETCOUNT, index)) index = -1;
    send(combo, CB_SETCURSEL, static_cast<WPARAM>(index));
}

// ---------------------------------------------------------------------------
// Edit controls

std::pair<int, int> Win32DialogView::editSelection(int id) const {
    HWND edit = ofKind(child(id), ControlType::Edit);
    if (!edit) return {0, 0};
    DWORD start = 0, end = 0;
    send(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end)};
}

void Win32DialogView::setEditSelection(int id, int start, int end) {
    HWND edit = ofKind(child(id), ControlType::Edit);
    if (!edit) return;
    ChangingControls changing;
    send(edit, EM_SETSEL, static_cast<WPARAM>(start), static_cast<LPARAM>(end));
}

// ---------------------------------------------------------------------------
// The dialog itself

void Win32DialogView::limitText(int id, std::size_t count) {
    if (HWND edit = child(id)) send(edit, EM_LIMITTEXT, static_cast<WPARAM>(count));
}

// The static text before the control among the dialog's children, which
// follow the template's order.
std::string Win32DialogView::labelOf(int id) const {
    const HWND before = previousSibling(child(id));
    return before && isStaticText(before) ? windowText(before) : std::string();
}

void Win32DialogView::setAccessibleName(int id, std::string_view name) {
    if (HWND control = child(id)) win32::setAccessibleName(control, name);
}

void Win32DialogView::setCaption(std::string_view text) { SetWindowTextA(dialog_, cString(text).c_str()); }

// Half the screen less half the dialog, plus one pixel; the screen is the
// monitor of the owner window (with one monitor, the whole screen).
void Win32DialogView::centre() {
    RECT frame{};
    if (!GetWindowRect(dialog_, &frame)) return;
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    HWND owner = GetWindow(dialog_, GW_OWNER);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    if (GetMonitorInfoA(MonitorFromWindow(owner ? owner : dialog_, MONITOR_DEFAULTTOPRIMARY), &monitor))
        screen = monitor.rcMonitor;
    const int left = screen.left + (screen.right - screen.left) / 2 - width / 2 + 1;
    const int top = screen.top + (screen.bottom - screen.top) / 2 - height / 2 + 1;
    SetWindowPos(dialog_, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32DialogView::end(int result) { EndDialog(dialog_, result); }

}  // namespace kvs::win32
