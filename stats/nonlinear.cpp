// Nonlinear Model (223): a dependent, the model's right side typed with the
// functions and operators offered, the estimation method and what the saved
// file holds; and Loss (224): least squares or a loss function.
#include <iterator>

#include "core/blank_text.h"
#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/equation_field.h"
#include "stats/estimate_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

constexpr int kResponseSurface = 3;
constexpr int kConfidenceRegion = 5;
constexpr std::size_t kEquationLimit = 2000;
constexpr std::size_t kLongValueLimit = 127;  // a stored text of 128 characters

int saveEntry(int save) {
    return save >= 0 && save < static_cast<int>(std::size(text::kNonlinSaveKeywords)) ? save : 0;
}
// Response surface, confidence interval and region name their parameters.
bool needsValue(int save) { return save >= kResponseSurface && save <= kConfidenceRegion; }

}  // namespace

std::string nonlinSaveQualifier(const NonlinSettings& s) {
    const int save = saveEntry(s.save);
    CommandText qualifier(text::kSaveQualifier);
    qualifier.append(text::kNonlinSaveKeywords[save]);
    if (needsValue(save)) appendOption(qualifier, "=", s.saveValue);
    if (save == kConfidenceRegion) appendOption(qualifier, text::kSaveConfidence, s.confidence);
    return qualifier.str();
}

ProcedureBlock composeNonlin(const NonlinSettings& s, const Names& dependent) {
    if (dependent.empty()) return ProcedureBlock::refuse(text::kNonlin, kvs::text::kSelectVariables);
    if (isBlankText(s.equation)) return ProcedureBlock::refuse(text::kNonlin, kvs::text::kProvideMoreInput);
    if (s.saving && needsValue(saveEntry(s.save)) && isBlankText(s.saveValue))
        return ProcedureBlock::refuse(text::kNonlin, kvs::text::kProvideMoreInput);
    CommandText model(text::kModel);
    joinNames(dependent, model, ' ');
    model.append(text::kEquals).appendCut(s.equation);
    CommandText estimate(text::kEstimatePlain);
    if (s.method == IDC_NONLIN_SIMPLEX) estimate.append(text::kSimplex);
    if (s.method == IDC_NONLIN_QUASI) estimate.append(text::kQuasi);
    Composition body;
    body.add(model);
    body.add(estimate);
    return {text::kNonlin, text::kNonlinFile, nonlinSaveQualifier(s), std::move(body)};
}

ProcedureBlock composeLoss(const LossSettings& s) {
    if (s.kind != IDC_LOSS_FUNCTION) return {text::kNonlin, {}, {}, Composition().add(text::kLoss)};
    if (isBlankText(s.equation)) return ProcedureBlock::refuse(text::kNonlin, kvs::text::kProvideMoreInput);
    CommandText loss(text::kLossEquals);
    loss.appendCut(s.equation);
    return {text::kNonlin, {}, {}, Composition().add(loss)};
}

namespace {

NonlinSettings nonlinSettings;

Bindings<NonlinSettings> nonlinBindings() {
    Bindings<NonlinSettings> b;
    b.text(IDC_EQUATION, &NonlinSettings::equation, kEquationLimit)
        .radio({IDC_NONLIN_GAUSS, IDC_NONLIN_SIMPLEX, IDC_NONLIN_QUASI}, &NonlinSettings::method)
        .combo(IDC_NONLIN_SAVE, &NonlinSettings::save)
        .text(IDC_NONLIN_SAVE_VALUE, &NonlinSettings::saveValue, kLongValueLimit)
        .number(IDC_NONLIN_CONFIDENCE, &NonlinSettings::confidence, kStoredValueLimit);
    return b;
}

class NonlinDialog : public ProcedureDialog<NonlinSettings> {
public:
    NonlinDialog() : ProcedureDialog(nonlinSettings, nonlinBindings()) {}

    int init(DialogContext& context) override {
        DialogView& view = context.view;
        fillEquationLists(view);
        view.comboClear(IDC_NONLIN_SAVE);
        for (std::string_view entry : text::kNonlinSaveEntries) view.comboAdd(IDC_NONLIN_SAVE, entry);
        return ProcedureDialog::init(context);
    }

    std::vector<OwnList> ownLists() override { return {{IDC_DEPENDENT, &dependent_, 1}}; }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(dependent_);
    }

    void listsChanged(DialogContext& context) override { updateEquationButtons(context.view); }

private:
    void shown(DialogView& view) override { follow(view); }

    void changed(DialogContext& context, const Notification& n) override {
        DialogView& view = context.view;
        if (equationNotified(view, n)) return;
        if (n.clicked(IDC_SAVEFILE) || (n.event == Event::ComboSelectionChanged && n.controlId == IDC_NONLIN_SAVE))
            follow(view);
    }

    // The save box while "Save file" is checked; its value with the entries
    // that take one, the confidence with the confidence region.
    void follow(DialogView& view) {
        const bool saving = view.isChecked(IDC_SAVEFILE);
        const int save = view.comboSelection(IDC_NONLIN_SAVE);
        view.enable(IDC_NONLIN_SAVE, saving);
        for (int id : {IDC_NONLIN_SAVE_VALUE, IDC_NONLIN_VALUE_LABEL}) view.enable(id, saving && needsValue(save));
        for (int id : {IDC_NONLIN_CONFIDENCE, IDC_NONLIN_CONFI_LABEL})
            view.enable(id, saving && save == kConfidenceRegion);
        updateEquationButtons(view);
    }

    ProcedureBlock compose(const NonlinSettings& settings, const DialogView& view) const override {
        NonlinSettings s = settings;
        s.saving = view.isChecked(IDC_SAVEFILE);
        return composeNonlin(s, listNames(view, IDC_DEPENDENT));
    }

    SelectionArray dependent_{};
};

LossSettings lossSettings;

class LossDialog : public ProcedureDialog<LossSettings> {
public:
    LossDialog()
        : ProcedureDialog(lossSettings, Bindings<LossSettings>()
                                            .radio({IDC_LOSS_LEAST_SQUARES, IDC_LOSS_FUNCTION}, &LossSettings::kind)
                                            .text(IDC_EQUATION, &LossSettings::equation, kEquationLimit)
                                            .enableWith(IDC_EQUATION, IDC_LOSS_FUNCTION)) {}

    int init(DialogContext& context) override {
        fillEquationLists(context.view);
        return ProcedureDialog::init(context);
    }

    void listsChanged(DialogContext& context) override { updateEquationButtons(context.view); }

private:
    void shown(DialogView& view) override { updateEquationButtons(view); }

    void changed(DialogContext& context, const Notification& n) override {
        if (!equationNotified(context.view, n)) updateEquationButtons(context.view);
    }

    ProcedureBlock compose(const LossSettings& s, const DialogView&) const override { return composeLoss(s); }
};

}  // namespace

DialogBehaviour& nonlinBehaviour() { return soleInstance<NonlinDialog>(); }
DialogBehaviour& lossBehaviour() { return soleInstance<LossDialog>(); }

}  // namespace kvs::stats
