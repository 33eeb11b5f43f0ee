#include "headless/rc_template.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <set>
#include <stdexcept>
#include <utility>

namespace kvs::headless {
namespace {

// The style bits the reader applies itself. They are fixed by the resource
// compiler, not taken from the headers being read.
constexpr std::uint32_t kWsPopup = 0x80000000u;
constexpr std::uint32_t kWsChild = 0x40000000u;
constexpr std::uint32_t kWsVisible = 0x10000000u;
constexpr std::uint32_t kWsDisabled = 0x08000000u;
constexpr std::uint32_t kWsCaption = 0x00C00000u;
constexpr std::uint32_t kWsBorder = 0x00800000u;
constexpr std::uint32_t kWsSysMenu = 0x00080000u;
constexpr std::uint32_t kWsGroup = 0x00020000u;
constexpr std::uint32_t kWsTabStop = 0x00010000u;
constexpr std::uint32_t kDsSetFont = 0x40u;
constexpr std::uint32_t kLbsNotify = 0x0001u;
constexpr std::uint32_t kLbsSort = 0x0002u;
constexpr std::uint32_t kLbsMultipleSel = 0x0008u;
constexpr std::uint32_t kLbsExtendedSel = 0x0800u;
constexpr std::uint32_t kCbsSimple = 0x0001u;
constexpr std::uint32_t kCbsDropDownList = 0x0003u;
constexpr std::uint32_t kCbsSort = 0x0100u;
constexpr std::uint32_t kEsMultiline = 0x0004u;
constexpr std::uint32_t kMftSeparator = 0x0800u;
constexpr std::uint32_t kMfsDisabled = 0x0003u;
constexpr std::uint32_t kMfsChecked = 0x0008u;

enum : std::uint32_t {
    kBsPushButton = 0, kBsDefPushButton = 1, kBsCheckBox = 2, kBsAutoCheckBox = 3,
    kBsRadioButton = 4, kBs3State = 5, kBsAuto3State = 6, kBsGroupBox = 7,
    kBsAutoRadioButton = 9, kBsOwnerDraw = 0xB,
};

// Bounds that turn hostile input into errors instead of exhausted memory or stack.
constexpr std::size_t kMaxTokens = 500'000;
constexpr std::size_t kMaxMacroDepth = 64;
constexpr int kMaxExpressionDepth = 200;
constexpr int kMaxIncludeDepth = 64;
constexpr int kMaxMenuDepth = 32;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isAlpha(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isNameChar(char c) { return isAlpha(c) || isDigit(c) || c == '_'; }
char toUpper(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }

std::string upperCase(std::string_view s) {
    std::string out(s);
    for (char& c : out) c = toUpper(c);
    return out;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return toUpper(x) == toUpper(y); });
}

bool endsWithNoCase(std::string_view s, std::string_view tail) {
    return s.size() >= tail.size() && equalsNoCase(s.substr(s.size() - tail.size()), tail);
}

std::string_view baseName(std::string_view path) {
    const auto slash = path.find_last_of("/\\");
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

[[noreturn]] void fail(const std::string& file, int line, const std::string& message) {
    throw std::runtime_error(file + ":" + std::to_string(line) + ": " + message);
}

// ---------------------------------------------------------------------------
// Tokens

enum class Tok { End, Name, Number, String, Punct, Newline, Invalid };

struct Token {
    Tok kind = Tok::End;
    std::string text;          // name, punctuator, decoded string, number as written, or error
    std::uint32_t value = 0;   // of a Number
    int file = 0;              // index into the stream's file names
    int line = 0;
    bool spaceBefore = false;  // whitespace or a comment precedes it on its line
};

bool isPunct(const Token& t, std::string_view p) { return t.kind == Tok::Punct && t.text == p; }
bool isKeyword(const Token& t, std::string_view k) { return t.kind == Tok::Name && equalsNoCase(t.text, k); }

std::string describe(const Token& t) {
    switch (t.kind) {
    case Tok::End: return "end of file";
    case Tok::Newline: return "end of line";
    case Tok::Invalid: return t.text;
    case Tok::String: return "\"" + t.text + "\"";
    default: return "'" + t.text + "'";
    }
}

// Decimal or 0x hex, with any u/U/l/L suffix; 32-bit wrap-around like the
// resource compiler's arithmetic.
std::optional<std::uint32_t> parseNumber(std::string_view raw) {
    while (!raw.empty() && std::string_view("uUlL").find(raw.back()) != std::string_view::npos) {
        raw.remove_suffix(1);
    }
    std::uint32_t base = 10;
    if (raw.size() > 2 && raw[0] == '0' && (raw[1] == 'x' || raw[1] == 'X')) {
        base = 16;
        raw.remove_prefix(2);
    }
    if (raw.empty()) return std::nullopt;
    std::uint32_t value = 0;
    for (char c : raw) {
        std::uint32_t digit = 0;
        if (isDigit(c)) digit = static_cast<std::uint32_t>(c - '0');
        else if (base == 16 && toUpper(c) >= 'A' && toUpper(c) <= 'F') digit = static_cast<std::uint32_t>(toUpper(c) - 'A' + 10);
        else return std::nullopt;
        value = value * base + digit;
    }
    return value;
}

class Lexer {
public:
    Lexer(std::string_view text, int file, std::string fileName)
        : s_(text), file_(file), fileName_(std::move(fileName)) {}

    // Every token of the file, Newline tokens included, ending with End.
    std::vector<Token> run() {
        std::vector<Token> out;
        for (;;) {
            const bool space = skipBlanks();
            if (pos_ >= s_.size()) break;
            out.push_back(nextToken());
            out.back().spaceBefore = space;
            if (out.size() > kMaxTokens) fail(fileName_, line_, "file too large");
        }
        out.push_back(make(Tok::End, ""));
        return out;
    }

private:
    std::string_view s_;
    std::size_t pos_ = 0;
    int line_ = 1;
    int file_;
    std::string fileName_;

    bool at(std::size_t ahead, char c) const { return pos_ + ahead < s_.size() && s_[pos_ + ahead] == c; }

    Token make(Tok kind, std::string text, std::uint32_t value = 0) const {
        Token t;
        t.kind = kind;
        t.text = std::move(text);
        t.value = value;
        t.file = file_;
        t.line = line_;
        return t;
    }

    bool continuation() const { return at(0, '\\') && (at(1, '\n') || (at(1, '\r') && at(2, '\n'))); }

    // Skips blanks, comments and backslash-newline; true if it skipped any.
    bool skipBlanks() {
        const std::size_t start = pos_;
        while (pos_ < s_.size()) {
            const char c = s_[pos_];
            if (c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v') {
                ++pos_;
            } else if (continuation()) {
                pos_ += at(1, '\r') ? 3 : 2;
                ++line_;
            } else if (c == '/' && at(1, '/')) {
                while (pos_ < s_.size() && s_[pos_] != '\n') ++pos_;
            } else if (c == '/' && at(1, '*')) {
                skipBlockComment();
            } else {
                break;
            }
        }
        return pos_ != start;
    }

    void skipBlockComment() {
        const int startLine = line_;
        pos_ += 2;
        while (pos_ < s_.size() && !(s_[pos_] == '*' && at(1, '/'))) {
            if (s_[pos_] == '\n') ++line_;
            ++pos_;
        }
        if (pos_ >= s_.size()) fail(fileName_, startLine, "unterminated comment");
        pos_ += 2;
    }

    Token nextToken() {
        const char c = s_[pos_];
        if (c == '\n') {
            Token t = make(Tok::Newline, "");
            ++pos_;
            ++line_;
            return t;
        }
        if (c == '"' || (c == 'L' && at(1, '"'))) return lexString();
        if (isDigit(c)) return lexNumber();
        if (isAlpha(c) || c == '_') return lexName();
        return lexPunct();
    }

    // "" is a literal quote; \" \\ \n \t \r \a are escapes; any other
    // backslash stays as written ("C:\DATA").
    Token lexString() {
        if (s_[pos_] == 'L') ++pos_;
        ++pos_;
        std::string text;
        while (pos_ < s_.size() && s_[pos_] != '\n') {
            const char c = s_[pos_++];
            if (c == '"') {
                if (!at(0, '"')) return make(Tok::String, std::move(text));
                text += '"';
                ++pos_;
            } else if (c == '\\' && pos_ < s_.size() && s_[pos_] != '\n') {
                appendEscape(text, s_[pos_++]);
            } else {
                text += c;
            }
        }
        return make(Tok::Invalid, "unterminated string");
    }

    static void appendEscape(std::string& text, char c) {
        switch (c) {
        case '"': text += '"'; break;
        case '\\': text += '\\'; break;
        case 'n': text += '\n'; break;
        case 't': text += '\t'; break;
        case 'r': text += '\r'; break;
        case 'a': text += '\a'; break;
        default: text += '\\'; text += c; break;
        }
    }

    Token lexNumber() {
        const std::size_t start = pos_;
        while (pos_ < s_.size() && isNameChar(s_[pos_])) ++pos_;
        const std::string raw(s_.substr(start, pos_ - start));
        const auto value = parseNumber(raw);
        if (!value) return make(Tok::Invalid, "bad number '" + raw + "'");
        return make(Tok::Number, raw, *value);
    }

    Token lexName() {
        const std::size_t start = pos_;
        while (pos_ < s_.size() && isNameChar(s_[pos_])) ++pos_;
        return make(Tok::Name, std::string(s_.substr(start, pos_ - start)));
    }

    Token lexPunct() {
        static constexpr std::string_view kPairs[] = {"<<", ">>", "&&", "||", "==", "!=", "<=", ">="};
        for (std::string_view pair : kPairs) {
            if (s_.substr(pos_, 2) == pair) {
                pos_ += 2;
                return make(Tok::Punct, std::string(pair));
            }
        }
        return make(Tok::Punct, std::string(1, s_[pos_++]));
    }
};

// ---------------------------------------------------------------------------
// Reading tokens and evaluating expressions

// A token stream that always ends with an End token.
struct TokenStream {
    std::vector<std::string> files;
    std::vector<Token> tokens;
};

class Cursor {
public:
    Cursor(const std::vector<Token>& tokens, const std::vector<std::string>& files)
        : tokens_(tokens), files_(files) {}

    const Token& peek() const { return tokens_[std::min(pos_, tokens_.size() - 1)]; }
    const Token& next() {
        const Token& t = peek();
        if (pos_ < tokens_.size()) ++pos_;
        return t;
    }
    bool atEnd() const { return peek().kind == Tok::End; }
    bool atPunct(std::string_view p) const { return isPunct(peek(), p); }
    bool atKeyword(std::string_view k) const { return isKeyword(peek(), k); }

    bool acceptPunct(std::string_view p) {
        if (!atPunct(p)) return false;
        next();
        return true;
    }
    bool acceptKeyword(std::string_view k) {
        if (!atKeyword(k)) return false;
        next();
        return true;
    }
    void expectPunct(std::string_view p) {
        if (!acceptPunct(p)) error(peek(), "expected '" + std::string(p) + "', found " + describe(peek()));
    }

    [[noreturn]] void error(const Token& at, const std::string& message) const {
        const std::size_t index = static_cast<std::size_t>(at.file);
        fail(index < files_.size() ? files_[index] : std::string("?"), at.line, message);
    }

    // A full expression with C operators and precedence.
    std::uint32_t expression() { return binary(0); }
    // An operand of a style expression: anything that binds tighter than '|'.
    std::uint32_t styleOperand() { return binary(kXorLevel); }

private:
    static constexpr int kXorLevel = 3;
    static constexpr int kLevels = 10;

    const std::vector<Token>& tokens_;
    const std::vector<std::string>& files_;
    std::size_t pos_ = 0;
    int depth_ = 0;

    static bool operatorAtLevel(std::string_view op, int level) {
        static constexpr std::string_view kLevelOps[kLevels][4] = {
            {"||"}, {"&&"}, {"|"}, {"^"}, {"&"}, {"==", "!="}, {"<", ">", "<=", ">="},
            {"<<", ">>"}, {"+", "-"}, {"*", "/", "%"},
        };
        const auto& ops = kLevelOps[level];
        return !op.empty() && std::find(std::begin(ops), std::end(ops), op) != std::end(ops);
    }

    std::uint32_t binary(int level) {
        if (level >= kLevels) return unary();
        std::uint32_t left = binary(level + 1);
        while (peek().kind == Tok::Punct && operatorAtLevel(peek().text, level)) {
            const Token& op = next();
            left = apply(op, left, binary(level + 1));
        }
        return left;
    }

    std::uint32_t apply(const Token& op, std::uint32_t a, std::uint32_t b) const {
        const auto sa = static_cast<std::int32_t>(a);
        const auto sb = static_cast<std::int32_t>(b);
        const std::string& o = op.text;
        if (o == "||") return (a || b) ? 1u : 0u;
        if (o == "&&") return (a && b) ? 1u : 0u;
        if (o == "|") return a | b;
        if (o == "^") return a ^ b;
        if (o == "&") return a & b;
        if (o == "==") return a == b ? 1u : 0u;
        if (o == "!=") return a != b ? 1u : 0u;
        if (o == "<") return sa < sb ? 1u : 0u;
        if (o == ">") return sa > sb ? 1u : 0u;
        if (o == "<=") return sa <= sb ? 1u : 0u;
        if (o == ">=") return sa >= sb ? 1u : 0u;
        if (o == "<<") return a << (b & 31u);
        if (o == ">>") return static_cast<std::uint32_t>(sa >> (b & 31u));
        if (o == "+") return a + b;
        if (o == "-") return a - b;
        if (o == "*") return a * b;
        if (b == 0) error(op, "division by zero");
        if (sb == -1) return o == "/" ? 0u - a : 0u;  // also INT_MIN / -1, without overflow
        return static_cast<std::uint32_t>(o == "/" ? sa / sb : sa % sb);
    }

    std::uint32_t unary() {
        if (++depth_ > kMaxExpressionDepth) error(peek(), "expression nested too deeply");
        const std::uint32_t value = unaryOperand();
        --depth_;
        return value;
    }

    std::uint32_t unaryOperand() {
        if (acceptPunct("-")) return 0u - unary();
        if (acceptPunct("+")) return unary();
        if (acceptPunct("~")) return ~unary();
        if (acceptPunct("!")) return unary() == 0 ? 1u : 0u;
        return primary();
    }

    std::uint32_t primary() {
        const Token& t = next();
        if (t.kind == Tok::Number) return t.value;
        if (isPunct(t, "(")) {
            const std::uint32_t value = expression();
            expectPunct(")");
            return value;
        }
        if (t.kind == Tok::Name) error(t, "unknown name '" + t.text + "'");
        error(t, "expected a number, found " + describe(t));
    }
};

// ---------------------------------------------------------------------------
// Preprocessor: one .rc file and what it includes, to one token stream

class Preprocessor {
public:
    explicit Preprocessor(const ResourceFiles& files) : files_(files) {}

    TokenStream run(const std::string& mainFile) {
        processFile(mainFile, 0);
        Token end;
        end.line = lastLineOfMain_;
        out_.tokens.push_back(end);
        return std::move(out_);
    }

private:
    struct Conditional {
        bool active;        // lines of the current branch are used
        bool taken;         // some branch was taken, or the enclosing lines are skipped
        bool sawElse;
        int line;
    };
    using Line = std::vector<Token>;

    const ResourceFiles& files_;
    TokenStream out_;
    struct Macro {
        std::vector<Token> body;
        std::optional<std::vector<std::string>> parameters;  // function-like when present
    };
    std::map<std::string, Macro> macros_;
    std::set<std::string> included_;
    int lastLineOfMain_ = 1;

    [[noreturn]] void error(const Token& at, const std::string& message) const {
        fail(out_.files[static_cast<std::size_t>(at.file)], at.line, message);
    }

    static bool active(const std::vector<Conditional>& stack) { return stack.empty() || stack.back().active; }

    void processFile(const std::string& name, int depth) {
        if (!included_.insert(name).second) return;
        const int index = static_cast<int>(out_.files.size());
        out_.files.push_back(name);
        const std::vector<Token> tokens = Lexer(files_.at(name), index, name).run();
        std::vector<Conditional> stack;
        std::size_t i = 0;
        while (tokens[i].kind != Tok::End) {
            const Line line = takeLine(tokens, i);
            if (!line.empty() && isPunct(line[0], "#")) directive(line, stack, depth);
            else if (active(stack)) expandLine(line, out_.tokens);
        }
        if (!stack.empty()) fail(name, stack.back().line, "#if without #endif");
        if (depth == 0) lastLineOfMain_ = tokens[i].line;
    }

    static Line takeLine(const std::vector<Token>& tokens, std::size_t& i) {
        Line line;
        for (; tokens[i].kind != Tok::End; ++i) {
            if (tokens[i].kind == Tok::Newline) {
                ++i;
                break;
            }
            line.push_back(tokens[i]);
        }
        return line;
    }

    void directive(const Line& line, std::vector<Conditional>& stack, int depth) {
        if (line.size() < 2) return;  // a lone '#'
        const Token& d = line[1];
        const std::string name = d.kind == Tok::Name ? d.text : "";
        if (name == "if" || name == "ifdef" || name == "ifndef" || name == "elif" || name == "else" ||
            name == "endif") {
            conditional(name, line, stack);
        } else if (!active(stack)) {
            return;
        } else if (name == "include") {
            include(line, depth);
        } else if (name == "define") {
            define(line);
        } else if (name == "undef") {
            macros_.erase(requireName(line, "#undef"));
        } else if (name == "pragma" || name == "line") {
            return;
        } else if (name == "error") {
            error(d, "#error");
        } else {
            error(d, "unknown directive " + describe(d));
        }
    }

    std::string requireName(const Line& line, const std::string& directive) const {
        if (line.size() < 3 || line[2].kind != Tok::Name) error(line[1], directive + " needs a name");
        return line[2].text;
    }

    void conditional(const std::string& name, const Line& line, std::vector<Conditional>& stack) {
        if (name == "if" || name == "ifdef" || name == "ifndef") {
            const bool parent = active(stack);
            const bool value = parent && condition(name, line);
            stack.push_back({value, !parent || value, false, line[1].line});
            return;
        }
        if (stack.empty() || (name != "endif" && stack.back().sawElse)) {
            error(line[1], "#" + name + " without #if");
        }
        Conditional& c = stack.back();
        if (name == "endif") {
            stack.pop_back();
        } else if (name == "else") {
            c.sawElse = true;
            c.active = !c.taken;
            c.taken = true;
        } else {  // elif
            c.active = !c.taken && evaluateIf(line);
            c.taken = c.taken || c.active;
        }
    }

    bool condition(const std::string& name, const Line& line) {
        if (name == "if") return evaluateIf(line);
        const bool defined = macros_.count(requireName(line, "#" + name)) != 0;
        return name == "ifdef" ? defined : !defined;
    }

    // "defined X" and "defined(X)" first, then macros; names left over are 0.
    bool evaluateIf(const Line& line) {
        std::vector<Token> expr;
        for (std::size_t i = 2; i < line.size(); ++i) {
            if (line[i].kind == Tok::Name && line[i].text == "defined") {
                expr.push_back(definedOperand(line, i));
            } else {
                std::vector<std::string> expanding;
                expandTokens({line[i]}, line[i], expr, expanding, true);
            }
        }
        for (Token& t : expr) {
            if (t.kind == Tok::Name) {
                t.kind = Tok::Number;
                t.value = 0;
            }
        }
        Token end;
        end.file = line[1].file;
        end.line = line[1].line;
        expr.push_back(end);
        Cursor cursor(expr, out_.files);
        if (cursor.atEnd()) error(line[1], "#if needs an expression");
        const std::uint32_t value = cursor.expression();
        if (!cursor.atEnd()) error(cursor.peek(), "unexpected " + describe(cursor.peek()) + " in #if");
        return value != 0;
    }

    Token definedOperand(const Line& line, std::size_t& i) const {
        const bool paren = i + 1 < line.size() && isPunct(line[i + 1], "(");
        const std::size_t nameAt = i + (paren ? 2 : 1);
        if (nameAt >= line.size() || line[nameAt].kind != Tok::Name) error(line[i], "defined needs a name");
        if (paren && (nameAt + 1 >= line.size() || !isPunct(line[nameAt + 1], ")"))) {
            error(line[nameAt], "expected ')' after defined(" + line[nameAt].text);
        }
        Token result = line[i];
        result.kind = Tok::Number;
        result.value = macros_.count(line[nameAt].text) != 0 ? 1u : 0u;
        i = nameAt + (paren ? 1 : 0);
        return result;
    }

    void include(const Line& line, int depth) {
        std::string wanted;
        if (line.size() >= 3 && line[2].kind == Tok::String) {
            wanted = line[2].text;
        } else if (line.size() >= 3 && isPunct(line[2], "<")) {
            for (std::size_t i = 3; i < line.size() && !isPunct(line[i], ">"); ++i) wanted += line[i].text;
        } else {
            error(line[1], "#include needs a file name");
        }
        const std::optional<std::string> found = resolve(wanted);
        if (!found) error(line[1], "cannot open include file '" + wanted + "'");
        if (depth + 1 > kMaxIncludeDepth) error(line[1], "includes nested too deeply");
        processFile(*found, depth + 1);
    }

    std::optional<std::string> resolve(const std::string& wanted) const {
        if (files_.count(wanted) != 0) return wanted;
        for (const auto& entry : files_) {
            if (equalsNoCase(baseName(entry.first), baseName(wanted))) return entry.first;
        }
        return std::nullopt;
    }

    // "#define NAME body" or "#define NAME(a, b) body" (the parenthesis
    // right after the name).
    void define(const Line& line) {
        const std::string name = requireName(line, "#define");
        Macro macro;
        std::size_t bodyAt = 3;
        if (line.size() > 3 && isPunct(line[3], "(") && !line[3].spaceBefore) {
            macro.parameters.emplace();
            std::size_t i = 4;
            while (i < line.size() && !isPunct(line[i], ")")) {
                if (line[i].kind != Tok::Name) error(line[i], "a macro parameter must be a name");
                macro.parameters->push_back(line[i].text);
                ++i;
                if (i < line.size() && isPunct(line[i], ",")) ++i;
            }
            if (i >= line.size()) error(line[2], "macro '" + name + "' lacks ')'");
            bodyAt = i + 1;
        }
        macro.body.assign(line.begin() + static_cast<std::ptrdiff_t>(bodyAt), line.end());
        macros_[name] = std::move(macro);
    }

    void expandLine(const Line& line, std::vector<Token>& out) const {
        std::vector<std::string> expanding;
        expandTokens(line, line.empty() ? Token{} : line.front(), out, expanding, true);
    }

    // Replaces macro names recursively; a macro is not expanded inside its own
    // expansion. A function-like macro takes the parenthesised arguments
    // after its name, each a run of tokens up to a comma outside inner
    // parentheses. Expanded tokens take the position of the use.
    void expandTokens(const std::vector<Token>& tokens, const Token& lineSite, std::vector<Token>& out,
                      std::vector<std::string>& expanding, bool ownSites) const {
        for (std::size_t i = 0; i < tokens.size(); ++i) {
            const Token& t = tokens[i];
            const Token& site = ownSites ? t : lineSite;
            const auto macro = t.kind == Tok::Name ? macros_.find(t.text) : macros_.end();
            const bool expandable = macro != macros_.end() &&
                                    std::find(expanding.begin(), expanding.end(), t.text) == expanding.end();
            if (expandable && !macro->second.parameters) {
                if (expanding.size() >= kMaxMacroDepth) error(site, "macros nested too deeply");
                expanding.push_back(t.text);
                expandTokens(macro->second.body, site, out, expanding, false);
                expanding.pop_back();
                continue;
            }
            if (expandable && i + 1 < tokens.size() && isPunct(tokens[i + 1], "(")) {
                if (expanding.size() >= kMaxMacroDepth) error(site, "macros nested too deeply");
                std::vector<std::vector<Token>> arguments(1);
                int depth = 0;
                std::size_t j = i + 2;
                for (; j < tokens.size(); ++j) {
                    if (isPunct(tokens[j], "(")) ++depth;
                    if (isPunct(tokens[j], ")") && depth-- == 0) break;
                    if (depth == 0 && isPunct(tokens[j], ",")) arguments.emplace_back();
                    else arguments.back().push_back(tokens[j]);
                }
                if (j >= tokens.size()) error(t, "macro '" + t.text + "' used without ')'");
                const std::vector<std::string>& parameters = *macro->second.parameters;
                if (parameters.empty() && arguments.size() == 1 && arguments[0].empty()) arguments.clear();
                if (arguments.size() != parameters.size())
                    error(t, "macro '" + t.text + "' takes " + std::to_string(parameters.size()) + " arguments");
                std::vector<Token> substituted;
                for (const Token& b : macro->second.body) {
                    const auto p = b.kind == Tok::Name ? std::find(parameters.begin(), parameters.end(), b.text)
                                                       : parameters.end();
                    if (p == parameters.end()) substituted.push_back(b);
                    else {
                        const auto& argument = arguments[static_cast<std::size_t>(p - parameters.begin())];
                        substituted.insert(substituted.end(), argument.begin(), argument.end());
                    }
                }
                expanding.push_back(t.text);
                expandTokens(substituted, site, out, expanding, false);
                expanding.pop_back();
                i = j;
                continue;
            }
            if (out.size() >= kMaxTokens) error(site, "macro expansion too large");
            out.push_back(t);
            out.back().file = site.file;
            out.back().line = site.line;
        }
    }
};

// ---------------------------------------------------------------------------
// Resource statements

struct Collected {
    std::vector<DialogTemplate> dialogs;
    std::vector<MenuTemplate> menus;
    std::map<std::string, std::size_t> dialogIndex;
    std::map<std::string, std::size_t> menuIndex;
    std::map<int, std::string> strings;
    std::set<std::string> bitmaps;  // upper-cased names
};

enum class Shape {
    Text,     // KIND "text", id, x, y, w, h [, style [, exstyle [, help]]]
    NoText,   // KIND id, x, y, w, h [, style [, exstyle [, help]]]
    Icon,     // ICON text, id, x, y [, w, h [, style [, exstyle [, help]]]]
    Generic,  // CONTROL text, id, class, style, x, y, w, h [, exstyle [, help]]
};

// Styles as windres gives them (checked against its output): `style` when
// the statement has no style argument, `base` as the start that a style
// argument's terms modify. Both before WS_CHILD | WS_VISIBLE.
struct ControlStatement {
    std::string_view keyword;
    Shape shape;
    ControlKind kind;
    std::string_view className;
    std::uint32_t style;
    std::uint32_t base;
};

constexpr ControlStatement kControlStatements[] = {
    {"LTEXT", Shape::Text, ControlKind::Static, "Static", 0x0u | kWsGroup, 0x0u},
    {"RTEXT", Shape::Text, ControlKind::Static, "Static", 0x2u | kWsGroup, 0x2u},
    {"CTEXT", Shape::Text, ControlKind::Static, "Static", 0x1u | kWsGroup, 0x1u},
    {"PUSHBUTTON", Shape::Text, ControlKind::Button, "Button", kBsPushButton | kWsTabStop, kBsPushButton | kWsTabStop},
    {"DEFPUSHBUTTON", Shape::Text, ControlKind::Button, "Button", kBsDefPushButton | kWsTabStop,
     kBsDefPushButton | kWsTabStop},
    {"CHECKBOX", Shape::Text, ControlKind::Button, "Button", kBsCheckBox | kWsTabStop, kBsCheckBox | kWsTabStop},
    {"AUTOCHECKBOX", Shape::Text, ControlKind::Button, "Button", kBsAutoCheckBox | kWsTabStop,
     kBsAutoCheckBox | kWsTabStop},
    {"RADIOBUTTON", Shape::Text, ControlKind::Button, "Button", kBsRadioButton | kWsTabStop, kBsRadioButton},
    {"AUTORADIOBUTTON", Shape::Text, ControlKind::Button, "Button", kBsAutoRadioButton | kWsTabStop,
     kBsAutoRadioButton},
    {"STATE3", Shape::Text, ControlKind::Button, "Button", kBs3State | kWsTabStop, kBs3State},
    {"AUTO3STATE", Shape::Text, ControlKind::Button, "Button", kBsAuto3State | kWsTabStop, kBsAuto3State},
    {"GROUPBOX", Shape::Text, ControlKind::Button, "Button", kBsGroupBox, kBsGroupBox},
    {"LISTBOX", Shape::NoText, ControlKind::ListBox, "ListBox", kLbsNotify | kWsBorder, kLbsNotify | kWsBorder},
    {"EDITTEXT", Shape::NoText, ControlKind::Edit, "Edit", kWsBorder | kWsTabStop, kWsBorder | kWsTabStop},
    {"COMBOBOX", Shape::NoText, ControlKind::ComboBox, "ComboBox", kCbsSimple | kWsTabStop, 0x0u},
    {"SCROLLBAR", Shape::NoText, ControlKind::ScrollBar, "ScrollBar", 0x0u, 0x0u},
    {"ICON", Shape::Icon, ControlKind::Static, "Static", 0x3u, 0x3u},
    {"CONTROL", Shape::Generic, ControlKind::Other, "", 0x0u, 0x0u},
};

struct WindowClass {
    std::string_view name;
    ControlKind kind;
};

constexpr WindowClass kWindowClasses[] = {
    {"Button", ControlKind::Button}, {"Static", ControlKind::Static},
    {"Edit", ControlKind::Edit}, {"ListBox", ControlKind::ListBox},
    {"ComboBox", ControlKind::ComboBox}, {"ScrollBar", ControlKind::ScrollBar},
};

const WindowClass* findClass(std::string_view name) {
    for (const WindowClass& c : kWindowClasses) {
        if (equalsNoCase(c.name, name)) return &c;
    }
    return nullptr;
}

constexpr std::string_view kMemoryFlags[] = {"DISCARDABLE", "MOVEABLE", "FIXED", "PURE", "IMPURE",
                                             "PRELOAD", "LOADONCALL", "SHARED", "NONSHARED"};

class RcParser : public Cursor {
public:
    RcParser(const TokenStream& stream, Collected& out) : Cursor(stream.tokens, stream.files), out_(out) {}

    void run() {
        while (!atEnd()) statement();
    }

private:
    Collected& out_;

    void statement() {
        if (acceptKeyword("LANGUAGE")) return language();
        if (acceptKeyword("STRINGTABLE")) return stringTable();
        const Token& nameToken = peek();
        const std::string name = resourceName();
        const Token& type = next();
        if (isKeyword(type, "DIALOG") || isKeyword(type, "DIALOGEX")) return dialog(nameToken, name, isKeyword(type, "DIALOGEX"));
        if (isKeyword(type, "MENU") || isKeyword(type, "MENUEX")) return menu(nameToken, name, isKeyword(type, "MENUEX"));
        if (isKeyword(type, "BITMAP")) {
            out_.bitmaps.insert(upperCase(name));
            return fileResource();
        }
        if (isKeyword(type, "ICON") || isKeyword(type, "CURSOR")) return fileResource();
        error(type, "unknown resource type " + describe(type) + " for '" + name + "'");
    }

    void language() {
        expression();
        expectPunct(",");
        expression();
    }

    // Statements allowed before a block that this reader has no use for.
    bool skipResourceOption() {
        if (acceptKeyword("LANGUAGE")) {
            language();
            return true;
        }
        if (acceptKeyword("VERSION") || acceptKeyword("CHARACTERISTICS")) {
            expression();
            return true;
        }
        return false;
    }

    void skipMemoryFlags() {
        while (std::any_of(std::begin(kMemoryFlags), std::end(kMemoryFlags),
                           [this](std::string_view f) { return atKeyword(f); })) {
            next();
        }
    }

    std::string resourceName() {
        const Token& t = next();
        if (t.kind == Tok::Name || t.kind == Tok::String) return t.text;
        if (t.kind == Tok::Number) return "#" + std::to_string(t.value & 0xFFFFu);
        error(t, "expected a name, found " + describe(t));
    }

    std::string quoted() {
        const Token& t = next();
        if (t.kind != Tok::String) error(t, "expected a quoted string, found " + describe(t));
        return t.text;
    }

    int number() { return static_cast<int>(expression()); }

    // Style bits: starts from the defaults; "A | B" adds, "NOT C" removes,
    // left to right.
    std::uint32_t style(std::uint32_t defaults) {
        std::uint32_t value = defaults;
        do {
            const bool remove = acceptKeyword("NOT");
            const std::uint32_t operand = styleOperand();
            value = remove ? (value & ~operand) : (value | operand);
        } while (acceptPunct("|"));
        return value;
    }

    void beginBlock() {
        if (!acceptKeyword("BEGIN") && !acceptPunct("{")) error(peek(), "expected BEGIN, found " + describe(peek()));
    }

    bool acceptBlockEnd() {
        if (atEnd()) error(peek(), "END missing at end of file");
        return acceptKeyword("END") || acceptPunct("}");
    }

    void fileResource() {
        skipMemoryFlags();
        quoted();
    }

    // Dialogs ---------------------------------------------------------------

    void dialog(const Token& at, const std::string& name, bool extended) {
        DialogTemplate d;
        d.name = name;
        d.extended = extended;
        skipMemoryFlags();
        d.x = number();
        expectPunct(",");
        d.y = number();
        expectPunct(",");
        d.w = number();
        expectPunct(",");
        d.h = number();
        if (extended && acceptPunct(",")) expression();  // help id
        dialogOptions(d);
        beginBlock();
        while (!acceptBlockEnd()) d.controls.push_back(control(extended));
        addDialog(at, std::move(d));
    }

    void dialogOptions(DialogTemplate& d) {
        d.style = kWsPopup | kWsBorder | kWsSysMenu;
        std::uint32_t implied = 0;
        while (!atKeyword("BEGIN") && !atPunct("{")) {
            if (skipResourceOption()) continue;
            const Token& t = next();
            if (isKeyword(t, "STYLE")) {
                d.style = style(0);
            } else if (isKeyword(t, "EXSTYLE")) {
                d.exStyle = style(0);
            } else if (isKeyword(t, "CAPTION")) {
                d.caption = quoted();
                implied |= kWsCaption;
            } else if (isKeyword(t, "FONT")) {
                font(d);
                implied |= kDsSetFont;
            } else if (isKeyword(t, "MENU")) {
                d.menuName = resourceName();
            } else if (isKeyword(t, "CLASS")) {
                resourceName();
            } else {
                error(t, "unknown dialog statement " + describe(t));
            }
        }
        d.style |= implied;
    }

    // FONT size, "face" [, weight [, italic [, charset]]]
    void font(DialogTemplate& d) {
        d.fontSize = number();
        expectPunct(",");
        d.fontName = quoted();
        for (int extra = 0; extra < 3 && acceptPunct(","); ++extra) expression();
    }

    ControlTemplate control(bool extended) {
        const Token& keyword = next();
        const ControlStatement* statement = nullptr;
        for (const ControlStatement& s : kControlStatements) {
            if (isKeyword(keyword, s.keyword)) statement = &s;
        }
        if (statement == nullptr) error(keyword, "unknown control statement " + describe(keyword));
        ControlTemplate c;
        c.kind = statement->kind;
        c.className = std::string(statement->className);
        c.style = statement->style | kWsChild | kWsVisible;
        const std::uint32_t base = statement->base | kWsChild | kWsVisible;
        switch (statement->shape) {
        case Shape::Text: textControl(c, base); break;
        case Shape::NoText: noTextControl(c, base); break;
        case Shape::Icon: iconControl(c, base); break;
        case Shape::Generic: genericControl(c, base); break;
        }
        // A DIALOG template stores 16-bit ids.
        if (!extended) c.id = static_cast<int>(static_cast<std::uint32_t>(c.id) & 0xFFFFu);
        return c;
    }

    void idAndRect(ControlTemplate& c) {
        c.id = number();
        expectPunct(",");
        rect(c);
    }

    void rect(ControlTemplate& c) {
        c.x = number();
        expectPunct(",");
        c.y = number();
        expectPunct(",");
        c.w = number();
        expectPunct(",");
        c.h = number();
    }

    // A style argument replaces the statement's default style.
    void optionalStyles(ControlTemplate& c, std::uint32_t base) {
        if (!acceptPunct(",")) return;
        c.style = style(base);
        if (!acceptPunct(",")) return;
        c.exStyle = style(0);
        if (acceptPunct(",")) expression();  // help id
    }

    void textControl(ControlTemplate& c, std::uint32_t base) {
        c.text = quoted();
        expectPunct(",");
        idAndRect(c);
        optionalStyles(c, base);
    }

    void noTextControl(ControlTemplate& c, std::uint32_t base) {
        idAndRect(c);
        optionalStyles(c, base);
    }

    // The size is read but, as windres does, not kept: an icon sizes itself.
    void iconControl(ControlTemplate& c, std::uint32_t base) {
        c.text = resourceName();
        expectPunct(",");
        c.id = number();
        expectPunct(",");
        c.x = number();
        expectPunct(",");
        c.y = number();
        if (!acceptPunct(",")) return;
        number();
        expectPunct(",");
        number();
        optionalStyles(c, base);
    }

    void genericControl(ControlTemplate& c, std::uint32_t base) {
        c.text = resourceName();
        expectPunct(",");
        c.id = number();
        expectPunct(",");
        controlClass(c);
        expectPunct(",");
        c.style = style(base);
        expectPunct(",");
        rect(c);
        if (!acceptPunct(",")) return;
        c.exStyle = style(0);
        if (acceptPunct(",")) expression();  // help id
    }

    // A quoted class name, or one of the predefined classes written bare.
    void controlClass(ControlTemplate& c) {
        const Token& t = next();
        const WindowClass* known = (t.kind == Tok::Name || t.kind == Tok::String) ? findClass(t.text) : nullptr;
        if (t.kind == Tok::String) {
            c.className = t.text;
        } else if (known != nullptr) {
            c.className = std::string(known->name);
        } else {
            error(t, "expected a window class, found " + describe(t));
        }
        c.kind = known != nullptr ? known->kind : ControlKind::Other;
    }

    void addDialog(const Token& at, DialogTemplate d) {
        const std::string key = upperCase(d.name);
        if (out_.dialogIndex.count(key) != 0) error(at, "dialog '" + d.name + "' defined twice");
        out_.dialogIndex[key] = out_.dialogs.size();
        out_.dialogs.push_back(std::move(d));
    }

    // Menus -----------------------------------------------------------------

    void menu(const Token& at, const std::string& name, bool extended) {
        MenuTemplate m;
        m.name = name;
        skipMemoryFlags();
        while (skipResourceOption()) {
        }
        m.items = menuBlock(extended, 0);
        const std::string key = upperCase(name);
        if (out_.menuIndex.count(key) != 0) error(at, "menu '" + name + "' defined twice");
        out_.menuIndex[key] = out_.menus.size();
        out_.menus.push_back(std::move(m));
    }

    std::vector<MenuItem> menuBlock(bool extended, int depth) {
        if (depth > kMaxMenuDepth) error(peek(), "menus nested too deeply");
        beginBlock();
        std::vector<MenuItem> items;
        while (!acceptBlockEnd()) {
            const Token& t = next();
            if (isKeyword(t, "MENUITEM")) {
                items.push_back(menuItem(extended));
            } else if (isKeyword(t, "POPUP")) {
                items.push_back(popup(extended, depth));
            } else {
                error(t, "unknown menu statement " + describe(t));
            }
        }
        return items;
    }

    MenuItem menuItem(bool extended) {
        MenuItem item;
        if (acceptKeyword("SEPARATOR")) {
            item.separator = true;
            return item;
        }
        item.text = quoted();
        if (extended) {
            extendedFields(item, 3);
        } else {
            expectPunct(",");
            item.id = number();
            menuOptions(item);
        }
        return item;
    }

    MenuItem popup(bool extended, int depth) {
        MenuItem item;
        item.popup = true;
        item.text = quoted();
        if (extended) extendedFields(item, 4);
        else menuOptions(item);
        item.children = menuBlock(extended, depth + 1);
        return item;
    }

    // MENU options: CHECKED, GRAYED, ... separated by commas or blanks.
    void menuOptions(MenuItem& item) {
        for (;;) {
            const bool comma = acceptPunct(",");
            if (acceptKeyword("CHECKED")) {
                item.checked = true;
            } else if (acceptKeyword("GRAYED") || acceptKeyword("INACTIVE")) {
                item.enabled = false;
            } else if (acceptKeyword("MENUBREAK") || acceptKeyword("MENUBARBREAK") || acceptKeyword("HELP")) {
            } else if (comma) {
                error(peek(), "expected a menu option, found " + describe(peek()));
            } else {
                return;
            }
        }
    }

    // MENUEX: [, id [, type [, state [, help]]]]
    void extendedFields(MenuItem& item, int count) {
        std::uint32_t fields[4] = {0, 0, 0, 0};
        for (int i = 0; i < count && acceptPunct(","); ++i) fields[i] = expression();
        item.id = static_cast<int>(fields[0]);
        item.separator = (fields[1] & kMftSeparator) != 0;
        item.enabled = (fields[2] & kMfsDisabled) == 0;
        item.checked = (fields[2] & kMfsChecked) != 0;
    }

    // String tables ---------------------------------------------------------

    void stringTable() {
        skipMemoryFlags();
        while (skipResourceOption()) {
        }
        beginBlock();
        while (!acceptBlockEnd()) {
            const Token& at = peek();
            const int id = number();
            acceptPunct(",");
            if (!out_.strings.emplace(id, quoted()).second) {
                error(at, "string " + std::to_string(id) + " defined twice");
            }
        }
    }
};

}  // namespace

// ---------------------------------------------------------------------------
// ControlTemplate

bool ControlTemplate::isPushButton() const {
    return kind == ControlKind::Button && (buttonType() == kBsPushButton || buttonType() == kBsDefPushButton);
}
bool ControlTemplate::isDefault() const { return kind == ControlKind::Button && buttonType() == kBsDefPushButton; }
bool ControlTemplate::isCheckBox() const {
    const std::uint32_t t = buttonType();
    return kind == ControlKind::Button &&
           (t == kBsCheckBox || t == kBsAutoCheckBox || t == kBs3State || t == kBsAuto3State);
}
bool ControlTemplate::isThreeState() const {
    return kind == ControlKind::Button && (buttonType() == kBs3State || buttonType() == kBsAuto3State);
}
bool ControlTemplate::isRadio() const {
    return kind == ControlKind::Button && (buttonType() == kBsRadioButton || buttonType() == kBsAutoRadioButton);
}
bool ControlTemplate::isAuto() const {
    const std::uint32_t t = buttonType();
    return kind == ControlKind::Button &&
           (t == kBsAutoCheckBox || t == kBsAuto3State || t == kBsAutoRadioButton);
}
bool ControlTemplate::isGroupBox() const { return kind == ControlKind::Button && buttonType() == kBsGroupBox; }
bool ControlTemplate::isOwnerDraw() const { return kind == ControlKind::Button && buttonType() == kBsOwnerDraw; }

bool ControlTemplate::listSorted() const { return kind == ControlKind::ListBox && (style & kLbsSort) != 0; }
bool ControlTemplate::listMulti() const {
    return kind == ControlKind::ListBox && (style & (kLbsMultipleSel | kLbsExtendedSel)) != 0;
}
bool ControlTemplate::comboDropList() const {
    return kind == ControlKind::ComboBox && (style & 0x3u) == kCbsDropDownList;
}
bool ControlTemplate::comboSorted() const { return kind == ControlKind::ComboBox && (style & kCbsSort) != 0; }
bool ControlTemplate::editMultiline() const { return kind == ControlKind::Edit && (style & kEsMultiline) != 0; }

bool ControlTemplate::disabled() const { return (style & kWsDisabled) != 0; }
bool ControlTemplate::visible() const { return (style & kWsVisible) != 0; }
bool ControlTemplate::group() const { return (style & kWsGroup) != 0; }
bool ControlTemplate::tabStop() const { return (style & kWsTabStop) != 0; }

// ---------------------------------------------------------------------------
// MenuTemplate

namespace {
const MenuItem* findIn(const std::vector<MenuItem>& items, int id) {
    for (const MenuItem& item : items) {
        if (item.popup) {
            if (const MenuItem* found = findIn(item.children, id)) return found;
        } else if (!item.separator && item.id == id) {
            return &item;
        }
    }
    return nullptr;
}
}  // namespace

const MenuItem* MenuTemplate::findItem(int id) const { return findIn(items, id); }

// ---------------------------------------------------------------------------
// ResourceSet

void ResourceSet::load(const ResourceFiles& files) {
    Collected all;
    for (const auto& entry : files) {
        if (!endsWithNoCase(entry.first, ".rc")) continue;
        const TokenStream stream = Preprocessor(files).run(entry.first);
        RcParser(stream, all).run();
    }
    dialogs_ = std::move(all.dialogs);
    menus_ = std::move(all.menus);
    dialogIndex_ = std::move(all.dialogIndex);
    menuIndex_ = std::move(all.menuIndex);
    strings_ = std::move(all.strings);
    bitmaps_ = std::move(all.bitmaps);
}

bool ResourceSet::hasBitmap(std::string_view name) const { return bitmaps_.count(upperCase(name)) != 0; }

const DialogTemplate* ResourceSet::dialog(std::string_view name) const {
    const auto it = dialogIndex_.find(upperCase(name));
    return it == dialogIndex_.end() ? nullptr : &dialogs_[it->second];
}

const MenuTemplate* ResourceSet::menu(std::string_view name) const {
    const auto it = menuIndex_.find(upperCase(name));
    return it == menuIndex_.end() ? nullptr : &menus_[it->second];
}

const std::string* ResourceSet::stringText(int id) const {
    const auto it = strings_.find(id);
    return it == strings_.end() ? nullptr : &it->second;
}

std::vector<std::string> ResourceSet::dialogNames() const {
    std::vector<std::string> names;
    for (const DialogTemplate& d : dialogs_) names.push_back(d.name);
    return names;
}

std::vector<std::string> ResourceSet::menuNames() const {
    std::vector<std::string> names;
    for (const MenuTemplate& m : menus_) names.push_back(m.name);
    return names;
}

}  // namespace kvs::headless
