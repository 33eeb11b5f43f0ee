// Logit's result dialogs: Deciles of Risk (298), Quantiles (299) and
// Simulation (300), each one line after the LOGIT procedure line.
#include <string>

#include "core/blank_text.h"
#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_composers.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

DecilesSettings decilesSettings;

class DecilesDialog : public ProcedureDialog<DecilesSettings> {
public:
    DecilesDialog()
        : ProcedureDialog(decilesSettings, Bindings<DecilesSettings>()
                                               .check(IDC_DC_SMART, &DecilesSettings::smart)
                                               .number(IDC_DC_VALUE, &DecilesSettings::groups, kStoredValueLimit)) {}

private:
    ProcedureBlock compose(const DecilesSettings& settings, const DialogView&) const override {
        return composeDeciles(settings);
    }
};

// A list of values the user types one at a time: the field, Add and Remove.
template <std::uint16_t Id>
class ValueListDialog : public ProcedureDialog<ValueListSettings> {
public:
    ValueListDialog() : ProcedureDialog(settings(), Bindings<ValueListSettings>()) {}

    std::vector<OwnList> ownLists() override {
        if (Id != 299) return {};
        return {{IDC_VARIABLE_LIST, &variable_, 1}};
    }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(variable_);
    }

private:
    static ValueListSettings& settings() {
        static ValueListSettings remembered;
        return remembered;
    }

    void shown(DialogView& view) override {
        view.listClear(IDC_VALUES_LIST);
        for (const std::string& value : working_.values) view.listAdd(IDC_VALUES_LIST, value, ListInsert::Append);
        view.setText(IDC_VALUE_FIELD, "");
    }

    void changed(DialogContext& context, const Notification& n) override {
        DialogView& view = context.view;
        if (n.clicked(IDC_ADD_VALUE)) {
            const std::string typed = view.text(IDC_VALUE_FIELD);
            const std::string_view value = withoutBlanks(typed);
            if (value.empty()) return;
            view.listAdd(IDC_VALUES_LIST, value.substr(0, kStoredValueLimit), ListInsert::Append);
            view.setText(IDC_VALUE_FIELD, "");
        } else if (n.clicked(IDC_REMOVE_VALUE)) {
            const std::vector<int> chosen = view.listSelection(IDC_VALUES_LIST);
            for (auto it = chosen.rbegin(); it != chosen.rend(); ++it) view.listDelete(IDC_VALUES_LIST, *it);
        } else {
            return;
        }
        working_.values = listNames(view, IDC_VALUES_LIST);
    }

    ProcedureBlock compose(const ValueListSettings& s, const DialogView& view) const override {
        return Id == 299 ? composeQuantiles(listNames(view, IDC_VARIABLE_LIST), s) : composeSimulation(s);
    }

    SelectionArray variable_{};
};

void appendValues(CommandText& line, const Names& values) { joinNames(values, line, ','); }

}  // namespace

ProcedureBlock composeDeciles(const DecilesSettings& s) {
    CommandText line(text::kDeciles);
    if (s.smart) {
        line.append(text::kSmart);
        appendOption(line, "=", s.groups);
    }
    return {text::kLogit, {}, {}, Composition().add(line)};
}

ProcedureBlock composeQuantiles(const Names& variable, const ValueListSettings& s) {
    if (variable.empty()) return ProcedureBlock::refuse(text::kLogit, kvs::text::kSelectVariables);
    if (s.values.empty()) return ProcedureBlock::refuse(text::kLogit, kvs::text::kProvideMoreInput);
    CommandText line(text::kQuantiles);
    line.append(variable.front()).append(text::kValuesAfter);
    appendValues(line, s.values);
    return {text::kLogit, {}, {}, Composition().add(line)};
}

ProcedureBlock composeSimulation(const ValueListSettings& s) {
    if (s.values.empty()) return ProcedureBlock::refuse(text::kLogit, kvs::text::kProvideMoreInput);
    CommandText line(text::kSimulation);
    appendValues(line, s.values);
    return {text::kLogit, {}, {}, Composition().add(line)};
}

DialogBehaviour& logitDecilesBehaviour() { return soleInstance<DecilesDialog>(); }
DialogBehaviour& logitQuantilesBehaviour() { return soleInstance<ValueListDialog<299>>(); }
DialogBehaviour& logitSimulationBehaviour() { return soleInstance<ValueListDialog<300>>(); }

}  // namespace kvs::stats
