#include "win32/win32_ui.h"

#include <windows.h>
#include <commdlg.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <vector>

#include "core/file_filters.h"
#include "win32/dialog_procedure.h"
#include "win32/font_name_room.h"
#include "win32/late_bound.h"
#include "win32/visual_styles.h"
#include "win32/modeless_dialog.h"
#include "win32/numeric_field_window.h"
#include "win32/titled_template.h"
#include "win32/module_instance.h"

namespace kvs::win32 {

namespace {

// RT_DIALOG, spelled for the ANSI call whatever UNICODE says.
const LPCSTR kDialogResourceType = MAKEINTRESOURCEA(5);

HWND windowOf(WindowRef ref) { return reinterpret_cast<HWND>(ref); }
WindowRef refOf(HWND window) { return reinterpret_cast<WindowRef>(window); }

UINT iconStyle(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Stop: return MB_ICONHAND;
    case MessageIcon::Exclamation: return MB_ICONEXCLAMATION;
    case MessageIcon::Question: return MB_ICONQUESTION;
    case MessageIcon::Information: return MB_ICONASTERISK;
    case MessageIcon::None: break;
    }
    return 0;
}

UINT buttonStyle(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel: return MB_OKCANCEL;
    case MessageButtons::YesNo: return MB_YESNO;
    case MessageButtons::Ok: break;
    }
    return MB_OK;
}

// A text with its end cut so that it fits capacity bytes with its NUL.
std::string fitted(const std::string& text, std::size_t capacity) {
    std::string out = text.substr(0, text.find('\0'));
    if (capacity == 0) return {};
    if (out.size() >= capacity) out.resize(capacity - 1);
    return out;
}

static_assert(sizeof(KvsLogFont) == sizeof(LOGFONTA));

// Gives the font dialog's OK button the text the request asks for, and its
// font-name list room for the longest name.
UINT_PTR CALLBACK fontHook(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG && lParam) {
        const auto* chooser = reinterpret_cast<const CHOOSEFONTA*>(lParam);
        const auto* request = reinterpret_cast<const FontRequest*>(chooser->lCustData);
        if (request && !request->okText.empty()) SetDlgItemTextA(dialog, IDOK, request->okText.c_str());
        widenFontNames(dialog);
        return TRUE;  // the dialog gives the first control the focus
    }
    return 0;  // the dialog's own processing follows
}

}  // namespace

Win32Ui& win32Ui() {
    static Win32Ui services;
    return services;
}

int Win32Ui::runModal(WindowRef owner, std::string_view templateName, DialogHandler& handler) {
    const std::string name(templateName);
    HINSTANCE instance = dialogInstance();
    if (!FindResourceA(instance, name.c_str(), kDialogResourceType)) return -1;
    DialogSession session;
    session.handler = &handler;
    const VisualStyleScope styles;
    const INT_PTR result = DialogBoxParamA(instance, name.c_str(), windowOf(owner), libraryDialogProcedure,
                                           reinterpret_cast<LPARAM>(&session));
    return static_cast<int>(result);
}

int Win32Ui::runModalTitled(WindowRef owner, std::string_view templateName, std::string_view caption,
                            DialogHandler& handler) {
    const std::string name(templateName);
    HINSTANCE instance = dialogInstance();
    HRSRC found = FindResourceA(instance, name.c_str(), kDialogResourceType);
    HGLOBAL loaded = found ? LoadResource(instance, found) : nullptr;
    const auto* bytes = loaded ? static_cast<const std::uint8_t*>(LockResource(loaded)) : nullptr;
    if (!bytes) return -1;
    const std::vector<std::uint8_t> titled = titledTemplate(bytes, SizeofResource(instance, found), caption);
    if (titled.empty()) return runModal(owner, templateName, handler);
    DialogSession session;
    session.handler = &handler;
    const VisualStyleScope styles;
    const INT_PTR result =
        DialogBoxIndirectParamA(instance, reinterpret_cast<const DLGTEMPLATE*>(titled.data()), windowOf(owner),
                                libraryDialogProcedure, reinterpret_cast<LPARAM>(&session));
    return static_cast<int>(result);
}

int Win32Ui::messageBox(const MessageRequest& request) {
    const char* caption = request.caption ? request.caption->c_str() : nullptr;
    const VisualStyleScope styles;
    return MessageBoxA(windowOf(request.owner), request.text.c_str(), caption,
                       iconStyle(request.icon) | buttonStyle(request.buttons));
}

std::optional<std::string> Win32Ui::chooseFile(const FileRequest& request) {
    const std::size_t capacity = std::clamp<std::size_t>(request.capacity, 1, 32767);
    std::string path = fitted(request.initialName, capacity);
    path.resize(capacity, '\0');
    const std::string filter = nulSeparated(request.filter);

    OPENFILENAMEA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = windowOf(request.owner);
    dialog.hInstance = moduleInstance();
    dialog.lpstrFilter = request.filter.empty() ? nullptr : filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(capacity);
    dialog.lpstrTitle = request.title.empty() ? nullptr : request.title.c_str();
    dialog.lpstrDefExt = request.defaultExtension.empty() ? nullptr : request.defaultExtension.c_str();
    dialog.Flags = request.flags;

    const VisualStyleScope styles;
    const BOOL chosen = request.save ? GetSaveFileNameA(&dialog) : GetOpenFileNameA(&dialog);
    chooserError_ = chosen ? 0 : static_cast<std::uint32_t>(CommDlgExtendedError());
    if (!chosen) return std::nullopt;
    const std::size_t end = path.find('\0');
    path.resize(end == std::string::npos ? capacity - 1 : end);
    return path;
}

namespace {

constexpr UINT kHhDisplayToc = 0x0001, kHhDisplayIndex = 0x0002, kHhHelpContext = 0x000F;

// hhctrl.ocx is loaded at run time (win32/late_bound.h): a host without
// HTML Help still loads the library.
bool openHtmlHelp(HWND owner, const HelpRequest& request) {
    const char* file = request.htmlFile.c_str();
    switch (request.kind) {
    case HelpKind::Context: return htmlHelp(owner, file, kHhHelpContext, request.context);
    case HelpKind::Contents: return htmlHelp(owner, file, kHhDisplayToc, 0);
    case HelpKind::Key: return htmlHelp(owner, file, kHhDisplayIndex, reinterpret_cast<DWORD_PTR>(request.key.c_str()));
    case HelpKind::HelpOnHelp: return false;
    }
    return false;
}

}  // namespace

bool Win32Ui::fileExists(std::string_view path) {
    const std::string name(path.substr(0, path.find('\0')));
    const DWORD attributes = GetFileAttributesA(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

void Win32Ui::help(const HelpRequest& request) {
    HWND owner = windowOf(request.owner);
    if (!request.htmlFile.empty() && openHtmlHelp(owner, request)) return;
    const char* file = request.file.c_str();
    switch (request.kind) {
    case HelpKind::Context: WinHelpA(owner, file, HELP_CONTEXT, request.context); break;
    case HelpKind::Contents: WinHelpA(owner, file, HELP_CONTENTS, 0); break;
    case HelpKind::Key:
        WinHelpA(owner, file, HELP_PARTIALKEY, reinterpret_cast<ULONG_PTR>(request.key.c_str()));
        break;
    case HelpKind::HelpOnHelp: WinHelpA(owner, file, HELP_HELPONHELP, 0); break;
    }
}

WindowRef Win32Ui::focusWindow() { return refOf(GetFocus()); }

std::string Win32Ui::windowTitle(WindowRef window, std::size_t capacity) {
    if (capacity == 0) return {};
    const int room = static_cast<int>(std::min<std::size_t>(capacity, INT_MAX));
    std::string title(static_cast<std::size_t>(room), '\0');
    const int copied = GetWindowTextA(windowOf(window), title.data(), room);
    title.resize(static_cast<std::size_t>(std::clamp(copied, 0, room - 1)));
    return title;
}

std::uintptr_t Win32Ui::beginWait() {
    return reinterpret_cast<std::uintptr_t>(SetCursor(LoadCursor(nullptr, IDC_WAIT)));
}

void Win32Ui::endWait(std::uintptr_t previous) { SetCursor(reinterpret_cast<HCURSOR>(previous)); }

void Win32Ui::beep() { MessageBeep(MB_OK); }

// CF_TEXT in movable global memory, which the clipboard owns once it is set.
bool Win32Ui::copyText(WindowRef owner, std::string_view text) {
    const std::string_view copied = text.substr(0, text.find('\0'));
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, copied.size() + 1);
    if (!block) return false;
    if (auto* bytes = static_cast<char*>(GlobalLock(block))) {
        std::memcpy(bytes, copied.data(), copied.size());
        bytes[copied.size()] = '\0';
        GlobalUnlock(block);
    }
    if (!OpenClipboard(reinterpret_cast<HWND>(owner))) {
        GlobalFree(block);
        return false;
    }
    EmptyClipboard();
    const bool set = SetClipboardData(CF_TEXT, block) != nullptr;
    CloseClipboard();
    if (!set) GlobalFree(block);
    return set;
}

BitmapRef Win32Ui::loadBitmap(std::string_view name) {
    const std::string resource(name);
    return reinterpret_cast<BitmapRef>(LoadBitmapA(moduleInstance(), resource.c_str()));
}

void Win32Ui::deleteBitmap(BitmapRef bitmap) {
    if (bitmap) DeleteObject(reinterpret_cast<HBITMAP>(bitmap));
}

std::uint32_t Win32Ui::systemColour(SystemColour which) {
    return GetSysColor(which == SystemColour::HighlightText ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
}

int Win32Ui::screenPixelsPerInchY() {
    HDC screen = GetDC(nullptr);
    if (!screen) return 96;
    const int pixels = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return pixels;
}

std::optional<KvsLogFont> Win32Ui::chooseFont(const FontRequest& request) {
    LOGFONTA font;
    std::memcpy(&font, &request.initial, sizeof font);
    CHOOSEFONTA chooser{};
    chooser.lStructSize = sizeof chooser;
    chooser.hwndOwner = windowOf(request.owner);
    chooser.lpLogFont = &font;
    chooser.Flags = CF_SCREENFONTS | CF_TTONLY | CF_INITTOLOGFONTSTRUCT | CF_ENABLEHOOK;
    chooser.lCustData = reinterpret_cast<LPARAM>(&request);
    chooser.lpfnHook = fontHook;
    const VisualStyleScope styles;
    if (!ChooseFontA(&chooser)) return std::nullopt;
    KvsLogFont chosen;
    std::memcpy(&chosen, &font, sizeof chosen);
    return chosen;
}

void Win32Ui::messageBeep(unsigned type) { MessageBeep(type); }

DialogView* Win32Ui::openModeless(WindowRef owner, std::string_view templateName, DialogHandler& handler) {
    const std::string name(templateName);
    if (!FindResourceA(dialogInstance(), name.c_str(), kDialogResourceType)) return nullptr;
    return openModelessDialog(windowOf(owner), name, handler);
}

void Win32Ui::closeModeless(DialogView& view) { closeModelessDialog(view); }

bool Win32Ui::pumpMessages(DialogView& view) { return pumpDialogMessages(windowOf(view.handle())); }

void Win32Ui::updateWindow(DialogView& view) { UpdateWindow(windowOf(view.handle())); }

void Win32Ui::attachNumericField(DialogView& view, NumericField& field, unsigned repeatMilliseconds) {
    const HWND dialog = windowOf(view.handle());
    if (repeatMilliseconds) createUpDown(dialog, field.controlId, field, field.notify, nullptr, repeatMilliseconds);
    else win32::attachNumericField(dialog, field);
}

std::intptr_t Win32Ui::userRequest(DialogView& view, int code, std::intptr_t value) {
    return SendMessageA(windowOf(view.handle()), WM_USER, static_cast<WPARAM>(code), value);
}

int Win32Ui::popupMenu(const PopupRequest& request) {
    const std::string name(request.menuName);
    HMENU menu = LoadMenuA(moduleInstance(), name.c_str());
    if (!menu) return 0;
    HMENU popup = GetSubMenu(menu, 0);
    int chosen = 0;
    if (popup) {
        for (const PopupItemState& item : request.states) {
            const auto id = static_cast<UINT>(item.commandId);
            EnableMenuItem(popup, id, MF_BYCOMMAND | (item.greyed ? MF_GRAYED : MF_ENABLED));
            CheckMenuItem(popup, id, MF_BYCOMMAND | (item.checked ? MF_CHECKED : MF_UNCHECKED));
        }
        const HWND owner = reinterpret_cast<HWND>(request.owner);
        RECT at{};
        const HWND anchor = GetDlgItem(owner, request.anchorControl);
        if (!anchor || !GetWindowRect(anchor, &at)) GetWindowRect(owner, &at);
        chosen = static_cast<int>(TrackPopupMenu(popup, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RETURNCMD | TPM_NONOTIFY,
                                                 at.left, at.bottom, 0, owner, nullptr));
    }
    DestroyMenu(menu);
    return chosen;
}

}  // namespace kvs::win32
