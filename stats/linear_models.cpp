// The estimate-model dialogs of the linear models: ANOVA (218), GLM (219),
// Regression (221) and Discriminant Analysis (222), with their Options,
// Repeated Measures and Statistics buttons.
#include "core/blank_text.h"
#include "core/descriptor.h"
#include "core/messages.h"
#include "include/kvs_imports.h"
#include "resources/models_ids.h"
#include "stats/model_composers.h"
#include "stats/model_line.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

void addEstimation(Composition& body, EstimationKind kind, const EstimationOptions& options) {
    const EstimationLines lines = composeEstimation(kind, options);
    body.add(lines.estimate);
    if (!lines.second.empty()) body.add(lines.second);
}

}  // namespace

ProcedureBlock composeGlm(std::uint16_t commandId, const ModelSettings& s, const EstimationOptions& options,
                          const RepeatedMeasures& measures, const Names& dependents, const Names& independents) {
    const bool anova = commandId == 218;
    const std::string_view procedure = anova ? text::kAnova : text::kGlm;
    const std::string_view file = anova ? text::kAnovaFile : text::kGlmFile;
    if (dependents.empty()) return ProcedureBlock::refuse(procedure, kvs::text::kSelectVariables);
    if (anova && independents.empty()) return ProcedureBlock::refuse(procedure, text::kSelectFactors);
    if (measures.perform && measures.dependents != dependents)
        return ProcedureBlock::refuse(procedure, text::kDependentsChanged);
    Composition body;
    if (anova) {
        CommandText category(text::kCategory);
        joinNames(independents, category, ' ');
        if (s.missingCategory) category.append(text::kMissingCategory);
        body.add(category);
        if (!s.covariates.empty()) {
            CommandText covariates(text::kCovariates);
            joinNames(s.covariates, covariates, ' ');
            body.add(covariates);
        }
    }
    CommandText model = modelLine(dependents, s.constant && s.constantEnabled, independents);
    if (const std::string clause = repeatedClause(measures); !clause.empty()) {
        const CommandText::Piece piece(model);
        model.append(' ').append(clause);
    }
    body.add(model);
    addEstimation(body, EstimationKind::Glm, options);
    if (s.exit) body.add(text::kExit);
    return {procedure, file, {}, std::move(body)};
}

ProcedureBlock composeRegression(const ModelSettings& s, const EstimationOptions& options, const Names& dependents,
                                 const Names& independents) {
    if (dependents.empty()) return ProcedureBlock::refuse(text::kRegress, kvs::text::kSelectVariables);
    if (s.matrix && isBlankText(s.cases)) return ProcedureBlock::refuse(text::kRegress, text::kEnterCases);
    CommandText model = modelLine(dependents, s.constant && s.constantEnabled, independents);
    if (s.matrix) appendOption(model, text::kCases, s.cases);
    Composition body;
    body.add(model);
    addEstimation(body, EstimationKind::Regression, options);
    if (s.exit) body.add(text::kExit);
    return {text::kRegress, text::kRegressFile, {}, std::move(body)};
}

ProcedureBlock composeDiscriminant(const ModelSettings& s, const EstimationOptions& options,
                                   const DiscriminantStatistics& statistics, const Names& dependents,
                                   const Names& independents) {
    if (dependents.empty()) return ProcedureBlock::refuse(text::kDiscrim, kvs::text::kSelectVariables);
    if (independents.empty()) return ProcedureBlock::refuse(text::kDiscrim, text::kSelectIndependents);
    Composition body;
    CommandText model = modelLine(dependents, s.constant && s.constantEnabled, independents);
    if (s.quadratic) model.append(text::kQuadratic);
    body.add(model);
    if (const std::string print = printLine(statistics); !print.empty()) body.add(print);
    addEstimation(body, EstimationKind::Discriminant, options);
    if (s.exit) body.add(text::kExit);
    return {text::kDiscrim, text::kDiscrimFile, {}, std::move(body)};
}

namespace {

// What sets the four dialogs apart.
struct ModelTraits {
    std::uint16_t id;
    EstimationKind kind;
    std::int32_t dependents;  // how many names "Dependent:" takes
    bool repeated;            // a Repeated Measures button (ANOVA, GLM)
    bool statistics;          // a Statistics button (Discriminant)
    bool cases;               // a number-of-cases field (Regression)
};

constexpr ModelTraits kAnovaModel{218, EstimationKind::Glm, 256, true, false, false};
constexpr ModelTraits kGlmModel{219, EstimationKind::Glm, 256, true, false, false};
constexpr ModelTraits kRegressionModel{221, EstimationKind::Regression, 256, false, false, true};
constexpr ModelTraits kDiscriminantModel{222, EstimationKind::Discriminant, 1, false, true, false};

Bindings<ModelSettings> modelBindings(const ModelTraits& model) {
    Bindings<ModelSettings> b;
    b.check(IDC_MODEL_CONSTANT, &ModelSettings::constant).check(IDC_MODEL_EXIT, &ModelSettings::exit);
    if (model.cases) b.number(IDC_MODEL_CASES, &ModelSettings::cases, kStoredValueLimit);
    if (model.id == 218) b.check(IDC_MODEL_MISSING, &ModelSettings::missingCategory);
    if (model.kind == EstimationKind::Discriminant) b.check(IDC_MODEL_QUADRATIC, &ModelSettings::quadratic);
    return b;
}

// The sub-dialog records as the dialog opened, given back on Cancel.
struct OpenedRecords {
    EstimationOptions options;
    RepeatedMeasures measures;
    DiscriminantStatistics statistics;
};

template <const ModelTraits& Traits>
class ModelDialog : public ProcedureDialog<ModelSettings> {
public:
    ModelDialog() : ProcedureDialog(settings(), modelBindings(Traits)) {}

    std::vector<OwnList> ownLists() override {
        std::vector<OwnList> lists{{IDC_DEPENDENT, &dependents_, Traits.dependents}};
        if (Traits.id == 218) lists.push_back({IDC_TARGET2, &covariates_, kCovariateCapacity});
        return lists;
    }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(dependents_);
        table.record(covariates_);
        addEstimationDefaults(table, Traits.kind);
        if (Traits.repeated) addRepeatedMeasuresDefaults(table);
        if (Traits.statistics) addDiscriminantStatisticsDefaults(table);
    }

    void cancel(DialogContext&) override {
        restoreCancelled(estimationOptions(Traits.kind), opened_.options);
        if (Traits.repeated) restoreCancelled(repeatedMeasures(), opened_.measures);
        if (Traits.statistics) discriminantStatistics() = opened_.statistics;
    }

private:
    static ModelSettings& settings() {
        static ModelSettings remembered;
        return remembered;
    }

    void opened(ModelSettings&) override {
        opened_.options = estimationOptions(Traits.kind);
        if (Traits.repeated) opened_.measures = repeatedMeasures();
        if (Traits.statistics) opened_.statistics = discriminantStatistics();
    }

    // The number of cases is asked only of a matrix file.
    void shown(DialogView& view) override {
        matrix_ = IsCurrentUseFileAMatrix() != 0;
        if (!Traits.cases) return;
        view.enable(IDC_MODEL_CASES, matrix_);
        view.enable(IDC_MODEL_CASES_LABEL, matrix_);
    }

    void changed(DialogContext& context, const Notification& n) override {
        DialogView& view = context.view;
        if (n.clicked(IDC_MODEL_OPTIONS)) runEstimationOptions(view.handle(), Traits.kind);
        if (Traits.repeated && n.clicked(IDC_MODEL_REPEATED))
            runRepeatedMeasures(view.handle(), listNames(view, IDC_DEPENDENT));
        if (Traits.statistics && n.clicked(IDC_MODEL_STATISTICS)) runDiscriminantStatistics(view.handle());
    }

    ProcedureBlock compose(const ModelSettings& settings, const DialogView& view) const override {
        ModelSettings s = settings;
        s.constantEnabled = view.isEnabled(IDC_MODEL_CONSTANT);
        s.matrix = matrix_;
        if (Traits.id == 218) s.covariates = listNames(view, IDC_TARGET2);
        const Names& dependents = listNames(view, IDC_DEPENDENT);
        const Names& independents = listNames(view, IDC_TARGET1);
        const EstimationOptions& options = estimationOptions(Traits.kind);
        if (Traits.kind == EstimationKind::Regression) return composeRegression(s, options, dependents, independents);
        if (Traits.kind == EstimationKind::Discriminant)
            return composeDiscriminant(s, options, discriminantStatistics(), dependents, independents);
        return composeGlm(Traits.id, s, options, repeatedMeasures(), dependents, independents);
    }

    static constexpr std::int32_t kCovariateCapacity = 256;

    SelectionArray dependents_{};
    SelectionArray covariates_{};  // ANOVA's covariates
    OpenedRecords opened_{};
    bool matrix_ = false;
};

}  // namespace

DialogBehaviour& anovaBehaviour() { return soleInstance<ModelDialog<kAnovaModel>>(); }
DialogBehaviour& glmBehaviour() { return soleInstance<ModelDialog<kGlmModel>>(); }
DialogBehaviour& regressionBehaviour() { return soleInstance<ModelDialog<kRegressionModel>>(); }
DialogBehaviour& discriminantBehaviour() { return soleInstance<ModelDialog<kDiscriminantModel>>(); }

}  // namespace kvs::stats
