// What the load notification prepares for the graph dialogs: the 236-entry
// logical palette of the colour cells and the 80-byte pattern block.
#pragma once

#include <windows.h>

namespace kvs::win32 {

// Builds the palette; on failure it is simply absent.
void createGraphPalette();
// Deletes the palette if it was created.
void deleteGraphPalette();
// The palette, or null when it could not be made.
HPALETTE graphPalette();

// Allocates the pattern block (see pattern_block.h); it lives as long as the
// process. Null when the allocation failed.
void allocatePatternBlock();
HGLOBAL patternBlock();

}  // namespace kvs::win32
