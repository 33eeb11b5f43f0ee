// The builders of Probit (291), Two Stage Least Squares (294), the GLM
// pairwise comparisons (260) and hypothesis tests (261, 262), Nonlinear
// Model (223), Loss (224) and Survival (292) as pure functions: settings and
// the names in the lists give the block's lines or its refusal.
#pragma once

#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/estimate_ids.h"
#include "stats/stats_composers.h"

namespace kvs::stats {

// Probit and TSLS: the estimate-model dialog's own settings.
struct EstimateSettings {
    bool constant = true;
    bool robust = false;  // TSLS: heteroskedasticity-consistent errors
};
// "MODEL y = CONSTANT+a+b", "ESTIMATE".
ProcedureBlock composeProbit(const EstimateSettings& settings, const Names& dependent, const Names& independents);
// "MODEL y = CONSTANT+a+b / CONSTANT +z1+z2", "ESTIMATE" or "ESTIMATE / HC".
ProcedureBlock composeTsls(const EstimateSettings& settings, const Names& dependent, const Names& independents,
                           const Names& instruments);

// GLM: Pairwise Comparisons: the test by its radio button.
struct PairwiseSettings {
    int test = IDC_POST_BONFERRONI;
};
// "HYPOTHESIS", "POST a / TUKEY", ["DEPEND y1 y2" when the comparisons are
// restricted to some dependents], "TEST".
ProcedureBlock composePairwise(const PairwiseSettings& settings, const Names& factor, const Names& dependents = {});

// Nonlinear Model.
struct NonlinSettings {
    std::string equation;                 // the right side of the model
    int method = IDC_NONLIN_GAUSS;        // or IDC_NONLIN_SIMPLEX, IDC_NONLIN_QUASI
    int save = 0;                         // entry of the save box, 0 to 6
    std::string saveValue;                // after "RS=", "CI=", "CR="
    std::string confidence = "0.95";      // after " CONFI=" (confidence region)
    bool saving = false;                  // "Save file" is checked (not remembered)
};
// " / " and the save box's keyword, with its values.
std::string nonlinSaveQualifier(const NonlinSettings& settings);
// "MODEL y = equation", "ESTIMATE" [" / SIMPLEX" | " / QUASI"].
ProcedureBlock composeNonlin(const NonlinSettings& settings, const Names& dependent);

// Loss: least squares ("LOSS") or the function typed ("LOSS = ...").
struct LossSettings {
    int kind = IDC_LOSS_LEAST_SQUARES;  // or IDC_LOSS_FUNCTION
    std::string equation;
};
ProcedureBlock composeLoss(const LossSettings& settings);

// Survival: Estimate Model. The covariates list may hold "*" entries, the
// time-dependent covariates kept as named sets; the sets' maximum time is
// the record's categories text.
struct SurvivalSettings {
    bool lifeTable = false;
    ChoiceSets covariates;  // the sets, and in categories the maximum time
};
struct SurvivalLists {
    Names time, covariates, censor, lower, strata;
};
// ["SET TDC1 = a1 a2 " for each set the model uses], "MODEL t = a+TDC1 /
// CENSOR=c, LOWER=l, STRATA=s, TMAX=m" (the maximum time with a set),
// "ESTIMATE" (with covariates), ["LTAB"].
ProcedureBlock composeSurvival(const SurvivalSettings& settings, const SurvivalLists& lists);

}  // namespace kvs::stats
