// The graph builders as pure functions: the state of a graph dialog at OK
// (the names in its lists, its check boxes and drop-downs as far as they
// are checked and enabled) and its option records give exactly one command
// line, or the refusal with its message. Showing the message (exclamation
// icon, with a beep) or pushing the line is the delivering step's.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/blank_text.h"
#include "core/command_text.h"
#include "core/composition.h"
#include "core/join_names.h"

namespace kvs::graph {

// The option records a builder asks for, by option code. A group of codes
// belongs to an option button; a builder may visit a group only while its
// button is enabled.
class OptionSource {
public:
    virtual ~OptionSource() = default;
    virtual bool buttonEnabled(int buttonId) const = 0;
    // Appends the keyword groups of the record of code when its "set" flag is
    // on; threeDimensional is the axis composer's flag.
    virtual void append(CommandText& line, int optionCode, bool threeDimensional) const = 0;
};

// The option buttons, by control id.
inline constexpr int kOptionsButton = 501, kAxesButton = 502, kAppearanceButton = 503, kLayoutButton = 504;

// Scatterplot (101). Each keyword flag is true only when its box is checked
// and enabled; display is the "Display as:" index (0 none, 1 contour, 2 tile).
struct ScatterplotState {
    Names x, y, z, group;
    Names w;  // the W-variables of the triangular coordinates, when that record is set and shown
    bool overlay = false;
    bool repeat = false;
    bool matrix = false;
    bool mirror = false;
    bool mirrorChecked = false;  // checked, enabled or not: the validation rules read these so
    bool matrixChecked = false;
    int display = 0;
    bool displayEnabled = true;
};
Composition composeScatterplot(const ScatterplotState& state, const OptionSource& options);

// High-low-close (107): one variable in each of High, Low, Close and X.
struct HighLowState {
    Names high, low, close, x, group;
    bool mirror = false;
    bool overlay = false;
};
Composition composeHighLow(const HighLowState& state, const OptionSource& options);

// Quantile plot (146), the model of the spaced style.
struct QuantileState {
    Names x, y, group;
    bool mirror = false;
    bool overlay = false;
};
Composition composeQuantile(const QuantileState& state, const OptionSource& options);

// Bar (103), pyramid (102), dot (108), line (109) and profile (1124): one
// grammar. Keyword flags are true only when checked and enabled; the
// "...Checked" ones are the boxes' states as validation reads them.
struct BarFamilyState {
    Names x, y, z, group;
    bool counts = false;   // "Counts of Y * X"
    bool repeat = false, repeatChecked = false;
    bool matrix = false, matrixChecked = false;
    bool stack = false;    // bar and profile
    bool range = false;    // bar
    bool overlay = false;
    bool mirror = false;
    int display = 0;       // bar: 1 is "TILE"
    bool displayEnabled = true;
};
// graphId: 103, 102, 108, 109 or 1124.
Composition composeBarFamily(int graphId, const BarFamilyState& state, const OptionSource& options);
// The message of family B, 1 to 6, for the graph's name.
std::string barFamilyMessage(int number, std::string_view graphName);

// Box plot (106), dot density (113), histogram (111) and density function
// (114): "DENSITY " and the spaced expression Y * X, with messages of
// family C. style: the dot-density style or the density kind, as the
// position in its drop-down list; display: the density display's position.
struct DensityState {
    Names x, y, group;
    bool repeat = false, repeatChecked = false;
    bool overlay = false;
    bool mirror = false;
    int style = 0;
    int display = 0;
};
Composition composeDensity(int graphId, const DensityState& state, const OptionSource& options);
std::string densityMessage(int number, int graphId);

// The graphs whose own keywords are few: pie (129), icon (120), probability
// plot (121), Andrews' Fourier plot (116), parallel coordinates (118),
// scatterplot matrix (147), map (128) and function plot (119). The lists:
// x is the category, column or X list; y the Y, feature, waveform, parallel
// or row list.
struct SimpleGraphState {
    Names x, y, group;
    bool mirror = false;
    bool overlay = false;
    bool half = false;        // matrix
    bool transpose = false;   // icon, matrix
    bool ring = false, threeD = false;  // pie
    std::string slices;       // pie: " SLICE=" and its number when given
    bool probabilityScale = false;      // " PSCALE"
    int choice = 0;           // icon kind, map projection or distribution, as a list position
    std::string parameter1, parameter2;  // the distribution's parameters
    bool sphere = false;      // map
    std::string equationLeft, equationRight;  // function plot
    int display = 0;          // function plot: 1 contour, 2 tile
};
Composition composeSimpleGraph(int graphId, const SimpleGraphState& state, const OptionSource& options);

// The validation messages of the scatterplot (family A, 1 to 5).
std::string_view scatterplotMessage(int number);

// A graph command line, bounded by the graph builders' 10,000-byte buffer.
inline CommandText graphLine(std::string_view verb = {}) { return CommandText(verb, CommandText::kGraphCapacity); }
// Appends a list's names, each followed by separator, dropping the last
// separator. A list that passes the 9,900-character bound ends the command
// after the name that passed it: the line is sealed, so nothing follows
// (no separator, "*", keyword or option).
void appendNames(CommandText& line, const Names& names, char separator);
// Writes a list's keyword (" GROUP=") when the list has names and the line
// can still take them; past the bound it seals the line instead. True when
// the names are to follow.
bool startList(CommandText& line, std::string_view keyword, const Names& names);
// Removes one trailing character c, when the line ends in it.
inline void stripTrailing(CommandText& line, char c) { line.stripTrailing(c); }

// The steps the builders share.
// Appends each code's groups, in order.
void appendCodes(CommandText& line, const OptionSource& options, std::initializer_list<int> codes,
                 bool threeD = false);
// Grouping with comma-separated variables: " DUAL=" when mirrored, else " GROUP=".
void appendCommaGrouping(CommandText& line, const Names& group, bool dual);
// The spaced style: Y, " * " whenever Y holds a variable (with repeated
// trials and no X the line keeps it: "DENSITY y * /"), then X.
void appendSpaced(CommandText& line, const Names& y, const Names& x);
// Strips one trailing "/" and gives the line.
Composition finishGraphLine(CommandText& line);

}  // namespace kvs::graph
