// The builders of the log-linear model dialogs (252 the model, 282 the
// table) as pure functions: the settings and the table's factors give the
// LOGLIN block's lines, or the refusal.
#pragma once

#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/loglin_ids.h"

namespace kvs::stats {

// LogLinear Model: the terms (blank: the main effects), what it prints (the
// fit and the lambdas unless the user asks otherwise), the estimation
// values and what the saved file holds.
struct LoglinSettings {
    std::string terms;
    bool observed = false;
    bool expected = false;
    bool standardized = false;
    bool lambdas = true;
    bool chiSquare = true;
    std::string convergence = "0.0001";
    std::string likelihood = "0.000001";
    std::string tolerance = "0.001";
    std::string iterations;
    std::string halvings;
    std::string delta;
    int saved = IDC_LOGLIN_ESTIMATES;  // or IDC_LOGLIN_LAMBDAS
};

// ["PRINT NONE/ EXPECT LAMBDA" when the print differs from the fit and the
// lambdas], "MODEL a*b*c = a+b+c" (or the terms typed), "ESTIMATE / CONV=v
// ..." with each value that is not its default; the SAVE qualifier " /
// LAMBDAS" or " / ESTIMATES".
ProcedureBlock composeLoglin(const LoglinSettings& settings, const Names& factors);
// "TABULATE a*b*c".
ProcedureBlock composeLoglinTabulate(const Names& factors);

}  // namespace kvs::stats
