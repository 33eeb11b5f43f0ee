// The scenario engine: what every statement means, independent of the
// backend that carries it out. The headless runner and the driver inside the
// stand-in host under Wine both run this engine over their own Backend, so
// the two transcripts can only differ where the windows behave differently.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "include/kvs_platform.h"
#include "tools/scenario/scenario.h"

namespace kvs::scenario {

struct LibraryExports;

enum class WindowKind { None, Dialog, Message, Chooser, FontChooser, Menu };
enum class ControlKind { Static, Button, Edit, ListBox, ComboBox, Other };
enum class Buttons { Ok, OkCancel, YesNo };

// What a user sees of one control.
struct ControlInfo {
    ControlKind kind = ControlKind::Other;
    bool enabled = true;
    bool checkable = false;   // check box or radio button
    bool checked = false;
    std::string text;         // window text; a combo box's edit text
    std::vector<std::string> items;  // list and combo box entries
    int comboSelection = -1;
};

// An item of a popup menu as the menu shows it: its text without the "&"
// of its mnemonic.
struct MenuEntry {
    int id = 0;
    std::string text;
    bool greyed = false;
    bool checked = false;
};

// The first index of each name among count items, itemAt(i) giving item i,
// or nothing when one is missing. One pass over the items with a table of
// the few names asked for, so selecting N names of a long list stays linear.
std::optional<std::vector<int>> firstIndicesOf(std::size_t count,
                                               const std::function<std::string_view(std::size_t)>& itemAt,
                                               const std::vector<std::string>& names);

// A menu item's text as shown: "&&" is "&", a lone "&" marks the mnemonic.
std::string shownMenuText(std::string_view text);

// What a user picks in the font chooser.
struct FontAnswer {
    std::string face;
    int points = 0;
    bool bold = false;
    bool italic = false;
};

// Keys the `key` statement presses in a list box.
enum class Key { Delete, SelectAll };

// The host, the kernel and the topmost library window, as one backend
// offers them.
class Backend {
public:
    virtual ~Backend() = default;

    // Stand-in host and kernel.
    virtual void setVariables(const std::vector<std::string>& names) = 0;
    virtual void setFile(const std::string& path, const std::vector<std::string>& names) = 0;
    virtual void setActiveModules(const std::vector<std::string>& modules) = 0;
    virtual void setMatrix(bool matrix) = 0;
    virtual void setOwnerTitle(const std::string& title) = 0;
    virtual void failAllocation(int nth) = 0;
    virtual long liveAllocations() = 0;

    // Calls into the library.
    virtual const LibraryExports& exports() = 0;
    // The host window the calls give as owner.
    virtual KvsWindow ownerWindow() = 0;
    virtual std::int32_t startDialog(std::uint32_t id, const std::string& helpFile) = 0;
    virtual void reinitDialogs(std::int32_t value) = 0;
    virtual void setSortList(std::int32_t value) = 0;
    // Runs the template of a dialog that StartDialog does not reach (the
    // note, page-title and print-format dialogs) under the standard launcher,
    // then hands the queued commands to the host as StartDialog does. The
    // launcher's result, or nothing when the backend cannot reach them.
    virtual std::optional<std::int32_t> launchUnlisted(std::uint32_t, const std::string&) { return std::nullopt; }

    // The topmost library window.
    virtual WindowKind topKind() = 0;
    // A dialog's caption, a message box's text, a chooser's title.
    virtual std::string topText() = 0;
    virtual std::optional<int> controlByLabel(std::string_view label) = 0;
    // The field a label names for typing: as controlByLabel, except that a
    // button of that text followed by an edit or combo box (a radio choice
    // with its value) names that field.
    virtual std::optional<int> fieldByLabel(std::string_view label) { return controlByLabel(label); }
    // Whether the topmost dialog has the control: what control(id) tells,
    // without reading a long list's items.
    virtual bool hasControl(int id) { return control(id).has_value(); }
    virtual std::optional<ControlInfo> control(int id) = 0;
    // What control(id) tells but the items: the state a statement checks.
    virtual std::optional<ControlInfo> controlState(int id) { return control(id); }
    // The first index of each name in list listId, or nothing when the
    // control is no list or lacks a name.
    virtual std::optional<std::vector<int>> listIndicesOf(int listId, const std::vector<std::string>& names);
    // Selects exactly these items and notifies a selection change.
    virtual void selectItems(int listId, const std::vector<int>& indices) = 0;
    // A click as BM_CLICK gives it, with its notification.
    virtual void click(int id) = 0;
    // Selects only this item, then notifies the selection change and the double-click.
    virtual void doubleClick(int listId, int index) = 0;
    virtual void typeText(int id, const std::string& text) = 0;
    virtual void chooseEntry(int id, int index) = 0;
    virtual void sysCommand(int code) = 0;
    virtual Buttons messageButtons() = 0;
    virtual void answerMessage(int buttonId) = 0;
    // A path, or nothing to cancel.
    virtual void answerChooser(const std::optional<std::string>& path) = 0;
    // A press and release of the left mouse button at (x, y) in the client
    // area of a control.
    virtual void clickAt(int id, int x, int y) = 0;
    // Picks a font and presses OK, or cancels with nothing; false (and no
    // answer) when the chooser does not offer the face or style.
    virtual bool answerFont(const std::optional<FontAnswer>& font) = 0;
    // The items of the popup menu that is up.
    virtual std::vector<MenuEntry> menuItems() { return {}; }
    // Picks the item with this command id from the menu that is up.
    virtual void pickMenuItem(int id) { (void)id; }
    // Closes the topmost window as a user giving up would.
    virtual void dismissTop() = 0;
    // The topmost dialog's user word (the window's user data slot), where
    // the progress window keeps the bar position it drew last; nothing when
    // no dialog is up.
    virtual std::optional<long> userWord() { return std::nullopt; }
    // A press on the first selected entry of list from, a drag with the
    // mouse and the release over list to, before its item at (-1: below the
    // last item).
    virtual void dragSelection(int from, int to, int at) = 0;
    // A key pressed in control id, which takes the focus first.
    virtual void pressKeyIn(int id, Key key) = 0;
    // The control of the topmost dialog that has the focus; 0 for none.
    virtual int focusedControl() = 0;
    // The name assistive technology reads for the control.
    virtual std::string accessibleName(int id) = 0;
    // The Tab and Enter keys, pressed in the topmost dialog.
    virtual void pressTab() = 0;
    virtual void pressEnter() = 0;
    // The user drags the frame of the topmost dialog until its client area
    // is width x height dialog units (or as small as the dialog allows);
    // false when that dialog cannot be resized.
    virtual bool resizeDialog(int width, int height) {
        (void)width, (void)height;
        return false;
    }
    // The text on the clipboard (CF_TEXT), empty when there is none.
    virtual std::string clipboardText() { return {}; }
    // After each statement: what a real window leaves in its message queue
    // for later (a number field's report) happens now.
    virtual void settle() {}
};

class Engine {
public:
    using Emit = std::function<void(const std::string&)>;

    Engine(Backend& backend, Emit emit);

    // Takes a scenario; parse errors are reported at once.
    void load(std::string_view source);
    // Runs the next statement; false when none is left.
    bool step();
    bool done() const { return next_ >= statements_.size(); }
    // The scenario has ended with a window open: reports it and closes it.
    void windowLeftOpen();
    // Before each OK of a dialog with a command preview, a "#preview" line
    // tells what the preview shows (see preview_check.h).
    void setMarkPreviews(bool on) { markPreviews_ = on; }

    static constexpr const char* kDefaultTitle = "KORVAN";
    static constexpr const char* kDefaultHelpFile = "C:\\KORVAN\\KORVAN.HLP";

private:
    bool setup(const Statement& statement);
    void actOnDialog(const Statement& statement);
    void drag(const Statement& statement);
    void pressKey(const Statement& statement);
    void actOnMessage(const Statement& statement);
    void actOnChooser(const Statement& statement);
    void actOnFontChooser(const Statement& statement);
    void actOnMenu(const Statement& statement);
    int controlId(const Token& token, bool field = false);
    void fail(const Statement& statement, const std::string& message);
    std::string describeTop();
    std::string previewLine(std::string_view keyword);

    Backend& backend_;
    Emit emit_;
    std::vector<Statement> statements_;
    std::size_t next_ = 0;
    std::string helpFile_ = kDefaultHelpFile;
    bool markPreviews_ = false;
    bool failingAllocation_ = false;  // an OK may then fail where its preview could not
};

// The `show` line of a control.
std::string describeControl(int id, const ControlInfo& control);

}  // namespace kvs::scenario
