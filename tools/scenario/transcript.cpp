#include "tools/scenario/transcript.h"

namespace kvs::scenario {

std::string quote(std::string_view text) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size() + 2);
    out += '"';
    for (char c : text) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\r': out += "\\r"; break;
        case '\n': out += "\\n"; break;
        case '\t': out += "\\t"; break;
        default: {
            const auto byte = static_cast<unsigned char>(c);
            if (byte < 0x20 || byte == 0x7F) {
                out += "\\x";
                out += kHex[byte >> 4];
                out += kHex[byte & 0xF];
            } else {
                out += c;
            }
        }
        }
    }
    out += '"';
    return out;
}

std::string quoteOrNull(const char* text) { return text ? quote(text) : std::string("null"); }

}  // namespace kvs::scenario
