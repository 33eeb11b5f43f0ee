// Watches the thread's dialog windows while the library runs them: reports
// each as it opens, the way the transcript names it, and calls a tick
// function from a thread timer, which fires inside every modal loop
// (DialogBox, MessageBox, the file dialogs), with the window to act on.
//
// Lines: `dialog "CAPTION"` when a library dialog gets WM_INITDIALOG, before
// its own procedure sees it; `message "CAPTION" ICON "TEXT"` and
// `chooser save|open "TITLE" "NAME"` right after the message box or file
// dialog has initialised itself, so that its text, icon and file name are in
// place.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kvs::standin {

class WindowWatch {
public:
    using Sink = std::function<void(const std::string&)>;
    // Called with the topmost window a user could act on; never while a
    // window that has been created is still waiting to be shown.
    using Tick = std::function<void(HWND top)>;

    static constexpr UINT kTickMilliseconds = 15;

    // One watch at a time per thread. library: kvs_dlg.dll's module.
    bool start(HMODULE library, Sink sink, Tick tick);
    void stop();
    ~WindowWatch() { stop(); }

private:
    // A CBT hook sees each dialog window created and subclasses it, so that
    // only the dialog windows' own messages pass through the watch: a message
    // hook would see every message of the thread (each item a list box is
    // filled with), and under Wine costs more than the list box itself.
    static LRESULT CALLBACK onCreate(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void beforeInit(HWND window);
    void afterInit(HWND window);
    static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD);
    bool opening();

    HMODULE library_ = nullptr;
    Sink sink_;
    Tick tick_;
    HHOOK cbt_ = nullptr;
    std::map<HWND, WNDPROC> subclassed_;
    UINT_PTR timer_ = 0;
    struct Opening {
        HWND window;
        DWORD since;
    };
    std::vector<Opening> opening_;  // initialised but not shown yet
};

}  // namespace kvs::standin
