// Reordering the entries of a target list: Move Up and Move Down, and a drag
// that drops a list's selected entries elsewhere in the same list.
#pragma once

#include <vector>

#include "core/seam.h"

namespace kvs {

// The new order of a list of count entries, as the old index of each new
// position, and where the moved entries end up.
struct Reordering {
    std::vector<int> order;
    std::vector<int> moved;  // new positions of the selected entries, ascending
};

// The selected entries (ascending, distinct, below count) taken out and put
// back together before the entry that stood at position at (count or more:
// at the end), in their order.
Reordering moveSelectionTo(int count, const std::vector<int>& selected, int at);

// Each selected entry moved one place up (step -1) or down (step +1) past
// the unselected entry beside it; a run of selected entries that already
// touches that end of the list stays where it is.
Reordering moveSelectionBy(int count, const std::vector<int>& selected, int step);

// Whether moveSelectionBy would move anything.
bool canMoveSelectionBy(int count, const std::vector<int>& selected, int step);

// Puts the list's entries in the new order and selects the moved entries.
// Only the entries whose text changes are rewritten.
void applyReordering(DialogView& view, int listId, const Reordering& reordering);

}  // namespace kvs
