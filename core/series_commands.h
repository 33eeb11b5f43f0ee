// The series commands that queue lines without a dialog: 242 "CLEAR",
// 245 "MISSING=DELETE" and 246 "MISSING=INTERPOLATE".
#pragma once

#include <cstdint>

namespace kvs {
void runSeriesCommand(std::uint16_t commandId);
}
