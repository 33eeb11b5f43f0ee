// The builders of the table dialogs (266 one-way, 267 two-way, 253
// multiway) as pure functions: the settings and the names in the lists give
// the XTAB block's lines, or the refusal.
#pragma once

#include <cstdint>
#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/tables_ids.h"

namespace kvs::stats {

// What a table prints (the counts alone unless the user asks for more), its
// layout and missing values, and the multiway Mantel-Haenszel test.
struct TableSettings {
    bool counts = true;
    bool percents = false;
    bool rowPercents = false;
    bool columnPercents = false;
    bool expected = false;
    bool deviates = false;
    bool standardized = false;
    bool chiSquare = false;
    bool listLayout = false;
    bool missing = false;
    bool mantel = false;
    std::string confidence = "0.95";  // written with the Mantel-Haenszel test, unless default
};

// ["PRINT NONE/ FREQ CHISQ" when the statistics differ from the counts
// alone], then "TABULATE a b" (266), "TABULATE r1 r2 * c1 c2" (267) or
// "TABULATE a*b*c" (253), with " / LIST MISS MANTEL CONFI=v" as chosen.
ProcedureBlock composeTables(std::uint16_t commandId, const TableSettings& settings, const Names& variables,
                             const Names& columns);

}  // namespace kvs::stats
