// A user-interface backend for unit tests: dialogs are a function of the
// test, message boxes are recorded and answered OK at once.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/seam.h"

namespace kvs::testing {

class FakeUi : public UiServices {
public:
    // What runModal returns for a template; Cancel unless a test says otherwise.
    std::function<int(std::string_view)> dialog = [](std::string_view) { return kIdCancel; };
    std::vector<std::string> opened;
    std::vector<std::string> messages;
    std::uintptr_t waits = 0;

    int runModal(WindowRef, std::string_view name, DialogHandler&) override {
        opened.emplace_back(name);
        return dialog(name);
    }
    int messageBox(const MessageRequest& request) override {
        messages.push_back(request.text);
        return kIdOk;
    }
    std::optional<std::string> chooseFile(const FileRequest&) override { return std::nullopt; }
    void help(const HelpRequest&) override {}
    WindowRef focusWindow() override { return 0; }
    std::string windowTitle(WindowRef, std::size_t) override { return "KORVAN"; }
    std::uintptr_t beginWait() override { return ++waits; }
    void endWait(std::uintptr_t) override { --waits; }
    void beep() override {}
};

}  // namespace kvs::testing
