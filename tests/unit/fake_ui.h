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

    // Bitmaps: the names asked for, in order; a name in missingBitmaps loads
    // as 0, any other as a new handle. deletedBitmaps records deletions.
    std::vector<std::string> bitmapNames;
    std::vector<std::string> missingBitmaps;
    std::vector<BitmapRef> deletedBitmaps;
    BitmapRef lastBitmap = 0;
    // Calls in order, for checking what is asked before what.
    std::vector<std::string> calls;
    std::vector<FontRequest> fontRequests;
    std::optional<KvsLogFont> fontAnswer;
    int pixelsPerInch = 96;

    BitmapRef loadBitmap(std::string_view name) override {
        bitmapNames.emplace_back(name);
        calls.push_back("bitmap " + std::string(name));
        for (const std::string& missing : missingBitmaps)
            if (missing == name) return 0;
        return ++lastBitmap;
    }
    void deleteBitmap(BitmapRef bitmap) override { deletedBitmaps.push_back(bitmap); }
    std::uint32_t systemColour(SystemColour which) override {
        calls.push_back(which == SystemColour::WindowText ? "colour text" : "colour highlight text");
        return which == SystemColour::WindowText ? 0x000001u : 0x000002u;
    }
    int screenPixelsPerInchY() override { return pixelsPerInch; }
    std::optional<KvsLogFont> chooseFont(const FontRequest& request) override {
        fontRequests.push_back(request);
        return fontAnswer;
    }
};

}  // namespace kvs::testing
