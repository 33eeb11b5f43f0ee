// The graph family's rows: the twenty graph dialogs, all served by the one
// graph behaviour, and the font commands.
#include "core/dialog_defaults.h"
#include "graph/font_chooser.h"
#include "graph/graph_dialog.h"
#include "graph/option_store.h"
#include "graph/graph_family.h"
#include "graph/picture_sets.h"

namespace kvs::graph {

namespace {

constexpr DispatchRow kRows[] = {
    dialogRow(Family::Graph, 101, "PlotV6", "Scatterplot", Launch::Graph, 2, 256, 256, 2, 2).behaving(graphBehaviourOf<101>),
    dialogRow(Family::Graph, 102, "Pyramid", "Pyramid", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<102>),
    dialogRow(Family::Graph, 103, "Bar", "Bar", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<103>),
    dialogRow(Family::Graph, 106, "BoxPlot", "Box Plot", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<106>),
    dialogRow(Family::Graph, 107, "HiLo", "High-Low-Close Plot", Launch::Standard, 1, 256, 0, 2, 5).behaving(graphBehaviourOf<107>),
    dialogRow(Family::Graph, 108, "Dot", "Dot", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<108>),
    dialogRow(Family::Graph, 109, "Line", "Line", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<109>),
    dialogRow(Family::Graph, 111, "Histogram", "Histogram", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<111>),
    dialogRow(Family::Graph, 113, "DotDensity", "Dot Density", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<113>),
    dialogRow(Family::Graph, 114, "DensityFunction", "Density Function", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<114>),
    dialogRow(Family::Graph, 116, "FourierPlot", "Andrews' Fourier Plot", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<116>),
    dialogRow(Family::Graph, 118, "Parallel", "Parallel Coordinate Display", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<118>),
    dialogRow(Family::Graph, 119, "FPlot", "Function Plot", Launch::Standard, 1, 1, 1, 0, 0).behaving(graphBehaviourOf<119>),
    dialogRow(Family::Graph, 120, "IconPlot", "Icon Plot", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<120>),
    dialogRow(Family::Graph, 121, "Pplot", "Probability Plot", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<121>),
    dialogRow(Family::Graph, 128, "Map", "Map", Launch::Standard, 1, 1, 1, 0, 0).behaving(graphBehaviourOf<128>),
    dialogRow(Family::Graph, 129, "PieChart", "Pie Chart", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<129>),
    dialogRow(Family::Graph, 146, "QPlot", "Quantile Plot", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<146>),
    dialogRow(Family::Graph, 147, "Splom", "Scatterplot Matrix", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<147>),
    dialogRow(Family::Graph, 1124, "Profile", "Profile", Launch::Graph, 2, 256, 256, 0, 0).behaving(graphBehaviourOf<1124>),
    specialRow(Family::Graph, 150, runFontCommand),  // the graph font chooser, writes lfKvgFont
    specialRow(Family::Graph, 153, runFontCommand),  // lfKvgFont back to lfDefKvgFont
};

void addDefaults(DefaultsTable& table) {
    table.routine([](bool) { forgetAllOptionRecords(); });
}

void resetForLoad() {
    forgetPictures();
    resetFontChooser();
}

}  // namespace

FamilyTable family() { return {kRows, addDefaults, resetForLoad}; }

}  // namespace kvs::graph
