// An open dialog without windows: the controls of a dialog template held in
// memory, behaving as the Win32 controls do for every DialogView operation,
// so that a scenario gives the same transcript here as on real windows.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/seam.h"
#include "headless/rc_template.h"

namespace kvs::headless {

// Orders two list-box entries as a sorted Windows list box does for ASCII
// names: ignoring case, symbols before digits before letters. Negative, zero
// or positive like strcmp; zero for names equal but for case.
int compareListText(std::string_view a, std::string_view b);

// Removes mnemonic markers: "&Save" -> "Save", "A && B" -> "A & B".
std::string withoutMnemonics(std::string_view text);

// Button check states (BST_*).
inline constexpr int kUnchecked = 0, kChecked = 1, kIndeterminate = 2;

struct ListEntry {
    std::string text;
    bool selected = false;
};

struct ControlState {
    ControlTemplate def;         // as the template defines it
    std::string text;            // window text; the edit field of a combo box
    bool enabled = true;
    int check = kUnchecked;      // buttons that can be checked
    std::vector<ListEntry> items;  // list and combo boxes; a combo box selects at most one
    // Single-selection list boxes and combo boxes: the index of the selected
    // item, -1 for none, so that selecting one item costs the same however
    // long the list is.
    int chosen = -1;
    int selStart = 0, selEnd = 0;  // edit controls: the selection, the caret when equal
    bool redraw = true;
};

class HeadlessDialog : public DialogView {
public:
    static constexpr std::size_t kUnlimited = static_cast<std::size_t>(-1);

    explicit HeadlessDialog(const DialogTemplate& dialogTemplate);
    HeadlessDialog(const HeadlessDialog&) = delete;
    HeadlessDialog& operator=(const HeadlessDialog&) = delete;

    // DialogView
    WindowRef handle() const override { return handle_; }
    bool has(int id) const override { return find(id) != nullptr; }
    ControlType controlType(int id) const override;
    std::string text(int id) const override;
    void setText(int id, std::string_view text) override;
    bool isEnabled(int id) const override;
    void enable(int id, bool on) override;
    bool isChecked(int id) const override;  // true only for BST_CHECKED
    void setChecked(int id, bool on) override;
    void setFocus(int id) override;
    int listCount(int id) const override;
    std::string listText(int id, int index) const override;
    int listAdd(int id, std::string_view text, ListInsert how) override;
    void listDelete(int id, int index) override;
    void listClear(int id) override;
    std::vector<int> listSelection(int id) const override;
    void listSelect(int id, int index, bool on) override;
    void listSetCurrent(int id, int index) override;
    void setRedraw(int id, bool on) override;
    void listReserve(int id, std::size_t count) override;
    ListAddResult listAddAll(int id, std::size_t count, const TextAt& textAt, ListInsert how) override;
    int listInsertAt(int id, int index, std::string_view text) override;
    void comboAdd(int id, std::string_view text) override;
    void comboClear(int id) override;
    int comboSelection(int id) const override;
    void comboSelect(int id, int index) override;
    std::pair<int, int> editSelection(int id) const override;
    void setEditSelection(int id, int start, int end) override;
    std::vector<ControlLayout> layout() const override;
    DialogRect controlRect(int id) const override;
    DialogRect clientRect() const override { return {0, 0, width_, height_}; }
    void moveControl(int id, const DialogRect& rect) override;
    void growClient(int width, int height) override;
    bool addControl(const AddedControl& control) override;
    void arrange(const std::vector<DialogRect>& rects) override;
    void makeResizable(int minWidth, int minHeight) override;
    std::string labelOf(int id) const override;
    void setAccessibleName(int id, std::string_view name) override;
    void centre() override { centred_ = true; }
    void end(int result) override;

    // Driver side: what a user or the scenario runner does and sees.

    // BM_CLICK: an auto check box toggles (an auto three-state one cycles),
    // an auto radio button checks itself and unchecks the other auto radio
    // buttons of its group; the button takes the focus. Acts on disabled
    // buttons too, as BM_CLICK does under Wine: callers check isEnabled.
    // False if id is not a button.
    bool click(int id);
    // The control a scenario names by label: a button by its own text, a
    // list, edit or combo box by the static text just before it in template
    // order. Mnemonic '&' and surrounding blanks are ignored.
    // With field set, a check box or radio button of that text with an edit
    // or combo box beside it on its row (a choice with its value, "Number:")
    // names that field instead.
    std::optional<int> findByLabel(std::string_view label, bool field = false) const;

    const std::string& caption() const { return caption_; }
    void setCaption(std::string_view text) override { caption_ = std::string(text); }
    const std::string& templateName() const { return templateName_; }
    const std::vector<ControlState>& controls() const { return controls_; }
    const ControlState* control(int id) const { return find(id); }
    std::optional<ControlKind> kindOf(int id) const;
    bool isButton(int id) const { return kindOf(id) == ControlKind::Button; }
    bool isListBox(int id) const { return kindOf(id) == ControlKind::ListBox; }
    bool isComboBox(int id) const { return kindOf(id) == ControlKind::ComboBox; }
    bool isEdit(int id) const { return kindOf(id) == ControlKind::Edit; }
    bool isStatic(int id) const { return kindOf(id) == ControlKind::Static; }

    // What a screen reader reads for the control: the name the logic gave
    // it, else its text without the mnemonic mark, as the standard
    // accessibility proxy gives it.
    std::string accessibleName(int id) const;

    // Whether the logic made the dialog resizable, and its smallest client
    // area then; resizeClient is the user dragging the frame (the caller
    // tells the handler), kept to that smallest size as Windows keeps it.
    bool resizable() const { return resizable_; }
    DialogRect minimumClient() const { return {0, 0, minWidth_, minHeight_}; }
    void resizeClient(int width, int height);

    int focus() const { return focus_; }  // 0: none
    bool centred() const { return centred_; }
    bool ended() const { return ended_; }
    int result() const { return result_; }

    // Strict mode: called with the id whenever the dialog's logic touches a
    // control the template lacks (has() asks and is never reported).
    void setOnMissingControl(std::function<void(int)> report) { onMissing_ = std::move(report); }

    // Most items a list box takes; past it listAdd answers kListNoSpace.
    void setListCapacity(std::size_t capacity) { listCapacity_ = capacity; }

private:
    WindowRef handle_;
    std::string templateName_;
    std::string caption_;
    std::vector<ControlState> controls_;
    int width_ = 0, height_ = 0;  // the client area in dialog units
    bool resizable_ = false;
    int minWidth_ = 0, minHeight_ = 0;
    std::size_t listCapacity_ = kUnlimited;
    int focus_ = 0;
    bool centred_ = false;
    bool ended_ = false;
    int result_ = 0;

    std::function<void(int)> onMissing_;
    std::unordered_map<int, std::string> accessibleNames_;

    const ControlState* find(int id) const;
    ControlState* find(int id);
    // find, reported in strict mode when the control is missing.
    const ControlState* reach(int id) const;
    ControlState* reach(int id);
    const ControlState* reachKind(int id, ControlKind kind) const;
    ControlState* reachKind(int id, ControlKind kind);
    ControlState* findKind(int id, ControlKind kind);
    const ControlState* findKind(int id, ControlKind kind) const;
    void checkAutoRadio(std::size_t index);
    std::optional<int> fieldBeside(const ControlState& button) const;
};

}  // namespace kvs::headless
