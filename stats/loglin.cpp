// The log-linear model dialogs: LogLinear Model (252) writes the model of a
// table with its print and estimation options; Loglinear Model: Tabulate
// (282) tabulates the factors.
#include <algorithm>
#include <iterator>

#include "core/blank_text.h"
#include "core/messages.h"
#include "stats/line_endings.h"
#include "stats/loglin_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

// The model's terms hold what a line of the model takes.
constexpr std::size_t kTermsLimit = 255;

// The PRINT line when what the model prints is not the fit and the lambdas.
void addPrintLine(Composition& body, const LoglinSettings& s) {
    const LoglinSettings standard;
    const bool prints[] = {s.observed, s.expected, s.standardized, s.lambdas, s.chiSquare};
    const bool defaults[] = {standard.observed, standard.expected, standard.standardized, standard.lambdas,
                             standard.chiSquare};
    if (std::equal(std::begin(prints), std::end(prints), std::begin(defaults))) return;
    CommandText line(text::kLoglinPrintNone);
    for (std::size_t i = 0; i < std::size(prints); ++i)
        if (prints[i]) line.append(text::kLoglinPrints[i]);
    line.stripTrailing('/');
    body.add(line);
}

}  // namespace

ProcedureBlock composeLoglin(const LoglinSettings& s, const Names& factors) {
    if (factors.empty()) return ProcedureBlock::refuse(text::kLoglin, kvs::text::kSelectVariables);
    Composition body;
    addPrintLine(body, s);
    CommandText model(text::kModel);
    joinNames(factors, model, '*');
    model.append(text::kEquals);
    if (isBlankText(s.terms)) joinNames(factors, model, '+');
    else model.appendCut(withoutBlanks(s.terms));
    body.add(model);
    CommandText estimate(text::kEstimatePlain);
    estimate.append(text::kOptionsSlash);
    appendOptionUnlessDefault(estimate, text::kConvergence, s.convergence, text::kDefaultConv);
    appendOptionUnlessDefault(estimate, text::kLconv, s.likelihood, text::kDefaultLconv);
    appendOptionUnlessDefault(estimate, text::kTolerance, s.tolerance, text::kDefaultLoglinTol);
    appendOption(estimate, text::kIterations, s.iterations);
    appendOption(estimate, text::kHalvings, s.halvings);
    appendOption(estimate, text::kDelta, s.delta);
    closeOptions(estimate);
    body.add(estimate);
    const std::string_view qualifier =
        s.saved == IDC_LOGLIN_LAMBDAS ? text::kLambdasQualifier : text::kEstimatesQualifier;
    return {text::kLoglin, text::kLoglinFile, std::string(qualifier), std::move(body)};
}

ProcedureBlock composeLoglinTabulate(const Names& factors) {
    if (factors.empty()) return ProcedureBlock::refuse(text::kLoglin, kvs::text::kSelectVariables);
    CommandText line(text::kTabulate);
    joinNames(factors, line, '*');
    return {text::kLoglin, {}, {}, Composition().add(line)};
}

namespace {

Bindings<LoglinSettings> loglinBindings() {
    Bindings<LoglinSettings> b;
    b.text(IDC_LOGLIN_TERMS, &LoglinSettings::terms, kTermsLimit)
        .check(IDC_LOGLIN_OBSERVED, &LoglinSettings::observed)
        .check(IDC_LOGLIN_EXPECTED, &LoglinSettings::expected)
        .check(IDC_LOGLIN_STANDARD, &LoglinSettings::standardized)
        .check(IDC_LOGLIN_LAMBDA, &LoglinSettings::lambdas)
        .check(IDC_LOGLIN_CHISQ, &LoglinSettings::chiSquare)
        .number(IDC_LOGLIN_CONV, &LoglinSettings::convergence, kStoredValueLimit)
        .number(IDC_LOGLIN_LCONV, &LoglinSettings::likelihood, kStoredValueLimit)
        .number(IDC_LOGLIN_TOL, &LoglinSettings::tolerance, kStoredValueLimit)
        .number(IDC_LOGLIN_ITER, &LoglinSettings::iterations, kStoredValueLimit)
        .number(IDC_LOGLIN_HALF, &LoglinSettings::halvings, kStoredValueLimit)
        .number(IDC_LOGLIN_DELTA, &LoglinSettings::delta, kStoredValueLimit)
        .radio({IDC_LOGLIN_ESTIMATES, IDC_LOGLIN_LAMBDAS}, &LoglinSettings::saved);
    return b;
}

class LoglinDialog : public ProcedureDialog<LoglinSettings> {
public:
    LoglinDialog() : ProcedureDialog(settings(), loglinBindings()) {}

private:
    static LoglinSettings& settings() {
        static LoglinSettings remembered;
        return remembered;
    }
    // What the file holds is asked while the file is saved.
    void shown(DialogView& view) override {
        const bool saving = view.isChecked(IDC_SAVEFILE);
        view.enable(IDC_LOGLIN_ESTIMATES, saving);
        view.enable(IDC_LOGLIN_LAMBDAS, saving);
    }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.clicked(IDC_SAVEFILE)) shown(context.view);
    }
    ProcedureBlock compose(const LoglinSettings& s, const DialogView& view) const override {
        return composeLoglin(s, listNames(view, IDC_TARGET1));
    }
};

struct NoSettings {};

class LoglinTabulateDialog : public ProcedureDialog<NoSettings> {
public:
    LoglinTabulateDialog() : ProcedureDialog(settings(), {}) {}

private:
    static NoSettings& settings() {
        static NoSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const NoSettings&, const DialogView& view) const override {
        return composeLoglinTabulate(listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& loglinBehaviour() { return soleInstance<LoglinDialog>(); }
DialogBehaviour& loglinTabulateBehaviour() { return soleInstance<LoglinTabulateDialog>(); }

}  // namespace kvs::stats
