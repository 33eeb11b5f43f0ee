// The graph family's rows and family-wide routines, for the library's
// composition root.
#pragma once

#include "core/dispatch_table.h"

namespace kvs::graph {
FamilyTable family();
}
