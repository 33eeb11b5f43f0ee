// The graph palette and the pattern block the load notification builds,
// checked without windows.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "win32/palette_sweep.h"
#include "win32/pattern_block.h"

namespace kvs::win32 {
namespace {

TEST(PaletteSweep, RunsFromBlueThroughGreenToRed) {
    EXPECT_EQ(sweepColour(0.0), (PaletteColour{0, 0, 255, 0}));
    EXPECT_EQ(sweepColour(0.25), (PaletteColour{0, 255, 255, 0}));
    EXPECT_EQ(sweepColour(0.5), (PaletteColour{0, 255, 0, 0}));
    EXPECT_EQ(sweepColour(0.75), (PaletteColour{255, 255, 0, 0}));
    EXPECT_EQ(sweepColour(1.0), (PaletteColour{255, 0, 0, 0}));
}

TEST(PaletteSweep, ClampsOutsideTheUnitInterval) {
    EXPECT_EQ(sweepColour(-0.5), sweepColour(0.0));
    EXPECT_EQ(sweepColour(7.0), sweepColour(1.0));
}

TEST(PaletteSweep, IsSmoothAndFullyBright) {
    // Neighbouring steps of the 162-step sweep differ a little in each channel,
    // and one channel is always at full strength.
    for (int k = 0; k < 162; ++k) {
        const PaletteColour a = sweepColour(k / 162.0);
        const PaletteColour b = sweepColour((k + 1) / 162.0);
        EXPECT_LE(std::abs(a.red - b.red), 7) << k;
        EXPECT_LE(std::abs(a.green - b.green), 7) << k;
        EXPECT_LE(std::abs(a.blue - b.blue), 7) << k;
        EXPECT_TRUE(a.red == 255 || a.green == 255 || a.blue == 255) << k;
    }
}

TEST(GraphPalette, HasTwelveFixedColoursThenReservedGreensThenTheSweep) {
    constexpr auto colours = graphPaletteColours();
    static_assert(colours.size() == 236);
    for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(colours[i].flags, 0) << i;

    for (int k = 1; k <= 62; ++k) {
        const PaletteColour& c = colours[11 + static_cast<std::size_t>(k)];
        EXPECT_EQ(c.red, 0) << k;
        EXPECT_EQ(c.blue, 0) << k;
        EXPECT_EQ(c.green, static_cast<int>(k * 4.047619)) << k;
        EXPECT_EQ(c.flags, kPaletteReserved) << k;
    }
    EXPECT_EQ(colours[12].green, 4);
    EXPECT_EQ(colours[73].green, 250);

    for (std::size_t k = 0; k < 162; ++k) EXPECT_EQ(colours[74 + k], sweepColour(k / 162.0)) << k;
    // The sweep stops before t reaches 1: the last entry is not pure red.
    EXPECT_NE(colours.back(), sweepColour(1.0));
}

TEST(PatternBlock, IsAnEightByEightMonochromeBitmapHeader) {
    std::array<unsigned char, kPatternBlockSize> block;
    block.fill(0xCD);
    writePatternBlock(block.data());
    const std::array<unsigned char, 16> header = {40, 0, 0, 0, 8, 0, 0, 0, 8, 0, 0, 0, 1, 0, 1, 0};
    for (std::size_t i = 0; i < header.size(); ++i) EXPECT_EQ(block[i], header[i]) << "byte " << i;
    for (std::size_t i = header.size(); i < block.size(); ++i) EXPECT_EQ(block[i], 0) << "byte " << i;
}

}  // namespace
}  // namespace kvs::win32
