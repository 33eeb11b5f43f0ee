#include "tools/scenario/engine.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "resources/list_transfer.h"
#include "tools/scenario/call_statements.h"
#include "tools/scenario/control_names.h"
#include "tools/scenario/transcript.h"

namespace kvs::scenario {

namespace {

constexpr int kOk = 1, kCancel = 2, kContinue = 1001, kYes = 6, kNo = 7;
constexpr int kPreviewField = 960, kCopyButton = 961;

// " \"line\" \"line\"": each line of a text whose lines end in "\r\n".
std::string quotedLines(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        out += ' ';
        out += quote(text.substr(0, end));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 2);
    }
    return out;
}

const ListTransferRow* rowForTarget(int targetId) {
    for (const ListTransferRow& row : kListTransfers)
        if (row.targetList == targetId) return &row;
    return nullptr;
}

}  // namespace

std::optional<std::vector<int>> firstIndicesOf(std::size_t count,
                                               const std::function<std::string_view(std::size_t)>& itemAt,
                                               const std::vector<std::string>& names) {
    std::unordered_map<std::string_view, int> firstIndex;
    for (const std::string& name : names) firstIndex.emplace(name, -1);
    for (std::size_t i = 0; i < count; ++i) {
        const auto wanted = firstIndex.find(itemAt(i));
        if (wanted != firstIndex.end() && wanted->second < 0) wanted->second = static_cast<int>(i);
    }
    std::vector<int> indices;
    indices.reserve(names.size());
    for (const std::string& name : names) {
        const int index = firstIndex.at(name);
        if (index < 0) return std::nullopt;
        indices.push_back(index);
    }
    return indices;
}

std::optional<std::vector<int>> Backend::listIndicesOf(int listId, const std::vector<std::string>& names) {
    const std::optional<ControlInfo> list = control(listId);
    if (!list || list->kind != ControlKind::ListBox) return std::nullopt;
    return firstIndicesOf(list->items.size(), [&](std::size_t i) -> std::string_view { return list->items[i]; }, names);
}

std::string describeControl(int id, const ControlInfo& control) {
    const std::string number = std::to_string(id);
    std::string line;
    switch (control.kind) {
    case ControlKind::ListBox:
        line = "list " + number;
        for (const std::string& item : control.items) {
            line += ' ';
            line += quote(item);
        }
        break;
    case ControlKind::ComboBox:
        line = "combo " + number + " " + quote(control.text);
        break;
    case ControlKind::Button:
        line = "button " + number;
        if (control.checkable) line += control.checked ? " checked" : " unchecked";
        break;
    default: line = "text " + number + " " + quote(control.text); break;
    }
    if (!control.enabled) line += " disabled";
    return line;
}

Engine::Engine(Backend& backend, Emit emit) : backend_(backend), emit_(std::move(emit)) {}

void Engine::load(std::string_view source) {
    ParseResult parsed = parse(source);
    for (const std::string& error : parsed.errors) emit_(errorLine(error));
    statements_ = std::move(parsed.statements);
    next_ = 0;
    helpFile_ = kDefaultHelpFile;
    failingAllocation_ = false;
}

void Engine::fail(const Statement& statement, const std::string& message) {
    emit_(errorLine("line " + std::to_string(statement.line) + ": " + message));
}

std::string Engine::describeTop() {
    switch (backend_.topKind()) {
    case WindowKind::Dialog: return "dialog " + quote(backend_.topText());
    case WindowKind::Message: return "message box " + quote(backend_.topText());
    case WindowKind::Chooser: return "file chooser " + quote(backend_.topText());
    case WindowKind::FontChooser: return "font chooser " + quote(backend_.topText());
    case WindowKind::Menu: return "popup menu";
    case WindowKind::None: break;
    }
    return "nothing";
}

// The preview's lines, or "refused" and the message it shows when Copy has
// nothing to copy.
std::string Engine::previewLine(std::string_view keyword) {
    const std::optional<ControlInfo> field = backend_.control(kPreviewField);
    const std::optional<ControlInfo> copy = backend_.controlState(kCopyButton);
    const std::string text = field ? field->text : std::string();
    if (copy && !copy->enabled && !text.empty()) return std::string(keyword) + " refused " + quote(text);
    return std::string(keyword) + quotedLines(text);
}

void Engine::windowLeftOpen() {
    emit_(errorLine("the scenario ends with the " + describeTop() + " open"));
    backend_.dismissTop();
}

bool Engine::step() {
    if (done()) return false;
    // Advance first: a statement may open a modal window inside which the
    // next statements run.
    const Statement& statement = statements_[next_++];
    if (setup(statement)) return true;
    switch (backend_.topKind()) {
    case WindowKind::Dialog: actOnDialog(statement); break;
    case WindowKind::Message: actOnMessage(statement); break;
    case WindowKind::Chooser: actOnChooser(statement); break;
    case WindowKind::FontChooser: actOnFontChooser(statement); break;
    case WindowKind::Menu: actOnMenu(statement); break;
    case WindowKind::None: fail(statement, "no window is open for '" + statement.keyword + "'"); break;
    }
    backend_.settle();
    return true;
}

bool Engine::setup(const Statement& s) {
    const std::string& k = s.keyword;
    auto number = [&](std::size_t i) { return s.args.size() > i ? toNumber(s.args[i].text) : std::nullopt; };
    if (k == "vars") {
        backend_.setVariables(s.texts());
    } else if (k == "manyvars") {
        const auto count = number(1);
        if (s.args.size() != 2 || !count || *count < 0) {
            fail(s, "manyvars takes a prefix and a count");
            return true;
        }
        std::vector<std::string> names;
        names.reserve(static_cast<std::size_t>(*count));
        for (long i = 1; i <= *count; ++i) names.push_back(s.args[0].text + std::to_string(i));
        backend_.setVariables(names);
    } else if (k == "file" && !s.args.empty() && s.args[0].quoted &&
               (s.args.size() > 1 || backend_.topKind() != WindowKind::Chooser)) {
        backend_.setFile(s.args[0].text, s.texts(1));
    } else if (k == "active") {
        backend_.setActiveModules(s.texts());
    } else if (k == "matrix") {
        backend_.setMatrix(!s.args.empty() && s.args[0].text == "yes");
    } else if (k == "sorted") {
        backend_.setSortList(!s.args.empty() && s.args[0].text == "yes" ? 1 : 0);
    } else if (k == "title") {
        backend_.setOwnerTitle(s.args.empty() ? "" : s.args[0].text);
    } else if (k == "helpfile") {
        helpFile_ = s.args.empty() ? "" : s.args[0].text;
    } else if (k == "failalloc") {
        const auto nth = number(0);
        backend_.failAllocation(nth ? static_cast<int>(*nth) : 0);
        failingAllocation_ = nth && *nth > 0;
    } else if (k == "allocations") {
        emit_("allocations live " + std::to_string(backend_.liveAllocations()));
    } else if (k == "start") {
        const auto id = number(0);
        if (!id || *id < 0 || *id > 0xFFFFFFFFLL) {
            fail(s, "start takes a command id of 32 bits");
            return true;
        }
        const std::int32_t result = backend_.startDialog(static_cast<std::uint32_t>(*id), helpFile_);
        emit_("StartDialog " + std::to_string(*id) + " = " + std::to_string(result));
    } else if (k == "launch") {
        const auto id = number(0);
        if (!id) {
            fail(s, "launch takes a command id");
            return true;
        }
        const auto result = backend_.launchUnlisted(static_cast<std::uint32_t>(*id), helpFile_);
        if (!result) fail(s, "launch " + std::to_string(*id) + " cannot run on this backend");
        else emit_("launch " + std::to_string(*id) + " = " + std::to_string(*result));
    } else if (k == "reinit") {
        const auto value = number(0);
        backend_.reinitDialogs(value ? static_cast<std::int32_t>(*value) : 1);
    } else if (const CallStatement* call = findCallStatement(k)) {
        CallContext context{backend_, s, emit_, [&](const std::string& message) { fail(s, message); }};
        call->run(context);
    } else {
        return false;
    }
    return true;
}

// A number, an IDC_ name of the id headers, or a quoted label.
int Engine::controlId(const Token& token, bool field) {
    if (!token.quoted) {
        std::optional<long long> id = toNumber(token.text);
        if (!id) {
            if (const auto named = controlIdNamed(token.text)) id = *named;
        }
        return id && *id != 0 && backend_.hasControl(static_cast<int>(*id)) ? static_cast<int>(*id) : 0;
    }
    return (field ? backend_.fieldByLabel(token.text) : backend_.controlByLabel(token.text)).value_or(0);
}

void Engine::actOnDialog(const Statement& s) {
    const std::string& k = s.keyword;
    const bool typing = k == "type" || k == "typerepeat";
    auto needControl = [&](std::size_t argument) -> int {
        if (s.args.size() <= argument) {
            fail(s, "'" + k + "' needs a control");
            return 0;
        }
        const int id = controlId(s.args[argument], typing);
        if (!id) fail(s, "no control " + quote(s.args[argument].text) + " in " + quote(backend_.topText()));
        return id;
    };
    // A control a user cannot reach: missing from the dialog, or disabled.
    auto enabledControl = [&](std::size_t argument) -> int {
        const int id = needControl(argument);
        if (!id) return 0;
        if (!backend_.controlState(id)->enabled) {
            fail(s, "control " + std::to_string(id) + " is disabled");
            return 0;
        }
        return id;
    };
    auto clickEnabled = [&](int id) {
        const auto control = backend_.controlState(id);
        if (!control) {
            fail(s, "no control " + std::to_string(id) + " in " + quote(backend_.topText()));
        } else if (!control->enabled) {
            fail(s, "control " + std::to_string(id) + " is disabled");
        } else {
            backend_.click(id);
        }
    };

    if (k == "ok" && markPreviews_ && !failingAllocation_ && backend_.hasControl(kPreviewField)) emit_(previewLine("#preview"));
    if (k == "ok" || k == "cancel" || k == "continue") {
        clickEnabled(k == "ok" ? kOk : k == "cancel" ? kCancel : kContinue);
    } else if (k == "click") {
        if (const int id = needControl(0)) clickEnabled(id);
    } else if (k == "check" || k == "uncheck") {
        const int id = needControl(0);
        if (!id) return;
        const auto control = backend_.controlState(id);
        if (!control->checkable) fail(s, "control " + std::to_string(id) + " cannot be checked");
        else if (control->checked != (k == "check")) clickEnabled(id);
    } else if (k == "select") {
        const int id = enabledControl(0);
        if (!id) return;
        const auto indices = backend_.listIndicesOf(id, s.texts(1));
        if (!indices) fail(s, "list " + std::to_string(id) + " lacks a name");
        else backend_.selectItems(id, *indices);
    } else if (k == "add" || k == "remove") {
        const int target = needControl(0);
        if (!target) return;
        const ListTransferRow* row = rowForTarget(target);
        if (!row) {
            fail(s, "control " + std::to_string(target) + " is not a target list");
            return;
        }
        const auto names = s.texts(1);
        int list = 0;
        std::optional<std::vector<int>> indices;
        if (k == "add") {
            for (int source : row->sources) {
                indices = backend_.listIndicesOf(source, names);
                if (indices) {
                    list = source;
                    break;
                }
            }
        } else {
            indices = backend_.listIndicesOf(target, names);
            list = target;
        }
        if (!indices) {
            fail(s, "no list holds every name");
            return;
        }
        backend_.selectItems(list, *indices);
        clickEnabled(k == "add" ? row->addButton : row->removeButton);
    } else if (k == "dblclick") {
        const int id = enabledControl(0);
        if (!id) return;
        const auto indices = s.args.size() == 2 ? backend_.listIndicesOf(id, {s.args[1].text}) : std::nullopt;
        if (!indices) fail(s, "dblclick needs a name of the list");
        else backend_.doubleClick(id, indices->front());
    } else if (k == "type") {
        const int id = enabledControl(0);
        if (!id) return;
        if (s.args.size() != 2) fail(s, "type needs a control and a text");
        else backend_.typeText(id, s.args[1].text);
    } else if (k == "typerepeat") {
        const int id = enabledControl(0);
        if (!id) return;
        const auto times = s.args.size() == 3 ? toNumber(s.args[2].text) : std::nullopt;
        if (!times || *times < 0 || !s.args[1].quoted) {
            fail(s, "typerepeat needs a control, a text and a count");
            return;
        }
        constexpr std::size_t kMostText = std::size_t{16} << 20;
        if (static_cast<std::size_t>(*times) > kMostText / std::max<std::size_t>(s.args[1].text.size(), 1)) {
            fail(s, "typerepeat makes at most 16 MB of text");
            return;
        }
        std::string text;
        text.reserve(s.args[1].text.size() * static_cast<std::size_t>(*times));
        for (long i = 0; i < *times; ++i) text += s.args[1].text;
        backend_.typeText(id, text);
    } else if (k == "choose") {
        const int id = enabledControl(0);
        if (!id) return;
        const auto control = backend_.control(id);
        int entry = -1;
        if (s.args.size() == 2 && !s.args[1].quoted) {
            const auto index = toNumber(s.args[1].text);
            if (index && *index >= 0 && static_cast<std::size_t>(*index) < control->items.size())
                entry = static_cast<int>(*index);
        } else if (s.args.size() == 2) {
            for (std::size_t i = 0; i < control->items.size() && entry < 0; ++i)
                if (control->items[i] == s.args[1].text) entry = static_cast<int>(i);
        }
        if (entry < 0) fail(s, "no such entry in control " + std::to_string(id));
        else backend_.chooseEntry(id, entry);
    } else if (k == "drag") {
        drag(s);
    } else if (k == "key") {
        pressKey(s);
    } else if (k == "accname") {
        if (const int id = needControl(0)) emit_("accname " + std::to_string(id) + " " + quote(backend_.accessibleName(id)));
    } else if (k == "tab") {
        backend_.pressTab();
    } else if (k == "enter") {
        backend_.pressEnter();
    } else if (k == "preview") {
        if (!backend_.hasControl(kPreviewField)) fail(s, "no command preview in " + quote(backend_.topText()));
        else emit_(previewLine("preview"));
    } else if (k == "clipboard") {
        emit_("clipboard" + quotedLines(backend_.clipboardText()));
    } else if (k == "caption") {
        emit_("caption " + quote(backend_.topText()));
    } else if (k == "show") {
        if (const int id = needControl(0)) emit_(describeControl(id, *backend_.control(id)));
    } else if (k == "clickat") {
        const int id = needControl(0);
        if (!id) return;
        const auto x = s.args.size() == 3 ? toNumber(s.args[1].text) : std::nullopt;
        const auto y = s.args.size() == 3 ? toNumber(s.args[2].text) : std::nullopt;
        const auto control = backend_.controlState(id);
        if (!x || !y) fail(s, "clickat needs a control and a point X Y");
        else if (!control->enabled) fail(s, "control " + std::to_string(id) + " is disabled");
        else backend_.clickAt(id, static_cast<int>(*x), static_cast<int>(*y));
    } else if (k == "resize") {
        constexpr long kLargest = 2000;  // dialog units, past any screen
        const auto w = s.args.size() == 2 ? toNumber(s.args[0].text) : std::nullopt;
        const auto h = s.args.size() == 2 ? toNumber(s.args[1].text) : std::nullopt;
        if (!w || !h || *w <= 0 || *h <= 0 || *w > kLargest || *h > kLargest)
            fail(s, "resize needs a width and a height in dialog units, 1 to 2000");
        else if (!backend_.resizeDialog(static_cast<int>(*w), static_cast<int>(*h)))
            fail(s, quote(backend_.topText()) + " cannot be resized");
    } else if (k == "syscommand") {
        const auto code = s.args.empty() ? std::nullopt : toNumber(s.args[0].text);
        if (!code) fail(s, "syscommand takes a number");
        else backend_.sysCommand(static_cast<int>(*code));
    } else if (k == "menu" || k == "showmenu") {
        fail(s, "no menu is up in " + quote(backend_.topText()));
    } else {
        fail(s, "'" + k + "' does not act on a dialog");
    }
}

namespace {

bool isWord(const Token& token, std::string_view word) { return !token.quoted && token.text == word; }

bool isList(Backend& backend, int id) {
    const auto control = backend.controlState(id);
    return control && control->kind == ControlKind::ListBox;
}

}  // namespace

// drag LIST NAME... to LIST [at N]: the names are selected in the first list
// (as a user's click would, with the notification), then dragged.
void Engine::drag(const Statement& s) {
    const auto usage = [&] { fail(s, "drag takes a list, names, 'to', a list and perhaps 'at N'"); };
    std::size_t to = 2;
    while (to < s.args.size() && !isWord(s.args[to], "to")) ++to;
    const std::size_t rest = s.args.size() - std::min(s.args.size(), to + 1);
    if (to >= s.args.size() || (rest != 1 && rest != 3) || (rest == 3 && !isWord(s.args[to + 2], "at")))
        return usage();
    const int from = controlId(s.args[0]);
    const int target = controlId(s.args[to + 1]);
    for (const auto& [id, token] : {std::pair{from, &s.args[0]}, std::pair{target, &s.args[to + 1]}}) {
        if (!id) return fail(s, "no control " + quote(token->text) + " in " + quote(backend_.topText()));
        if (!isList(backend_, id)) return fail(s, "control " + std::to_string(id) + " is not a list");
    }
    if (!backend_.controlState(from)->enabled) return fail(s, "control " + std::to_string(from) + " is disabled");
    int at = -1;
    if (rest == 3) {
        const auto n = toNumber(s.args[to + 3].text);
        const auto count = static_cast<long long>(backend_.control(target)->items.size());
        if (!n || *n < 0 || *n > count) return fail(s, "list " + std::to_string(target) + " has no position " + s.args[to + 3].text);
        at = static_cast<int>(*n);
    }
    std::vector<std::string> names;
    for (std::size_t i = 1; i < to; ++i) names.push_back(s.args[i].text);
    const auto indices = backend_.listIndicesOf(from, names);
    if (!indices) return fail(s, "list " + std::to_string(from) + " lacks a name");
    backend_.selectItems(from, *indices);
    backend_.dragSelection(from, target, at);
}

// key [CTL] delete|ctrl+a: in the named list, or the focused one.
void Engine::pressKey(const Statement& s) {
    if (s.args.empty() || s.args.size() > 2) return fail(s, "key takes a list and delete or ctrl+a");
    const Token& name = s.args.back();
    Key key = Key::Delete;
    if (isWord(name, "delete")) key = Key::Delete;
    else if (isWord(name, "ctrl+a")) key = Key::SelectAll;
    else return fail(s, "key presses delete or ctrl+a, not " + quote(name.text));
    int id = 0;
    if (s.args.size() == 2) {
        id = controlId(s.args[0]);
        if (!id) return fail(s, "no control " + quote(s.args[0].text) + " in " + quote(backend_.topText()));
        if (!backend_.controlState(id)->enabled) return fail(s, "control " + std::to_string(id) + " is disabled");
    } else {
        id = backend_.focusedControl();
        if (!id) return fail(s, "no control has the focus");
    }
    if (!isList(backend_, id)) return fail(s, "control " + std::to_string(id) + " is not a list");
    backend_.pressKeyIn(id, key);
}

void Engine::actOnMessage(const Statement& s) {
    if (s.keyword != "reply" || s.args.size() != 1) {
        fail(s, "a message box is up: answer it with reply");
        return;
    }
    const std::string& answer = s.args[0].text;
    const Buttons buttons = backend_.messageButtons();
    int id = 0;
    if (answer == "ok" && buttons != Buttons::YesNo) id = kOk;
    else if (answer == "cancel" && buttons == Buttons::OkCancel) id = kCancel;
    else if (answer == "yes" && buttons == Buttons::YesNo) id = kYes;
    else if (answer == "no" && buttons == Buttons::YesNo) id = kNo;
    if (!id) fail(s, "the message box has no button " + quote(answer));
    else backend_.answerMessage(id);
}

void Engine::actOnChooser(const Statement& s) {
    if (s.keyword != "file" || s.args.size() != 1 || (!s.args[0].quoted && s.args[0].text != "cancel")) {
        fail(s, "a file chooser is up: answer it with file \"PATH\" or file cancel");
        return;
    }
    if (s.args[0].quoted) backend_.answerChooser(s.args[0].text);
    else backend_.answerChooser(std::nullopt);
}

// font "FACE" POINTS [bold] [italic] | font cancel
void Engine::actOnFontChooser(const Statement& s) {
    const auto usage = [&] { fail(s, "a font chooser is up: answer it with font \"FACE\" POINTS [bold] [italic] or font cancel"); };
    if (s.keyword != "font" || s.args.empty()) return usage();
    if (!s.args[0].quoted) {
        if (s.args.size() != 1 || s.args[0].text != "cancel") return usage();
        backend_.answerFont(std::nullopt);
        return;
    }
    const auto points = s.args.size() >= 2 && !s.args[1].quoted ? toNumber(s.args[1].text) : std::nullopt;
    if (!points || *points <= 0) return usage();
    FontAnswer answer{s.args[0].text, static_cast<int>(*points), false, false};
    for (std::size_t i = 2; i < s.args.size(); ++i) {
        if (s.args[i].text == "bold" && !s.args[i].quoted) answer.bold = true;
        else if (s.args[i].text == "italic" && !s.args[i].quoted) answer.italic = true;
        else return usage();
    }
    if (!backend_.answerFont(answer)) fail(s, "the font chooser does not offer " + quote(answer.face) + " in that style");
}

// menu CODE | menu "TEXT" | menu cancel | showmenu
void Engine::actOnMenu(const Statement& s) {
    const std::vector<MenuEntry> items = backend_.menuItems();
    if (s.keyword == "showmenu" && s.args.empty()) {
        for (const MenuEntry& item : items) {
            std::string line = "menuitem " + std::to_string(item.id) + " " + quote(item.text);
            if (item.greyed) line += " greyed";
            if (item.checked) line += " checked";
            emit_(line);
        }
        return;
    }
    // A statement the menu cannot take, or a pick it refuses, leaves the
    // error line and closes the menu, so the statements after act on the
    // dialog again.
    if (s.keyword != "menu" || s.args.size() != 1) {
        fail(s, "a menu is up: pick with menu CODE or menu \"TEXT\", close it with menu cancel");
        backend_.dismissTop();
        return;
    }
    const Token& which = s.args[0];
    if (!which.quoted && which.text == "cancel") {
        backend_.dismissTop();
        return;
    }
    const std::optional<long long> number = which.quoted ? std::nullopt : toNumber(which.text);
    const bool byCode = number.has_value();
    const long long code = number.value_or(0);
    const auto found = std::find_if(items.begin(), items.end(), [&](const MenuEntry& item) {
        return byCode ? item.id == code : item.text == which.text;
    });
    if (found == items.end()) {
        fail(s, "the menu has no item " + (byCode ? which.text : quote(which.text)));
        backend_.dismissTop();
    } else if (found->greyed) {
        fail(s, "menu item " + std::to_string(found->id) + " " + quote(found->text) + " is greyed");
        backend_.dismissTop();
    } else {
        backend_.pickMenuItem(found->id);
    }
}

std::string shownMenuText(std::string_view text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size() && text[i] != '\t'; ++i) {
        if (text[i] == '&' && i + 1 < text.size()) ++i;
        shown += text[i];
    }
    return shown;
}

}  // namespace kvs::scenario
