#include "stats/stored_options.h"

#include "core/blank_text.h"

namespace kvs::stats {

bool appendOption(CommandText& line, std::string_view keyword, std::string_view value, bool quote) {
    if (isBlankText(value)) return false;
    const std::size_t before = line.size();
    {
        const CommandText::Piece piece(line);
        line.append(keyword);
        if (quote) {
            const char mark = value.find('"') == std::string_view::npos ? '"' : '\'';
            line.append(mark).append(value).append(mark);
        } else {
            line.append(value);
        }
    }
    return line.size() > before;
}

bool appendOptionUnlessDefault(CommandText& line, std::string_view keyword, std::string_view value,
                               std::string_view defaultValue) {
    if (value == defaultValue) return false;
    return appendOption(line, keyword, value);
}

}  // namespace kvs::stats
