// One row per graph dialog: what differs between the twenty.
#pragma once

#include <array>
#include <span>

#include "core/composition.h"
#include "core/seam.h"
#include "graph/graph_composers.h"
#include "graph/option_forms.h"

namespace kvs::graph {

// What a builder reads besides the controls: the graph's settings that have
// no control of their own.
struct GraphExtras {
    bool transposed = false;   // the 2-D axes menu's "Transpose X-Y axes"
    Names wVariables;          // the triangular coordinates' W-variables, when shown
};

struct GraphSpec {
    int id;
    std::array<int, 4> buttons;          // option buttons, 0 where there are fewer
    std::span<const int> codes;          // option records, in the builder's order
    std::span<const FormField> fields;   // the dialog's own remembered controls
    std::span<const ComboEntries> combos;
    Composition (*compose)(int id, const DialogView& view, const GraphExtras& extras, const OptionSource& options);
};

const GraphSpec* graphSpec(int id);

// The lists of a graph dialog by role.
inline constexpr int kXList = 10, kYList = 11, kZList = 252, kGroupList = 253;
// The high-low dialog's lists.
inline constexpr int kHiLoGroupList = 10, kHighList = 11, kLowList = 252, kCloseList = 253, kHiLoXList = 53;

}  // namespace kvs::graph
