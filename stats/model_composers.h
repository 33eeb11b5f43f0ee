// The builders of the linear models as pure functions: ANOVA (218), GLM
// (219), Regression (221) and Discriminant Analysis (222). The block is
// [CATEGORY line (ANOVA), COVAR line (ANOVA with covariates)], MODEL line [+
// repeated-measures clause (ANOVA, GLM), "/ QUAD" (Discriminant)], [PRINT
// line (Discriminant)], the estimation line and its second line, [EXIT];
// the procedure and SAVE lines come from deliverBlock.
#pragma once

#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "stats/estimation_options.h"

namespace kvs::stats {

// The estimate-model dialog's own settings.
struct ModelSettings {
    bool constant = true;
    bool constantEnabled = true;
    std::string cases;    // Regression: the number of cases, asked for a matrix file
    bool matrix = false;  // the file in use is a matrix
    bool missingCategory = false;  // ANOVA: missing values form a category of each factor ("/MISS")
    bool quadratic = false;        // Discriminant: quadratic functions ("/ QUAD")
    bool exit = false;             // leave the module when the estimation is done ("EXIT")
    Names covariates;              // ANOVA: the covariates, taken from their list at OK
};

// ANOVA (218) and GLM (219): the independents of ANOVA are its factors.
ProcedureBlock composeGlm(std::uint16_t commandId, const ModelSettings& settings, const EstimationOptions& options,
                          const RepeatedMeasures& measures, const Names& dependents, const Names& independents);
ProcedureBlock composeRegression(const ModelSettings& settings, const EstimationOptions& options,
                                 const Names& dependents, const Names& independents);
ProcedureBlock composeDiscriminant(const ModelSettings& settings, const EstimationOptions& options,
                                   const DiscriminantStatistics& statistics, const Names& dependents,
                                   const Names& independents);

}  // namespace kvs::stats
