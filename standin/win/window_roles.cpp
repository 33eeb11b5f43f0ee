#include "standin/win/window_roles.h"

#include <array>

#include "standin/win/label_text.h"
#include "tools/scenario/transcript.h"

namespace kvs::standin {

namespace {

BOOL CALLBACK findMenu(HWND window, LPARAM found) {
    if (isMenuWindow(window) && IsWindowVisible(window)) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

BOOL CALLBACK findTop(HWND window, LPARAM found) {
    if (isDialogWindow(window) && IsWindowVisible(window) && IsWindowEnabled(window)) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

bool visibleChild(HWND parent, int id) {
    const HWND child = GetDlgItem(parent, id);
    return child && (GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE);
}

}  // namespace

bool hasClass(HWND window, const char* name) {
    std::array<char, 64> buffer{};
    return GetClassNameA(window, buffer.data(), static_cast<int>(buffer.size())) > 0 &&
           lstrcmpiA(buffer.data(), name) == 0;
}

bool isDialogWindow(HWND window) {
    return window && hasClass(window, "#32770") && !(GetWindowLongA(window, GWL_STYLE) & WS_CHILD);
}

bool isMenuWindow(HWND window) { return window && hasClass(window, "#32768"); }

scenario::WindowKind roleOf(HWND window, HMODULE library) {
    if (isMenuWindow(window)) return scenario::WindowKind::Menu;
    if (!isDialogWindow(window)) return scenario::WindowKind::None;
    const auto instance = reinterpret_cast<HMODULE>(GetWindowLongPtrA(window, GWLP_HINSTANCE));
    if (library && instance == library) return scenario::WindowKind::Dialog;
    if (GetDlgItem(window, kChooserNameCombo) || GetDlgItem(window, kChooserNameEdit))
        return scenario::WindowKind::Chooser;
    if (GetDlgItem(window, kFontFaceCombo) && GetDlgItem(window, kFontSizeCombo))
        return scenario::WindowKind::FontChooser;
    const HWND text = GetDlgItem(window, kMessageTextId);
    if (text && hasClass(text, "Static")) return scenario::WindowKind::Message;
    return scenario::WindowKind::Dialog;
}

HWND topDialogWindow() {
    HWND found = nullptr;
    // A popup menu does not disable the dialog it belongs to, yet is above it.
    EnumThreadWindows(GetCurrentThreadId(), findMenu, reinterpret_cast<LPARAM>(&found));
    if (found) return found;
    EnumThreadWindows(GetCurrentThreadId(), findTop, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::string messageText(HWND box) { return windowText(GetDlgItem(box, kMessageTextId)); }

const char* messageIcon(HWND box) {
    const HWND icon = GetDlgItem(box, kMessageIconId);
    const auto shown = icon ? reinterpret_cast<HICON>(SendMessageA(icon, STM_GETICON, 0, 0)) : nullptr;
    if (!shown) return "none";
    // The system icons are shared: LoadIcon gives the very handle the box shows.
    if (shown == LoadIconA(nullptr, IDI_HAND)) return "stop";
    if (shown == LoadIconA(nullptr, IDI_EXCLAMATION)) return "exclamation";
    if (shown == LoadIconA(nullptr, IDI_QUESTION)) return "question";
    if (shown == LoadIconA(nullptr, IDI_ASTERISK)) return "info";
    return "none";
}

scenario::Buttons messageButtons(HWND box) {
    if (visibleChild(box, IDYES)) return scenario::Buttons::YesNo;
    if (visibleChild(box, IDCANCEL)) return scenario::Buttons::OkCancel;
    return scenario::Buttons::Ok;
}

bool chooserSaves(HWND chooser) {
    return labelText(windowText(GetDlgItem(chooser, IDOK))) == "Save";
}

std::string chooserName(HWND chooser) {
    const HWND combo = GetDlgItem(chooser, kChooserNameCombo);
    return windowText(combo ? combo : GetDlgItem(chooser, kChooserNameEdit));
}

std::string fontChooserLine(HWND chooser) {
    return scenario::fontChooserLine(windowText(chooser), windowText(GetDlgItem(chooser, kFontFaceCombo)),
                                     windowText(GetDlgItem(chooser, kFontSizeCombo)),
                                     labelText(windowText(GetDlgItem(chooser, IDOK))));
}

}  // namespace kvs::standin
