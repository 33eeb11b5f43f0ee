// The 80-byte block the load notification prepares for the graph dialogs.
// Read as a packed device-independent bitmap it is exactly an 8 x 8
// monochrome pattern: a 40-byte BITMAPINFOHEADER (biSize 40, biWidth 8,
// biHeight 8, biPlanes 1, biBitCount 1, the rest 0), two RGBQUAD colour
// entries (8 bytes) and eight rows of 1-bit pixels padded to 4 bytes (32
// bytes). Everything after the header starts as zero. The layout is written
// here byte by byte (little endian) so that native tests can check it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace kvs::win32 {

inline constexpr std::size_t kPatternBlockSize = 80;
inline constexpr std::size_t kPatternHeaderSize = 40;

namespace detail {

constexpr void putLittleEndian(unsigned char* at, std::uint32_t value, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i) at[i] = static_cast<unsigned char>(value >> (8 * i));
}

}  // namespace detail

// Writes the block's initial contents into the kPatternBlockSize bytes at block.
constexpr void writePatternBlock(unsigned char* block) {
    for (std::size_t i = 0; i < kPatternBlockSize; ++i) block[i] = 0;
    detail::putLittleEndian(block + 0, kPatternHeaderSize, 4);  // biSize
    detail::putLittleEndian(block + 4, 8, 4);                   // biWidth
    detail::putLittleEndian(block + 8, 8, 4);                   // biHeight
    detail::putLittleEndian(block + 12, 1, 2);                  // biPlanes
    detail::putLittleEndian(block + 14, 1, 2);                  // biBitCount
}

}  // namespace kvs::win32
