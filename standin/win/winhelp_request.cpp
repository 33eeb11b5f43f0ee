#include "standin/win/winhelp_request.h"

#include "tools/scenario/transcript.h"

namespace kvs::standin {

namespace {

constexpr std::size_t kHeaderSize = 16;
constexpr unsigned kHelpContext = 0x0001, kHelpContents = 0x0003, kHelpOnHelp = 0x0004;
constexpr unsigned kHelpKey = 0x0101, kHelpPartialKey = 0x0105;

unsigned word(const unsigned char* at) { return static_cast<unsigned>(at[0] | (at[1] << 8)); }

std::uint32_t dword(const unsigned char* at) {
    return static_cast<std::uint32_t>(at[0]) | static_cast<std::uint32_t>(at[1]) << 8 |
           static_cast<std::uint32_t>(at[2]) << 16 | static_cast<std::uint32_t>(at[3]) << 24;
}

// The NUL-terminated text at offset, cut at the end of the block.
std::string textAt(const unsigned char* block, std::size_t size, std::size_t offset) {
    std::string text;
    for (std::size_t i = offset; i < size && block[i] != 0; ++i) text += static_cast<char>(block[i]);
    return text;
}

}  // namespace

std::optional<std::string> winHelpLine(const unsigned char* block, std::size_t size) {
    if (!block || size < kHeaderSize) return std::nullopt;
    const std::size_t declared = word(block);
    if (declared < kHeaderSize) return std::nullopt;
    if (declared < size) size = declared;
    const unsigned command = word(block + 2);
    const std::size_t fileOffset = word(block + 12);
    const std::string file = fileOffset >= kHeaderSize ? textAt(block, size, fileOffset) : std::string();

    switch (command) {
    case kHelpContext: return scenario::helpContextLine(file, dword(block + 4));
    case kHelpContents: return scenario::helpContentsLine(file);
    case kHelpOnHelp: return scenario::helpOnHelpLine(file);
    case kHelpKey:
    case kHelpPartialKey: {
        const std::size_t keyOffset = word(block + 14);
        return scenario::helpKeyLine(file, keyOffset >= kHeaderSize ? textAt(block, size, keyOffset) : "");
    }
    default: return "help " + scenario::quote(file) + " command " + std::to_string(command);  // a request the library never makes
    }
}

std::string htmlHelpBlock(unsigned command, std::uint32_t data, const std::string& file, const std::string& key) {
    std::string block;
    for (std::uint32_t value : {static_cast<std::uint32_t>(command), data})
        for (int shift = 0; shift < 32; shift += 8) block += static_cast<char>((value >> shift) & 0xFFu);
    block += file;
    block += '\0';
    block += key;
    block += '\0';
    return block;
}

std::optional<std::string> htmlHelpLine(const unsigned char* block, std::size_t size) {
    constexpr std::size_t kHtmlHeader = 8;
    constexpr unsigned kToc = 0x0001, kIndex = 0x0002, kContext = 0x000F;
    if (!block || size < kHtmlHeader) return std::nullopt;
    const std::string file = textAt(block, size, kHtmlHeader);
    switch (dword(block)) {
    case kContext: return scenario::htmlHelpContextLine(file, dword(block + 4));
    case kToc: return scenario::htmlHelpContentsLine(file);
    case kIndex: return scenario::htmlHelpKeyLine(file, textAt(block, size, kHtmlHeader + file.size() + 1));
    default: return "help " + scenario::quote(file) + " html command " + std::to_string(dword(block));
    }
}

}  // namespace kvs::standin
