// The launcher that every variable dialog goes through: the one-dialog
// rule, first-use allocation of the selection arrays, and the modal run.
#pragma once

#include "core/descriptor.h"
#include "core/seam.h"

namespace kvs {

// Runs a row's template under the generic dialog procedure. Returns 1 when
// the dialog ended with OK, 0 otherwise. A sub-dialog is one opened from a
// library dialog; it is not refused by the one-dialog rule.
int launchDialog(const DispatchRow& row, Descriptor& descriptor, WindowRef owner, bool subDialog = false);
// The same for the registered dialog id; 0 when there is none.
int launchDialog(std::uint16_t id, WindowRef owner, bool subDialog = false);

}  // namespace kvs
