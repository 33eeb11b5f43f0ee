#include "standin/win/control_probe.h"

#include <algorithm>
#include <array>
#include <vector>

#include "standin/win/label_text.h"
#include "standin/win/window_roles.h"
#include "win32/control_reading.h"

namespace kvs::standin {

using scenario::ControlKind;

namespace {

LONG styleOf(HWND control) { return GetWindowLongA(control, GWL_STYLE); }
LONG buttonType(HWND control) { return styleOf(control) & BS_TYPEMASK; }

bool isGroupBox(HWND control) {
    return controlKind(control) == ControlKind::Button && buttonType(control) == BS_GROUPBOX;
}

bool isCheckable(HWND control) {
    return controlKind(control) == ControlKind::Button && win32::isCheckableButton(control);
}

// Every item of a list box, asked of its window procedure directly: the
// answers are SendMessage's without the message dispatch around each call
// (when a message hook of the thread is installed, under Wine each hook call
// is a round trip to the server).
std::vector<std::string> listItems(HWND list, int count) {
    const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(list, GWLP_WNDPROC));
    const auto ask = [&](UINT message, WPARAM wParam, LPARAM lParam) {
        return CallWindowProcA(procedure, list, message, wParam, lParam);
    };
    std::vector<std::string> items;
    items.reserve(static_cast<std::size_t>(count > 0 ? count : 0));
    std::string buffer;
    for (int i = 0; i < count; ++i) {
        const LRESULT length = ask(LB_GETTEXTLEN, static_cast<WPARAM>(i), 0);
        if (length <= 0) {
            items.emplace_back();
            continue;
        }
        buffer.assign(static_cast<std::size_t>(length) + 1, '\0');
        const LRESULT copied = ask(LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(buffer.data()));
        items.emplace_back(buffer.data(), static_cast<std::size_t>(std::clamp<LRESULT>(copied, 0, length)));
    }
    return items;
}

}  // namespace

ControlKind controlKind(HWND control) {
    std::array<char, 64> name{};
    if (!control || GetClassNameA(control, name.data(), static_cast<int>(name.size())) <= 0) return ControlKind::Other;
    if (lstrcmpiA(name.data(), "Button") == 0) return ControlKind::Button;
    if (lstrcmpiA(name.data(), "Static") == 0) return ControlKind::Static;
    if (lstrcmpiA(name.data(), "Edit") == 0) return ControlKind::Edit;
    if (lstrcmpiA(name.data(), "ListBox") == 0) return ControlKind::ListBox;
    if (lstrcmpiA(name.data(), "ComboBox") == 0) return ControlKind::ComboBox;
    return ControlKind::Other;
}

bool isMultiSelectList(HWND control) {
    return controlKind(control) == ControlKind::ListBox && (styleOf(control) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL));
}

bool isMultilineEdit(HWND control) {
    return controlKind(control) == ControlKind::Edit && (styleOf(control) & ES_MULTILINE);
}

scenario::ControlInfo describeControl(HWND control) {
    scenario::ControlInfo info;
    info.kind = controlKind(control);
    info.enabled = IsWindowEnabled(control) != FALSE;
    info.checkable = isCheckable(control);
    info.checked = info.checkable && SendMessageA(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    info.text = windowText(control);
    if (info.kind == ControlKind::ListBox) {
        const auto count = static_cast<int>(SendMessageA(control, LB_GETCOUNT, 0, 0));
        info.items = listItems(control, count);
    } else if (info.kind == ControlKind::ComboBox) {
        const auto count = static_cast<int>(SendMessageA(control, CB_GETCOUNT, 0, 0));
        for (int i = 0; i < count; ++i) info.items.push_back(win32::itemText(control, CB_GETLBTEXTLEN, CB_GETLBTEXT, i));
        info.comboSelection = static_cast<int>(SendMessageA(control, CB_GETCURSEL, 0, 0));
    }
    return info;
}

namespace {

// The edit or combo box on the button's row, nearest to its right: the value
// a check box or radio choice labels ("Number: [  ]").
HWND fieldBeside(HWND dialog, HWND button) {
    RECT b{};
    GetWindowRect(button, &b);
    HWND nearest = nullptr;
    LONG nearestX = 0;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const ControlKind kind = controlKind(child);
        if (kind != ControlKind::Edit && kind != ControlKind::ComboBox) continue;
        RECT c{};
        GetWindowRect(child, &c);
        const bool sameRow = c.top < b.bottom && b.top < c.bottom;
        if (!sameRow || c.left <= b.left || (nearest && c.left >= nearestX)) continue;
        nearest = child;
        nearestX = c.left;
    }
    return nearest;
}

}  // namespace

std::optional<int> controlByLabel(HWND dialog, std::string_view label, bool field) {
    const std::string wanted = labelText(label);
    HWND previous = nullptr;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; previous = child, child = GetWindow(child, GW_HWNDNEXT)) {
        const ControlKind kind = controlKind(child);
        const int id = GetDlgCtrlID(child);
        if (kind == ControlKind::Button && !isGroupBox(child) && labelText(windowText(child)) == wanted) {
            if (const HWND value = field ? fieldBeside(dialog, child) : nullptr) return GetDlgCtrlID(value);
            return id;
        }
        const bool labelled = kind == ControlKind::ListBox || kind == ControlKind::Edit || kind == ControlKind::ComboBox;
        if (labelled && previous && controlKind(previous) == ControlKind::Static &&
            labelText(windowText(previous)) == wanted)
            return id;
    }
    return std::nullopt;
}

}  // namespace kvs::standin
