#include "data/condition_rows.h"

#include <algorithm>

#include "core/command_queue.h"
#include "core/edit_insertion.h"
#include "core/messages.h"
#include "data/data_texts.h"
#include "data/function_catalogue.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

ConditionState state;

}  // namespace

ConditionState& conditionState() { return state; }
void addConditionDefaults(DefaultsTable& table) { table.record(state); }

bool isCharacterExpression(std::string_view value) {
    if (value.find_first_of("\"'$") != std::string_view::npos) return true;
    return std::any_of(text::kCharacterFunctions.begin(), text::kCharacterFunctions.end(),
                       [value](std::string_view name) { return value.find(name) != std::string_view::npos; });
}

int variableField(int row) { return IDC_ROW_VARIABLE1 + row; }
int valueField(int row) { return IDC_ROW_VALUE1 + row; }
int operatorBox(int row) { return IDC_ROW_OPERATOR1 + row; }
int connectorBox(int row) { return row == 0 ? 0 : IDC_ROW_CONNECTOR2 + row - 1; }

bool ConditionDialog::isField(int id) const { return id >= IDC_ROW_VARIABLE1 && id <= IDC_ROW_VALUE4; }

void ConditionDialog::fillCombo(DialogView& view, int id, std::span<const std::string_view> entries, int position) {
    view.comboClear(id);
    for (std::string_view entry : entries) view.comboAdd(id, entry);
    const int last = static_cast<int>(entries.size()) - 1;
    view.comboSelect(id, std::clamp(position, 0, last));
}

void ConditionDialog::fillOperators(DialogView& view, int row, int position) {
    fillCombo(view, operatorBox(row), text::kOperators, position);
}

// The lists open with nothing chosen, so neither Add inserts before the
// user picks a name.
int ConditionDialog::initShared(DialogView& view) {
    view.listSelect(IDC_SOURCE, -1, false);
    view.listSelect(IDC_SOURCE2, -1, false);
    view.enable(IDC_ADD1, false);
    view.enable(IDC_ADD2, false);
    view.comboClear(IDC_FUNCTION_TYPE);
    for (int i = 0; i < kFunctionCategoryCount; ++i)
        view.comboAdd(IDC_FUNCTION_TYPE, categoryName(static_cast<FunctionCategory>(i)));
    view.comboSelect(IDC_FUNCTION_TYPE, static_cast<int>(categoryAt(conditionState().functionType)));
    showFunctions(view);
    for (int row = 0; row < kConditionRows; ++row) {
        view.limitText(variableField(row), kVariableTextBound);
        view.limitText(valueField(row), kValueTextBound);
    }
    remembered_ = IDC_ROW_VARIABLE1;
    return IDC_ROW_VARIABLE1;
}

void ConditionDialog::resetShared(DialogView& view) {
    view.listSelect(IDC_SOURCE, -1, false);
    view.listSelect(IDC_SOURCE2, -1, false);
    view.enable(IDC_ADD1, false);
    view.enable(IDC_ADD2, false);
    view.comboSelect(IDC_FUNCTION_TYPE, 0);
    showFunctions(view);
    focusField(view, IDC_ROW_VARIABLE1);
}

// Programmatic focus changes send no notification the dialog sees, so the
// remembered field follows here.
void ConditionDialog::focusField(DialogView& view, int id) {
    view.setFocus(id);
    if (isField(id)) remembered_ = id;
}

void ConditionDialog::showFunctions(DialogView& view) {
    const FunctionCategory category = categoryAt(view.comboSelection(IDC_FUNCTION_TYPE));
    view.setRedraw(IDC_FUNCTIONS, false);
    view.listClear(IDC_FUNCTIONS);
    for (const FunctionEntry& entry : functionCatalogue())
        if (entry.category == category) view.listAdd(IDC_FUNCTIONS, entry.name, ListInsert::Append);
    view.setRedraw(IDC_FUNCTIONS, true);
    view.enable(IDC_ADD_FUNCTION, false);
}

// Choosing a name in one variable list drops the choice in the other.
void ConditionDialog::listChosen(DialogView& view, int list) {
    const int other = list == IDC_SOURCE ? IDC_SOURCE2 : IDC_SOURCE;
    const bool chosen = !view.listSelection(list).empty();
    if (chosen) view.listSelect(other, -1, false);
    view.enable(list == IDC_SOURCE ? IDC_ADD1 : IDC_ADD2, chosen);
    view.enable(list == IDC_SOURCE ? IDC_ADD2 : IDC_ADD1, false);
}

void ConditionDialog::insertFromList(DialogView& view, int list) {
    const std::vector<int> chosen = view.listSelection(list);
    if (chosen.empty()) return;
    const std::string name = view.listText(list, chosen.front());
    // A function goes in with the caret between its parentheses.
    insertAtCaret(view, name, list == IDC_FUNCTIONS && name.ends_with("()") ? 1 : 0);
}

// Replaces the selection of the remembered field, keeping the field within
// its bound, and gives the field the focus with the caret after the text.
void ConditionDialog::insertAtCaret(DialogView& view, std::string_view insert, std::size_t caretFromEnd) {
    const int field = remembered_;
    if (!isField(field) || !view.has(field) || !view.isEnabled(field)) return;
    const std::size_t bound = field < IDC_ROW_VALUE1 ? kVariableTextBound : kValueTextBound;
    const int at = replaceEditSelection(view, field, insert, bound, caretFromEnd);
    focusField(view, field);
    view.setEditSelection(field, at, at);
    fieldsChanged(view);
}

bool ConditionDialog::accept(DialogContext& context, int) {
    ConditionState& state = conditionState();
    readRows(context.view, state);
    const Composition line = composeRows(state);
    if (line.refused()) {
        showStop(ui().focusWindow(), line.refusal);
        return false;
    }
    return deliver(context.view.handle(), line);
}

std::optional<Composition> ConditionDialog::preview(DialogContext& context) {
    ConditionState state = conditionState();
    readRows(context.view, state);
    return composeRows(state);
}

void ConditionDialog::clearFields(DialogView& view, int row) const {
    view.setText(variableField(row), "");
    if (row < operatorRows_) view.comboSelect(operatorBox(row), 0);
    view.setText(valueField(row), "");
}

Composition ConditionDialog::lineOrIncomplete(bool composed, const CommandText& line) {
    return composed ? Composition().add(line) : Composition::refuse(text::kIncomplete);
}

void ConditionDialog::readFields(const DialogView& view, int row, ConditionRow& r) {
    r.variable = bounded(view.text(variableField(row)), kVariableTextBound);
    r.value = bounded(view.text(valueField(row)), kValueTextBound);
}

void ConditionDialog::notify(DialogContext& context, const Notification& n) {
    DialogView& view = context.view;
    const int id = n.controlId;
    if (isField(id)) {
        if (n.event == Event::EditFocused) remembered_ = id;
        else if (n.event == Event::EditChanged) fieldsChanged(view);
        return;
    }
    switch (id) {
    case IDC_SOURCE:
    case IDC_SOURCE2:
        if (n.event == Event::ListSelectionChanged) listChosen(view, id);
        else if (n.event == Event::ListDoubleClicked) insertFromList(view, id);
        return;
    case IDC_ADD1:
    case IDC_ADD2:
        if (n.event == Event::Clicked) insertFromList(view, id == IDC_ADD1 ? IDC_SOURCE : IDC_SOURCE2);
        return;
    case IDC_FUNCTION_TYPE:
        if (n.event == Event::ComboSelectionChanged) showFunctions(view);
        return;
    case IDC_FUNCTIONS:
        if (n.event == Event::ListSelectionChanged) view.enable(IDC_ADD_FUNCTION, !view.listSelection(IDC_FUNCTIONS).empty());
        else if (n.event == Event::ListDoubleClicked) insertFromList(view, IDC_FUNCTIONS);
        return;
    case IDC_ADD_FUNCTION:
        if (n.event == Event::Clicked) insertFromList(view, IDC_FUNCTIONS);
        return;
    default: break;
    }
    if (n.event != Event::ComboSelectionChanged) return;
    for (int row = 0; row < operatorRows_; ++row) {
        if (id == operatorBox(row)) {
            focusField(view, valueField(row));
            return;
        }
    }
    for (int row = 0; row < kConditionRows; ++row) {
        if ((row > 0 && id == connectorBox(row)) || (row == 0 && id == IDC_IF_CHOICE)) {
            connectorChosen(view, row);
            focusField(view, variableField(row));
            return;
        }
    }
}

}  // namespace kvs::data
