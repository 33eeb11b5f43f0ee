// What a dialog's OK composes: the lines to hand the host, in push order, or
// a refusal with the message the user sees. A dialog's composer is a pure
// function of its settings and names that returns one of these, so it can be
// tested by a table and run on every change without side effects; showing
// the message or pushing the lines is the separate step deliver().
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/command_text.h"
#include "core/seam.h"

namespace kvs {

struct Composition {
    std::vector<std::string> lines;
    std::string refusal;  // empty when the dialog's choices are accepted

    bool refused() const { return !refusal.empty(); }
    static Composition refuse(std::string_view message) {
        Composition c;
        c.refusal = std::string(message);
        return c;
    }
    Composition& add(const CommandText& line) {
        lines.push_back(line.str());
        return *this;
    }
    // A line given whole (a line the user typed) is cut at the buffer's bound.
    Composition& add(std::string_view line) { return add(CommandText().appendCut(line)); }
    // Appends text to the last line, within the composition buffer's bound.
    Composition& extend(std::string_view text) {
        if (!lines.empty()) lines.back() = CommandText(lines.back()).append(text).str();
        return *this;
    }
};

// One line of a keyword and the names of a list separated by blanks, or the
// refusal "You must select variables." when the list is empty: the line of
// the simplest variable dialogs.
Composition namesLine(std::string_view keyword, const std::vector<std::string>& names);

// Shows the refusal as a stop message owned by owner, or pushes every line
// onto the command queue. True when the composition was accepted.
bool deliver(WindowRef owner, const Composition& composition);

}  // namespace kvs
