// The graph dialogs: one behaviour for all twenty, each graph type described
// by a row of graph_specs.cpp (its option buttons, its remembered controls,
// the option codes it keeps records for and the reading that turns the
// dialog into its builder's state).
#pragma once

#include "core/dialog_behaviour.h"

namespace kvs::graph {

// The behaviour of the graph dialog with this id (a graph id of the table).
DialogBehaviour& graphBehaviour(int graphId);

template <int GraphId>
DialogBehaviour& graphBehaviourOf() {
    return graphBehaviour(GraphId);
}

}  // namespace kvs::graph
