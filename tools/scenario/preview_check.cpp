#include "tools/scenario/preview_check.h"

#include <optional>

#include "tools/scenario/scenario.h"

namespace kvs::scenario {

namespace {

constexpr std::string_view kMark = "#preview";

// The quoted strings of a transcript line, unescaped, and whether the line
// says "refused": a transcript line reads as a scenario statement.
struct Tokens {
    std::vector<std::string> quoted;
    bool refused = false;
};

Tokens tokensOf(std::string_view line) {
    Tokens tokens;
    const ParseResult parsed = parse(line);
    if (parsed.statements.empty()) return tokens;
    for (const Token& token : parsed.statements.front().args) {
        if (token.quoted) tokens.quoted.push_back(token.text);
        else if (token.text == "refused") tokens.refused = true;
    }
    return tokens;
}

bool startsWith(std::string_view line, std::string_view word) {
    return line.size() > word.size() && line.substr(0, word.size()) == word && line[word.size()] == ' ';
}

// A modal run of the library ended: its commands have been handed over.
bool endsRun(std::string_view line) {
    return startsWith(line, "StartDialog") || startsWith(line, "TRAXCallDialog") || startsWith(line, "launch");
}

// Equal lines; a SAVE line of the proposed file (which holds no quote)
// also matches the SAVE line of any chosen path with the same qualifier.
bool sameLine(const std::string& shown, const std::string& pushed) {
    constexpr std::string_view kSave = "SAVE '";
    if (shown == pushed) return true;
    if (shown.compare(0, kSave.size(), kSave) != 0 || pushed.compare(0, kSave.size(), kSave) != 0) return false;
    const std::size_t close = shown.find('\'', kSave.size());
    if (close == std::string::npos) return false;
    const std::string_view tail = std::string_view(shown).substr(close);  // "'" and the qualifier
    return pushed.size() >= kSave.size() + tail.size() &&
           std::string_view(pushed).substr(pushed.size() - tail.size()) == tail;
}

bool sameLines(const std::vector<std::string>& shown, const std::vector<std::string>& pushed) {
    if (shown.size() != pushed.size()) return false;
    for (std::size_t i = 0; i < shown.size(); ++i)
        if (!sameLine(shown[i], pushed[i])) return false;
    return true;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string out;
    for (const std::string& line : lines) out += (out.empty() ? "\"" : " \"") + line + "\"";
    return out.empty() ? "nothing" : out;
}

struct Outcome {
    std::vector<std::string> commands;
    std::optional<std::string> firstMessage;
    bool chooser = false;
    bool ended = false;
};

}  // namespace

PreviewReport checkPreviews(std::string_view transcript) {
    std::vector<std::string_view> lines;
    for (std::size_t start = 0; start < transcript.size();) {
        const std::size_t end = transcript.find('\n', start);
        lines.push_back(transcript.substr(start, end == std::string_view::npos ? end : end - start));
        start = end == std::string_view::npos ? transcript.size() : end + 1;
    }
    PreviewReport report;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!startsWith(lines[i], kMark) && lines[i] != kMark) {
            report.transcript += lines[i];
            report.transcript += '\n';
            continue;
        }
        const Tokens shown = tokensOf(lines[i].substr(1));  // without the '#'
        Outcome outcome;
        for (std::size_t j = i + 1; j < lines.size() && !outcome.ended; ++j) {
            const std::string_view line = lines[j];
            if (startsWith(line, kMark) || line == kMark) break;
            if (startsWith(line, "AddCmd")) {
                const Tokens command = tokensOf(line);
                if (!command.quoted.empty()) outcome.commands.push_back(command.quoted.front());
            } else if (startsWith(line, "message") && !outcome.firstMessage) {
                const Tokens message = tokensOf(line);
                if (!message.quoted.empty()) outcome.firstMessage = message.quoted.back();
            } else if (startsWith(line, "chooser")) {
                outcome.chooser = true;
            } else if (endsRun(line)) {
                outcome.ended = true;
            }
        }
        const std::string where = " (after transcript line " + std::to_string(i + 1) + ")";
        // A save chooser the user cancelled (or could not use) refuses the
        // OK without a word: the outcome says nothing of the preview.
        if (outcome.chooser && outcome.commands.empty() && !outcome.firstMessage) continue;
        if (shown.refused) {
            const std::string& refusal = shown.quoted.empty() ? std::string() : shown.quoted.front();
            if (!outcome.firstMessage || *outcome.firstMessage != refusal || !outcome.commands.empty())
                report.mismatches.push_back("the preview showed the refusal \"" + refusal + "\" but OK showed " +
                                            (outcome.firstMessage ? "\"" + *outcome.firstMessage + "\"" : "no message") +
                                            " and pushed " + joined(outcome.commands) + where);
            ++report.checked;
            continue;
        }
        // An empty preview: OK pushes nothing, whether it closes or not.
        const bool consistent = shown.quoted.empty() ? outcome.commands.empty()
                                                     : outcome.ended && sameLines(shown.quoted, outcome.commands);
        if (!consistent)
            report.mismatches.push_back("the preview showed " + joined(shown.quoted) + " but OK " +
                                        (outcome.ended ? "pushed " + joined(outcome.commands)
                                                       : "left the dialog open" +
                                                             (outcome.firstMessage ? " with \"" + *outcome.firstMessage + "\""
                                                                                   : std::string())) +
                                        where);
        ++report.checked;
    }
    return report;
}

}  // namespace kvs::scenario
