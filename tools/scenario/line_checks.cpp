#include "tools/scenario/line_checks.h"

namespace kvs::scenario {

std::string commandLineFault(std::string_view line, std::size_t capacity) {
    if (line.size() + 1 > capacity) return "longer than its buffer";
    if (!line.empty() && line.back() == '=') return "ends in a keyword without its value";
    if (line.find("**") != std::string_view::npos) return "holds \"**\"";
    // Quotes open and close in turn; inside one kind the other is text.
    char open = 0;
    for (const char c : line) {
        if (open == 0 && (c == '\'' || c == '"')) open = c;
        else if (c == open) open = 0;
    }
    if (open != 0) return "leaves a quoted text open";
    return {};
}

}  // namespace kvs::scenario
