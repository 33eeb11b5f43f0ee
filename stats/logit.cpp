// Logit: Estimate Model (289) with its Options menu and the "Logit: Options"
// sub-dialog, and Logit: Hypothesis (290).
#include <string>

#include "core/blank_text.h"
#include "core/descriptor.h"
#include "core/messages.h"
#include "core/option_dialog.h"
#include "core/procedure_block.h"
#include "stats/hypothesis_dialog.h"
#include "stats/model_line.h"
#include "stats/procedure_dialog.h"
#include "stats/set_editor.h"
#include "stats/variable_subdialog.h"
#include "stats/stats_composers.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

constexpr std::uint32_t kOptionsHelp = 1215;

const Bindings<LogitOptions>& logitOptionBindings() {
    static const Bindings<LogitOptions> bindings = [] {
        Bindings<LogitOptions> b;
        b.number(IDC_LOGITOPT_CONVERGE, &LogitOptions::converge, kStoredValueLimit)
            .number(IDC_LOGITOPT_TOLERANCE, &LogitOptions::tolerance, kStoredValueLimit)
            .number(IDC_LOGITOPT_START, &LogitOptions::start, kStoredValueLimit)
            .radio({IDC_LOGITOPT_COMPLETE, IDC_LOGITOPT_STEPWISE}, &LogitOptions::estimation)
            .radio({IDC_LOGITOPT_FORWARD, IDC_LOGITOPT_BACKWARD}, &LogitOptions::direction)
            .radio({IDC_LOGITOPT_AUTO, IDC_LOGITOPT_INTERACT}, &LogitOptions::stepping)
            .number(IDC_LOGITOPT_ENTER, &LogitOptions::enter, kStoredValueLimit)
            .number(IDC_LOGITOPT_REMOVE, &LogitOptions::remove, kStoredValueLimit)
            .number(IDC_LOGITOPT_FORCE, &LogitOptions::force, kStoredValueLimit)
            .number(IDC_LOGITOPT_MAXSTEP, &LogitOptions::maxStep, kStoredValueLimit);
        // The stepwise settings count only with stepwise estimation.
        for (int field : {IDC_LOGITOPT_FORWARD, IDC_LOGITOPT_BACKWARD, IDC_LOGITOPT_AUTO, IDC_LOGITOPT_INTERACT,
                          IDC_LOGITOPT_ENTER, IDC_LOGITOPT_REMOVE, IDC_LOGITOPT_FORCE, IDC_LOGITOPT_MAXSTEP})
            b.enableWith(field, IDC_LOGITOPT_STEPWISE);
        return b;
    }();
    return bindings;
}

// Continue marks the options as used in this run of the dialog.
class LogitOptionsDialog : public OptionDialog<LogitOptions> {
public:
    LogitOptionsDialog(LogitOptions& options, bool& used)
        : OptionDialog(options, logitOptionBindings(), kOptionsHelp), used_(used) {}

private:
    void committed() override { used_ = true; }
    bool& used_;
};

// Logit: Categories: the categorical variables and their coding.
class CategoriesDialog : public VariableSubDialog {
public:
    explicit CategoriesDialog(CategorySettings& record)
        : VariableSubDialog(289, kCategoriesHelp, {{IDC_TARGET1, 256}}), record_(record) {}

private:
    static constexpr std::uint32_t kCategoriesHelp = 1217;
    void show(DialogView& view) override {
        showNames(view, IDC_TARGET1, record_.variables);
        view.setChecked(IDC_CATEGORY_EFFECT, record_.coding != IDC_CATEGORY_DUMMY);
        view.setChecked(IDC_CATEGORY_DUMMY, record_.coding == IDC_CATEGORY_DUMMY);
    }
    bool keep(DialogView& view) override {
        record_.variables = listNames(view, IDC_TARGET1);
        record_.coding = view.isChecked(IDC_CATEGORY_DUMMY) ? IDC_CATEGORY_DUMMY : IDC_CATEGORY_EFFECT;
        return true;
    }
    CategorySettings& record_;
};

LogitSettings logitSettings;

class LogitDialog : public ProcedureDialog<LogitSettings> {
public:
    LogitDialog()
        : ProcedureDialog(logitSettings, Bindings<LogitSettings>()
                                             .check(IDC_LOGIT_CONSTANT, &LogitSettings::constant)
                                             .check(IDC_LOGIT_PREDICT, &LogitSettings::predict)
                                             .check(IDC_LOGIT_QML, &LogitSettings::quasiLikelihood)) {}

    std::vector<OwnList> ownLists() override {
        return {{IDC_LOGIT_DEPENDENT, &dependents_, kListCapacity}, {IDC_TARGET3, &conditionals_, kListCapacity}};
    }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(dependents_);
        table.record(conditionals_);
    }

private:
    static constexpr std::int32_t kListCapacity = 256;

    void opened(LogitSettings& settings) override {
        settings.optionsUsed = false;
        settings.choiceUsed = false;
        settings.categoriesUsed = false;
    }

    void changed(DialogContext& context, const Notification& n) override {
        if (!n.clicked(IDC_LOGIT_OPTIONS)) return;
        DialogView& view = context.view;
        PopupRequest request;
        request.owner = view.handle();
        request.menuName = "LogitOptionsPopupMenu";
        request.anchorControl = IDC_LOGIT_OPTIONS;
        switch (ui().popupMenu(request)) {
        case IDM_LOGIT_CATEGORY: {
            CategoriesDialog categories(working_.categories);
            ui().runModal(view.handle(), "LogitCategories", categories);
            if (categories.continued()) working_.categoriesUsed = true;
            break;
        }
        case IDM_LOGIT_CHOICE: {
            SetEditor sets(working_.choice, 289, IDM_LOGIT_CHOICE);
            ui().runModal(view.handle(), "LogitChoice", sets);
            if (!sets.continued()) break;
            working_.choiceUsed = true;
            showSetsInSource(view, IDC_SOURCE, working_.choice.sets);
            break;
        }
        case IDM_LOGIT_ESTIMATION: {
            LogitOptionsDialog options(working_.options, working_.optionsUsed);
            ui().runModal(view.handle(), "LOGITOPTS", options);
            break;
        }
        default: break;
        }
    }

    bool accept(DialogContext& context, int button) override {
        removeSetsFromSource(context.view, IDC_SOURCE);
        return ProcedureDialog::accept(context, button);
    }

    ProcedureBlock compose(const LogitSettings& settings, const DialogView& view) const override {
        LogitSettings s = settings;
        s.constantEnabled = view.isEnabled(IDC_LOGIT_CONSTANT);
        return composeLogit(s, listNames(view, IDC_LOGIT_DEPENDENT), listNames(view, IDC_TARGET1),
                            listNames(view, IDC_TARGET3));
    }

    SelectionArray dependents_{};
    SelectionArray conditionals_{};
};

// The options appender: the estimation line with the options, or the
// stepwise lines that replace it.
void appendOptionLines(Composition& block, CommandText& estimate, const LogitOptions& o) {
    appendOptionUnlessDefault(estimate, text::kConverge, o.converge, text::kDefaultConverge);
    appendOptionUnlessDefault(estimate, text::kTolerance, o.tolerance, text::kDefaultTolerance);
    if (o.estimation != IDC_LOGITOPT_STEPWISE) {
        block.add(estimate);
        return;
    }
    CommandText step(text::kStepwiseStart);
    step.append(o.direction == IDC_LOGITOPT_BACKWARD ? text::kBackward : text::kForward);
    appendOptionUnlessDefault(step, text::kEnter, o.enter, text::kDefaultProbability);
    appendOptionUnlessDefault(step, text::kRemove, o.remove, text::kDefaultProbability);
    appendOption(step, text::kForce, o.force);
    appendOption(step, text::kMaxStep, o.maxStep);
    block.add(step);
    if (o.stepping == IDC_LOGITOPT_AUTO) block.add(text::kStepAuto);
}

}  // namespace

ProcedureBlock composeLogit(const LogitSettings& s, const Names& dependents, const Names& independents,
                            const Names& conditionals) {
    if (dependents.empty()) return ProcedureBlock::refuse(text::kLogit, kvs::text::kSelectVariables);
    const CommandText model = modelLine(dependents, s.constant && s.constantEnabled, independents, conditionals);

    Composition body;
    if (s.choiceUsed) appendChoiceLines(body, s.choice);
    if (s.categoriesUsed) {
        if (const std::string line = categoryLine(s.categories); !line.empty()) body.add(line);
    }
    body.add(model);
    CommandText estimate(text::kEstimate);
    if (s.predict) estimate.append(text::kPredict);
    if (s.quasiLikelihood) estimate.append(text::kQml);
    if (s.optionsUsed) {
        appendOption(estimate, text::kStart, s.options.start);
        appendOptionLines(body, estimate, s.options);
    } else {
        // "ESTIMATE /" with nothing after it loses its slash and reads "ESTIMATE".
        if (estimate.str().ends_with(" /")) {
            estimate.dropLast();
            estimate.dropLast();
        }
        body.add(estimate);
    }
    return {text::kLogit, text::kLogitFile, {}, std::move(body)};
}

void appendChoiceLines(Composition& lines, const ChoiceSets& choice) {
    if (!isBlankText(choice.alternatives)) {
        lines.add(std::string(text::kAlternatives) + choice.alternatives);
        if (!isBlankText(choice.categories)) lines.add(std::string(text::kCategoryCount) + choice.categories);
    }
    for (const NamedSet& set : choice.sets) {
        CommandText line(text::kSet);
        line.append(set.name).append(text::kSetEquals);
        for (const std::string& variable : set.variables) line.append(variable).append(' ');
        lines.add(line);
    }
}

std::string categoryLine(const CategorySettings& c) {
    if (c.variables.empty()) return {};
    CommandText line(text::kCategory);
    joinNames(c.variables, line, ' ');
    line.append(c.coding == IDC_CATEGORY_DUMMY ? text::kDummy : text::kEffect);
    return line.str();
}

Composition hypothesisLines(std::string_view typed) {
    Composition lines;
    if (isBlankText(typed)) return lines;
    lines.add(text::kHypothesis);
    bool continued = false;
    std::string_view rest = typed;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\r');
        std::string_view line = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
        if (!rest.empty() && rest.front() == '\n') rest.remove_prefix(1);
        if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
        if (continued) {
            lines.add(line);
        } else {
            CommandText constrain(text::kConstrain);
            constrain.appendCut(line);
            lines.add(constrain);
        }
        continued = !line.empty() && line.back() == ',';
    }
    lines.add(text::kTestLine);
    return lines;
}

DialogBehaviour& logitBehaviour() { return soleInstance<LogitDialog>(); }
DialogBehaviour& logitHypothesisBehaviour() { return soleInstance<HypothesisDialog<text::kLogit>>(); }

}  // namespace kvs::stats
