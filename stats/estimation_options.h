// The estimation options of the linear models (GLM and ANOVA, Regression,
// Discriminant Analysis), GLM's repeated measures and the discriminant
// statistics: the records that last from one run of a dialog to the next,
// the sub-dialogs that edit them, and the pure composers of their lines.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/dialog_defaults.h"
#include "core/join_names.h"
#include "core/seam.h"

namespace kvs::stats {

enum class EstimationKind { Glm, Regression, Discriminant };

// An option text that comes into being, holding its default, the first time
// its sub-dialog is shown; until then it is absent and counts as its default.
using StoredText = std::optional<std::string>;

// One options record. The choices are those Continue committed.
struct EstimationOptions {
    bool stepwise = false;    // "Complete" or "Stepwise"
    bool forward = false;     // "Forward" or "Backward"
    bool automatic = true;    // "Automatic" or "Interactive"
    bool fStatistic = false;  // criterion: "Probability" or "F-Statistic"
    bool mixture = false;     // GLM and Regression only
    StoredText tolerance, enter, remove, fenter, fremove, force, maxStep;
};

// The estimation line ("ESTIMATE / ..." or "START / ...") and, for automatic
// stepping, the line after it; second is empty when there is none.
struct EstimationLines {
    std::string estimate;
    std::string second;
};
EstimationLines composeEstimation(EstimationKind kind, const EstimationOptions& options);

// Repeated measures: up to four factors, each a name, its levels and a
// metric, and the dependents they were set up for.
struct RepeatedFactor {
    StoredText name, levels, metric;
};
struct RepeatedMeasures {
    bool perform = false;
    std::array<RepeatedFactor, 4> factors{};
    Names dependents;  // the Dependent list when Continue was pressed
};
// "/ REPEAT =3(1, 2, 4),NAMES='Time'"; empty while repeated measures are off.
std::string repeatedClause(const RepeatedMeasures& measures);

// Discriminant Analysis: Statistics: the 21 check boxes in PRINT order.
inline constexpr std::size_t kDiscriminantStatistics = 21;
struct DiscriminantStatistics {
    std::array<bool, kDiscriminantStatistics> print{};
};
// "PRINT NONE / FMATRIX ..."; empty when no box is checked.
std::string printLine(const DiscriminantStatistics& statistics);

// The records, one each; ANOVA shares GLM's options and repeated measures.
EstimationOptions& estimationOptions(EstimationKind kind);
RepeatedMeasures& repeatedMeasures();
DiscriminantStatistics& discriminantStatistics();

// A procedure dialog keeps what a record was as it opened; Cancel gives the
// choices and flags back. Texts are kept by reference: one changed through
// Continue keeps its value, one first made in the cancelled run is dropped.
void restoreCancelled(EstimationOptions& record, const EstimationOptions& opened);
void restoreCancelled(RepeatedMeasures& record, const RepeatedMeasures& opened);

// Runs the sub-dialogs modally over owner; true after Continue.
bool runEstimationOptions(WindowRef owner, EstimationKind kind);
bool runRepeatedMeasures(WindowRef owner, const Names& dependents);
bool runDiscriminantStatistics(WindowRef owner);

// The records' rows of the defaults table (ReinitDialogs forgets them all).
void addEstimationDefaults(DefaultsTable& table, EstimationKind kind);
void addRepeatedMeasuresDefaults(DefaultsTable& table);
void addDiscriminantStatisticsDefaults(DefaultsTable& table);

}  // namespace kvs::stats
