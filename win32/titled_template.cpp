#include "win32/titled_template.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace kvs::win32 {

namespace {

constexpr std::size_t kPlainHeader = 18;     // DLGTEMPLATE
constexpr std::size_t kExtendedHeader = 26;  // DLGTEMPLATEEX up to cy

std::uint16_t wordAt(const std::uint8_t* data, std::size_t at) {
    std::uint16_t word = 0;
    std::memcpy(&word, data + at, sizeof word);
    return word;
}

// The offset after a zero-terminated UTF-16 string, or 0 past the end.
std::size_t afterString(const std::uint8_t* data, std::size_t size, std::size_t at) {
    for (; at + 2 <= size; at += 2)
        if (wordAt(data, at) == 0) return at + 2;
    return 0;
}

// The offset after a menu or class field: none, an ordinal or a string.
std::size_t afterNameOrOrdinal(const std::uint8_t* data, std::size_t size, std::size_t at) {
    if (at + 2 > size) return 0;
    const std::uint16_t first = wordAt(data, at);
    if (first == 0) return at + 2;
    if (first == 0xFFFF) return at + 4 <= size ? at + 4 : 0;
    return afterString(data, size, at);
}

std::size_t alignedToDword(std::size_t at) { return (at + 3) & ~std::size_t{3}; }

std::wstring wideText(std::string_view text) {
    if (text.empty()) return {};
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    if (length <= 0) return {};
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), length);
    return wide;
}

}  // namespace

std::vector<std::uint8_t> titledTemplate(const std::uint8_t* resource, std::size_t size, std::string_view caption) {
    if (!resource || size < kPlainHeader) return {};
    const bool extended = wordAt(resource, 0) == 1 && wordAt(resource, 2) == 0xFFFF;
    if (extended && size < kExtendedHeader) return {};
    DWORD style = 0;
    std::memcpy(&style, resource + (extended ? 12 : 0), sizeof style);
    std::size_t at = extended ? kExtendedHeader : kPlainHeader;
    at = afterNameOrOrdinal(resource, size, at);  // menu
    if (at) at = afterNameOrOrdinal(resource, size, at);  // class
    const std::size_t titleStart = at;
    if (at) at = afterString(resource, size, at);  // title
    const std::size_t titleEnd = at;
    if (at && (style & DS_SETFONT)) {
        at += extended ? 6 : 2;  // point size (weight, italic, charset)
        at = at <= size ? afterString(resource, size, at) : 0;
    }
    if (!at) return {};
    const std::size_t fontEnd = at;
    const std::size_t itemsStart = std::min(alignedToDword(fontEnd), size);

    const std::wstring title = wideText(caption);
    std::vector<std::uint8_t> copy(resource, resource + titleStart);
    const auto* titleBytes = reinterpret_cast<const std::uint8_t*>(title.c_str());
    copy.insert(copy.end(), titleBytes, titleBytes + (title.size() + 1) * sizeof(wchar_t));
    copy.insert(copy.end(), resource + titleEnd, resource + fontEnd);
    copy.resize(alignedToDword(copy.size()), 0);
    copy.insert(copy.end(), resource + itemsStart, resource + size);
    return copy;
}

}  // namespace kvs::win32
