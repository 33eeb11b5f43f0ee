// The axis options of the graph dialogs and the keyword groups they add to a
// graph command: one record per single axis (X, Y, Z and W, option codes
// 2001, 2002, 2003 and 2016) and the "All Axes" record (code 2004).
#pragma once

#include <string>
#include <string_view>

#include "core/command_text.h"

namespace kvs::graph {

// The transformation radio buttons of an axis sub-dialog, by control id.
inline constexpr int kTransformNone = 38;
inline constexpr int kTransformPower = 39;
inline constexpr int kTransformLog = 40;

// A single axis. An empty text is a value not given.
struct AxisOptions {
    std::string label;
    std::string maximum;
    std::string minimum;
    std::string upperLimit;
    std::string lowerLimit;
    std::string tick;       // labelled tick interval
    std::string pip;        // unlabelled tick interval
    int transformation = kTransformNone;
    std::string power;
    std::string logBase;
    std::string decimals;
    bool grid = false;
    bool reverse = false;
};

// The axis letter of an option code: 'X' for 2001, 'Y' 2002, 'Z' 2003, 'W'
// 2016; 0 for any other code.
char axisLetter(int optionCode);

// Appends a blank, prefix, keyword and value when the value is given (not
// empty, not only blanks), and returns true; appends nothing and returns
// false otherwise. With quote the value goes in apostrophes, or in double
// quotes when it holds an apostrophe.
bool appendKeyword(CommandText& line, std::string_view prefix, std::string_view keyword, bool quote,
                   std::string_view value);

// The groups of one axis, each after a blank and the axis letter:
// LABEL=, MIN=, MAX=, LIMIT=, TICK=, PIP=, POW= or LOG=, FORMAT=, GRID, REV.
void appendAxisOptions(CommandText& line, char letter, const AxisOptions& axis);

enum class TickStyle { Inside, Outside, Through };
enum class TickLocation { Flush, Indent, Float };

// "All Axes": the axes and scales styles as positions in their drop-down
// lists (0, "Automatic", writes nothing), for two and three dimensions.
struct AllAxesOptions {
    int axes2d = 0;
    int scales2d = 0;
    int axes3d = 0;
    int scales3d = 0;
    TickStyle tickStyle = TickStyle::Inside;
    TickLocation tickLocation = TickLocation::Flush;
    bool transpose = false;
};

// The entries of the styles' drop-down lists, in list order.
std::string_view axesStyle2d(int position);  // "Automatic", "Box", "L", ... "None"
std::string_view axesStyle3d(int position);  // "Automatic", "Box", "L", "Book", ... "None"

// " AXES=", " SCALE=" (for the dimension in force), " STICK=", " TICK=" and
// " TRANSPOSE".
void appendAllAxesOptions(CommandText& line, const AllAxesOptions& axes, bool threeDimensional);

}  // namespace kvs::graph
