#include "graph/option_codes.h"

namespace kvs::graph {

namespace {

bool oneOf(int id, std::initializer_list<int> ids) {
    for (int each : ids)
        if (each == id) return true;
    return false;
}

}  // namespace

SubDialog subDialogFor(int code, int graph) {
    switch (code) {
    case 2001: return {OptionKind::Axis, "X-Axis", "XAxisCreate"};
    case 2002: return {OptionKind::Axis, "Y-Axis", "XAxisCreate"};
    case 2003: return {OptionKind::Axis, "Z-Axis", "XAxisCreate"};
    case 2016: return {OptionKind::Axis, "W-Axis", "XAxisCreate"};
    case 2004: return {OptionKind::AllAxes, "All Axes", graph == 119 ? "AllAxesFPlot" : "AllAxesCreate"};
    case 2005: return {OptionKind::Layout, "Graph Layout", "LayoutCreate"};
    case 2006:
        if (oneOf(graph, {109, 116, 118, 119})) return {OptionKind::ColorFill, "Color", "ColorCreate"};
        return {OptionKind::ColorFill, "Color and Fill", "ColorAndFillCreate"};
    case 2007: return {OptionKind::SymbolLabel, "Symbol and Label", "SymbolAndLabelCreate"};
    case 2008:
        if (oneOf(graph, {107, 108, 109, 116, 118, 120, 128})) return {OptionKind::LineStyle, "Line Style", "LineStyle"};
        return {OptionKind::LineStyle, "Surface and Line Style", "SurfaceLineStyle"};
    case 2010: return {OptionKind::Legend, "Legend", "LegendCreate"};
    case 2012:
        if (graph == 121) return {OptionKind::PlotOptions, "Probability Plot Options", "PlotOptions"};
        if (graph == 146) return {OptionKind::PlotOptions, "Quantile Plot Options", "PlotOptions"};
        if (graph == 147) return {OptionKind::PlotOptions, "Scatterplot Matrix Options", "SplomOptions"};
        return {OptionKind::PlotOptions, "Plot Options", "PlotOptions"};
    case 2013: return {OptionKind::Smoother, "Smoother", "Smoother"};
    case 2014: return {OptionKind::Residuals, "Residuals", "Residuals"};
    case 2015: return {OptionKind::Coordinates, "Coordinates", "Coordinates"};
    case 2017: return {OptionKind::ErrorBars, "Error Bars", "ErrorBars"};
    case 2018: return {OptionKind::BarOptions, graph == 102 ? "Pyramid Options" : "Bar Options", "BarOptions"};
    case 2019: return {OptionKind::CommonCoordinates, "Coordinates", "CommonCoordinates"};
    case 2020:
        if (graph == 129) return {OptionKind::BarLabel, "Slice Label", "SliceLabel"};
        if (graph == 102) return {OptionKind::BarLabel, "Pyramid Label", "PyramidLabel"};
        return {OptionKind::BarLabel, "Bar Label", "BarLabel"};
    case 2021: return {OptionKind::DotOptions, "Dot Options", "DotOptions"};
    case 2022:
        return {OptionKind::LineOptions, graph == 1124 ? "Profile Options" : "Line Options", "CommonOptions"};
    case 2023:
        return {OptionKind::HistogramOptions, graph == 114 ? "Density Function Options" : "Histogram Options",
                "HistogramOptions"};
    case 2024: return {OptionKind::BoxOptions, "Box Plot Options", "BoxPlotOptions"};
    case 2025: return {OptionKind::CaseLabels, "Case Labels", "CaseLabels"};
    case 2026: return {OptionKind::PieScale, "Pie Chart Scale", "PieChartScale"};
    case 2027: return {OptionKind::IconLocation, "Icon Location", "IconLocation"};
    default: return {};
    }
}

std::uint32_t optionHelpContext(int code, int graph) {
    if (oneOf(code, {2012, 2018, 2020, 2022})) return static_cast<std::uint32_t>(graph);
    if (code == 2023 && graph == 114) return 114;
    return static_cast<std::uint32_t>(code);
}

}  // namespace kvs::graph
