#include "tools/scenario/scenario.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace kvs::scenario {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// Reads a quoted string starting at text[pos] == '"'. Returns false on an
// unterminated string or an unknown escape.
bool readQuoted(std::string_view text, std::size_t& pos, std::string& out, std::string& error) {
    ++pos;
    while (pos < text.size()) {
        const char c = text[pos++];
        if (c == '"') return true;
        if (c != '\\') {
            out += c;
            continue;
        }
        if (pos >= text.size()) break;
        switch (text[pos++]) {
        case '"': out += '"'; break;
        case '\\': out += '\\'; break;
        case 'r': out += '\r'; break;
        case 'n': out += '\n'; break;
        case 't': out += '\t'; break;
        case 'x': {  // \xHH, as transcripts write other control bytes
            unsigned value = 0;
            const auto [end, ec] = std::from_chars(text.data() + pos, text.data() + std::min(pos + 2, text.size()), value, 16);
            if (ec != std::errc() || end != text.data() + pos + 2) {
                error = "unknown escape in string";
                return false;
            }
            out += static_cast<char>(value);
            pos += 2;
            break;
        }
        default: error = "unknown escape in string"; return false;
        }
    }
    error = "unterminated string";
    return false;
}

}  // namespace

std::vector<std::string> Statement::texts(std::size_t skip) const {
    std::vector<std::string> out;
    for (std::size_t i = skip; i < args.size(); ++i) out.push_back(args[i].text);
    return out;
}

ParseResult parse(std::string_view source) {
    ParseResult result;
    int lineNumber = 0;
    std::size_t start = 0;
    while (start <= source.size()) {
        std::size_t end = source.find('\n', start);
        if (end == std::string_view::npos) end = source.size();
        const std::string_view line = source.substr(start, end - start);
        ++lineNumber;
        start = end + 1;

        std::vector<Token> tokens;
        std::string error;
        std::size_t pos = 0;
        while (pos < line.size()) {
            if (isBlank(line[pos])) {
                ++pos;
            } else if (line[pos] == '#') {
                break;
            } else if (line[pos] == '"') {
                Token token{{}, true};
                if (!readQuoted(line, pos, token.text, error)) break;
                tokens.push_back(std::move(token));
            } else {
                Token token;
                while (pos < line.size() && !isBlank(line[pos]) && line[pos] != '"' && line[pos] != '#')
                    token.text += line[pos++];
                tokens.push_back(std::move(token));
            }
        }
        if (!error.empty()) {
            result.errors.push_back("line " + std::to_string(lineNumber) + ": " + error);
            continue;
        }
        if (tokens.empty()) continue;
        if (tokens.front().quoted) {
            result.errors.push_back("line " + std::to_string(lineNumber) + ": a statement starts with a keyword");
            continue;
        }
        Statement statement;
        statement.line = lineNumber;
        statement.keyword = tokens.front().text;
        tokens.erase(tokens.begin());
        statement.args = std::move(tokens);
        result.statements.push_back(std::move(statement));
        if (end == source.size()) break;
    }
    return result;
}

std::optional<long long> toNumber(const std::string& text) {
    long long value = 0;
    const char* first = text.data();
    const char* last = first + text.size();
    if (first != last && *first == '+') ++first;
    auto [ptr, ec] = std::from_chars(first, last, value);
    if (ec != std::errc() || ptr != last || first == last) return std::nullopt;
    return value;
}

}  // namespace kvs::scenario
