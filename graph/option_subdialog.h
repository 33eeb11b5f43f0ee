// Running an option sub-dialog for a graph dialog: the record of the graph
// type's code (or none), the sub-dialog's title and template, its lists and
// colour buttons; OK keeps the values and marks the record set.
#pragma once

#include "core/seam.h"

namespace kvs::graph {

// What the sub-dialog needs to know of the dialog that opened it.
struct ParentState {
    int dialogId = 0;
    WindowRef window = 0;
    // The scatterplot's W-variables list takes one name when the parent
    // holds repeated trials, matrix columns, a mirror, or several Y or Z
    // variables.
    bool oneWVariable = false;
};

// Opens the sub-dialog of code; true when it was closed with OK and a
// record of the parent's type was stored and marked.
bool runOptionDialog(const ParentState& parent, int code);

}  // namespace kvs::graph
