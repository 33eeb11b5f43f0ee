// What Select, Let and If...Then...Let share: the remembered condition rows
// and a base behaviour for the
// variable lists, the function catalogue and the field that takes what they
// insert.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "data/composers.h"

namespace kvs::data {

ConditionState& conditionState();
// The rows the three dialogs share, for ReinitDialogs.
void addConditionDefaults(DefaultsTable& table);

int variableField(int row);   // 154..157
int valueField(int row);      // 158..161
int operatorBox(int row);     // 162..165
int connectorBox(int row);    // 167..169 for rows 1 to 3 (0-based), 0 for row 0

// The lists, catalogue and insertion shared by the three dialogs. The
// remembered field is the variable or value field that last had the focus;
// Add 6 and 8, Add 153 and double clicks insert at its caret.
class ConditionDialog : public DialogBehaviour {
public:
    // OK keeps what the rows show, even when the line is refused.
    bool accept(DialogContext& context, int buttonId) override;
    std::optional<Composition> preview(DialogContext& context) override;
    void notify(DialogContext& context, const Notification& n) override;

protected:
    // operatorRows: how many rows carry an operator drop-down.
    explicit ConditionDialog(int operatorRows) : operatorRows_(operatorRows) {}

    // The dialog's rows and choices as the controls show them.
    virtual void readRows(const DialogView& view, ConditionState& state) const = 0;
    // The line OK pushes, or "incomplete" when the rows do not make one.
    virtual Composition composeRows(const ConditionState& state) const = 0;
    // A variable or value field's text changed, by the user or by an insertion.
    virtual void fieldsChanged(DialogView&) {}
    // A connector (or the IF choice) was chosen.
    virtual void connectorChosen(DialogView&, int) {}
    virtual bool isField(int id) const;

    // A row's variable and value fields, cut at their bounds.
    static void readFields(const DialogView& view, int row, ConditionRow& r);
    // Empties a row's fields and puts its operator back to the first entry
    // when the row has one.
    void clearFields(DialogView& view, int row) const;
    // The composed line, or the "incomplete" refusal when composing failed.
    static Composition lineOrIncomplete(bool composed, const CommandText& line);
    // Sets up the lists' Add buttons and the catalogue; focuses row 1's variable.
    int initShared(DialogView& view);
    void resetShared(DialogView& view);
    void focusField(DialogView& view, int id);
    void fillOperators(DialogView& view, int row, int position);
    void fillCombo(DialogView& view, int id, std::span<const std::string_view> entries, int position);

    int remembered_ = 0;

private:
    void showFunctions(DialogView& view);
    void listChosen(DialogView& view, int list);
    void insertFromList(DialogView& view, int list);
    void insertAtCaret(DialogView& view, std::string_view text, std::size_t caretFromEnd);

    int operatorRows_;
};

}  // namespace kvs::data
