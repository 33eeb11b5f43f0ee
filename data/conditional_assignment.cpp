#include "data/condition_rows.h"

#include "core/command_queue.h"
#include "core/messages.h"
#include "data/data_texts.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

// Rows 2 and 3 keep their connector in thenConnectors.
std::size_t thenSlot(int row) { return static_cast<std::size_t>(row - 1); }

class LetDialog : public ConditionDialog {
public:
    LetDialog() : ConditionDialog(0) {}

    int init(DialogContext& context) override {
        const ConditionRow& r = conditionState().rows[0];
        context.view.setText(IDC_ROW_VARIABLE1, r.variable);
        context.view.setText(IDC_ROW_VALUE1, r.value);
        return initShared(context.view);
    }

    void reset(DialogContext& context) override {
        clearFields(context.view, 0);
        resetShared(context.view);
    }

protected:
    bool isField(int id) const override { return id == IDC_ROW_VARIABLE1 || id == IDC_ROW_VALUE1; }

    void readRows(const DialogView& view, ConditionState& s) const override {
        s.functionType = view.comboSelection(IDC_FUNCTION_TYPE);
        readFields(view, 0, s.rows[0]);
    }

    Composition composeRows(const ConditionState& s) const override {
        CommandText line;
        return lineOrIncomplete(composeLet(s, line), line);
    }
};

// Row 4 assigns; rows 2 and 3 either add a condition or, set to "THEN",
// assign themselves, which closes the rows below them.
class IfThenLetDialog : public ConditionDialog {
public:
    IfThenLetDialog() : ConditionDialog(3) {}

    int init(DialogContext& context) override {
        DialogView& view = context.view;
        const ConditionState& s = conditionState();
        fillCombo(view, IDC_IF_CHOICE, text::kIfChoices, s.ifNot ? 1 : 0);
        for (int row = 0; row < kConditionRows; ++row) {
            const ConditionRow& r = s.rows[static_cast<std::size_t>(row)];
            if (row == 1 || row == 2)
                fillCombo(view, connectorBox(row), text::kThenConnectors, s.thenConnectors[thenSlot(row)]);
            view.setText(variableField(row), r.variable);
            if (row < 3) fillOperators(view, row, r.op);
            view.setText(valueField(row), r.value);
        }
        const int focus = initShared(view);
        applyThenRule(view);
        return focus;
    }

    void reset(DialogContext& context) override {
        DialogView& view = context.view;
        const ConditionState defaults;
        view.comboSelect(IDC_IF_CHOICE, 0);
        for (int row = 0; row < kConditionRows; ++row) {
            if (row == 1 || row == 2)
                view.comboSelect(connectorBox(row), defaults.thenConnectors[thenSlot(row)]);
            clearFields(view, row);
        }
        applyThenRule(view);
        resetShared(view);
    }

protected:
    void readRows(const DialogView& view, ConditionState& s) const override {
        s.functionType = view.comboSelection(IDC_FUNCTION_TYPE);
        s.ifNot = view.comboSelection(IDC_IF_CHOICE) == 1;
        for (int row = 0; row < kConditionRows; ++row) {
            ConditionRow& r = s.rows[static_cast<std::size_t>(row)];
            readFields(view, row, r);
            if (row < 3) r.op = view.comboSelection(operatorBox(row));
            if (row == 1 || row == 2) s.thenConnectors[thenSlot(row)] = view.comboSelection(connectorBox(row));
        }
    }

    Composition composeRows(const ConditionState& s) const override {
        CommandText line;
        return lineOrIncomplete(composeIfThenLet(s, line), line);
    }

    void connectorChosen(DialogView& view, int row) override {
        applyThenRule(view);
        if (row == 0 || !showsThen(view, row)) return;
        for (int below = row + 1; below < kConditionRows; ++below) {
            if (remembered_ == variableField(below)) remembered_ = variableField(row);
            if (remembered_ == valueField(below)) remembered_ = valueField(row);
        }
    }

private:
    static bool showsThen(const DialogView& view, int row) {
        return bounded(view.text(connectorBox(row)), kConnectorTextBound) == text::kThen;
    }

    // Row 3 is open while row 2 does not assign; the "Then let" row while
    // neither does.
    static void applyThenRule(DialogView& view) {
        const bool thirdOpen = !showsThen(view, 1);
        const bool lastOpen = thirdOpen && !showsThen(view, 2);
        for (int id : {connectorBox(2), variableField(2), operatorBox(2), valueField(2)}) view.enable(id, thirdOpen);
        for (int id : {IDC_THEN_LABEL, variableField(3), IDC_THEN_EQUALS, valueField(3)}) view.enable(id, lastOpen);
    }
};

}  // namespace

bool composeLet(const ConditionState& state, CommandText& line) {
    const ConditionRow& r = state.rows[0];
    if (!hasText(r.variable) || !hasText(r.value)) return false;
    line.clear();
    line.append(text::kLet).append(r.variable).append(text::kLetEquals);
    // A character variable takes a plain text in quotes, after one more blank.
    if (r.variable.find('$') != std::string::npos && !isCharacterExpression(r.value))
        line.append(' ').append(quoted(r.value));
    else
        line.append(r.value);
    return true;
}

bool composeIfThenLet(const ConditionState& state, CommandText& line) {
    line.clear();
    line.append(state.ifNot ? text::kIfChoices[1] : text::kIfChoices[0]);
    int pieces = 0;
    for (int row = 0; row < kConditionRows; ++row) {
        const ConditionRow& r = state.rows[static_cast<std::size_t>(row)];
        CommandText piece;
        bool assignment = row == 3;
        if (row == 1 || row == 2) {
            const std::string_view connector =
                entryAt(text::kThenConnectors, state.thenConnectors[thenSlot(row)]).substr(0, kConnectorTextBound);
            assignment = connector == text::kThen;
            if (!assignment) piece.append(connector).append(" (");
        } else if (row == 0) {
            piece.append('(');
        }
        if (assignment) piece.append(text::kThenLet);
        piece.append(r.variable);
        const std::string_view op = entryAt(text::kOperators, r.op).substr(0, kOperatorTextBound);
        piece.append(row == 3 ? std::string_view("=") : op);  // only the "Then let" row has a fixed "="
        piece.append(r.value);
        if (!assignment) piece.append(") ");

        const bool missing = !hasText(r.variable) || !hasText(r.value);
        if (assignment) {
            // An untouched "Then let" row leaves the conditions as they stand.
            if (row == 3 && !hasText(r.variable) && !hasText(r.value)) break;
            if (missing) return false;
            line.append(piece.str());
            ++pieces;
            break;
        }
        if (missing) {
            if (row == 0) break;
            continue;
        }
        line.append(piece.str());
        ++pieces;
    }
    return pieces >= 2;
}

DialogBehaviour& letBehaviour() { return soleInstance<LetDialog>(); }
DialogBehaviour& ifThenLetBehaviour() { return soleInstance<IfThenLetDialog>(); }

}  // namespace kvs::data
