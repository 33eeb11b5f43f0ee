// How a scenario label matches a control's text, as the headless dialogs
// match it: mnemonic markers removed ("&Save" -> "Save", "&&" -> "&") and
// surrounding blanks ignored.
#pragma once

#include <string>
#include <string_view>

namespace kvs::standin {

inline std::string labelText(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '&') out += text[i];
        else if (i + 1 < text.size()) out += text[++i];
    }
    const auto first = out.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    return out.substr(first, out.find_last_not_of(" \t") - first + 1);
}

}  // namespace kvs::standin
