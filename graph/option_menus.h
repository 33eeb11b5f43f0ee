// The option buttons of the graph dialogs (and the statistics dialogs that
// reuse them): the popup menu each opens, or the sub-dialog it opens at once,
// and the states of the menu's items for the dialog as it stands.
#pragma once

#include <string_view>
#include <vector>

#include "core/seam.h"

namespace kvs::graph {

// The menu resource of an option button in dialogId's dialog; empty when the
// button opens a sub-dialog at once or is not an option button.
std::string_view popupMenuOf(int buttonId, int dialogId);
// The option code a button opens at once, or 0.
int directCodeOf(int buttonId, int dialogId);

// What the item states depend on.
struct MenuFacts {
    int dialogId = 0;
    bool zVariables = false;      // the Z list holds a variable (or the 3-D histogram)
    bool wVariables = false;      // the triangular coordinates show W-variables
    // Whether the file has a variable whose name ends in "$": asked only by
    // the case-labels menu, since the answer reads every name.
    bool (*characterVariable)() = nullptr;
    bool transposed = false;      // the graph's transpose setting
};

std::vector<PopupItemState> menuItemStates(int buttonId, const MenuFacts& facts);

}  // namespace kvs::graph
