// The graph font: the font chooser the option dialogs' font buttons call,
// and the two menu commands behind it, the graph font (150) and the default
// graph font (153).
#pragma once

#include <cstdint>

#include "core/seam.h"
#include "include/kvs_platform.h"

namespace kvs::graph {

// Runs the system font dialog at Arial 12 point (the rest from the last
// choice). On OK keeps the choice, with the height of lfDefKvgFont and no
// fixed width, and returns true; on Cancel changes nothing.
bool chooseGraphFont(WindowRef owner);

// The chooser's last choice; all zero until the first.
const KvsLogFont& chosenFont();

// Command 150: the font chooser; on OK its choice becomes lfKvgFont.
// Command 153: lfKvgFont (and the chooser's record) back to lfDefKvgFont.
void runFontCommand(std::uint16_t commandId, WindowRef owner);

// The chooser's record back to zero, as at load.
void resetFontChooser();

}  // namespace kvs::graph
