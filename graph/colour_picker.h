// The colour picker: a modal grid of 64 colour values and a value field.
#pragma once

#include "core/seam.h"

namespace kvs::graph {

inline constexpr std::uint32_t kColourPickerHelp = 898;

// On OK stores the chosen value (0 to 1) through colour and returns 1; on
// Cancel, or when the template cannot be shown, leaves it and returns 0.
int runColourPicker(WindowRef owner, float* colour);

}  // namespace kvs::graph
