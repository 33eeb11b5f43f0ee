#include "headless/headless_ui.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "resources/progress_ids.h"
#include "standin/host_state.h"
#include "tools/scenario/transcript.h"

namespace kvs::headless {

using scenario::quote;

namespace {

// A window of the stack while a modal loop runs; taken off however the loop
// ends, an exception from a dialog's logic included. Modeless windows opened
// during the loop may lie above it, so it takes off its own entry, not the top.
class Stacked {
public:
    Stacked(std::vector<Window>& stack, Window window) : stack_(stack), window_(window) { stack_.push_back(window); }
    ~Stacked() {
        const auto own = std::find(stack_.rbegin(), stack_.rend(), window_);
        if (own != stack_.rend()) stack_.erase(std::next(own).base());
    }
    Stacked(const Stacked&) = delete;
    Stacked& operator=(const Stacked&) = delete;

private:
    std::vector<Window>& stack_;
    Window window_;
};

const char* iconName(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Stop: return "stop";
    case MessageIcon::Exclamation: return "exclamation";
    case MessageIcon::Question: return "question";
    case MessageIcon::Information: return "info";
    case MessageIcon::None: break;
    }
    return "none";
}

// The caption Windows gives a message box that names none.
constexpr const char* kDefaultMessageCaption = "Error";

}  // namespace

HeadlessUi::HeadlessUi(const ResourceSet& resources, TranscriptSink transcript)
    : resources_(resources), transcript_(std::move(transcript)) {}

std::optional<Window> HeadlessUi::top() const {
    if (stack_.empty()) return std::nullopt;
    return stack_.back();
}

void HeadlessUi::pumpUntil(const std::function<bool()>& done) {
    while (!done()) {
        if (driver_.step && driver_.step()) continue;
        if (driver_.windowLeftOpen) driver_.windowLeftOpen();
        else dismissTop();
    }
}

void HeadlessUi::dismissTop() {
    if (stack_.empty()) return;
    const Window window = stack_.back();
    if (window.dialog && window.dialog->modeless) {
        HeadlessDialog* view = window.dialog->dialog.get();
        window.dialog->handler->onClose(*view);
        // A handler that keeps its window open is not the user's to keep.
        if (modelessOf(*view)) closeModeless(*view);
    } else if (window.dialog) {
        DialogWindow& d = *window.dialog;
        d.handler->onCommand(*d.dialog, kIdCancel, kButtonClicked);
        if (!d.dialog->ended()) d.dialog->end(kIdCancel);
    } else if (window.menu) {
        window.menu->answered = true;
        window.menu->picked = 0;
    } else if (window.message) {
        window.message->answer = window.message->request.buttons == MessageButtons::YesNo ? kIdNo
                                 : window.message->request.buttons == MessageButtons::OkCancel ? kIdCancel
                                                                                                 : kIdOk;
    } else if (window.chooser) {
        window.chooser->answered = true;
        window.chooser->path.reset();
    } else if (window.font) {
        window.font->answered = true;
        window.font->font.reset();
    }
}

int HeadlessUi::runModal(WindowRef owner, std::string_view templateName, DialogHandler& handler) {
    const DialogTemplate* found = resources_.dialog(templateName);
    return found ? runModalTitled(owner, templateName, found->caption, handler) : -1;
}

int HeadlessUi::runModalTitled(WindowRef, std::string_view templateName, std::string_view caption,
                               DialogHandler& handler) {
    const DialogTemplate* found = resources_.dialog(templateName);
    if (!found) return -1;
    DialogWindow window;
    window.dialog = std::make_unique<HeadlessDialog>(*found);
    window.handler = &handler;
    window.dialog->setCaption(caption);
    watchControls(*window.dialog);
    transcript_(scenario::dialogLine(window.dialog->caption()));
    const Stacked stacked(stack_, Window{&window, nullptr, nullptr, nullptr});
    const int focus = handler.onInit(*window.dialog);
    (void)focus;
    pumpUntil([&] { return window.dialog->ended(); });
    return window.dialog->result();
}

void HeadlessUi::watchControls(HeadlessDialog& dialog) {
    if (!strict_) return;
    const std::string name = dialog.templateName();
    dialog.setOnMissingControl([this, name](int id) {
        transcript_(scenario::errorLine("template " + name + " has no control " + std::to_string(id)));
    });
}

DialogView* HeadlessUi::openModeless(WindowRef, std::string_view templateName, DialogHandler& handler) {
    const DialogTemplate* found = resources_.dialog(templateName);
    if (!found) return nullptr;
    auto window = std::make_unique<DialogWindow>();
    window->dialog = std::make_unique<HeadlessDialog>(*found);
    watchControls(*window->dialog);
    window->handler = &handler;
    window->modeless = true;
    transcript_(scenario::dialogLine(window->dialog->caption()));
    DialogWindow* shown = window.get();
    modeless_.push_back(std::move(window));
    stack_.push_back(Window{shown, nullptr, nullptr});
    handler.onInit(*shown->dialog);
    return shown->dialog.get();
}

DialogWindow* HeadlessUi::modelessOf(const DialogView& view) {
    for (const auto& window : modeless_)
        if (window->dialog.get() == &view) return window.get();
    return nullptr;
}

DialogWindow* HeadlessUi::windowOf(const DialogView& view) {
    for (const Window& window : stack_)
        if (window.dialog && window.dialog->dialog.get() == &view) return window.dialog;
    return modelessOf(view);
}

void HeadlessUi::attachNumericField(DialogView& view, NumericField& field, unsigned) {
    DialogWindow* window = windowOf(view);
    if (!window) return;
    field.dialog = view.handle();
    window->numericFields.push_back(&field);
}

void HeadlessUi::unstack(const DialogWindow* window) {
    for (auto it = stack_.begin(); it != stack_.end(); ++it) {
        if (it->dialog == window) {
            stack_.erase(it);
            return;
        }
    }
}

void HeadlessUi::closeModeless(DialogView& view) {
    DialogWindow* window = modelessOf(view);
    if (!window) return;
    // Closing a window destroys the message boxes it owns, as Windows does.
    for (const Window& each : stack_)
        if (each.message && each.message->request.owner == view.handle()) each.message->destroyed = true;
    unstack(window);
    for (auto it = modeless_.begin(); it != modeless_.end(); ++it) {
        if (it->get() == window) {
            modeless_.erase(it);
            return;
        }
    }
}

void HeadlessUi::closeAllModeless() {
    while (!modeless_.empty()) {
        HeadlessDialog* view = modeless_.back()->dialog.get();
        modeless_.back()->handler->onClose(*view);
        if (modelessOf(*view)) closeModeless(*view);
    }
}

// The progress window's requests; the bar itself is not drawn here.
std::intptr_t HeadlessUi::userRequest(DialogView& view, int code, std::intptr_t value) {
    DialogWindow* window = modelessOf(view);
    if (!window) return 0;
    switch (code) {
    case PROGRESS_RESET_BAR: window->userWord = 0; break;
    case PROGRESS_SET_BAR: window->userWord = value; break;
    case PROGRESS_DESTROY: unstack(window); break;
    case PROGRESS_SET_CAPTION:
        if (value) window->dialog->setCaption(reinterpret_cast<const char*>(value));
        break;
    default: break;
    }
    return 1;
}

// The files a scenario put on the stand-in machine ("file" statements).
bool HeadlessUi::fileExists(std::string_view path) {
    return standin::HostState::instance().file(std::string(path)) != nullptr;
}

bool HeadlessUi::copyText(WindowRef, std::string_view text) {
    clipboard_ = std::string(text);
    return true;
}

int HeadlessUi::messageBox(const MessageRequest& request) {
    MessageWindow window{request, 0};
    const std::string caption = request.caption ? *request.caption : kDefaultMessageCaption;
    transcript_(scenario::messageLine(caption, iconName(request.icon), request.text));
    const Stacked stacked(stack_, Window{nullptr, &window, nullptr, nullptr});
    pumpUntil([&] { return window.answer != 0 || window.destroyed; });
    return window.answer;
}

namespace {
// Characters no Windows file name may hold, control characters among them.
constexpr std::string_view kInvalidNameCharacters{"<>|\"\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0a\x0b\x0c\x0d\x0e\x0f"
                                                  "\x10\x11\x12\x13\x14\x15\x16\x17\x18\x19\x1a\x1b\x1c\x1d\x1e\x1f"};
}  // namespace

std::optional<std::string> HeadlessUi::chooseFile(const FileRequest& request) {
    // As Windows, a chooser whose initial name cannot be a file name does
    // not open (FNERR_INVALIDFILENAME).
    chooserError_ = request.initialName.find_first_of(kInvalidNameCharacters) == std::string::npos
                        ? 0
                        : UiServices::kChooserInvalidFileName;
    if (chooserError_ != 0) return std::nullopt;
    ChooserWindow window{request, false, std::nullopt};
    transcript_(scenario::chooserLine(request.save, request.title, shownName(request.initialName)));
    const Stacked stacked(stack_, Window{nullptr, nullptr, &window, nullptr});
    pumpUntil([&] { return window.answered; });
    if (!window.path) return std::nullopt;
    std::string path = withDefaultExtension(*window.path, addedExtension(request));
    // A name the caller's buffer cannot hold fails the chooser (FNERR_BUFFERTOOSMALL),
    // which the caller sees as a cancel.
    if (path.size() >= request.capacity) return std::nullopt;
    return path;
}

void HeadlessUi::help(const HelpRequest& request) {
    if (!request.htmlFile.empty()) {
        switch (request.kind) {
        case HelpKind::Context: transcript_(scenario::htmlHelpContextLine(request.htmlFile, request.context)); return;
        case HelpKind::Contents: transcript_(scenario::htmlHelpContentsLine(request.htmlFile)); return;
        case HelpKind::Key: transcript_(scenario::htmlHelpKeyLine(request.htmlFile, request.key)); return;
        case HelpKind::HelpOnHelp: break;
        }
    }
    switch (request.kind) {
    case HelpKind::Context: transcript_(scenario::helpContextLine(request.file, request.context)); break;
    case HelpKind::Contents: transcript_(scenario::helpContentsLine(request.file)); break;
    case HelpKind::Key: transcript_(scenario::helpKeyLine(request.file, request.key)); break;
    case HelpKind::HelpOnHelp: transcript_(scenario::helpOnHelpLine(request.file)); break;
    }
}

WindowRef HeadlessUi::focusWindow() {
    for (auto it = stack_.rbegin(); it != stack_.rend(); ++it)
        if (it->dialog) return it->dialog->dialog->handle();
    return 0;
}

// A library dialog's title is its caption; any other window is the owner.
std::string HeadlessUi::windowTitle(WindowRef window, std::size_t capacity) {
    std::string title = ownerTitle_;
    for (const Window& open : stack_)
        if (open.dialog && open.dialog->dialog->handle() == window) title = open.dialog->dialog->caption();
    if (capacity == 0) return {};
    if (title.size() >= capacity) title.resize(capacity - 1);
    return title;
}

std::string HeadlessUi::shownName(const std::string& initialName) {
    const std::size_t slash = initialName.find_last_of("\\/");
    return slash == std::string::npos ? initialName : initialName.substr(slash + 1);
}

std::string HeadlessUi::withDefaultExtension(const std::string& path, const std::string& extension) {
    if (extension.empty()) return path;
    const std::size_t slash = path.find_last_of("\\/");
    const std::size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    if (path.find('.', nameStart) != std::string::npos) return path;
    return path + "." + extension;
}

std::string HeadlessUi::addedExtension(const FileRequest& request) {
    if (request.defaultExtension.empty()) return {};
    const std::size_t bar = request.filter.find('|');
    if (bar == std::string::npos) return request.defaultExtension;
    const std::size_t end = request.filter.find_first_of("|;", bar + 1);
    const std::string pattern =
        request.filter.substr(bar + 1, end == std::string::npos ? std::string::npos : end - bar - 1);
    const std::size_t dot = pattern.find('.');
    if (dot == std::string::npos) return request.defaultExtension;
    const std::string extension = pattern.substr(dot + 1);
    if (extension.empty() || extension.find_first_of("*?") != std::string::npos) return request.defaultExtension;
    return extension;
}

BitmapRef HeadlessUi::loadBitmap(std::string_view name) {
    return resources_.hasBitmap(name) ? ++nextBitmap_ : 0;
}

// Windows' default scheme: black window text, white highlighted text.
std::uint32_t HeadlessUi::systemColour(SystemColour which) {
    return which == SystemColour::HighlightText ? 0x00FFFFFFu : 0x00000000u;
}

KvsLogFont HeadlessUi::chosenFont(const std::string& face, int points, bool bold, bool italic) {
    KvsLogFont font{};
    font.height = -((points * kPixelsPerInch + 36) / 72);
    font.weight = bold ? 700 : 400;
    font.italic = italic ? 255 : 0;
    face.copy(font.faceName, sizeof font.faceName - 1);
    return font;
}

// The line shows what the dialog opens with: its title, the face and the
// size in points of the initial record, and its OK button's text.
std::optional<KvsLogFont> HeadlessUi::chooseFont(const FontRequest& request) {
    FontWindow window{request, false, std::nullopt};
    const KvsLogFont& initial = request.initial;
    const std::string face(initial.faceName, strnlen(initial.faceName, sizeof initial.faceName));
    const int height = initial.height < 0 ? -initial.height : initial.height;
    const int points = (height * 72 + kPixelsPerInch / 2) / kPixelsPerInch;
    transcript_(scenario::fontChooserLine(kFontChooserTitle, face, std::to_string(points),
                                          request.okText.empty() ? "OK" : request.okText));
    const Stacked stacked(stack_, Window{nullptr, nullptr, nullptr, &window});
    pumpUntil([&] { return window.answered; });
    return window.font;
}

// The items of the menu's first popup; nested popups and separators are not
// items a user picks.
int HeadlessUi::popupMenu(const PopupRequest& request) {
    const MenuTemplate* menu = resources_.menu(request.menuName);
    if (!menu) return 0;
    const auto popup = std::find_if(menu->items.begin(), menu->items.end(), [](const MenuItem& i) { return i.popup; });
    if (popup == menu->items.end()) return 0;
    MenuWindow window{request.menuName, {}};
    for (const MenuItem& item : popup->children) {
        if (item.separator || item.popup) continue;
        MenuItem shown = item;
        for (const PopupItemState& state : request.states) {
            if (state.commandId != item.id) continue;
            shown.enabled = !state.greyed;
            shown.checked = state.checked;
        }
        window.items.push_back(std::move(shown));
    }
    Window top;
    top.menu = &window;
    const Stacked stacked(stack_, top);
    pumpUntil([&] { return window.answered; });
    return window.picked;
}

}  // namespace kvs::headless
