// Scenario files: statements that drive the library as a host and a user
// would. This is the parsed form; running it is a backend's business.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvs::scenario {

struct Token {
    std::string text;
    bool quoted = false;
};

struct Statement {
    int line = 0;
    std::string keyword;
    std::vector<Token> args;

    // The arguments after the first `skip` as plain texts.
    std::vector<std::string> texts(std::size_t skip = 0) const;
};

struct ParseResult {
    std::vector<Statement> statements;
    std::vector<std::string> errors;  // "line N: ..."
};

// Splits a scenario into statements. '#' outside quotes starts a comment;
// strings are double-quoted with \" \\ \r \n \t escapes.
ParseResult parse(std::string_view source);

// A whole number, or nothing.
// 64 bits on every platform, so "start 4294967295" reads alike natively and under Wine.
std::optional<long long> toNumber(const std::string& text);

}  // namespace kvs::scenario
