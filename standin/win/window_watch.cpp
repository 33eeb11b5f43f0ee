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
    cbt_ = SetWindowsHookExA(WH_CBT, onCreate, nullptr, thread);
    timer_ = SetTimer(nullptr, 0, kTickMilliseconds, onTimer);
    return cbt_ && timer_;
}

void WindowWatch::stop() {
    if (timer_) KillTimer(nullptr, timer_);
    if (cbt_) UnhookWindowsHookEx(cbt_);
    for (const auto& [window, original] : subclassed_)
        if (IsWindow(window)) SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
    subclassed_.clear();
    timer_ = 0;
    cbt_ = nullptr;
    opening_.clear();
    if (current == this) current = nullptr;
}

LRESULT CALLBACK WindowWatch::onCreate(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && current) {
        const auto window = reinterpret_cast<HWND>(wParam);
        if (isDialogWindow(window)) {
            const auto original = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&dialogProcedure)));
            if (original) current->subclassed_[window] = original;
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK WindowWatch::dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    WindowWatch* watch = current;
    const auto found = watch ? watch->subclassed_.find(window) : decltype(watch->subclassed_)::iterator{};
    if (!watch || found == watch->subclassed_.end()) return DefWindowProcA(window, message, wParam, lParam);
    const WNDPROC original = found->second;
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
        watch->subclassed_.erase(found);
        return CallWindowProcA(original, window, message, wParam, lParam);
    }
    if (message != WM_INITDIALOG) return CallWindowProcA(original, window, message, wParam, lParam);
    watch->beforeInit(window);
    const LRESULT result = CallWindowProcA(original, window, message, wParam, lParam);
    if (current == watch) watch->afterInit(window);
    return result;
}

void WindowWatch::beforeInit(HWND window) {
    opening_.push_back(Opening{window, GetTickCount()});
    const auto instance = reinterpret_cast<HMODULE>(GetWindowLongPtrA(window, GWLP_HINSTANCE));
    if (library_ && instance == library_ && sink_) sink_(scenario::dialogLine(windowText(window)));
}

void WindowWatch::afterInit(HWND window) {
    if (!sink_) return;
    switch (roleOf(window, library_)) {
    case WindowKind::Message: sink_(scenario::messageLine(windowText(window), messageIcon(window), messageText(window))); break;
    case WindowKind::FontChooser: sink_(fontChooserLine(window)); break;
    case WindowKind::Chooser:
        sink_(scenario::chooserLine(chooserSaves(window), windowText(window), chooserName(window)));
        break;
    default: break;
    }
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
