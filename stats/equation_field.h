// The equation field of Nonlinear Model and Loss: the functions a function
// plot offers, the operators, and the chosen variable of the source list,
// each inserted at the caret (replacing the selected text).
#pragma once

#include <string_view>

#include "core/dialog_behaviour.h"
#include "core/seam.h"
#include "graph/function_catalogue.h"

namespace kvs::stats {

using graph::kEquationFunctions;
using graph::kEquationOperators;

// Fills the function and operator lists.
void fillEquationLists(DialogView& view);
// Handles a click on an insert button or a double click in a list; true
// when the notification was one of these.
bool equationNotified(DialogView& view, const Notification& n);
// Insert buttons enabled while their list has a choice and the field is.
void updateEquationButtons(DialogView& view);

}  // namespace kvs::stats
