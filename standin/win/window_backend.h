// The scenario engine's backend over real windows: the stand-in host and
// kernel of this process and kernkvs.dll, the library's exports, and the
// topmost window of the thread, acted on with the messages a user's mouse
// and keyboard would cause.
#pragma once

#include <windows.h>

#include "standin/win/library.h"
#include "standin/standin_backend.h"

namespace kvs::standin {

class WindowBackend : public StandinBackend {
public:
    WindowBackend(const Library& library, HWND owner) : library_(library), owner_(owner) {}

    void setVariables(const std::vector<std::string>& names) override;
    // Also puts an empty file at the path when its folder exists, so that an
    // open dialog that insists on an existing file can choose it.
    void setFile(const std::string& path, const std::vector<std::string>& names) override;
    void setOwnerTitle(const std::string& title) override;
    void failAllocation(int nth) override;
    long liveAllocations() override;

    const scenario::LibraryExports& exports() override { return library_.exports(); }
    KvsWindow ownerWindow() override { return owner_; }
    std::int32_t startDialog(std::uint32_t id, const std::string& helpFile) override;
    void reinitDialogs(std::int32_t value) override;
    void setSortList(std::int32_t value) override;

    scenario::WindowKind topKind() override;
    std::string topText() override;
    std::optional<int> controlByLabel(std::string_view label) override;
    std::optional<int> fieldByLabel(std::string_view label) override;
    bool hasControl(int id) override;
    std::optional<scenario::ControlInfo> control(int id) override;
    void selectItems(int listId, const std::vector<int>& indices) override;
    void click(int id) override;
    void doubleClick(int listId, int index) override;
    void typeText(int id, const std::string& text) override;
    void chooseEntry(int id, int index) override;
    void sysCommand(int code) override;
    scenario::Buttons messageButtons() override;
    void answerMessage(int buttonId) override;
    void answerChooser(const std::optional<std::string>& path) override;
    void clickAt(int id, int x, int y) override;
    bool answerFont(const std::optional<scenario::FontAnswer>& font) override;
    std::vector<scenario::MenuEntry> menuItems() override;
    void pickMenuItem(int id) override;
    void dismissTop() override;
    std::optional<long> userWord() override;
    // standin/win/window_backend_lists.cpp: the mouse and keys in list
    // boxes, and what a screen reader reads.
    void dragSelection(int from, int to, int at) override;
    void pressKeyIn(int id, scenario::Key key) override;
    int focusedControl() override;
    std::string accessibleName(int id) override;
    void pressTab() override;
    void pressEnter() override;
    std::string clipboardText() override;
    // standin/win/window_backend_resize.cpp: the frame dragged to a size.
    bool resizeDialog(int width, int height) override;

private:
    void pressKey(WPARAM key);
    HWND dialog();                     // the top window when it is a dialog
    HWND item(int id);                 // a control of that dialog
    void notify(HWND dialog, int id, int code);
    bool isModeless(HWND window) const;

    const Library& library_;
    HWND owner_;
};

}  // namespace kvs::standin
