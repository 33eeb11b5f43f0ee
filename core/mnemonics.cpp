#include "core/mnemonics.h"

#include <cctype>

namespace kvs {

void collectMnemonic(std::string_view text, std::string& used) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] == '&') {
            ++i;
            continue;
        }
        used.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(text[i + 1]))));
        return;
    }
}

std::string withFreeMnemonic(const DialogView& view, std::string_view text, std::string_view taken) {
    std::string used;
    for (char c : taken) used.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    for (const ControlLayout& control : view.layout()) collectMnemonic(control.text, used);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (!std::isalpha(c) || used.find(static_cast<char>(std::tolower(c))) != std::string::npos) continue;
        std::string marked(text.substr(0, i));
        marked += '&';
        marked += text.substr(i);
        return marked;
    }
    return std::string(text);
}

}  // namespace kvs
