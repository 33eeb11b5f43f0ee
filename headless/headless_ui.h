// The headless backend's user-interface services: a stack of in-memory
// windows (dialogs, message boxes, file choosers) that a scenario driver acts
// on while the library waits in its "modal loops".
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/numeric_field.h"
#include "core/seam.h"
#include "headless/headless_dialog.h"
#include "headless/rc_template.h"

namespace kvs::headless {

// Acts on the topmost window while the library waits in a modal loop: runs
// the next scenario statement, false when none is left; and, when none is
// left, reports and closes the window that stays open.
struct Driver {
    std::function<bool()> step;
    std::function<void()> windowLeftOpen;
};

struct DialogWindow {
    std::unique_ptr<HeadlessDialog> dialog;
    DialogHandler* handler = nullptr;
    bool modeless = false;
    // A modeless dialog's user word: the progress bar position drawn last,
    // -1 right after creation.
    std::intptr_t userWord = -1;
    // Its number fields checked as the user leaves them.
    std::vector<NumericField*> numericFields;
};

struct MessageWindow {
    MessageRequest request;
    int answer = 0;         // 0 until answered
    bool destroyed = false;  // its owner window was closed under it: MessageBox gives 0
};

struct ChooserWindow {
    FileRequest request;
    bool answered = false;
    std::optional<std::string> path;
};

struct FontWindow {
    FontRequest request;
    bool answered = false;
    std::optional<KvsLogFont> font;
};

// A popup menu that is up: its items as shown (states set), and the pick.
struct MenuWindow {
    std::string name;
    std::vector<MenuItem> items;
    bool answered = false;
    int picked = 0;  // the command id; 0 when dismissed
};

struct Window {
    DialogWindow* dialog = nullptr;
    MessageWindow* message = nullptr;
    ChooserWindow* chooser = nullptr;
    FontWindow* font = nullptr;
    MenuWindow* menu = nullptr;

    bool operator==(const Window&) const = default;
};

using TranscriptSink = std::function<void(const std::string&)>;

class HeadlessUi : public UiServices {
public:
    HeadlessUi(const ResourceSet& resources, TranscriptSink transcript);

    void setDriver(Driver driver) { driver_ = std::move(driver); }
    void setOwnerTitle(std::string title) { ownerTitle_ = std::move(title); }
    // Strict: a dialog's logic touching a control its template lacks prints
    // an error line instead of being ignored.
    void setStrict(bool strict) { strict_ = strict; }
    bool copyText(WindowRef owner, std::string_view text) override;
    bool fileExists(std::string_view path) override;

    const std::string& clipboard() const { return clipboard_; }

    // The window statements act on; none when nothing is open.
    std::optional<Window> top() const;

    // Answers the topmost window as a user closing it without a choice
    // would: Cancel on dialogs and choosers, the cancelling button of a
    // message box.
    void dismissTop();

    int runModal(WindowRef owner, std::string_view templateName, DialogHandler& handler) override;
    int runModalTitled(WindowRef owner, std::string_view templateName, std::string_view caption,
                       DialogHandler& handler) override;
    int messageBox(const MessageRequest& request) override;
    std::optional<std::string> chooseFile(const FileRequest& request) override;
    std::uint32_t chooserError() const override { return chooserError_; }
    void help(const HelpRequest& request) override;
    WindowRef focusWindow() override;
    std::string windowTitle(WindowRef window, std::size_t capacity) override;
    std::uintptr_t beginWait() override { return 0; }
    void endWait(std::uintptr_t) override {}
    void beep() override {}
    // A bitmap is there when the resource scripts name it; the handle is a
    // number of its own for each load.
    BitmapRef loadBitmap(std::string_view name) override;
    void deleteBitmap(BitmapRef) override {}
    std::uint32_t systemColour(SystemColour which) override;
    int screenPixelsPerInchY() override { return kPixelsPerInch; }
    std::optional<KvsLogFont> chooseFont(const FontRequest& request) override;
    // The menu is a window of the stack until an item is picked or it is
    // dismissed; it prints no transcript line of its own.
    int popupMenu(const PopupRequest& request) override;

    // The screen of the headless backend: 96 pixels per inch, as Wine's.
    static constexpr int kPixelsPerInch = 96;
    // The font dialog's title, as Windows and Wine give it.
    static constexpr const char* kFontChooserTitle = "Font";
    // The record the font dialog returns for a face, a size and a style.
    static KvsLogFont chosenFont(const std::string& face, int points, bool bold, bool italic);

    // The modeless dialog stays in the window stack, where statements act on
    // it, until it is closed; the library keeps running meanwhile.
    DialogView* openModeless(WindowRef owner, std::string_view templateName, DialogHandler& handler) override;
    void closeModeless(DialogView& view) override;
    bool pumpMessages(DialogView&) override { return false; }
    std::intptr_t userRequest(DialogView& view, int code, std::intptr_t value) override;
    void attachNumericField(DialogView& view, NumericField& field, unsigned repeatMilliseconds) override;
    // Closes every modeless dialog still open, as the user would.
    void closeAllModeless();

    // What the common file dialog returns for a typed name: the default
    // extension is added to a name without one.
    // The common dialog opens in the initial name's folder and shows only
    // the name itself in its name field.
    static std::string shownName(const std::string& initialName);
    static std::string withDefaultExtension(const std::string& path, const std::string& extension);
    // The extension the common dialog adds to a name typed without one: that
    // of the first pattern of the chosen (first) filter, "*.kvd;*.kvs" giving
    // "kvd", or the default extension when that pattern has a wildcard after
    // its dot. Nothing without a default extension.
    static std::string addedExtension(const FileRequest& request);

private:
    void pumpUntil(const std::function<bool()>& done);
    void watchControls(HeadlessDialog& dialog);

    const ResourceSet& resources_;
    TranscriptSink transcript_;
    Driver driver_;
    std::string ownerTitle_;
    std::uint32_t chooserError_ = 0;
    std::string clipboard_;
    bool strict_ = false;
    std::vector<Window> stack_;
    BitmapRef nextBitmap_ = 0x1000;
    std::vector<std::unique_ptr<DialogWindow>> modeless_;

    DialogWindow* modelessOf(const DialogView& view);
    DialogWindow* windowOf(const DialogView& view);
    void unstack(const DialogWindow* window);
};

}  // namespace kvs::headless
