#include "graph/option_menus.h"

#include "graph/option_codes.h"
#include "resources/graph_ids.h"

namespace kvs::graph {

namespace {

bool oneOf(int id, std::initializer_list<int> ids) {
    for (int each : ids)
        if (each == id) return true;
    return false;
}

}  // namespace

std::string_view popupMenuOf(int button, int dialog) {
    switch (button) {
    case IDC_OPT_OPTIONS: return "GraphOptsOptionsPopupMenu";
    case IDC_OPT_AXES: return "GraphOptsAxesPopupMenu";
    case IDC_OPT_APPEARANCE:
        if (oneOf(dialog, {107, 108, 109, 120})) return "GraphDotOptsAppearancePopupMenu";
        if (dialog == 119) return "GraphOptsAppearanceNOSymLabPopupMenu";
        return "GraphOptsAppearancePopupMenu";
    case IDC_OPT_LAYOUT: return "GraphOptsLayoutPopupMenu";
    case IDC_OPT_HILO: return "GraphOptsHiLoOptionsPopupMenu";
    case IDC_OPT_BAR: return "GraphOptsBarOptionsPopupMenu";
    case IDC_OPT_COMMON_AXES: return "GraphOptsCommonAxesPopupMenu";
    case IDC_OPT_DOT: return "GraphOptsDotOptionsPopupMenu";
    case IDC_OPT_LINE: return "GraphOptsLineOptionsPopupMenu";
    case IDC_OPT_PROFILE: return "GraphOptsProfileOptionsPopupMenu";
    case IDC_OPT_PYRAMID:
        return dialog == 1124 ? "GraphOptsProfileOptionsPopupMenu" : "GraphOptsPyramidOptionsPopupMenu";
    case IDC_OPT_LINE_APPEARANCE:
        if (dialog == 1124) return {};
        return dialog == 102 ? "GraphOptsPyramidAppearancePopupMenu" : "GraphOptsLineAppearancePopupMenu";
    case IDC_OPT_SPLOM: return "GraphOptsSplomOptionsPopupMenu";
    case IDC_OPT_2D_AXES: return "GraphOpts2DAxesPopupMenu";
    case IDC_OPT_HISTOGRAM: return "GraphOptsHistogramOptionsPopupMenu";
    case IDC_OPT_BOX: return "GraphOptsBoxOptionsPopupMenu";
    case IDC_OPT_DENSITY: return "GraphOptsDensFuncOptionsPopupMenu";
    case IDC_OPT_FOURIER:
        return oneOf(dialog, {116, 118}) ? "GraphOptsFourierAppear2PopupMenu" : "GraphOptsFourierAppearPopupMenu";
    case IDC_OPT_PPLOT: return "GraphOptsPPlotOptionsPopupMenu";
    case IDC_OPT_QPLOT: return "GraphOptsQPlotOptionsPopupMenu";
    case IDC_OPT_ICON: return "GraphOptsIconOptionsPopupMenu";
    case IDC_OPT_TRANS_AXES: return "GraphOpts2DTransAxesPopupMenu";
    case IDC_OPT_BAR_APPEARANCE: return "GraphOptsBarAppearancePopupMenu";
    default: return {};
    }
}

int directCodeOf(int button, int dialog) {
    switch (button) {
    case IDC_OPT_LINE_APPEARANCE: return dialog == 1124 ? 2006 : 0;
    case IDC_OPT_SLICE_LABEL: return 2020;
    case IDC_OPT_COORDINATES: return 2019;
    case IDC_OPT_PIE_SCALE: return 2026;
    case IDC_OPT_LAYOUT_ONLY: return 2005;
    default: return 0;
    }
}

std::vector<PopupItemState> menuItemStates(int button, const MenuFacts& f) {
    std::vector<PopupItemState> states;
    switch (button) {
    case IDC_OPT_AXES:
        states.push_back({2003, !f.zVariables && f.dialogId != 119, false});
        states.push_back({2016, !f.wVariables && f.dialogId != 119, false});
        break;
    case IDC_OPT_COMMON_AXES:
        // No value of the bar, pyramid, dot, line or profile options takes
        // the Y axis away, so Y-Axis stays available.
        states.push_back({2003, !f.zVariables, false});
        states.push_back({2002, false, false});
        break;
    case IDC_OPT_FOURIER: states.push_back({2025, !(f.characterVariable && f.characterVariable()), false}); break;
    case IDC_OPT_TRANS_AXES: states.push_back({kTransposeItem, false, f.transposed}); break;
    default: break;
    }
    return states;
}

}  // namespace kvs::graph
