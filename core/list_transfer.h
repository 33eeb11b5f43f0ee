// Add and Remove: moving names between a dialog's source lists and its
// target lists, within each target's capacity.
#pragma once

#include <functional>

#include "core/seam.h"
#include "resources/list_transfer.h"

namespace kvs {

// The capacity of a target list in the running dialog (0: the list is not used).
using TargetCapacity = std::function<int(int targetId)>;

// The source list that serves a row in this dialog.
int sourceListOf(const DialogView& view, const ListTransferRow& row);

// Handles a command of a source list, target list, Add or Remove button;
// false when controlId is none of these.
bool handleListTransfer(DialogView& view, int controlId, int notifyCode, const TargetCapacity& capacity,
                        ListInsert how);

// What dropping the selection of list from onto list to does: Add when from
// is the source of target to, Remove when from is a target and to its
// source, a reorder when both are the same target; None for any other pair,
// or where the button that does the same is disabled.
enum class ListDrop { None, Add, Remove, Reorder };
ListDrop listDropOf(const DialogView& view, int from, int to, const TargetCapacity& capacity);

// Whether a drag may start in this list: a source or target list in use.
bool canDragFrom(const DialogView& view, int listId, const TargetCapacity& capacity);

// Carries out a drop of from's selection onto to, before position at of
// to (at to's count or more: at the end); false when the drop does nothing.
bool handleListDrop(DialogView& view, int from, int to, int at, const TargetCapacity& capacity, ListInsert how);

// The Delete key in a target list: Remove, when the Remove button would;
// false when listId is no target list or nothing was removed.
bool handleListDelete(DialogView& view, int listId, const TargetCapacity& capacity);

// Enables each Add button when its source has a selection and each Remove
// button when its target has one.
void updateTransferButtons(DialogView& view, const TargetCapacity& capacity);

}  // namespace kvs
