#include "data/composers.h"

#include "data/data_texts.h"

namespace kvs::data {

bool composeNote(const TextLines& lines, CommandText& line) {
    if (isBlank(lines[0])) return false;
    line.append(text::kNote);
    appendQuoted(line, lines[0]);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (isBlank(lines[i])) continue;
        line.append(',');
        appendQuoted(line, lines[i]);
    }
    return true;
}

void composePageTitle(const TextLines& titles, bool off, CommandText& line) {
    std::size_t used = 0;  // titles up to the last non-blank one
    for (std::size_t i = 0; i < titles.size(); ++i)
        if (!isBlank(titles[i])) used = i + 1;
    if (off || used == 0) {
        line.append(text::kPageTitleOff);
        return;
    }
    line.append(text::kPageTitle);
    for (std::size_t i = 0; i < used; ++i) {
        if (i > 0) line.append(',');
        if (isBlank(titles[i])) line.append(text::kEmptyTitle);
        else appendQuoted(line, titles[i]);
    }
}

std::vector<std::string_view> programLines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find('\r', start);
        const std::string_view piece = text.substr(start, end == std::string_view::npos ? end : end - start);
        if (!piece.empty()) lines.push_back(piece);
        if (end == std::string_view::npos) break;
        start = end + 1;
        if (start < text.size() && text[start] == '\n') ++start;
    }
    return lines;
}

}  // namespace kvs::data
