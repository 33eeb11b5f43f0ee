// The builder of Design of Experiments (281) as a pure function: the
// settings give the DESIGN block's line, or the refusal.
#pragma once

#include <string>

#include "core/procedure_block.h"
#include "resources/design_ids.h"

namespace kvs::stats {

struct DesignSettings {
    int design = IDC_DOE_FULL;  // IDC_DOE_FULL to IDC_DOE_TAGUCHI
    std::string factors;
    std::string levels = "2";
    std::string runs;
    std::string replications = "1";
    int array = 0;  // the Taguchi array, by its place in the Array box
    bool randomize = false;
    bool letters = false;
    bool blocks = false;
    bool squares = false;  // Latin squares only
};

// Which size fields a design takes.
bool designTakesFactors(int design);
bool designTakesLevels(int design);
bool designTakesRuns(int design);

// "FACTORIAL / FACTORS=3 LEVELS=3 RUNS=9 REPS=2 RAND LETTERS BLOCK",
// "LATIN / LEVELS=4 SQUARES", "PLACKETT / RUNS=12", "BOXBEHNKEN /
// FACTORS=3", "TAGUCHI / TYPE=L8"; a size the design needs left blank is
// refused.
ProcedureBlock composeDesign(const DesignSettings& settings);

}  // namespace kvs::stats
