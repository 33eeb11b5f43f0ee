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

// Enables each Add button when its source has a selection and each Remove
// button when its target has one.
void updateTransferButtons(DialogView& view, const TargetCapacity& capacity);

}  // namespace kvs
