// The graph palette's colours as plain numbers, free of windows.h so that
// the native tests check them. graph_palette.cpp copies them into the GDI
// palette built at load.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace kvs::win32 {

struct PaletteColour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t flags = 0;
    friend constexpr bool operator==(const PaletteColour&, const PaletteColour&) = default;
};

inline constexpr std::uint8_t kPaletteReserved = 0x01;  // PC_RESERVED

inline constexpr std::size_t kFixedColours = 12;
inline constexpr std::size_t kGreenRamp = 62;
inline constexpr std::size_t kSweepColours = 162;
inline constexpr std::size_t kPaletteSize = kFixedColours + kGreenRamp + kSweepColours;  // 236

namespace detail {

constexpr std::uint8_t channel(double fraction) {
    if (fraction <= 0.0) return 0;
    if (fraction >= 1.0) return 255;
    return static_cast<std::uint8_t>(fraction * 255.0 + 0.5);
}

}  // namespace detail

// The colour scale of the graph dialogs: t = 0 is blue, then cyan, green,
// yellow, and t = 1 is red (the hue wheel from 240 down to 0 degrees at full
// saturation and value). t outside 0..1 is clamped.
constexpr PaletteColour sweepColour(double t) {
    if (!(t > 0.0)) t = 0.0;
    if (t > 1.0) t = 1.0;
    const double h = 4.0 * (1.0 - t);  // 4 = blue, 2 = green, 0 = red
    PaletteColour c;
    if (h >= 3.0) {         // blue -> cyan
        c.green = detail::channel(4.0 - h);
        c.blue = 255;
    } else if (h >= 2.0) {  // cyan -> green
        c.green = 255;
        c.blue = detail::channel(h - 2.0);
    } else if (h >= 1.0) {  // green -> yellow
        c.red = detail::channel(2.0 - h);
        c.green = 255;
    } else {                // yellow -> red
        c.red = 255;
        c.green = detail::channel(h);
    }
    return c;
}

// The 236 entries in palette order: 12 fixed colours, 62 reserved greens
// (green = k * 255/63 truncated, k = 1..62), then the sweep at t = k/162.
constexpr std::array<PaletteColour, kPaletteSize> graphPaletteColours() {
    constexpr PaletteColour fixed[kFixedColours] = {
        {0, 0, 0, 0},       {255, 255, 255, 0}, {255, 0, 0, 0},     {0, 255, 0, 0},
        {0, 0, 255, 0},     {255, 255, 0, 0},   {255, 0, 255, 0},   {0, 255, 255, 0},
        {128, 0, 0, 0},     {0, 128, 0, 0},     {0, 0, 128, 0},     {128, 128, 128, 0},
    };
    std::array<PaletteColour, kPaletteSize> colours{};
    std::size_t at = 0;
    for (const PaletteColour& c : fixed) colours[at++] = c;
    for (std::size_t k = 1; k <= kGreenRamp; ++k)
        colours[at++] = {0, static_cast<std::uint8_t>(static_cast<int>(static_cast<double>(k) * 4.047619)), 0,
                         kPaletteReserved};
    // Computed from the step index rather than by adding 1/162 repeatedly,
    // so rounding can never add a 163rd entry.
    for (std::size_t k = 0; k < kSweepColours; ++k)
        colours[at++] = sweepColour(static_cast<double>(k) / static_cast<double>(kSweepColours));
    return colours;
}

}  // namespace kvs::win32
