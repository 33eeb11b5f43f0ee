#include "stats/estimation_options.h"

#include <string_view>

#include "core/bindings.h"
#include "core/blank_text.h"
#include "core/command_text.h"
#include "core/dialog_behaviour.h"
#include "core/help_requests.h"
#include "core/messages.h"
#include "resources/models_ids.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

std::string_view valueOf(const StoredText& stored, std::string_view fallback) {
    return stored ? std::string_view(*stored) : fallback;
}

std::string_view defaultTolerance(EstimationKind kind) {
    return kind == EstimationKind::Discriminant ? text::kDefaultDiscrimTolerance : text::kDefaultModelTolerance;
}

}  // namespace

EstimationLines composeEstimation(EstimationKind kind, const EstimationOptions& o) {
    const bool glm = kind == EstimationKind::Glm;
    const bool regression = kind == EstimationKind::Regression;
    const std::string_view tolerance = valueOf(o.tolerance, defaultTolerance(kind));
    const std::string_view toleranceKeyword = glm ? text::kTolerance : text::kToleranceLong;
    EstimationLines lines;
    if (!o.stepwise) {
        CommandText line(text::kEstimateComplete);
        appendOptionUnlessDefault(line, toleranceKeyword, tolerance, defaultTolerance(kind));
        if (o.mixture && kind != EstimationKind::Discriminant) line.append(regression ? text::kMixture : text::kMix);
        if (regression) line.stripTrailing('/');
        lines.estimate = line.str();
        return lines;
    }
    CommandText line(text::kStepwiseStart);
    line.append(o.forward ? text::kForward : text::kBackward);
    appendOptionUnlessDefault(line, toleranceKeyword, tolerance, defaultTolerance(kind));
    const std::string_view fenter = valueOf(o.fenter, text::kDefaultFenter);
    const std::string_view fremove = valueOf(o.fremove, text::kDefaultFremove);
    if (o.fStatistic) {
        appendOption(line, text::kFenter, fenter);
        appendOption(line, text::kFremove, fremove);
    } else {
        appendOptionUnlessDefault(line, text::kEnter, valueOf(o.enter, text::kDefaultModelProbability),
                                  text::kDefaultModelProbability);
        appendOptionUnlessDefault(line, text::kRemove, valueOf(o.remove, text::kDefaultModelProbability),
                                  text::kDefaultModelProbability);
    }
    // GLM writes a changed F pair whatever the criterion: after the
    // probability pair, or a second time after its own.
    if (glm) {
        appendOptionUnlessDefault(line, text::kFenter, fenter, text::kDefaultFenter);
        appendOptionUnlessDefault(line, text::kFremove, fremove, text::kDefaultFremove);
    }
    appendOptionUnlessDefault(line, text::kForce, valueOf(o.force, text::kDefaultForce), text::kDefaultForce);
    if (kind != EstimationKind::Discriminant) appendOption(line, text::kMaxStep, valueOf(o.maxStep, {}));
    lines.estimate = line.str();
    if (o.automatic) lines.second = regression ? text::kStepAutoTight : text::kStepAuto;
    return lines;
}

std::string repeatedClause(const RepeatedMeasures& measures) {
    if (!measures.perform) return {};
    CommandText clause(text::kRepeat);
    CommandText names(text::kRepeatNames);
    bool first = true, levelsSeen = false, named = false;
    char letter = 'A';
    for (const RepeatedFactor& factor : measures.factors) {
        const std::string_view name = valueOf(factor.name, {});
        const std::string_view levels = valueOf(factor.levels, {});
        if (isBlankText(name) && isBlankText(levels)) break;
        if (!first) names.append(',');
        first = false;
        names.append('\'');
        if (isBlankText(name)) {
            names.append(letter++);
        } else {
            names.append(name);
            named = true;
        }
        names.append('\'');
        if (isBlankText(levels)) continue;
        if (!levelsSeen) clause.append('=');
        levelsSeen = true;
        clause.append(levels);
        if (const std::string_view metric = valueOf(factor.metric, {}); !isBlankText(metric))
            clause.append('(').append(metric).append(')');
        clause.append(',');
    }
    if (named) clause.append(names.str());
    clause.stripTrailing(',');
    return clause.str();
}

std::string printLine(const DiscriminantStatistics& statistics) {
    CommandText line(text::kPrintNone);
    bool any = false;
    for (std::size_t i = 0; i < kDiscriminantStatistics; ++i) {
        if (!statistics.print[i]) continue;
        line.append(text::kDiscriminantPrint[i]);
        any = true;
    }
    return any ? line.str() : std::string();
}

EstimationOptions& estimationOptions(EstimationKind kind) {
    static EstimationOptions records[3];
    return records[static_cast<int>(kind)];
}

RepeatedMeasures& repeatedMeasures() {
    static RepeatedMeasures record;
    return record;
}

DiscriminantStatistics& discriminantStatistics() {
    static DiscriminantStatistics record;
    return record;
}

namespace {

void keepText(StoredText& text, const StoredText& opened) {
    if (!opened) text.reset();
}

}  // namespace

void restoreCancelled(EstimationOptions& record, const EstimationOptions& opened) {
    EstimationOptions restored = opened;
    for (auto field : {&EstimationOptions::tolerance, &EstimationOptions::enter, &EstimationOptions::remove,
                       &EstimationOptions::fenter, &EstimationOptions::fremove, &EstimationOptions::force,
                       &EstimationOptions::maxStep}) {
        restored.*field = record.*field;
        keepText(restored.*field, opened.*field);
    }
    record = std::move(restored);
}

void restoreCancelled(RepeatedMeasures& record, const RepeatedMeasures& opened) {
    RepeatedMeasures restored = opened;
    for (std::size_t i = 0; i < restored.factors.size(); ++i) {
        for (auto field : {&RepeatedFactor::name, &RepeatedFactor::levels, &RepeatedFactor::metric}) {
            restored.factors[i].*field = record.factors[i].*field;
            keepText(restored.factors[i].*field, opened.factors[i].*field);
        }
    }
    record = std::move(restored);
}

// ---------------------------------------------------------------------------
// The options sub-dialog.

namespace {

// What differs between the three options dialogs.
struct EstimationLayout {
    EstimationKind kind;
    const char* templateName;
    std::uint32_t helpTopic;
    int interactive, probability, fStatistic;
    bool mixtureAndMaxStep;
};

constexpr EstimationLayout kLayouts[] = {
    {EstimationKind::Glm, "GLMOPTIONS", 1104, IDC_EST_INTERACT, IDC_EST_PROBABILITY, IDC_EST_FSTATISTIC, true},
    {EstimationKind::Regression, "REGRESSIONOPTIONS", 1114, IDC_EST_INTERACT, IDC_EST_PROBABILITY,
     IDC_EST_FSTATISTIC, true},
    {EstimationKind::Discriminant, "DISCRIMOPTIONS", 1106, IDC_DEST_INTERACT, IDC_DEST_PROBABILITY,
     IDC_DEST_FSTATISTIC, false},
};

// The controls as the dialog shows them: the choices as button ids, and in
// enter and remove the pair of the chosen criterion (boxes 37 and 38).
struct EstimationForm {
    int estimation = IDC_EST_COMPLETE;
    int direction = IDC_EST_BACKWARD;
    int stepping = IDC_EST_AUTO;
    int criterion = IDC_EST_PROBABILITY;
    bool mixture = false;
    std::string tolerance, enter, remove, force, maxStep;
};

Bindings<EstimationForm> formBindings(const EstimationLayout& l) {
    Bindings<EstimationForm> b;
    b.number(IDC_EST_TOLERANCE, &EstimationForm::tolerance, kStoredValueLimit)
        .radio({IDC_EST_COMPLETE, IDC_EST_STEPWISE}, &EstimationForm::estimation)
        .radio({IDC_EST_FORWARD, IDC_EST_BACKWARD}, &EstimationForm::direction)
        .radio({IDC_EST_AUTO, l.interactive}, &EstimationForm::stepping)
        .radio({l.probability, l.fStatistic}, &EstimationForm::criterion)
        .number(IDC_EST_ENTER, &EstimationForm::enter, kStoredValueLimit)
        .number(IDC_EST_REMOVE, &EstimationForm::remove, kStoredValueLimit)
        .number(IDC_EST_FORCE, &EstimationForm::force, kStoredValueLimit);
    if (l.mixtureAndMaxStep)
        b.check(IDC_EST_MIXTURE, &EstimationForm::mixture)
            .number(IDC_EST_MAXSTEP, &EstimationForm::maxStep, kStoredValueLimit);
    return b;
}

const Bindings<EstimationForm>& bindingsOf(const EstimationLayout& l) {
    static const Bindings<EstimationForm> bindings[] = {formBindings(kLayouts[0]), formBindings(kLayouts[1]),
                                                        formBindings(kLayouts[2])};
    return bindings[static_cast<int>(l.kind)];
}

void createDefault(StoredText& text, std::string_view value) {
    if (!text) text = std::string(value);
}

// A side buffer holds 16 characters; a value of blanks is no value.
std::string sideValue(std::string_view typed) {
    std::string value(withoutBlanks(typed));
    if (value.size() > kStoredValueLimit) value.resize(kStoredValueLimit);
    return value;
}

class EstimationOptionsDialog : public DialogHandler {
public:
    EstimationOptionsDialog(const EstimationLayout& layout, EstimationOptions& record)
        : layout_(layout), record_(record), bindings_(bindingsOf(layout)) {}

    int onInit(DialogView& view) override {
        view.centre();
        EstimationOptions& r = record_;
        createDefault(r.tolerance, defaultTolerance(layout_.kind));
        createDefault(r.enter, text::kDefaultModelProbability);
        createDefault(r.remove, text::kDefaultModelProbability);
        createDefault(r.fenter, text::kDefaultFenter);
        createDefault(r.fremove, text::kDefaultFremove);
        createDefault(r.force, text::kDefaultForce);
        if (layout_.mixtureAndMaxStep) createDefault(r.maxStep, {});

        form_.estimation = r.stepwise ? IDC_EST_STEPWISE : IDC_EST_COMPLETE;
        form_.direction = r.forward ? IDC_EST_FORWARD : IDC_EST_BACKWARD;
        form_.stepping = r.automatic ? IDC_EST_AUTO : layout_.interactive;
        form_.criterion = r.fStatistic ? layout_.fStatistic : layout_.probability;
        form_.mixture = r.mixture;
        form_.tolerance = *r.tolerance;
        form_.force = *r.force;
        form_.maxStep = r.maxStep.value_or(std::string());
        form_.enter = r.fStatistic ? *r.fenter : *r.enter;
        form_.remove = r.fStatistic ? *r.fremove : *r.remove;
        probabilitySide_[0] = *r.enter, probabilitySide_[1] = *r.remove;
        fSide_[0] = *r.fenter, fSide_[1] = *r.fremove;
        bindings_.show(view, form_);
        enableForEstimation(view);
        return 0;
    }

    void onCommand(DialogView& view, int controlId, int notifyCode) override {
        const Notification n = classify(view, controlId, notifyCode);
        if (n.clicked(IDC_CONTINUE)) {
            if (commit(view)) view.end(1);
        } else if (n.clicked(kIdCancel)) {
            view.end(0);
        } else if (n.clicked(IDC_HELPBUTTON)) {
            openHelpTopic(view.handle(), layout_.helpTopic);
        } else if (n.clicked(IDC_EST_COMPLETE) || n.clicked(IDC_EST_STEPWISE)) {
            form_.estimation = controlId;
            enableForEstimation(view);
        } else if (n.clicked(layout_.probability) || n.clicked(layout_.fStatistic)) {
            changeCriterion(view, controlId);
        }
    }

    void onSysCommand(DialogView&, int code) override { answerHelpCommand(code); }

private:
    // With "Complete" only the mixture box among the estimation controls;
    // with "Stepwise" every stepwise control and its label.
    void enableForEstimation(DialogView& view) const {
        const bool stepwise = form_.estimation == IDC_EST_STEPWISE;
        for (int id : {IDC_EST_FORWARD, IDC_EST_BACKWARD, IDC_EST_AUTO, layout_.interactive, layout_.probability,
                       layout_.fStatistic, IDC_EST_ENTER, IDC_EST_ENTER_LABEL, IDC_EST_REMOVE,
                       IDC_EST_REMOVE_LABEL, IDC_EST_FORCE, IDC_EST_FORCE_LABEL})
            view.enable(id, stepwise);
        if (!layout_.mixtureAndMaxStep) return;
        view.enable(IDC_EST_MIXTURE, !stepwise);
        view.enable(IDC_EST_MAXSTEP, stepwise);
        view.enable(IDC_EST_MAXSTEP_LABEL, stepwise);
    }

    // The boxes' texts go to the side of the criterion left; the side of the
    // criterion chosen comes up.
    void changeCriterion(DialogView& view, int chosen) {
        if (chosen == form_.criterion) return;
        std::string* left = form_.criterion == layout_.fStatistic ? fSide_ : probabilitySide_;
        std::string* shown = chosen == layout_.fStatistic ? fSide_ : probabilitySide_;
        left[0] = sideValue(view.text(IDC_EST_ENTER));
        left[1] = sideValue(view.text(IDC_EST_REMOVE));
        view.setText(IDC_EST_ENTER, shown[0]);
        view.setText(IDC_EST_REMOVE, shown[1]);
        form_.criterion = chosen;
    }

    bool commit(DialogView& view) {
        EstimationForm form = form_;
        bindings_.read(view, form);
        const bool fStatistic = form.criterion == layout_.fStatistic;
        const std::string* side = fStatistic ? probabilitySide_ : fSide_;
        if (!bindings_.validate(form).empty() || !isNumberOrBlank(side[0]) || !isNumberOrBlank(side[1])) {
            showStop(view.handle(), kNotANumber);
            return false;
        }
        EstimationOptions& r = record_;
        r.stepwise = form.estimation == IDC_EST_STEPWISE;
        r.forward = form.direction == IDC_EST_FORWARD;
        r.automatic = form.stepping == IDC_EST_AUTO;
        r.tolerance = form.tolerance;
        r.force = form.force;
        if (layout_.mixtureAndMaxStep) {
            r.maxStep = form.maxStep;
            r.mixture = form.mixture;
        }
        r.fStatistic = fStatistic;
        if (!fStatistic) {
            r.enter = form.enter, r.remove = form.remove;
            r.fenter = fSide_[0], r.fremove = fSide_[1];
        } else {
            r.enter = probabilitySide_[0], r.remove = probabilitySide_[1];
            // GLM reads its F values from the fields 40 and 41, which its
            // template lacks: they keep the values they opened with.
            if (layout_.kind != EstimationKind::Glm) r.fenter = form.enter, r.fremove = form.remove;
        }
        form_ = form;
        return true;
    }

    const EstimationLayout& layout_;
    EstimationOptions& record_;
    const Bindings<EstimationForm>& bindings_;
    EstimationForm form_{};
    std::string probabilitySide_[2];
    std::string fSide_[2];
};

// ---------------------------------------------------------------------------
// Repeated measures and discriminant statistics.

constexpr std::uint32_t kRepeatedHelp = 1105;
constexpr std::uint32_t kStatisticsHelp = 1107;
constexpr std::size_t kMetricLimit = 127;

// Continue, Cancel and Help of a sub-dialog over a record.
class ContinueDialog : public DialogHandler {
public:
    explicit ContinueDialog(std::uint32_t helpTopic) : helpTopic_(helpTopic) {}

    int onInit(DialogView& view) override {
        view.centre();
        show(view);
        return 0;
    }
    void onCommand(DialogView& view, int controlId, int notifyCode) override {
        const Notification n = classify(view, controlId, notifyCode);
        if (n.clicked(IDC_CONTINUE)) {
            keep(view);
            view.end(1);
        } else if (n.clicked(kIdCancel)) {
            view.end(0);
        } else if (n.clicked(IDC_HELPBUTTON)) {
            openHelpTopic(view.handle(), helpTopic_);
        }
    }
    void onSysCommand(DialogView&, int code) override { answerHelpCommand(code); }

protected:
    virtual void show(DialogView& view) = 0;
    virtual void keep(const DialogView& view) = 0;

private:
    std::uint32_t helpTopic_;
};

class RepeatedMeasuresDialog : public ContinueDialog {
public:
    RepeatedMeasuresDialog(RepeatedMeasures& record, const Names& dependents)
        : ContinueDialog(kRepeatedHelp), record_(record), dependents_(dependents) {}

private:
    struct Field {
        int id;
        StoredText RepeatedFactor::*text;
        std::size_t limit;
    };
    static constexpr Field kFields[3] = {{IDC_RM_NAME1, &RepeatedFactor::name, kStoredValueLimit},
                                         {IDC_RM_LEVELS1, &RepeatedFactor::levels, kStoredValueLimit},
                                         {IDC_RM_METRIC1, &RepeatedFactor::metric, kMetricLimit}};

    void show(DialogView& view) override {
        view.setChecked(IDC_RM_PERFORM, record_.perform);
        for (int i = 0; i < 4; ++i) {
            RepeatedFactor& factor = record_.factors[static_cast<std::size_t>(i)];
            for (const Field& f : kFields) {
                createDefault(factor.*f.text, {});
                view.limitText(f.id + i, f.limit);
                view.setText(f.id + i, *(factor.*f.text));
            }
        }
    }
    void keep(const DialogView& view) override {
        record_.perform = view.isChecked(IDC_RM_PERFORM);
        for (int i = 0; i < 4; ++i) {
            RepeatedFactor& factor = record_.factors[static_cast<std::size_t>(i)];
            for (const Field& f : kFields) {
                std::string typed = view.text(f.id + i);
                if (typed.size() > f.limit) typed.resize(f.limit);
                if (isBlankText(typed)) typed.clear();
                factor.*f.text = std::move(typed);
            }
        }
        record_.dependents = dependents_;
    }

    RepeatedMeasures& record_;
    const Names& dependents_;
};

class StatisticsDialog : public ContinueDialog {
public:
    explicit StatisticsDialog(DiscriminantStatistics& record) : ContinueDialog(kStatisticsHelp), record_(record) {}

private:
    void show(DialogView& view) override {
        for (std::size_t i = 0; i < kDiscriminantStatistics; ++i)
            view.setChecked(IDC_DSTAT_FIRST + static_cast<int>(i), record_.print[i]);
    }
    void keep(const DialogView& view) override {
        for (std::size_t i = 0; i < kDiscriminantStatistics; ++i)
            record_.print[i] = view.isChecked(IDC_DSTAT_FIRST + static_cast<int>(i));
    }

    DiscriminantStatistics& record_;
};

}  // namespace

bool runEstimationOptions(WindowRef owner, EstimationKind kind) {
    const EstimationLayout& layout = kLayouts[static_cast<int>(kind)];
    EstimationOptionsDialog dialog(layout, estimationOptions(kind));
    return ui().runModal(owner, layout.templateName, dialog) == 1;
}

bool runRepeatedMeasures(WindowRef owner, const Names& dependents) {
    RepeatedMeasuresDialog dialog(repeatedMeasures(), dependents);
    return ui().runModal(owner, "REPEATMEASURES", dialog) == 1;
}

bool runDiscriminantStatistics(WindowRef owner) {
    StatisticsDialog dialog(discriminantStatistics());
    return ui().runModal(owner, "DISCRIMSTATS", dialog) == 1;
}

void addEstimationDefaults(DefaultsTable& table, EstimationKind kind) { table.record(estimationOptions(kind)); }
void addRepeatedMeasuresDefaults(DefaultsTable& table) { table.record(repeatedMeasures()); }
void addDiscriminantStatisticsDefaults(DefaultsTable& table) { table.record(discriminantStatistics()); }

}  // namespace kvs::stats
