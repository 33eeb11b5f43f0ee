// The series commands that queue lines without a dialog: 242 "CLEAR",
// 245 "MISSING=DELETE" and 246 "MISSING=INTERPOLATE".
#pragma once

#include <cstdint>

#include "core/seam.h"

namespace kvs {
// owner: the host window whose title names the module switch.
void runSeriesCommand(std::uint16_t commandId, WindowRef owner);
}

namespace kvs::stats {
// Whether a series dialog has pushed its line since the library was loaded.
bool seriesCommandIssued();
}
