#include <cstddef>

#include "win32/graph_resources.h"
#include "win32/palette_sweep.h"

namespace kvs::win32 {

namespace {

HPALETTE palette = nullptr;
bool paletteCreated = false;

// LOGPALETTE declares one entry itself; 8 + 236 * 4 = 952 bytes.
constexpr SIZE_T kPaletteBytes = sizeof(LOGPALETTE) + kPaletteSize * sizeof(PALETTEENTRY);
static_assert(kPaletteBytes == 952);
static_assert(PC_RESERVED == kPaletteReserved);

}  // namespace

void createGraphPalette() {
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, kPaletteBytes);
    if (!block) return;
    auto* logical = static_cast<LOGPALETTE*>(GlobalLock(block));
    if (logical) {
        logical->palVersion = 0x300;
        logical->palNumEntries = static_cast<WORD>(kPaletteSize);
        // palPalEntry is declared with one element; the block holds all 236.
        PALETTEENTRY* entries = logical->palPalEntry;
        const auto colours = graphPaletteColours();
        for (std::size_t i = 0; i < colours.size(); ++i)
            entries[i] = PALETTEENTRY{colours[i].red, colours[i].green, colours[i].blue, colours[i].flags};
        palette = CreatePalette(logical);
        paletteCreated = palette != nullptr;
        GlobalUnlock(block);
    }
    GlobalFree(block);
}

void deleteGraphPalette() {
    if (!paletteCreated) return;
    DeleteObject(palette);
    palette = nullptr;
    paletteCreated = false;
}

HPALETTE graphPalette() { return palette; }

}  // namespace kvs::win32
