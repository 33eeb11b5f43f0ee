#include "data/text_pieces.h"

namespace kvs::data {

namespace {

char quoteMarkFor(std::string_view text) { return text.find('"') == std::string_view::npos ? '"' : '\''; }

}  // namespace

bool isBlank(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

std::string bounded(std::string_view text, std::size_t limit) { return std::string(text.substr(0, limit)); }

std::string quoted(std::string_view text) {
    const char mark = quoteMarkFor(text);
    std::string out;
    out.reserve(text.size() + 2);
    out += mark;
    out += text;
    out += mark;
    return out;
}

void appendQuoted(CommandText& line, std::string_view text) {
    const char mark = quoteMarkFor(text);
    const CommandText::Piece piece(line);
    line.append(mark).append(text).append(mark);
}

int quoteFileName(std::string_view name, std::string_view prefix, bool quote, bool keepText, CommandText& out) {
    if (!keepText) out.clear();
    if (isBlank(name)) return 0;
    out.append(prefix);
    if (quote) appendQuoted(out, name);
    else out.append(name);
    return 1;
}

}  // namespace kvs::data
