#include "data/condition_rows.h"

#include "core/command_queue.h"
#include "core/messages.h"
#include "data/data_texts.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

class SelectDialog : public ConditionDialog {
public:
    SelectDialog() : ConditionDialog(kConditionRows) {}

    int init(DialogContext& context) override {
        DialogView& view = context.view;
        const ConditionState& s = conditionState();
        for (int row = 0; row < kConditionRows; ++row) {
            const ConditionRow& r = s.rows[static_cast<std::size_t>(row)];
            if (row > 0) fillCombo(view, connectorBox(row), text::kSelectConnectors, r.connector);
            view.setText(variableField(row), r.variable);
            fillOperators(view, row, r.op);
            view.setText(valueField(row), r.value);
        }
        view.setChecked(IDC_SELECT_COMPLETE, s.complete);
        view.setChecked(IDC_SELECT_OFF, s.selectOff);
        const int focus = initShared(view);
        fieldsChanged(view);
        return focus;
    }

    void reset(DialogContext& context) override {
        DialogView& view = context.view;
        for (int row = 0; row < kConditionRows; ++row) {
            if (row > 0) view.comboSelect(connectorBox(row), 0);
            clearFields(view, row);
        }
        view.setChecked(IDC_SELECT_COMPLETE, false);
        view.setChecked(IDC_SELECT_OFF, false);
        fieldsChanged(view);
        resetShared(view);
    }

protected:
    void readRows(const DialogView& view, ConditionState& s) const override {
        s.selectOff = view.isChecked(IDC_SELECT_OFF);
        s.functionType = view.comboSelection(IDC_FUNCTION_TYPE);
        for (int row = 0; row < kConditionRows; ++row) {
            ConditionRow& r = s.rows[static_cast<std::size_t>(row)];
            if (row > 0) r.connector = view.comboSelection(connectorBox(row));
            readFields(view, row, r);
            r.op = view.comboSelection(operatorBox(row));
        }
        s.complete = view.isChecked(IDC_SELECT_COMPLETE);
    }

    Composition composeRows(const ConditionState& s) const override {
        if (s.selectOff) return Composition().add(text::kSelectOff);
        CommandText line;
        return lineOrIncomplete(composeSelect(s, line, false), line);
    }

    // A row is open only while every row above it is complete. The
    // remembered field never stays in a closed row.
    void fieldsChanged(DialogView& view) override {
        bool open = true;
        int lastOpen = 0;
        for (int row = 0; row < kConditionRows; ++row) {
            if (row > 0) {
                for (int id : {connectorBox(row), variableField(row), operatorBox(row), valueField(row)})
                    view.enable(id, open);
                if (open) lastOpen = row;
            }
            open = open && hasText(view.text(variableField(row))) && hasText(view.text(valueField(row)));
        }
        for (int row = lastOpen + 1; row < kConditionRows; ++row) {
            if (remembered_ == variableField(row)) remembered_ = variableField(lastOpen);
            if (remembered_ == valueField(row)) remembered_ = valueField(lastOpen);
        }
    }
};

}  // namespace

bool composeSelect(const ConditionState& state, CommandText& line, bool continueLine) {
    if (!continueLine) {
        line.clear();
        line.append(text::kSelect);
    }
    int complete = 0;
    for (int row = 0; row < kConditionRows; ++row) {
        const ConditionRow& r = state.rows[static_cast<std::size_t>(row)];
        if (!hasText(r.variable) || !hasText(r.value)) break;
        CommandText piece;
        if (row > 0) piece.append(r.connector == 0 ? "AND " : "OR ");
        piece.append('(').append(r.variable);
        piece.append(entryAt(text::kOperators, r.op).substr(0, kOperatorTextBound));
        piece.append(' ');
        const bool character = !r.variable.empty() && r.variable.back() == '$';
        piece.append(character && !isCharacterExpression(r.value) ? quoted(r.value) : r.value);
        piece.append(") ");
        line.append(piece.str());
        ++complete;
    }
    if (complete == 0) return false;
    if (state.complete) line.append(text::kComplete);
    return true;
}

DialogBehaviour& selectBehaviour() { return soleInstance<SelectDialog>(); }

}  // namespace kvs::data
