// A hidden window of class "MS_WINHELP": Wine's WinHelpA sends its requests
// to it instead of starting winhlp32 (which would block the driver), and each
// request becomes a transcript line.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace kvs::standin {

class HelpCatcher {
public:
    using Sink = std::function<void(const std::string&)>;

    // Creates the window; false when the class or window cannot be made.
    bool open(Sink sink);
    void close();
    ~HelpCatcher() { close(); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    Sink sink_;
};

}  // namespace kvs::standin
