// The graph family's rows. The graph dialogs themselves come with their
// behaviours; until then their rows keep the launcher's facts.
#include "graph/font_chooser.h"
#include "graph/graph_family.h"
#include "graph/picture_sets.h"

namespace kvs::graph {

namespace {

constexpr DispatchRow kRows[] = {
    dialogRow(Family::Graph, 101, "PlotV6", "Scatterplot", Launch::Graph, 2, 256, 256, 2, 2),
    dialogRow(Family::Graph, 102, "Pyramid", "Pyramid", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 103, "Bar", "Bar", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 106, "BoxPlot", "Box Plot", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 107, "HiLo", "High-Low-Close Plot", Launch::Standard, 1, 256, 0, 2, 5),
    dialogRow(Family::Graph, 108, "Dot", "Dot", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 109, "Line", "Line", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 111, "Histogram", "Histogram", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 113, "DotDensity", "Dot Density", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 114, "DensityFunction", "Density Function", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 116, "FourierPlot", "Andrews' Fourier Plot", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 118, "Parallel", "Parallel Coordinate Display", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 119, "FPlot", "Function Plot", Launch::Standard, 1, 1, 1, 0, 0),
    dialogRow(Family::Graph, 120, "IconPlot", "Icon Plot", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 121, "Pplot", "Probability Plot", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 128, "Map", "Map", Launch::Standard, 1, 1, 1, 0, 0),
    dialogRow(Family::Graph, 129, "PieChart", "Pie Chart", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 146, "QPlot", "Quantile Plot", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 147, "Splom", "Scatterplot Matrix", Launch::Graph, 2, 256, 256, 0, 0),
    dialogRow(Family::Graph, 1124, "Profile", "Profile", Launch::Graph, 2, 256, 256, 0, 0),
    specialRow(Family::Graph, 150, runFontCommand),  // the graph font chooser, writes lfKvgFont
    specialRow(Family::Graph, 153, runFontCommand),  // lfKvgFont back to lfDefKvgFont
};

void resetForLoad() {
    forgetPictures();
    resetFontChooser();
}

}  // namespace

FamilyTable family() { return {kRows, nullptr, resetForLoad}; }

}  // namespace kvs::graph
