#include "data/quote_file_name.h"

namespace kvs::data {

bool isBlankName(std::string_view name) { return name.find_first_not_of(' ') == std::string_view::npos; }

int quoteFileName(std::string_view name, std::string_view prefix, bool quote, bool keepText, CommandText& out) {
    if (!keepText) out.clear();
    if (isBlankName(name)) return 0;
    out.append(prefix);
    const char mark = name.find('"') == std::string_view::npos ? '"' : '\'';
    if (quote) out.append(mark);
    out.append(name);
    if (quote) out.append(mark);
    return 1;
}

}  // namespace kvs::data
