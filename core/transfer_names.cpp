#include "core/transfer_names.h"

namespace kvs {

std::string labelWords(std::string_view label) {
    std::string words;
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == '&') {
            if (i + 1 < label.size() && label[i + 1] == '&') words += '&';
            ++i;
            if (i < label.size() && label[i] != '&') words += label[i];
            continue;
        }
        words += label[i];
    }
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!words.empty() && (blank(words.back()) || words.back() == ':')) words.pop_back();
    std::size_t start = 0;
    while (start < words.size() && blank(words[start])) ++start;
    return words.substr(start);
}

std::string addButtonName(std::string_view label) {
    const std::string words = labelWords(label);
    return words.empty() ? std::string() : "Add to " + words;
}

std::string removeButtonName(std::string_view label) {
    const std::string words = labelWords(label);
    return words.empty() ? std::string() : "Remove from " + words;
}

std::string moveButtonName(bool up, std::string_view label) {
    const std::string words = labelWords(label);
    if (words.empty()) return {};
    return (up ? "Move up in " : "Move down in ") + words;
}

std::vector<std::pair<int, std::string>> transferButtonNames(std::span<const ListTransferRow> rows,
                                                             const std::function<bool(const ListTransferRow&)>& used,
                                                             const std::function<std::string(int)>& labelOf) {
    std::vector<std::pair<int, std::string>> names;
    for (const ListTransferRow& row : rows) {
        if (!used(row)) continue;
        const std::string label = labelOf(row.targetList);
        std::string add = addButtonName(label);
        if (add.empty()) continue;
        names.emplace_back(row.addButton, std::move(add));
        names.emplace_back(row.removeButton, removeButtonName(label));
    }
    return names;
}

}  // namespace kvs
