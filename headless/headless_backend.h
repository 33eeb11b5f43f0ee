// Scenarios run headlessly: the scenario engine over in-memory windows and
// the native stand-ins of the host and the kernel.
#pragma once

#include <string>
#include <string_view>

#include "headless/headless_ui.h"
#include "standin/standin_backend.h"
#include "tools/scenario/engine.h"

namespace kvs::headless {

class HeadlessBackend : public standin::StandinBackend {
public:
    explicit HeadlessBackend(HeadlessUi& ui) : ui_(ui) {}

    void setVariables(const std::vector<std::string>& names) override;
    void setOwnerTitle(const std::string& title) override;
    void failAllocation(int nth) override;
    long liveAllocations() override;

    const scenario::LibraryExports& exports() override;
    KvsWindow ownerWindow() override;
    std::int32_t startDialog(std::uint32_t id, const std::string& helpFile) override;
    void reinitDialogs(std::int32_t value) override;
    void setSortList(std::int32_t value) override;
    std::optional<std::int32_t> launchUnlisted(std::uint32_t id, const std::string& helpFile) override;

    scenario::WindowKind topKind() override;
    std::string topText() override;
    std::optional<int> controlByLabel(std::string_view label) override;
    std::optional<int> fieldByLabel(std::string_view label) override;
    bool hasControl(int id) override;
    std::optional<scenario::ControlInfo> control(int id) override;
    std::optional<scenario::ControlInfo> controlState(int id) override;
    std::optional<std::vector<int>> listIndicesOf(int listId, const std::vector<std::string>& names) override;
    void selectItems(int listId, const std::vector<int>& indices) override;
    void click(int id) override;
    void doubleClick(int listId, int index) override;
    void typeText(int id, const std::string& text) override;
    void chooseEntry(int id, int index) override;
    void sysCommand(int code) override;
    scenario::Buttons messageButtons() override;
    std::vector<scenario::MenuEntry> menuItems() override;
    void pickMenuItem(int id) override;
    void answerMessage(int buttonId) override;
    void answerChooser(const std::optional<std::string>& path) override;
    void clickAt(int id, int x, int y) override;
    bool answerFont(const std::optional<scenario::FontAnswer>& font) override;
    void dismissTop() override { ui_.dismissTop(); }
    std::optional<long> userWord() override;
    void dragSelection(int from, int to, int at) override;
    void pressKeyIn(int id, scenario::Key key) override;
    bool resizeDialog(int width, int height) override;
    int focusedControl() override;
    std::string accessibleName(int id) override;
    void pressTab() override;
    void pressEnter() override;
    std::string clipboardText() override;
    void settle() override;

private:
    DialogWindow* dialog();
    // The focus moves to control target as a user's click, typing or Tab
    // moves it. A number field left with a text that is no number keeps its
    // report in pending_ until the statement is done, as a real field's
    // report waits in the message queue for the focus change to settle.
    // True when this move left such a field.
    bool moveFocus(DialogWindow& window, int target);
    bool leftFieldFailed() const { return pending_.code != kFieldValid; }

    struct PendingReport {
        const HeadlessDialog* dialog = nullptr;
        int fieldId = 0;
        int code = kFieldValid;
    };

    HeadlessUi& ui_;
    PendingReport pending_;
};

// Runs scenarios, each from a freshly loaded library, and returns their
// transcripts.
class HeadlessRunner {
public:
    explicit HeadlessRunner(const ResourceSet& resources);
    std::string run(std::string_view source);
    // Blocks of the library's global memory not yet released.
    static long liveGlobalBlocks();
    // See HeadlessUi::setStrict.
    void setStrict(bool strict) { ui_.setStrict(strict); }
    // See Engine::setMarkPreviews.
    void setMarkPreviews(bool on) { engine_.setMarkPreviews(on); }

private:
    void emit(const std::string& line);

    std::string transcript_;
    HeadlessUi ui_;
    HeadlessBackend backend_;
    scenario::Engine engine_;
};

}  // namespace kvs::headless
