// The option codes of the graph dialogs (2001 to 2027): which sub-dialog
// each opens, under which title and template for a graph, and the help
// topic its Help button opens.
#pragma once

#include <cstdint>
#include <string_view>

namespace kvs::graph {

inline constexpr int kTransposeItem = 2028;  // the check-mark item of the 2-D axes menu

// The behaviour kinds of the sub-dialogs, as the code table numbers them.
enum class OptionKind {
    None = -1,
    Axis = 1,
    AllAxes = 2,
    Layout = 3,
    ColorFill = 4,
    SymbolLabel = 5,
    Legend = 8,
    PlotOptions = 9,
    Smoother = 10,
    Residuals = 11,
    LineStyle = 12,
    Coordinates = 13,
    BarOptions = 14,
    ErrorBars = 15,
    CommonCoordinates = 16,
    BarLabel = 17,
    DotOptions = 18,
    LineOptions = 19,
    HistogramOptions = 20,
    BoxOptions = 21,
    CaseLabels = 22,
    PieScale = 23,
    IconLocation = 24,
};

struct SubDialog {
    OptionKind kind = OptionKind::None;
    std::string_view title;
    std::string_view templateName;
};

// The sub-dialog code opens from the dialog of graphId; kind None for a code
// without one (2009, 2011, and anything outside 2001 to 2027).
SubDialog subDialogFor(int optionCode, int graphId);

// The context the sub-dialog's Help button opens.
std::uint32_t optionHelpContext(int optionCode, int graphId);

}  // namespace kvs::graph
