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

std::string dialogLine(std::string_view caption) { return "dialog " + quote(caption); }

std::string messageLine(std::string_view caption, std::string_view icon, std::string_view text) {
    return "message " + quote(caption) + " " + std::string(icon) + " " + quote(text);
}

std::string chooserLine(bool save, std::string_view title, std::string_view shownName) {
    return std::string("chooser ") + (save ? "save " : "open ") + quote(title) + " " + quote(shownName);
}

std::string fontChooserLine(std::string_view title, std::string_view face, std::string_view points,
                            std::string_view okText) {
    return "fontchooser " + quote(title) + " " + quote(face) + " " + std::string(points) + " " + quote(okText);
}

std::string helpContextLine(std::string_view file, unsigned long context) {
    return "help " + quote(file) + " context " + std::to_string(context);
}
std::string helpContentsLine(std::string_view file) { return "help " + quote(file) + " contents"; }
std::string helpKeyLine(std::string_view file, std::string_view key) {
    return "help " + quote(file) + " key " + quote(key);
}
std::string helpOnHelpLine(std::string_view file) { return "help " + quote(file) + " helponhelp"; }
std::string htmlHelpContextLine(std::string_view file, unsigned long context) {
    return "help " + quote(file) + " html context " + std::to_string(context);
}
std::string htmlHelpContentsLine(std::string_view file) { return "help " + quote(file) + " html contents"; }
std::string htmlHelpKeyLine(std::string_view file, std::string_view key) {
    return "help " + quote(file) + " html key " + quote(key);
}

std::string errorLine(std::string_view what) { return "error " + quote(what); }

}  // namespace kvs::scenario
