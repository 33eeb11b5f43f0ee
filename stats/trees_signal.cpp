// Trees (288) and Signal Detection (296): a dependent and its independents,
// with the tree display or the detection model's estimation values.
#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/line_endings.h"
#include "stats/analysis_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

// A dependent and at least one independent, or the refusal.
ProcedureBlock refusalOf(std::string_view procedure, const Names& dependent, const Names& independents) {
    if (dependent.empty()) return ProcedureBlock::refuse(procedure, kvs::text::kSelectVariables);
    if (independents.empty()) return ProcedureBlock::refuse(procedure, text::kSelectIndependents);
    return {};
}

}  // namespace

ProcedureBlock composeTrees(const TreesSettings& s, const Names& dependent, const Names& independents) {
    if (ProcedureBlock refused = refusalOf(text::kTrees, dependent, independents); refused.body.refused())
        return refused;
    CommandText estimate(text::kEstimatePlain);
    if (s.expand) estimate.append(' ').append(text::kExpand);
    Composition body;
    body.add(variablesModel(dependent, independents));
    body.add(estimate);
    return {text::kTrees, {}, {}, std::move(body)};
}

ProcedureBlock composeSignal(const SignalSettings& s, const Names& dependent, const Names& independents) {
    if (ProcedureBlock refused = refusalOf(text::kSignal, dependent, independents); refused.body.refused())
        return refused;
    CommandText estimate(text::kEstimate);
    appendOption(estimate, text::kIterationsLong, s.iterations);
    appendOptionUnlessDefault(estimate, text::kConverge, s.converge, text::kDefaultSignalConverge);
    appendOptionUnlessDefault(estimate, text::kM0, s.m0, text::kDefaultM0);
    appendOption(estimate, text::kMean, s.mean);
    appendOption(estimate, text::kDf, s.df);
    if (s.start) estimate.append(text::kStartValues);
    closeOptions(estimate);
    Composition body;
    body.add(variablesModel(dependent, independents));
    body.add(estimate);
    return {text::kSignal, {}, {}, std::move(body)};
}

namespace {

TreesSettings treesSettings;

class TreesDialog : public ProcedureDialog<TreesSettings> {
public:
    TreesDialog()
        : ProcedureDialog(treesSettings, Bindings<TreesSettings>().check(IDC_TREES_EXPAND, &TreesSettings::expand)) {}

private:
    ProcedureBlock compose(const TreesSettings& s, const DialogView& view) const override {
        return composeTrees(s, listNames(view, IDC_TARGET2), listNames(view, IDC_TARGET1));
    }
};

SignalSettings signalSettings;

Bindings<SignalSettings> signalBindings() {
    Bindings<SignalSettings> b;
    b.number(IDC_MV_ITERATIONS, &SignalSettings::iterations, kStoredValueLimit)
        .number(IDC_MV_CONVERGENCE, &SignalSettings::converge, kStoredValueLimit)
        .number(IDC_SIGNAL_M0, &SignalSettings::m0, kStoredValueLimit)
        .number(IDC_SIGNAL_MEAN, &SignalSettings::mean, kStoredValueLimit)
        .number(IDC_SIGNAL_DF, &SignalSettings::df, kStoredValueLimit)
        .check(IDC_SIGNAL_START, &SignalSettings::start);
    return b;
}

class SignalDialog : public ProcedureDialog<SignalSettings> {
public:
    SignalDialog() : ProcedureDialog(signalSettings, signalBindings()) {}

private:
    ProcedureBlock compose(const SignalSettings& s, const DialogView& view) const override {
        return composeSignal(s, listNames(view, IDC_TARGET2), listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& treesBehaviour() { return soleInstance<TreesDialog>(); }
DialogBehaviour& signalBehaviour() { return soleInstance<SignalDialog>(); }

}  // namespace kvs::stats
