#include <cstddef>

#include "win32/graph_resources.h"
#include "win32/pattern_block.h"

namespace kvs::win32 {

namespace {

HGLOBAL block = nullptr;

static_assert(sizeof(BITMAPINFOHEADER) == kPatternHeaderSize);
static_assert(offsetof(BITMAPINFOHEADER, biPlanes) == 12 && offsetof(BITMAPINFOHEADER, biBitCount) == 14);
// Header, two colour entries and 8 rows of 4 bytes.
static_assert(kPatternHeaderSize + 2 * sizeof(RGBQUAD) + 8 * 4 == kPatternBlockSize);

}  // namespace

void allocatePatternBlock() {
    block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, kPatternBlockSize);
    if (!block) return;
    if (auto* bytes = static_cast<unsigned char*>(GlobalLock(block))) {
        writePatternBlock(bytes);
        GlobalUnlock(block);
    }
}

HGLOBAL patternBlock() { return block; }

}  // namespace kvs::win32
