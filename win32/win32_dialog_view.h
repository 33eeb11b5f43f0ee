// DialogView over a real dialog window: every operation is a message to a
// child control found by id (and remembered). Ids the dialog does not have, or controls of
// another kind than the operation needs, do nothing and read as empty, as
// in the headless twin.
#pragma once

#include <windows.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "core/seam.h"

namespace kvs::win32 {

class Win32DialogView : public DialogView {
public:
    explicit Win32DialogView(HWND dialog) : dialog_(dialog) {}

    WindowRef handle() const override { return reinterpret_cast<WindowRef>(dialog_); }
    bool has(int id) const override;
    ControlType controlType(int id) const override;

    std::string text(int id) const override;
    void setText(int id, std::string_view text) override;
    bool isEnabled(int id) const override;
    void enable(int id, bool on) override;
    bool isChecked(int id) const override;
    void setChecked(int id, bool on) override;
    void setFocus(int id) override;

    int listCount(int id) const override;
    std::string listText(int id, int index) const override;
    int listAdd(int id, std::string_view text, ListInsert how) override;
    int listInsertAt(int id, int index, std::string_view text) override;
    void listDelete(int id, int index) override;
    void listClear(int id) override;
    std::vector<int> listSelection(int id) const override;
    void listSelect(int id, int index, bool on) override;
    void listSetCurrent(int id, int index) override;
    void setRedraw(int id, bool on) override;
    void listReserve(int id, std::size_t count) override;
    ListAddResult listAddAll(int id, std::size_t count, const TextAt& textAt, ListInsert how) override;
    const std::vector<std::string>& listTexts(int id) const override;

    void comboAdd(int id, std::string_view text) override;
    void comboClear(int id) override;
    int comboSelection(int id) const override;
    void comboSelect(int id, int index) override;
    std::pair<int, int> editSelection(int id) const override;
    void setEditSelection(int id, int start, int end) override;

    std::string labelOf(int id) const override;
    void setAccessibleName(int id, std::string_view name) override;
    void limitText(int id, std::size_t count) override;
    std::vector<ControlLayout> layout() const override;
    DialogRect controlRect(int id) const override;
    DialogRect clientRect() const override;
    void moveControl(int id, const DialogRect& rect) override;
    void growClient(int width, int height) override;
    bool addControl(const AddedControl& control) override;
    void arrange(const std::vector<DialogRect>& rects) override;
    void makeResizable(int minWidth, int minHeight) override;
    // The smallest window size in pixels the user may drag the dialog to;
    // 0 x 0 until makeResizable.
    SIZE minimumTrackSize() const { return minTrack_; }
    // Works the smallest size out again from its dialog units, after the
    // dialog's font (and so its units) changed with the monitor's scale.
    void refreshMinimumTrack();

    void setCaption(std::string_view text) override;
    void centre() override;
    void end(int result) override;

private:
    HWND child(int id) const;
    DialogRect rectOf(HWND control) const;

    HWND dialog_;
    SIZE minTrack_{0, 0};
    SIZE minUnits_{0, 0};  // the smallest client area, in dialog units
    bool resizable_ = false;
    mutable std::unordered_map<int, HWND> controls_;
    // textsRead_ holds a list's texts as read last until the view changes
    // that list: the library's lists change only through the view, and OK
    // reads a long target list twice (its command, then its selection array).
    // The longest text put into each list this view has filled since it was
    // empty: with it a list reads back in one message per item.
    std::unordered_map<int, std::size_t> longest_;

    std::size_t* longestOf(HWND list, int id);
};

// True while a view is changing a control. Notifications the controls send
// meanwhile (EN_CHANGE after a text is set, focus notifications) come from
// the program, not the user; the dialog procedure does not pass them on, so
// handlers see the same notifications as under the headless backend.
bool viewIsChangingControls();

// The kind of a control by its window class; Other for none or another class.
ControlType typeOfControl(HWND control);

}  // namespace kvs::win32
