#include "standin/win/window_watch.h"

#include <algorithm>

#include "standin/win/window_roles.h"
#include "tools/scenario/transcript.h"

namespace kvs::standin {

using scenario::quote;
using scenario::WindowKind;

namespace {
WindowWatch* current = nullptr;
}

bool WindowWatch::start(HMODULE library, Sink sink, Tick tick) {
    stop();
    library_ = library;
    sink_ = std::move(sink);
    tick_ = std::move(tick);
    current = this;
    const DWORD thread = GetCurrentThreadId();
    before_ = SetWindowsHookExA(WH_CALLWNDPROC, beforeProcedure, nullptr, thread);
    after_ = SetWindowsHookExA(WH_CALLWNDPROCRET, afterProcedure, nullptr, thread);
    timer_ = SetTimer(nullptr, 0, kTickMilliseconds, onTimer);
    return before_ && after_ && timer_;
}

void WindowWatch::stop() {
    if (timer_) KillTimer(nullptr, timer_);
    if (before_) UnhookWindowsHookEx(before_);
    if (after_) UnhookWindowsHookEx(after_);
    timer_ = 0;
    before_ = after_ = nullptr;
    opening_.clear();
    if (current == this) current = nullptr;
}

LRESULT CALLBACK WindowWatch::beforeProcedure(int code, WPARAM wParam, LPARAM lParam) {
    const auto* call = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && current && call->message == WM_INITDIALOG && isDialogWindow(call->hwnd)) {
        current->opening_.push_back(Opening{call->hwnd, GetTickCount()});
        const auto instance = reinterpret_cast<HMODULE>(GetWindowLongPtrA(call->hwnd, GWLP_HINSTANCE));
        if (current->library_ && instance == current->library_ && current->sink_)
            current->sink_(scenario::dialogLine(windowText(call->hwnd)));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK WindowWatch::afterProcedure(int code, WPARAM wParam, LPARAM lParam) {
    const auto* call = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && current && current->sink_ && call->message == WM_INITDIALOG) {
        const HWND window = call->hwnd;
        switch (roleOf(window, current->library_)) {
        case WindowKind::Message:
            current->sink_(scenario::messageLine(windowText(window), messageIcon(window), messageText(window)));
            break;
        case WindowKind::FontChooser: current->sink_(fontChooserLine(window)); break;
        case WindowKind::Chooser:
            current->sink_(scenario::chooserLine(chooserSaves(window), windowText(window), chooserName(window)));
            break;
        default: break;
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A window between WM_INITDIALOG and its first showing is not ready for a
// user: its owner may still look like the top window. One that stays hidden
// for long is taken to be hidden on purpose.
bool WindowWatch::opening() {
    constexpr DWORD kPatience = 2000;
    const DWORD now = GetTickCount();
    opening_.erase(std::remove_if(opening_.begin(), opening_.end(),
                                  [now](const Opening& o) {
                                      return !IsWindow(o.window) || IsWindowVisible(o.window) ||
                                             now - o.since > kPatience;
                                  }),
                   opening_.end());
    return !opening_.empty();
}

void CALLBACK WindowWatch::onTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (!current || current->opening() || !current->tick_) return;
    current->tick_(topDialogWindow());
}

}  // namespace kvs::standin
