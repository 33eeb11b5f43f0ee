#include "standin/win/help_catcher.h"

#include "standin/win/winhelp_request.h"

namespace kvs::standin {

namespace {
constexpr const char* kClassName = "MS_WINHELP";
}

bool HelpCatcher::open(Sink sink) {
    sink_ = std::move(sink);
    if (window_) return true;
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = kClassName;
    if (!RegisterClassA(&windowClass) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) return false;
    // A plain hidden top-level window: FindWindow does not see message-only ones.
    window_ = CreateWindowExA(0, kClassName, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, instance, this);
    return window_ != nullptr;
}

void HelpCatcher::close() {
    if (window_) DestroyWindow(window_);
    window_ = nullptr;
}

LRESULT CALLBACK HelpCatcher::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    } else if (message == WM_COPYDATA) {
        const auto* data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
        auto* self = reinterpret_cast<HelpCatcher*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        const bool winHelp = data && data->dwData == kWinHelpCopyDataTag;
        const bool htmlHelp = data && data->dwData == kHtmlHelpCopyDataTag;
        if ((winHelp || htmlHelp) && self && self->sink_) {
            const auto* block = static_cast<const unsigned char*>(data->lpData);
            const auto line = winHelp ? winHelpLine(block, data->cbData) : htmlHelpLine(block, data->cbData);
            if (line) self->sink_(*line);
            return TRUE;
        }
        return FALSE;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace kvs::standin
