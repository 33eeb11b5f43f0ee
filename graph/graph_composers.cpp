#include "graph/graph_composers.h"

#include <array>

namespace kvs::graph {

namespace {

constexpr std::array<std::string_view, 5> kScatterplotMessages = {
    "You must select a Y-variable(s), or a Z-variable(s) with the Matrix columns option, to produce a Scatterplot.",
    "You must also select a Y-variable(s) to produce a Scatterplot.",
    "You must also select an X-variable and a Y-variable(s), or the Matrix columns option, to produce a "
    "Scatterplot.",
    "You must also select an X-variable to produce a Scatterplot.",
    "You must also select an X-variable, Y-variable(s), and Z-variable(s) to produce a 3D Triangular plot.",
};

constexpr std::string_view kHighLowMessage = "Need High, Low, and Close variables!";
constexpr std::string_view kQuantileMessage = "You must select an X-variable to produce a Quantile Plot.";

std::size_t count(const Names& names) { return names.size(); }

// The first scatterplot rule that fires, 0 when none does.
int scatterplotRule(const ScatterplotState& s) {
    const std::size_t x = count(s.x), y = count(s.y), z = count(s.z), g = count(s.group), w = count(s.w);
    if (w == 0) {
        if (x == 0 && y == 0 && z == 0 && g == 0) return 1;
        if (x == 0 && y == 0 && z == 0 && g == 1) return 1;
        if (x == 0 && y == 0 && g == 1 && s.mirrorChecked) return 1;
        if (x == 0 && y == 0 && z == 0 && g == 2) return 1;
        if (x == 1 && y == 0 && z == 0 && g == 0) return 2;
        if (x == 1 && y == 0 && z == 0 && g == 1) return 2;
        if (x == 1 && y == 0 && g == 1 && s.mirrorChecked) return 2;
        if (x == 1 && y == 0 && z == 0 && g == 2) return 2;
        if (x == 0 && y == 0 && z >= 1 && !s.matrixChecked) return 3;
        if (x == 1 && y == 0 && z >= 1) return 2;
        if (x == 0 && y >= 1 && z == 1) return 4;
        if (x == 0 && y == 1 && z >= 2) return 4;
    } else if (x == 0 || y == 0 || z == 0) {
        return 5;
    }
    return 0;
}

// Appends each code's groups, in order.
void appendCodes(CommandText& line, const OptionSource& options, std::initializer_list<int> codes, bool threeD) {
    for (int code : codes) options.append(line, code, threeD);
}

// Grouping with comma-separated variables: " DUAL=" when mirrored, else " GROUP=".
void appendCommaGrouping(CommandText& line, const Names& group, bool dual) {
    if (group.empty()) return;
    line.append(dual ? " DUAL=" : " GROUP=");
    appendNames(line, group, ',');
}

}  // namespace

void appendNames(CommandText& line, const Names& names, char separator) { joinNames(names, line, separator); }

void stripTrailing(CommandText& line, char c) {
    if (!line.empty() && line.str().back() == c) line.dropLast();
}

std::string_view scatterplotMessage(int number) {
    return number >= 1 && number <= 5 ? kScatterplotMessages[static_cast<std::size_t>(number - 1)]
                                      : std::string_view();
}

Composition composeScatterplot(const ScatterplotState& s, const OptionSource& options) {
    if (const int rule = scatterplotRule(s)) return Composition::refuse(scatterplotMessage(rule));
    CommandText line("PLOT ");
    if (!s.w.empty()) {
        appendNames(line, s.w, ' ');
        line.append('*');
    }
    if (!s.z.empty()) {
        appendNames(line, s.z, ' ');
        line.append('*');
    }
    if (!s.y.empty()) {
        appendNames(line, s.y, ' ');
        line.append('*');
    }
    appendNames(line, s.x, ' ');
    stripTrailing(line, '*');
    line.append(" /");
    if (s.overlay) line.append(" OVERLAY");
    if (s.repeat) line.append(" REPEAT");
    if (s.matrix) line.append(" MATRIX");
    if (!s.group.empty()) {
        if (s.mirror) line.append(" DUAL=").append(s.group.front());
        else {
            line.append(" GROUP=");
            appendNames(line, s.group, ' ');
        }
    }
    if (s.displayEnabled && s.display == 1) line.append(" CONTOUR");
    if (s.displayEnabled && s.display == 2) line.append(" TILE");
    const bool threeD = !s.z.empty() && s.display == 0;
    if (options.buttonEnabled(kOptionsButton)) appendCodes(line, options, {2012, 2013, 2014, 2015}, threeD);
    if (options.buttonEnabled(kAxesButton)) {
        appendCodes(line, options, {2001, 2002}, threeD);
        if (threeD) appendCodes(line, options, {2003, 2016}, threeD);
        appendCodes(line, options, {2004}, threeD);
    }
    if (options.buttonEnabled(kAppearanceButton)) appendCodes(line, options, {2006, 2007, 2008}, threeD);
    if (options.buttonEnabled(kLayoutButton)) appendCodes(line, options, {2005, 2010}, threeD);
    stripTrailing(line, '/');
    return Composition().add(line);
}

Composition composeHighLow(const HighLowState& s, const OptionSource& options) {
    if (s.high.empty() || s.low.empty() || s.close.empty()) return Composition::refuse(kHighLowMessage);
    // Close, High, Low: the order the command wants, not the order on screen.
    CommandText line("PLOT ");
    line.append(s.close.front()).append(' ').append(s.high.front()).append(' ').append(s.low.front());
    if (!s.x.empty()) line.append('*').append(s.x.front());
    stripTrailing(line, '*');
    line.append("/ HILO");
    appendCommaGrouping(line, s.group, s.mirror);
    if (s.overlay) line.append(" OVERLAY");
    appendCodes(line, options, {2013, 2019, 2001, 2002, 2004, 2006, 2007, 2008, 2005, 2010}, false);
    stripTrailing(line, '/');
    return Composition().add(line);
}

Composition composeQuantile(const QuantileState& s, const OptionSource& options) {
    if (s.x.empty()) return Composition::refuse(kQuantileMessage);
    CommandText line("QPLOT ");
    appendNames(line, s.y, ' ');
    if (!s.y.empty()) line.append(" * ");
    appendNames(line, s.x, ' ');
    line.append('/');
    appendCommaGrouping(line, s.group, s.mirror && s.group.size() == 1);
    if (s.overlay) line.append(" OVERLAY");
    appendCodes(line, options, {2012, 2019, 2013, 2014, 2001, 2002, 2004, 2005, 2010, 2006, 2007, 2008}, false);
    stripTrailing(line, '/');
    return Composition().add(line);
}

}  // namespace kvs::graph
