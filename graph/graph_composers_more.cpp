// The density-family builders and the builders with few keywords of their own.
#include <array>

#include "core/bindings.h"
#include "core/numeric_field.h"
#include "graph/graph_composers.h"


namespace kvs::graph {

namespace {

template <std::size_t N>
std::string_view at(const std::array<std::string_view, N>& table, int position) {
    return position >= 0 && static_cast<std::size_t>(position) < N ? table[static_cast<std::size_t>(position)]
                                                                     : std::string_view();
}

constexpr std::array<std::string_view, 4> kDotDensityStyles = {"DIT", "DOT", "JITTER", "STRIPE"};
constexpr std::array<std::string_view, 4> kDensityKinds = {"HIST", "GAP", "POLY", "FUZZY"};
// The density function's displays; the histogram's list has no "2D Contour".
constexpr std::array<std::string_view, 3> kDensityDisplays = {"", "CONTOUR", "TILE"};
constexpr std::array<std::string_view, 2> kHistogramDisplays = {"", "TILE"};
constexpr std::array<std::string_view, 9> kIconKinds = {"STAR", "PROFILE", "HIST", "BLOB", "FACE",
                                                        "THERM", "ARROW", "VANE", "SUN"};
constexpr std::array<std::string_view, 10> kProjections = {"MERCATOR", "GNOMON",   "STEREO",  "ORTHO",
                                                           "LAMBERT",  "MILLER",   "ROBINSON", "PETERS",
                                                           "SINUSOIDAL", "FISHEYE"};
constexpr std::array<std::string_view, 13> kDistributions = {
    " NORMAL", " CHISQ=", " EXPO", " GAMMA=", " UNIFORM", " WEIBULL=", " T=", " F=", " BETA=", " LOGISTIC",
    " RANGE=", " POISSON=", " BINOMIAL="};

constexpr std::string_view kNoParameter = "You must provide a value for the selected function.";


void appendWord(CommandText& line, std::string_view word) {
    const CommandText::Piece piece(line);
    if (!word.empty()) line.append(' ').append(word);
}

}  // namespace

std::string densityMessage(int number, int graphId) {
    std::string_view name = "Histogram.";
    if (graphId == 106) name = "Box Plot.";
    if (graphId == 113) name = "Dot Density Plot.";
    if (graphId == 114) name = "Density Function Plot.";
    if (number == 1)
        return "You must select an X-variable(s) or a Y-variable(s) with the Repeated trials option, to produce a " +
               std::string(name);
    if (number == 2) return "You must also select an X-Variable(s) or the Repeated trials option to produce a " + std::string(name);
    return {};
}

Composition composeDensity(int graphId, const DensityState& s, const OptionSource& options) {
    if (graphId != 106 && graphId != 111 && graphId != 113 && graphId != 114) return {};
    if (s.x.empty() && (s.y.empty() || !s.repeatChecked)) return Composition::refuse(densityMessage(s.y.empty() ? 1 : 2, graphId));
    CommandText line = graphLine("DENSITY ");
    const bool histogram = graphId == 111 || graphId == 114;
    if (histogram) line.append(" . * ");
    appendSpaced(line, s.y, s.x);
    if (graphId == 106) {
        line.append(" /");
        if (s.repeat) line.append(" REPEAT");
        if (s.overlay) line.append(" OVERLAY");
        appendCommaGrouping(line, s.group, s.mirror);
        line.append(" BOX");
        appendCodes(line, options, {2024, 2019, 2001, 2002, 2004, 2005, 2010, 2006, 2007});
        return finishGraphLine(line);
    }
    line.append('/');
    appendCommaGrouping(line, s.group, s.mirror);
    if (s.repeat) line.append(" REPEAT");
    if (s.overlay) line.append(" OVERLAY");
    if (graphId == 113) {
        appendWord(line, at(kDotDensityStyles, s.style));
        appendCodes(line, options, {2019, 2001, 2002, 2004, 2005, 2010, 2007, 2006, 2008});
        return finishGraphLine(line);
    }
    appendWord(line, at(kDensityKinds, s.style));
    appendWord(line, graphId == 111 ? at(kHistogramDisplays, s.display) : at(kDensityDisplays, s.display));
    appendCodes(line, options, {2023, 2019, 2001, 2002, 2003, 2004, 2006, 2008, 2005, 2010});
    return finishGraphLine(line);
}

Composition composeSimpleGraph(int graphId, const SimpleGraphState& s, const OptionSource& options) {
    CommandText line = graphLine();
    switch (graphId) {
    case 129:  // pie
        if (s.x.empty()) return Composition::refuse("You must select a Category variable to produce a Pie chart.");
        if (!isNumberOrBlank(s.slices)) return Composition::refuse(kNotANumber);
        line.append("PIE ");
        appendSpaced(line, s.y, s.x);
        line.append('/');
        appendCommaGrouping(line, s.group, false);
        if (!isBlankText(s.slices)) {
            const CommandText::Piece piece(line);
            line.append(" SLICE=").append(withoutBlanks(s.slices));
        }
        if (s.ring) line.append(" RING");
        if (s.threeD) line.append(" THREED");
        appendCodes(line, options, {2005, 2026, 2020});
        return finishGraphLine(line);
    case 120:  // icon
        if (s.y.size() < 2) return Composition::refuse("You must select at least 2 Feature variables to produce an Icon Plot.");
        line.append("ICON ");
        appendNames(line, s.y, ' ');
        line.append(" /");
        appendCommaGrouping(line, s.group, false);
        appendWord(line, at(kIconKinds, s.choice));
        if (s.overlay) line.append(" OVERLAY");
        if (s.transpose) line.append(" TRANSPOSE");
        appendCodes(line, options, {2027, 2019, 2001, 2002, 2005, 2010, 2006, 2007, 2008});
        return finishGraphLine(line);
    case 121: {  // probability plot
        if (s.x.empty()) return Composition::refuse("You must select an X-variable to produce a Probability Plot.");
        const std::string_view distribution = at(kDistributions, s.choice);
        const bool parameters = !distribution.empty() && distribution.back() == '=';
        const std::string_view first = withoutBlanks(s.parameter1), second = withoutBlanks(s.parameter2);
        if (parameters && first.empty()) return Composition::refuse(kNoParameter);
        if (parameters && (!isNumberOrBlank(first) || !isNumberOrBlank(second))) return Composition::refuse(kNotANumber);
        line.append("PPLOT ");
        appendSpaced(line, s.y, s.x);
        line.append('/');
        appendCommaGrouping(line, s.group, s.mirror);
        if (s.overlay) line.append(" OVERLAY");
        if (s.probabilityScale) line.append(" PSCALE");
        {
            const CommandText::Piece piece(line);
            line.append(distribution);
            if (parameters) {
                line.append(first);
                if (!second.empty()) line.append(',').append(second);
            }
        }
        appendCodes(line, options, {2012, 2019, 2013, 2014, 2001, 2002, 2004, 2005, 2010, 2006, 2007, 2008});
        return finishGraphLine(line);
    }
    case 116:  // Andrews' Fourier plot
    case 118:  // parallel coordinates
        if (s.y.size() < 2)
            return Composition::refuse(graphId == 116
                                           ? "You must select at least 2 Waveform variables to produce an Andrew's Fourier Plot."
                                           : "You must select at least 2 Parallel variables to produce a Parallel Coordinate Display.");
        line.append(graphId == 116 ? "FOURIER " : "PARALLEL ");
        appendNames(line, s.y, ' ');
        line.append('/');
        appendCommaGrouping(line, s.group, false);
        if (s.overlay) line.append(" OVERLAY");
        appendCodes(line, options, {2025, 2001, 2002, 2004, 2006, 2008, 2005, 2010});
        return finishGraphLine(line);
    case 147:  // scatterplot matrix: rows * columns
        if (s.y.empty() || s.x.empty())
            return Composition::refuse("You must select a Row-variable(s) and a Column-variable(s) to produce a Scatterplot Matrix.");
        line.append("SPLOM ");
        appendSpaced(line, s.y, s.x);
        line.append('/');
        appendCommaGrouping(line, s.group, false);
        if (s.half) line.append(" HALF");
        if (s.overlay) line.append(" OVERLAY");
        if (s.transpose) line.append(" TRANSPOSE");
        appendCodes(line, options, {2012, 2013, 2001, 2002, 2006, 2007, 2008, 2005, 2010});
        return finishGraphLine(line);
    case 128:  // map
        line.append("MAP /");
        if (const std::string_view projection = at(kProjections, s.choice); !projection.empty()) {
            const CommandText::Piece piece(line);
            line.append(" PROJECT=").append(projection);
        }
        if (s.sphere) line.append(" SPHERE");
        appendCodes(line, options, {2001, 2002, 2004, 2005, 2010, 2006, 2008, 2025});
        return finishGraphLine(line);
    case 119:  // function plot
        if (isBlankText(s.equationLeft) || isBlankText(s.equationRight))
            return Composition::refuse("You must enter a complete equation to produce a Function plot.");
        line.append("FPLOT ");
        {
            const CommandText::Piece piece(line);
            line.append(s.equationLeft).append(" = ").append(s.equationRight).append(" ;");
        }
        // An equation the command cannot hold whole is not a complete one.
        if (line.size() == std::string_view("FPLOT ").size())
            return Composition::refuse("You must enter a complete equation to produce a Function plot.");
        if (s.display == 1) line.append(" CONTOUR");
        if (s.display == 2) line.append(" TILE");
        appendCodes(line, options, {2019, 2001, 2002, 2003, 2016, 2004, 2005, 2006, 2008});
        return Composition().add(line);
    default: return {};
    }
}

}  // namespace kvs::graph
