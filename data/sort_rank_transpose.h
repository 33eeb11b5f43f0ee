// Sort, Rank and Transpose: one line each from the names of target list 10.
#pragma once

#include "core/dialog_behaviour.h"

namespace kvs::data {

DialogBehaviour& sortBehaviour();
DialogBehaviour& rankBehaviour();
DialogBehaviour& transposeBehaviour();
void resetSortDefaults();

}  // namespace kvs::data
