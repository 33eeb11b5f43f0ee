// The data family's rows and family-wide routines, for the library's
// composition root.
#pragma once

#include <cstdint>

#include "core/dispatch_table.h"

namespace kvs::data {

// Merge's key selection: a dialog with a row but no menu entry.
inline constexpr std::uint16_t kKeySelectionId = 91;

FamilyTable family();

}  // namespace kvs::data
