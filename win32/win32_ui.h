// UiServices over USER32, COMDLG32 and WinHelp.
#pragma once

#include "core/seam.h"

namespace kvs::win32 {

class Win32Ui : public UiServices {
public:
    int runModal(WindowRef owner, std::string_view templateName, DialogHandler& handler) override;
    int runModalTitled(WindowRef owner, std::string_view templateName, std::string_view caption,
                       DialogHandler& handler) override;
    int messageBox(const MessageRequest& request) override;
    std::optional<std::string> chooseFile(const FileRequest& request) override;
    std::uint32_t chooserError() const override { return chooserError_; }
    void help(const HelpRequest& request) override;
    WindowRef focusWindow() override;
    std::string windowTitle(WindowRef window, std::size_t capacity) override;
    std::uintptr_t beginWait() override;
    void endWait(std::uintptr_t previous) override;
    void beep() override;
    bool copyText(WindowRef owner, std::string_view text) override;
    bool fileExists(std::string_view path) override;
    BitmapRef loadBitmap(std::string_view name) override;
    void deleteBitmap(BitmapRef bitmap) override;
    std::uint32_t systemColour(SystemColour which) override;
    int screenPixelsPerInchY() override;
    std::optional<KvsLogFont> chooseFont(const FontRequest& request) override;
    int popupMenu(const PopupRequest& request) override;
    void messageBeep(unsigned type) override;
    DialogView* openModeless(WindowRef owner, std::string_view templateName, DialogHandler& handler) override;
    void closeModeless(DialogView& view) override;
    bool pumpMessages(DialogView& view) override;
    void updateWindow(DialogView& view) override;
    void attachNumericField(DialogView& view, NumericField& field, unsigned repeatMilliseconds) override;
    std::intptr_t userRequest(DialogView& view, int code, std::intptr_t value) override;

private:
    std::uint32_t chooserError_ = 0;
};

// The services installed at load.
Win32Ui& win32Ui();

}  // namespace kvs::win32
