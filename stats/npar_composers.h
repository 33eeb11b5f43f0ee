// The builders of the nonparametric tests (226 to 231, 268) as pure
// functions: the test's settings and the names in its lists give the one
// line of its NPAR block, or the refusal.
#pragma once

#include <cstdint>
#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/npar_ids.h"

namespace kvs::stats {

// What the tests keep besides their lists: the runs test's cut point and
// the one-sample Kolmogorov-Smirnov test's distribution with its parameters.
struct NparSettings {
    std::string cut;  // empty: the test's own split
    int distribution = IDC_KS_NORMAL;  // or IDC_KS_UNIFORM, IDC_KS_EXPONENTIAL, IDC_KS_LILLIEFORS
    std::string mean = "0";
    std::string sd = "1";
    std::string lower = "0";
    std::string upper = "1";
    std::string scale = "1";
};

// "FRIEDMAN a b c" (226), "KS a b * g" (227), "KRUSKAL a b * g" (228),
// "SIGN a b" (229), "RUNS a /CUT=v" (230), "WILCOXON a b" (231),
// "KS a * g / NORMAL=m,s" (268).
ProcedureBlock composeNpar(std::uint16_t commandId, const NparSettings& settings, const Names& variables,
                           const Names& grouping);

}  // namespace kvs::stats
