// Sort, Rank and Transpose: one line each from the names of target list 10.
#pragma once

#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"

namespace kvs::data {

DialogBehaviour& sortBehaviour();
DialogBehaviour& rankBehaviour();
DialogBehaviour& transposeBehaviour();
// The remembered sort order.
void addSortDefaults(DefaultsTable& table);

}  // namespace kvs::data
