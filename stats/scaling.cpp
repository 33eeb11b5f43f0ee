// POSAC (286), Conjoint Analysis (287), Correspondence Analysis (283), Set
// and Canonical Correlations (284) and Perceptual Mapping (285): models of
// variable lists with their estimation options.
#include <iterator>

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

constexpr std::size_t kPosacMinimum = 3;

std::string_view choiceKeyword(int chosen, std::initializer_list<std::pair<int, std::string_view>> keywords) {
    for (const auto& [id, keyword] : keywords)
        if (id == chosen) return keyword;
    return keywords.begin()->second;
}

int methodEntry(int method) {
    return method >= 0 && method < static_cast<int>(std::size(text::kMappingMethods)) ? method : 0;
}

}  // namespace

ProcedureBlock composePosac(const PosacSettings& s, const Names& variables) {
    if (variables.size() < kPosacMinimum) return ProcedureBlock::refuse(text::kPosac, text::kPosacVariables);
    CommandText estimate(text::kEstimate);
    appendOption(estimate, text::kIterationsLong, s.iterations);
    appendOptionUnlessDefault(estimate, text::kConvergenceLong, s.convergence, text::kDefaultScalingConvergence);
    closeOptions(estimate);
    Composition body;
    body.add(variablesModel(variables, {}));
    body.add(estimate);
    return {text::kPosac, text::kPosacFile, {}, std::move(body)};
}

ProcedureBlock composeConjoint(const ConjointSettings& s, const Names& dependents, const Names& attributes) {
    if (dependents.empty()) return ProcedureBlock::refuse(text::kConjoint, kvs::text::kSelectVariables);
    if (attributes.empty()) return ProcedureBlock::refuse(text::kConjoint, text::kSelectIndependents);
    CommandText estimate(text::kEstimate);
    appendOption(estimate, text::kIterationsLong, s.iterations);
    appendOptionUnlessDefault(estimate, text::kConvergenceLong, s.convergence, text::kDefaultScalingConvergence);
    estimate.append(text::kPolarity)
        .append(choiceKeyword(s.polarity, {{IDC_CONJOINT_POSITIVE, text::kPositive},
                                           {IDC_CONJOINT_NEGATIVE, text::kNegative}}));
    if (s.stress) estimate.append(text::kStressLoss);
    estimate.append(text::kRegression)
        .append(choiceKeyword(s.regression, {{IDC_CONJOINT_MONOTONIC, text::kMonotonic},
                                             {IDC_CONJOINT_LINEAR, text::kLinearRegression},
                                             {IDC_CONJOINT_POWER, text::kPowerRegression}}));
    Composition body;
    body.add(variablesModel(dependents, attributes));
    body.add(estimate);
    return {text::kConjoint, text::kConjointFile, {}, std::move(body)};
}

ProcedureBlock composeCoran(const CoranSettings& s, const Names& dependents, const Names& independents) {
    if (dependents.empty()) return ProcedureBlock::refuse(text::kCoran, kvs::text::kSelectVariables);
    CommandText estimate(text::kEstimatePlain);
    if (s.pairwise) estimate.append(' ').append(text::kPairwise);
    Composition body;
    body.add(variablesModel(dependents, independents));
    body.add(estimate);
    return {text::kCoran, {}, {}, std::move(body)};
}

ProcedureBlock composeSetcor(const Names& dependents, const Names& independents, const Names& errorSet) {
    if (dependents.empty()) return ProcedureBlock::refuse(text::kSetcor, kvs::text::kSelectVariables);
    if (independents.empty()) return ProcedureBlock::refuse(text::kSetcor, text::kSelectIndependents);
    Composition body;
    body.add(variablesModel(dependents, independents));
    if (!errorSet.empty()) {
        CommandText error(text::kError);
        error.append(' ');
        joinNames(errorSet, error, ' ');
        body.add(error);
    }
    body.add(text::kEstimatePlain);
    return {text::kSetcor, {}, {}, std::move(body)};
}

ProcedureBlock composePermap(const PermapSettings& s, const Names& dependents, const Names& independents) {
    const int method = methodEntry(s.method);
    // Biplot and MDPREF map the dependents alone; the other methods fit
    // them into the configuration the independents give.
    const bool configuration = method >= 2;
    if (dependents.empty()) return ProcedureBlock::refuse(text::kPermap, kvs::text::kSelectVariables);
    if (!configuration && !independents.empty())
        return ProcedureBlock::refuse(text::kPermap, text::kNoIndependentsForBiplot);
    if (configuration && independents.empty())
        return ProcedureBlock::refuse(text::kPermap, text::kSelectIndependents);
    CommandText estimate(text::kPermapMethod);
    estimate.append(text::kMappingMethods[method].keyword);
    if (s.negative) estimate.append(text::kNegativePolarity);
    appendOption(estimate, text::kDimension, s.dimension);
    if (s.standardize) estimate.append(text::kStandardize);
    Composition body;
    body.add(variablesModel(dependents, independents));
    body.add(estimate);
    return {text::kPermap, {}, {}, std::move(body)};
}

namespace {

constexpr std::int32_t kManyNames = 256;

// A dialog whose "Dependent(s):" list takes many names, kept by the dialog.
template <typename Settings>
class DependentsDialog : public ProcedureDialog<Settings> {
public:
    using ProcedureDialog<Settings>::ProcedureDialog;

    std::vector<OwnList> ownLists() override { return {{IDC_DEPENDENT, &dependents_, kManyNames}}; }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog<Settings>::addDefaults(table);
        table.record(dependents_);
    }

private:
    SelectionArray dependents_{};
};

PosacSettings posacSettings;

class PosacDialog : public ProcedureDialog<PosacSettings> {
public:
    PosacDialog()
        : ProcedureDialog(posacSettings,
                          Bindings<PosacSettings>()
                              .number(IDC_MV_ITERATIONS, &PosacSettings::iterations, kStoredValueLimit)
                              .number(IDC_MV_CONVERGENCE, &PosacSettings::convergence, kStoredValueLimit)) {}

private:
    ProcedureBlock compose(const PosacSettings& s, const DialogView& view) const override {
        return composePosac(s, listNames(view, IDC_TARGET1));
    }
};

ConjointSettings conjointSettings;

class ConjointDialog : public DependentsDialog<ConjointSettings> {
public:
    ConjointDialog()
        : DependentsDialog(
              conjointSettings,
              Bindings<ConjointSettings>()
                  .number(IDC_MV_ITERATIONS, &ConjointSettings::iterations, kStoredValueLimit)
                  .number(IDC_MV_CONVERGENCE, &ConjointSettings::convergence, kStoredValueLimit)
                  .radio({IDC_CONJOINT_POSITIVE, IDC_CONJOINT_NEGATIVE}, &ConjointSettings::polarity)
                  .radio({IDC_CONJOINT_MONOTONIC, IDC_CONJOINT_LINEAR, IDC_CONJOINT_POWER},
                         &ConjointSettings::regression)
                  .check(IDC_CONJOINT_STRESS, &ConjointSettings::stress)) {}

private:
    ProcedureBlock compose(const ConjointSettings& s, const DialogView& view) const override {
        return composeConjoint(s, listNames(view, IDC_DEPENDENT), listNames(view, IDC_TARGET1));
    }
};

CoranSettings coranSettings;

class CoranDialog : public DependentsDialog<CoranSettings> {
public:
    CoranDialog()
        : DependentsDialog(coranSettings,
                           Bindings<CoranSettings>().check(IDC_CORAN_PAIRWISE, &CoranSettings::pairwise)) {}

private:
    ProcedureBlock compose(const CoranSettings& s, const DialogView& view) const override {
        return composeCoran(s, listNames(view, IDC_DEPENDENT), listNames(view, IDC_TARGET1));
    }
};

// Set correlations have no option of their own; the error set is a list
// the dialog keeps.
struct SetcorSettings {};
SetcorSettings setcorSettings;

class SetcorDialog : public ProcedureDialog<SetcorSettings> {
public:
    SetcorDialog() : ProcedureDialog(setcorSettings, Bindings<SetcorSettings>()) {}

    std::vector<OwnList> ownLists() override { return {{IDC_TARGET5, &errorSet_, kManyNames}}; }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(errorSet_);
    }

private:
    ProcedureBlock compose(const SetcorSettings&, const DialogView& view) const override {
        return composeSetcor(listNames(view, IDC_TARGET1), listNames(view, IDC_TARGET2),
                             listNames(view, IDC_TARGET5));
    }

    SelectionArray errorSet_{};
};

PermapSettings permapSettings;

class PermapDialog : public DependentsDialog<PermapSettings> {
public:
    PermapDialog()
        : DependentsDialog(permapSettings,
                           Bindings<PermapSettings>()
                               .combo(IDC_PERMAP_METHOD, &PermapSettings::method)
                               .check(IDC_PERMAP_NEGATIVE, &PermapSettings::negative)
                               .number(IDC_PERMAP_DIMENSION, &PermapSettings::dimension, kStoredValueLimit)
                               .check(IDC_PERMAP_STANDARDIZE, &PermapSettings::standardize)) {}

    int init(DialogContext& context) override {
        DialogView& view = context.view;
        view.comboClear(IDC_PERMAP_METHOD);
        for (const text::MappingMethod& method : text::kMappingMethods) view.comboAdd(IDC_PERMAP_METHOD, method.entry);
        return DependentsDialog::init(context);
    }

private:
    ProcedureBlock compose(const PermapSettings& s, const DialogView& view) const override {
        return composePermap(s, listNames(view, IDC_DEPENDENT), listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& posacBehaviour() { return soleInstance<PosacDialog>(); }
DialogBehaviour& conjointBehaviour() { return soleInstance<ConjointDialog>(); }
DialogBehaviour& coranBehaviour() { return soleInstance<CoranDialog>(); }
DialogBehaviour& setcorBehaviour() { return soleInstance<SetcorDialog>(); }
DialogBehaviour& permapBehaviour() { return soleInstance<PermapDialog>(); }

}  // namespace kvs::stats
