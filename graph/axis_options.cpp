#include "graph/axis_options.h"

#include <array>
#include <cctype>

namespace kvs::graph {

namespace {

constexpr std::array<std::string_view, 13> kStyles2d = {"Automatic", "Box",  "L",      "U",     "C",
                                                        "Vertical",  "Horizontal", "Bottom", "Top", "Left",
                                                        "Right",     "Cross", "None"};
constexpr std::array<std::string_view, 9> kStyles3d = {"Automatic", "Box",   "L",     "Book", "Corner",
                                                       "Fork",      "Spoon", "Cross", "None"};

template <std::size_t N>
std::string_view entry(const std::array<std::string_view, N>& entries, int position) {
    return position >= 0 && static_cast<std::size_t>(position) < N ? entries[static_cast<std::size_t>(position)]
                                                                     : std::string_view();
}

std::string capitals(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

// A style other than the first ("Automatic"), in capitals after its keyword.
void appendStyle(CommandText& line, std::string_view keyword, std::string_view style, int position) {
    if (position <= 0 || style.empty()) return;
    const CommandText::Piece piece(line);
    line.append(keyword).append(capitals(style));
}

}  // namespace

char axisLetter(int optionCode) {
    switch (optionCode) {
    case 2001: return 'X';
    case 2002: return 'Y';
    case 2003: return 'Z';
    case 2016: return 'W';
    default: return 0;
    }
}

bool appendKeyword(CommandText& line, std::string_view prefix, std::string_view keyword, bool quote,
                   std::string_view value) {
    if (value.find_first_not_of(' ') == std::string_view::npos) return false;  // blanks are no value
    const CommandText::Piece piece(line);  // the keyword with its value, whole or not at all
    line.append(' ').append(prefix).append(keyword);
    if (!quote) {
        line.append(value);
        return true;
    }
    const char mark = value.find('\'') != std::string_view::npos ? '"' : '\'';
    line.append(mark).append(value).append(mark);
    return true;
}

void appendAxisOptions(CommandText& line, char letter, const AxisOptions& axis) {
    const std::string_view prefix(&letter, 1);
    appendKeyword(line, prefix, "LABEL=", true, axis.label);
    appendKeyword(line, prefix, "MIN=", false, axis.minimum);
    appendKeyword(line, prefix, "MAX=", false, axis.maximum);
    // Both limits read XLIMIT=10 ,2: the blank before the comma is the
    // append routine's.
    {
        const CommandText::Piece limits(line);
        if (appendKeyword(line, prefix, "LIMIT=", false, axis.upperLimit)) appendKeyword(line, "", ",", false, axis.lowerLimit);
        else appendKeyword(line, prefix, "LIMIT=", false, axis.lowerLimit);
    }
    appendKeyword(line, prefix, "TICK=", false, axis.tick);
    appendKeyword(line, prefix, "PIP=", false, axis.pip);
    if (axis.transformation == kTransformPower) appendKeyword(line, prefix, "POW=", false, axis.power);
    else if (axis.transformation == kTransformLog) appendKeyword(line, prefix, "LOG=", false, axis.logBase);
    appendKeyword(line, prefix, "FORMAT=", false, axis.decimals);
    const auto appendWord = [&line, prefix](std::string_view word) {
        const CommandText::Piece piece(line);
        line.append(' ').append(prefix).append(word);
    };
    if (axis.grid) appendWord("GRID");
    if (axis.reverse) appendWord("REV");
}

std::string_view axesStyle2d(int position) { return entry(kStyles2d, position); }
std::string_view axesStyle3d(int position) { return entry(kStyles3d, position); }

void appendAllAxesOptions(CommandText& line, const AllAxesOptions& axes, bool threeDimensional) {
    if (threeDimensional) {
        appendStyle(line, " AXES=", axesStyle3d(axes.axes3d), axes.axes3d);
        appendStyle(line, " SCALE=", axesStyle3d(axes.scales3d), axes.scales3d);
    } else {
        appendStyle(line, " AXES=", axesStyle2d(axes.axes2d), axes.axes2d);
        appendStyle(line, " SCALE=", axesStyle2d(axes.scales2d), axes.scales2d);
    }
    if (axes.tickStyle == TickStyle::Outside) line.append(" STICK=OUT");
    else if (axes.tickStyle == TickStyle::Through) line.append(" STICK=THROUGH");
    if (axes.tickLocation == TickLocation::Indent) line.append(" TICK=INDENT");
    else if (axes.tickLocation == TickLocation::Float) line.append(" TICK=FLOAT");
    if (axes.transpose) line.append(" TRANSPOSE");
}

}  // namespace kvs::graph
