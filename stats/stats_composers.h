// The statistics builders as pure functions: a dialog's settings and the
// names in its lists give its command block (the lines after the procedure
// and SAVE lines) or the refusal. deliverBlock() is the step after them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/stats_ids.h"

namespace kvs::stats {

// The t-tests: 256 two-sample, 257 paired, 258 one-sample.
struct TtestSettings {
    bool bonferroni = false;
    bool dunnSidak = false;
    std::string confidence = ".95";
    std::string mean;  // one-sample only
};
ProcedureBlock composeTtest(std::uint16_t commandId, const TtestSettings& settings, const Names& variables,
                            const Names& grouping);

// Logit: Options, as Continue leaves it.
struct LogitOptions {
    std::string converge = "1.0e-6";
    std::string tolerance = "1.0e-12";
    int estimation = IDC_LOGITOPT_COMPLETE;  // or IDC_LOGITOPT_STEPWISE
    int direction = IDC_LOGITOPT_FORWARD;    // or IDC_LOGITOPT_BACKWARD
    int stepping = IDC_LOGITOPT_AUTO;        // or IDC_LOGITOPT_INTERACT
    std::string enter = "0.15";
    std::string remove = "0.15";
    std::string force;
    std::string maxStep;
    std::string start;  // " START=" when given
};

// A named set of variables (the discrete-choice sets, survival's
// time-dependent covariates): its name, its variables, and a value kept
// with it.
struct NamedSet {
    std::string name;
    Names variables;
    int value = 0;
};

// Logit: Discrete Choice, as Continue leaves it.
struct ChoiceSets {
    std::vector<NamedSet> sets;
    std::string alternatives;  // the alternatives variable, or empty
    std::string categories;    // the number of categories, or empty
};
// "ALT name", "NCAT=n" and a "SET name = a b " line a set.
void appendChoiceLines(Composition& lines, const ChoiceSets& choice);

// Logit: Categories, as Continue leaves it.
struct CategorySettings {
    Names variables;
    int coding = IDC_CATEGORY_EFFECT;  // or IDC_CATEGORY_DUMMY
};
// "CATEGORY a b / EFFECT" (or "/ DUMMY"); empty without variables.
std::string categoryLine(const CategorySettings& categories);

// Logit: Estimate Model (289).
struct LogitSettings {
    bool constant = true;
    bool constantEnabled = true;
    bool predict = false;
    bool quasiLikelihood = false;
    bool optionsUsed = false;  // the options sub-dialog was closed with OK in this run
    LogitOptions options;
    bool choiceUsed = false;   // the discrete-choice sub-dialog was closed with Continue in this run
    ChoiceSets choice;
    bool categoriesUsed = false;
    CategorySettings categories;
};
ProcedureBlock composeLogit(const LogitSettings& settings, const Names& dependents, const Names& independents,
                            const Names& conditionals);

// Logit: Deciles of Risk (298).
struct DecilesSettings {
    bool smart = false;
    std::string groups;
};
ProcedureBlock composeDeciles(const DecilesSettings& settings);

// Logit: Quantiles (299) and Simulation (300): the values the user listed.
struct ValueListSettings {
    Names values;
};
ProcedureBlock composeQuantiles(const Names& variable, const ValueListSettings& settings);
ProcedureBlock composeSimulation(const ValueListSettings& settings);

// The lines of a hypothesis text (Logit: Hypothesis, 290): "HYPOTHESIS", a
// "CONSTRAIN " line a line (a line after one ending in "," continues it),
// "TEST". An empty text composes nothing and is refused without a message.
Composition hypothesisLines(std::string_view text);

}  // namespace kvs::stats
