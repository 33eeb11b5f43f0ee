// Texts of blanks: a value of blanks is no value, and a typed number is
// written without the blanks around it.
#pragma once

#include <string_view>

namespace kvs {

inline bool isBlankText(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

inline std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace kvs
