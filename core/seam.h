// The seam between dialog logic and windows. Everything under core/, data/,
// graph/ and stats/ talks to dialogs only through these interfaces; win32/
// implements them over real windows, headless/ over in-memory controls built
// from the same resource templates.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "include/kvs_platform.h"

namespace kvs {

struct NumericField;  // core/numeric_field.h

// An opaque window handle (an HWND under Windows); 0 is "no window".
using WindowRef = std::uintptr_t;
// An opaque bitmap handle (an HBITMAP under Windows); 0 is "no bitmap".
using BitmapRef = std::uintptr_t;

// How a name goes into a list box: Sorted is LB_ADDSTRING (sorted only when
// the list box has the sort style), Append is LB_INSERTSTRING at -1.
enum class ListInsert { Append, Sorted };

// Results of listAdd besides an index.
inline constexpr int kListError = -1;      // LB_ERR
inline constexpr int kListNoSpace = -2;    // LB_ERRSPACE

// Notification codes passed to DialogHandler::onCommand.
inline constexpr int kButtonClicked = 0;   // BN_CLICKED
inline constexpr int kListSelChange = 1;   // LBN_SELCHANGE
inline constexpr int kListDblClick = 2;    // LBN_DBLCLK
inline constexpr int kEditChange = 0x300;  // EN_CHANGE
inline constexpr int kEditSetFocus = 0x100; // EN_SETFOCUS: an edit control got the focus
inline constexpr int kComboSelChange = 1;  // CBN_SELCHANGE
inline constexpr int kComboEditChange = 5; // CBN_EDITCHANGE

// The kinds of control whose notifications the logic tells apart.
enum class ControlType { Button, Edit, ListBox, ComboBox, Other };

// A rectangle in dialog units, the units of the templates.
struct DialogRect {
    int x = 0, y = 0, width = 0, height = 0;
    int right() const { return x + width; }
    int bottom() const { return y + height; }
};

// A control the library adds to an open dialog: a static label, a push
// button, a one-line edit, or a read-only multi-line text with a scroll bar.
enum class AddedKind { Label, PushButton, Edit, ReadOnlyText };

struct AddedControl {
    AddedKind kind = AddedKind::Label;
    int id = 0;
    std::string text;
    DialogRect rect;
    int after = 0;  // the control it follows in tab order; 0: after all
};

// One control of an open dialog as laid out: its text only for labels and
// buttons (ControlType::Other, Button), where it names the control.
struct ControlLayout {
    int id = 0;
    ControlType type = ControlType::Other;
    std::string text;
    DialogRect rect;
    bool multiLine = false;  // an edit control of several lines
};

// The controls of one open dialog, addressed by control id. Operations on an
// id the dialog does not have do nothing and read as empty.
class DialogView {
public:
    virtual ~DialogView() = default;

    virtual WindowRef handle() const = 0;
    virtual bool has(int id) const = 0;
    virtual ControlType controlType(int id) const { (void)id; return ControlType::Other; }

    virtual std::string text(int id) const = 0;
    virtual void setText(int id, std::string_view text) = 0;
    virtual bool isEnabled(int id) const = 0;
    virtual void enable(int id, bool on) = 0;
    virtual bool isChecked(int id) const = 0;
    virtual void setChecked(int id, bool on) = 0;
    virtual void setFocus(int id) = 0;
    // Stops the user typing more than count characters into an edit control.
    // Text set by the program is not cut (as WM_SETTEXT is not), so neither
    // are the texts scenarios type.
    virtual void limitText(int id, std::size_t count) { (void)id, (void)count; }

    // List boxes.
    virtual int listCount(int id) const = 0;
    virtual std::string listText(int id, int index) const = 0;
    virtual int listAdd(int id, std::string_view text, ListInsert how) = 0;
    // Puts text at position index (LB_INSERTSTRING), sorted list or not.
    virtual int listInsertAt(int id, int index, std::string_view text) = 0;
    virtual void listDelete(int id, int index) = 0;
    virtual void listClear(int id) = 0;
    virtual std::vector<int> listSelection(int id) const = 0;
    virtual void listSelect(int id, int index, bool on) = 0;
    virtual void listSetCurrent(int id, int index) = 0;  // LB_SETCURSEL
    virtual void setRedraw(int id, bool on) = 0;
    // Room for count more items ahead of filling a list (LB_INITSTORAGE).
    virtual void listReserve(int id, std::size_t count) { (void)id, (void)count; }
    // Adds the texts textAt(0) .. textAt(count - 1) in order, as listAdd each
    // would; stops at the first the list has no room for. How many were
    // added, and whether it ran out of room. The texts are asked one at a
    // time, so a caller need not gather 100,000 of them first.
    struct ListAddResult {
        std::size_t added = 0;
        bool noSpace = false;
    };
    using TextAt = std::function<std::string_view(std::size_t)>;
    virtual ListAddResult listAddAll(int id, std::size_t count, const TextAt& textAt, ListInsert how) {
        ListAddResult result;
        for (std::size_t i = 0; i < count; ++i) {
            if (listAdd(id, textAt(i), how) == kListNoSpace) {
                result.noSpace = true;
                break;
            }
            ++result.added;
        }
        return result;
    }
    // How often list id's items have changed through this view: every
    // change (an item added, inserted or deleted, the list emptied) and the
    // emptyings among them. Whoever keeps a copy of a list tells from them
    // that someone else has changed it, and whether it was refilled.
    struct ListChanges {
        std::uint64_t all = 0;
        std::uint64_t clears = 0;
        bool operator==(const ListChanges&) const = default;
    };
    ListChanges listChanges(int id) const {
        const auto found = listChanges_.find(id);
        return found == listChanges_.end() ? ListChanges{} : found->second;
    }
    // Every item's text, in order. The view keeps the texts: they stay valid
    // until that list changes or is read again, so a list of 100,000 names
    // is not copied on its way to the selection array and the command.
    virtual const std::vector<std::string>& listTexts(int id) const {
        std::vector<std::string>& texts = textsRead_[id];
        texts.clear();
        const int count = listCount(id);
        texts.reserve(static_cast<std::size_t>(count > 0 ? count : 0));
        for (int i = 0; i < count; ++i) texts.push_back(listText(id, i));
        return texts;
    }

    // Edit controls: the selection in characters, start <= end (the caret
    // when they are equal). Setting a text puts the caret at 0, as Windows
    // does; setEditSelection clamps to the text.
    virtual std::pair<int, int> editSelection(int id) const {
        const int length = static_cast<int>(text(id).size());
        return {length, length};
    }
    virtual void setEditSelection(int, int, int) {}

    // Combo boxes.
    virtual void comboAdd(int id, std::string_view text) = 0;
    virtual void comboClear(int id) = 0;
    virtual int comboSelection(int id) const = 0;
    virtual void comboSelect(int id, int index) = 0;

    // Layout in dialog units: every control in tab order (labels share an
    // id), where one is, the size of the client area; moving a control,
    // growing the dialog and adding a control. A view that cannot lay out
    // reads as empty and adds nothing (false).
    virtual std::vector<ControlLayout> layout() const { return {}; }
    virtual DialogRect controlRect(int id) const { (void)id; return {}; }
    virtual DialogRect clientRect() const { return {}; }
    virtual void moveControl(int id, const DialogRect& rect) { (void)id, (void)rect; }
    virtual void growClient(int width, int height) { (void)width, (void)height; }
    virtual bool addControl(const AddedControl& control) { (void)control; return false; }
    // Puts the controls, in the order layout() gives them, at these rects
    // (labels share an id, so they are addressed by place); a control
    // whose size does not change is only moved (a combo box keeps its
    // drop-down height).
    virtual void arrange(const std::vector<DialogRect>& rects) { (void)rects; }
    // Lets the user resize the dialog by its frame, keeping the client area
    // as it is and never smaller than minWidth x minHeight dialog units; the
    // handler's onResize then follows each change of size.
    virtual void makeResizable(int minWidth, int minHeight) { (void)minWidth, (void)minHeight; }
    // The text of the static label just before control id in the template
    // (the label a user reads for a list, edit or combo box); empty if none.
    virtual std::string labelOf(int id) const {
        (void)id;
        return {};
    }
    // The name assistive technology reads for control id in place of the
    // control's own text (an arrow button's "-->").
    virtual void setAccessibleName(int id, std::string_view name) { (void)id, (void)name; }

    // The dialog's own title.
    virtual void setCaption(std::string_view text) = 0;
    // Centres the dialog on the screen.
    virtual void centre() = 0;
    // Ends the modal dialog with this result once the current message is done.
    virtual void end(int result) = 0;

protected:
    // What a view calls when it has changed the items of list id.
    void noteListChange(int id, bool cleared = false) {
        ListChanges& changes = listChanges_[id];
        ++changes.all;
        if (cleared) ++changes.clears;
    }

    mutable std::unordered_map<int, std::vector<std::string>> textsRead_;  // by list id, for listTexts

private:
    std::unordered_map<int, ListChanges> listChanges_;
};

// Keys a list box hands the dialog rather than handling them itself.
enum class ListKey { Delete, SelectAll };

// What a backend calls while a dialog runs.
class DialogHandler {
public:
    virtual ~DialogHandler() = default;
    // The dialog's controls exist; returns the id of the control that is to get
    // the focus, or 0 for the default.
    virtual int onInit(DialogView& view) = 0;
    // A control sent a notification (a click, a selection change, ...).
    virtual void onCommand(DialogView& view, int controlId, int notifyCode) = 0;
    // A system command of the library's own (the help requests 801 to 804).
    virtual void onSysCommand(DialogView& view, int code) = 0;
    // A mouse click at (x, y) in the client area, width x height pixels, of
    // a control the library draws itself (the colour grid).
    virtual void onClick(DialogView& view, int controlId, int x, int y, int width, int height) {
        (void)view, (void)controlId, (void)x, (void)y, (void)width, (void)height;
    }
    // Drag and drop between list boxes: whether the selection of list from
    // may be dropped on list to (to 0: whether a drag may start in from at
    // all), and the drop itself, before item index of list to (its count: at
    // the end).
    virtual bool canDrop(DialogView& view, int fromList, int toList) {
        (void)view, (void)fromList, (void)toList;
        return false;
    }
    virtual void onDrop(DialogView& view, int fromList, int toList, int index) {
        (void)view, (void)fromList, (void)toList, (void)index;
    }
    // A key pressed in a list box; true when the dialog acted on it, false
    // leaves the key to the list box.
    virtual bool onListKey(DialogView& view, int listId, ListKey key) {
        (void)view, (void)listId, (void)key;
        return false;
    }
    // The client area is now width x height dialog units (the user dragged
    // the frame of a dialog made resizable).
    virtual void onResize(DialogView& view, int width, int height) { (void)view, (void)width, (void)height; }
    // The user closed the window (WM_CLOSE); a modal dialog takes it as Cancel.
    virtual void onClose(DialogView& view) { onCommand(view, 2 /* IDCANCEL */, kButtonClicked); }
};

enum class MessageIcon { None, Stop, Exclamation, Question, Information };
enum class MessageButtons { Ok, OkCancel, YesNo };
// Answers of a message box, the Win32 ids.
inline constexpr int kIdOk = 1, kIdCancel = 2, kIdYes = 6, kIdNo = 7;

struct MessageRequest {
    WindowRef owner = 0;
    std::string text;
    std::optional<std::string> caption;  // none: the system's default caption
    MessageIcon icon = MessageIcon::Stop;
    MessageButtons buttons = MessageButtons::Ok;
};

struct FileRequest {
    WindowRef owner = 0;
    bool save = false;
    std::string title;
    std::string filter;        // description|pattern|... with '|' separators
    std::string defaultExtension;
    std::string initialName;
    std::uint32_t flags = 0;   // OFN_ flags
    std::size_t capacity = 260;
};

enum class HelpKind { Context, Contents, Key, HelpOnHelp };

struct HelpRequest {
    WindowRef owner = 0;
    std::string file;
    // A compiled HTML Help file of the same name beside file: opened with
    // HTML Help at the same topic instead (empty: WinHelp opens file).
    std::string htmlFile;
    HelpKind kind = HelpKind::Context;
    std::uint32_t context = 0;
    std::string key;
};

// System colours the library draws list entries with.
enum class SystemColour { WindowText, HighlightText };

// The system font dialog: screen fonts only, TrueType only, opened at the
// initial record.
struct FontRequest {
    WindowRef owner = 0;
    KvsLogFont initial{};
    std::string okText;  // new text of the OK button; empty leaves it
};

// A popup menu of the library's menu resources, shown at a control of a
// dialog: the first popup of the named menu, with the items' states set.
struct PopupItemState {
    int commandId = 0;
    bool greyed = false;
    bool checked = false;
};

struct PopupRequest {
    WindowRef owner = 0;       // the dialog
    std::string menuName;
    int anchorControl = 0;     // the menu opens below this control
    std::vector<PopupItemState> states;
};

// Services outside one dialog's controls.
class UiServices {
public:
    virtual ~UiServices() = default;
    // Runs the named template modally under handler; returns the value given
    // to DialogView::end, or -1 when the template cannot be created.
    virtual int runModal(WindowRef owner, std::string_view templateName, DialogHandler& handler) = 0;
    // The same, the window bearing caption from its creation instead of the
    // template's (one template serves several titled sub-dialogs).
    virtual int runModalTitled(WindowRef owner, std::string_view templateName, std::string_view caption,
                               DialogHandler& handler) {
        (void)caption;
        return runModal(owner, templateName, handler);
    }
    virtual int messageBox(const MessageRequest& request) = 0;
    // The chosen path, or nothing when the user cancelled or the chooser
    // failed; then chooserError() says why (CommDlgExtendedError's code).
    virtual std::optional<std::string> chooseFile(const FileRequest& request) = 0;
    static constexpr std::uint32_t kChooserInvalidFileName = 0x3002;  // FNERR_INVALIDFILENAME
    virtual std::uint32_t chooserError() const { return 0; }
    virtual void help(const HelpRequest& request) = 0;
    // Whether a file (not a folder) is at path.
    virtual bool fileExists(std::string_view path) {
        (void)path;
        return false;
    }
    // The window that has the focus (owner of some message boxes).
    virtual WindowRef focusWindow() = 0;
    // Title of a window, cut at capacity - 1 characters.
    virtual std::string windowTitle(WindowRef window, std::size_t capacity) = 0;
    // Shows the wait cursor until the returned token is restored.
    virtual std::uintptr_t beginWait() = 0;
    virtual void endWait(std::uintptr_t previous) = 0;
    virtual void beep() = 0;
    // A bitmap resource of the library by name, or 0 when it has none.
    virtual BitmapRef loadBitmap(std::string_view name) = 0;
    virtual void deleteBitmap(BitmapRef bitmap) = 0;
    // A system colour as 0x00BBGGRR.
    virtual std::uint32_t systemColour(SystemColour which) = 0;
    // The screen's vertical pixels per logical inch.
    virtual int screenPixelsPerInchY() = 0;
    // The chosen font, or nothing when the user cancelled.
    virtual std::optional<KvsLogFont> chooseFont(const FontRequest& request) = 0;
    // Shows a popup menu and waits for the user; returns the command id of
    // the item picked, 0 when the menu was dismissed or does not exist.
    virtual int popupMenu(const PopupRequest& request) {
        (void)request;
        return 0;
    }
    // MessageBeep with a sound type.
    virtual void messageBeep(unsigned type) {
        (void)type;
        beep();
    }

    // Modeless dialogs (the progress window). openModeless creates the named
    // template under handler and returns its view, or null when it cannot be
    // created; the view stays valid until closeModeless, even when the window
    // has gone meanwhile.
    virtual DialogView* openModeless(WindowRef owner, std::string_view templateName, DialogHandler& handler) {
        (void)owner, (void)templateName, (void)handler;
        return nullptr;
    }
    // Destroys the dialog (if it is still there) and releases its view.
    virtual void closeModeless(DialogView& view) { (void)view; }
    // Handles what is queued for the dialog and its controls without waiting;
    // true when a Cancel command (WM_COMMAND 2) was among it.
    virtual bool pumpMessages(DialogView& view) {
        (void)view;
        return false;
    }
    // Repaints what is invalid in the dialog now (UpdateWindow).
    virtual void updateWindow(DialogView& view) { (void)view; }
    // Makes the edit control field.controlId of view a numeric field that is
    // checked as the user leaves it, with an up/down control beside it when
    // repeatMilliseconds (its auto-repeat interval) is not 0. field must
    // live as long as the dialog.
    virtual void attachNumericField(DialogView& view, NumericField& field, unsigned repeatMilliseconds) {
        (void)view, (void)field, (void)repeatMilliseconds;
    }

    // Puts text on the clipboard (CF_TEXT, lines ending in "\r\n"); false
    // when the clipboard could not be had.
    virtual bool copyText(WindowRef owner, std::string_view text) {
        (void)owner, (void)text;
        return false;
    }

    // Sends the dialog the user request (WM_USER, code, value) and returns
    // its answer.
    virtual std::intptr_t userRequest(DialogView& view, int code, std::intptr_t value) {
        (void)view, (void)code, (void)value;
        return 0;
    }
};

// The services the library uses; set by the backend before any export runs.
UiServices& ui();
void setUi(UiServices* services);

}  // namespace kvs
