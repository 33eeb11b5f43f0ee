// hhctrl.ocx for the scenario runs: HtmlHelpA hands every request to the
// driver's help catcher (the hidden window of class "MS_WINHELP") instead of
// opening the viewer, so it becomes a transcript line as WinHelp requests do.
#include <windows.h>

#include <string>

#include "standin/win/winhelp_request.h"

extern "C" HWND WINAPI HtmlHelpA(HWND owner, LPCSTR file, UINT command, DWORD_PTR data) {
    HWND catcher = FindWindowA("MS_WINHELP", nullptr);
    if (!catcher) return nullptr;
    constexpr UINT kDisplayIndex = 0x0002;
    const std::string key = command == kDisplayIndex && data ? reinterpret_cast<const char*>(data) : "";
    const std::string block = kvs::standin::htmlHelpBlock(command, command == kDisplayIndex ? 0 : static_cast<std::uint32_t>(data),
                                                          file ? file : "", key);
    COPYDATASTRUCT copy{};
    copy.dwData = kvs::standin::kHtmlHelpCopyDataTag;
    copy.cbData = static_cast<DWORD>(block.size());
    copy.lpData = const_cast<char*>(block.data());
    SendMessageA(catcher, WM_COPYDATA, reinterpret_cast<WPARAM>(owner), reinterpret_cast<LPARAM>(&copy));
    return catcher;
}
