#include "stats/set_editor.h"

#include <algorithm>

#include "core/dialog_behaviour.h"
#include "core/messages.h"
#include "resources/estimate_ids.h"
#include "stats/stats_texts.h"

namespace kvs::stats {

namespace {

constexpr std::size_t kTypedNameLimit = 12;
constexpr std::int32_t kSetCapacity = 256;
constexpr int kCovariateValues = IDC_TDC_VARIABLES;  // survival: a set's values over time

// The list that shows the current set's variables.
int variablesListOf(std::uint16_t commandId) { return commandId == 292 ? kCovariateValues : IDC_TARGET1; }

bool named(const std::vector<NamedSet>& sets, std::string_view name) {
    return std::any_of(sets.begin(), sets.end(), [&](const NamedSet& set) { return set.name == name; });
}

bool isSetEntry(std::string_view text) { return !text.empty() && text.front() == '*'; }

int leadingSetEntries(const DialogView& view, int sourceId) {
    int leading = 0;
    const int count = view.listCount(sourceId);
    while (leading < count && isSetEntry(view.listText(sourceId, leading))) ++leading;
    return leading;
}

}  // namespace

SetEditor::SetEditor(ChoiceSets& record, std::uint16_t commandId, std::uint32_t helpTopic)
    : VariableSubDialog(commandId, helpTopic, {{variablesListOf(commandId), kSetCapacity}, {IDC_VARIABLE_LIST, 1}}),
      record_(record),
      working_(record),
      commandId_(commandId),
      variablesList_(variablesListOf(commandId)) {}

std::string SetEditor::defaultName(std::uint16_t commandId, int counter, const std::vector<NamedSet>& sets) {
    const std::string stem = commandId == 292 ? "TDC" : "Set";
    int number = counter + 1;
    std::string name = stem + std::to_string(number);
    while (named(sets, name)) name = stem + std::to_string(++number);
    return name;
}

void openRoom(std::vector<NamedSet>& sets) { sets.reserve(sets.size() + kSetRoomStep); }

void roomForNewSet(std::vector<NamedSet>& sets) {
    if (sets.size() == sets.capacity()) sets.reserve(sets.capacity() + kSetRoomStep);
}

void SetEditor::showSets(DialogView& view) {
    view.comboClear(IDC_SET_NAME);
    for (const NamedSet& set : working_.sets) view.comboAdd(IDC_SET_NAME, set.name);
    if (current_ >= 0) {
        view.comboSelect(IDC_SET_NAME, current_);
        showNames(view, variablesList_, working_.sets[static_cast<std::size_t>(current_)].variables);
    }
}

void SetEditor::show(DialogView& view) {
    openRoom(working_.sets);
    counter_ = 0;
    current_ = working_.sets.empty() ? -1 : 0;
    view.limitText(IDC_SET_NAME, kTypedNameLimit);
    showSets(view);
    if (working_.sets.empty()) newSet(view);
    if (!working_.alternatives.empty() && view.has(IDC_VARIABLE_LIST)) view.listAdd(IDC_VARIABLE_LIST, working_.alternatives, ListInsert::Append);
    view.setText(IDC_SET_CATEGORIES, working_.categories);
}

bool SetEditor::storeCurrent(DialogView& view, bool typedName) {
    if (current_ < 0) return true;
    NamedSet& set = working_.sets[static_cast<std::size_t>(current_)];
    std::string name = !renamed_.empty() ? renamed_ : typedName ? view.text(IDC_SET_NAME) : set.name;
    if (name.size() > kTypedNameLimit) name.resize(kTypedNameLimit);
    for (std::size_t i = 0; i < working_.sets.size(); ++i) {
        if (static_cast<int>(i) == current_ || working_.sets[i].name != name) continue;
        ui().beep();
        showStop(view.handle(), text::kSetExists);
        return false;
    }
    set.name = name;
    renamed_.clear();
    set.variables = listNames(view, variablesList_);
    return true;
}

void SetEditor::newSet(DialogView& view) {
    NamedSet set;
    set.name = defaultName(commandId_, counter_, working_.sets);
    ++counter_;
    roomForNewSet(working_.sets);
    working_.sets.push_back(std::move(set));
    current_ = static_cast<int>(working_.sets.size()) - 1;
    showSets(view);
}

void SetEditor::other(DialogView& view, const Notification& n) {
    if (n.event == Event::ComboEditChanged && n.controlId == IDC_SET_NAME) {
        renamed_ = view.text(IDC_SET_NAME);
    } else if (n.event == Event::ComboSelectionChanged && n.controlId == IDC_SET_NAME) {
        const int chosen = view.comboSelection(IDC_SET_NAME);
        if (chosen == current_ || chosen < 0) return;
        if (!storeCurrent(view, false)) {
            view.comboSelect(IDC_SET_NAME, current_);
            return;
        }
        current_ = chosen;
        showSets(view);
    } else if (n.clicked(IDC_SET_NEW)) {
        if (storeCurrent(view, true)) newSet(view);
    }
}

bool SetEditor::keep(DialogView& view) {
    if (!storeCurrent(view, true)) return false;
    if (view.has(IDC_VARIABLE_LIST)) {
        const Names& alternatives = listNames(view, IDC_VARIABLE_LIST);
        working_.alternatives = alternatives.empty() ? std::string() : alternatives.front();
    }
    working_.categories = view.text(IDC_SET_CATEGORIES);
    record_ = working_;
    return true;
}

void showSetsInSource(DialogView& view, int sourceId, const std::vector<NamedSet>& sets) {
    int leading = leadingSetEntries(view, sourceId);
    for (const NamedSet& set : sets) {
        const std::string entry = "*" + set.name;
        bool shown = false;
        for (int i = 0; i < leading && !shown; ++i) shown = view.listText(sourceId, i) == entry;
        if (!shown && view.listInsertAt(sourceId, leading, entry) >= 0) ++leading;
    }
    for (int i = leading - 1; i >= 0; --i)
        if (!named(sets, view.listText(sourceId, i).substr(1))) view.listDelete(sourceId, i);
}

void removeSetsFromSource(DialogView& view, int sourceId) {
    for (int leading = leadingSetEntries(view, sourceId); leading > 0; --leading) view.listDelete(sourceId, 0);
}

}  // namespace kvs::stats
