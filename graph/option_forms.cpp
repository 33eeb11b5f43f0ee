#include "graph/option_forms.h"

#include <charconv>

#include "core/numeric_field.h"
#include "resources/graph_ids.h"

namespace kvs::graph {

namespace {

using W = std::string_view;
using S = Store;

// ---- drop-down entries and the words they write --------------------------

constexpr W kAxes2d[] = {"Automatic", "Box", "L", "U", "C", "Vertical", "Horizontal",
                         "Bottom", "Top", "Left", "Right", "Cross", "None"};
constexpr W kAxes3d[] = {"Automatic", "Box", "L", "Book", "Corner", "Fork", "Spoon", "Cross", "None"};

constexpr W kSmoothNames[] = {"None", "Linear", "Lowess", "DWLS", "Quadratic", "Log", "Power", "Spline",
                              "Step", "Negative exponential", "Inverse", "Mean", "Median", "Mode",
                              "Midrange", "Kriging"};
constexpr W kSmoothWords[] = {"", "LINEAR", "LOWESS", "DWLS", "QUAD", "LOG", "POWER", "SPLINE",
                              "STEP", "NEXPO", "INVERSE", "MEAN", "MEDIAN", "MODE", "MIDRANGE", "KRIGING"};
constexpr W kResidNames[] = {"None", "Linear", "DWLS", "Quadratic", "Step", "Negative exponential",
                             "Inverse", "Kriging", "Log", "Power", "Lowess", "Spline", "Mean", "Median",
                             "Mode", "Midrange", "Trimmed"};
constexpr W kResidWords[] = {"", "LINEAR", "DWLS", "QUAD", "STEP", "NEXPO", "INVERSE", "KRIGING", "LOG",
                             "POWER", "LOWESS", "SPLINE", "MEAN", "MEDIAN", "MODE", "MIDRANGE", "TRIMMED"};
constexpr W kProjectionNames[] = {"None", "Mercator Conformal", "Oblique Gnomonic", "Oblique Stereographic",
                                  "Oblique Orthographic", "Lambert Cylindrical", "Miller Cylindrical",
                                  "Robinson", "Peters", "Sinusoidal", "Fisheye"};
constexpr W kProjectionWords[] = {"", "MERCATOR", "GNOMON", "STEREO", "ORTHO", "LAMBERT",
                                  "MILLER", "ROBINSON", "PETERS", "SINUSOIDAL", "FISHEYE"};
constexpr W kDensityNames[] = {"None", "Histogram", "Kernel", "Normal"};
constexpr W kDensityWords[] = {"", "HIST", "KERNEL", "NORMAL"};
constexpr W kBorderNames[] = {"None", "Box plot", "Dit plot", "Dot plot", "Histogram", "Jitter", "Stripe"};
constexpr W kBorderWords[] = {"", "BOX", "DIT", "DOT", "HIST", "JITTER", "STRIPE"};
constexpr W kDirectionNames[] = {"Both", "Up", "Down"};
constexpr W kDirectionWords[] = {"", "UP", "DOWN"};
constexpr W kSurfaceNames[] = {"None", "XY grid", "X lines", "Y lines"};
constexpr W kSurfaceWords[] = {"", "XY", "X", "Y"};
constexpr W kDashes[] = {"None", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"};
constexpr W kSymbols[] = {"None", "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "10", "11",
                          "12",   "13", "14", "15", "16", "17", "18", "19", "20", "21", "22"};

// ---- the forms ------------------------------------------------------------

constexpr FormField kAxisFields[] = {
    {IDC_AXIS_LABEL, S::Text},    {IDC_AXIS_MAX, S::Number},      {IDC_AXIS_MIN, S::Number},
    {IDC_AXIS_UPPER, S::Number},  {IDC_AXIS_LOWER, S::Number},    {IDC_AXIS_TICK, S::Number},
    {IDC_AXIS_PIP, S::Number},    {IDC_AXIS_NONE, S::RadioFirst}, {IDC_AXIS_POW, S::Check},
    {IDC_AXIS_LOG, S::Check},     {IDC_AXIS_POWER, S::Number},    {IDC_AXIS_LOGBASE, S::Number},
    {IDC_AXIS_DECIMALS, S::Number}, {IDC_AXIS_GRID, S::Check},    {IDC_AXIS_REVERSE, S::Check},
};

constexpr FormField kAllAxesFields[] = {
    {IDC_ALLAXES_AXES2D, S::Combo},      {IDC_ALLAXES_SCALES2D, S::Combo}, {IDC_ALLAXES_AXES3D, S::Combo},
    {IDC_ALLAXES_SCALES3D, S::Combo},    {IDC_ALLAXES_INSIDE, S::RadioFirst}, {IDC_ALLAXES_OUTSIDE, S::Check},
    {IDC_ALLAXES_THROUGH, S::Check},     {IDC_ALLAXES_FLUSH, S::RadioFirst},  {IDC_ALLAXES_INDENT, S::Check},
    {IDC_ALLAXES_FLOAT, S::Check},       {IDC_ALLAXES_TRANSPOSE, S::Check},
};
constexpr ComboEntries kAllAxesCombos[] = {
    {IDC_ALLAXES_AXES2D, kAxes2d}, {IDC_ALLAXES_SCALES2D, kAxes2d},
    {IDC_ALLAXES_AXES3D, kAxes3d}, {IDC_ALLAXES_SCALES3D, kAxes3d},
};

constexpr FormField kLayoutFields[] = {
    {IDC_LAYOUT_HEIGHT, S::Number}, {IDC_LAYOUT_WIDTH, S::Number}, {IDC_LAYOUT_ALTITUDE, S::Number},
    {IDC_LAYOUT_LOCX, S::Number},   {IDC_LAYOUT_LOCY, S::Number},  {IDC_LAYOUT_ROW, S::Number},
    {IDC_LAYOUT_COL, S::Number},  {IDC_LAYOUT_TITLE, S::Text}, {IDC_LAYOUT_SLOPE, S::Check},
};
constexpr KeywordRule kLayoutRules[] = {
    {Rule::Value, "HEIGHT=", {IDC_LAYOUT_HEIGHT}},
    {Rule::Value, "WIDTH=", {IDC_LAYOUT_WIDTH}},
    {Rule::Value, "ALTITUDE=", {IDC_LAYOUT_ALTITUDE}},
    {Rule::Joined, "LOC=", {IDC_LAYOUT_LOCX, IDC_LAYOUT_LOCY}},
    {Rule::Value, "ROW=", {IDC_LAYOUT_ROW}},
    {Rule::Value, "COL=", {IDC_LAYOUT_COL}},
    {Rule::Quoted, "TITLE=", {IDC_LAYOUT_TITLE}},
    {Rule::Bare, "SLOPE", {IDC_LAYOUT_SLOPE}},
};

constexpr FormField kColorFillFields[] = {
    {IDC_COLOR_1, S::Number}, {IDC_COLOR_2, S::Number},     {IDC_COLOR_3, S::Number},
    {IDC_COLOR_AXES, S::Number}, {IDC_COLOR_FRAME, S::Number}, {IDC_FILL_1, S::Number},
    {IDC_FILL_2, S::Number},  {IDC_FILL_3, S::Number},
};
constexpr KeywordRule kColorFillRules[] = {
    {Rule::Joined, "COLOR=", {IDC_COLOR_1, IDC_COLOR_2, IDC_COLOR_3}},
    {Rule::Value, "ACOLOR=", {IDC_COLOR_AXES}},
    {Rule::Value, "FCOLOR=", {IDC_COLOR_FRAME}},
    {Rule::Joined, "FILL=", {IDC_FILL_1, IDC_FILL_2, IDC_FILL_3}},
};
constexpr FormField kColorFields[] = {
    {IDC_COLOR_1, S::Number}, {IDC_COLOR_2, S::Number}, {IDC_COLOR_3, S::Number},
    {IDC_COLOR_AXES, S::Number}, {IDC_COLOR_FRAME, S::Number},
};

constexpr FormField kSymbolFields[] = {
    {IDC_SYMBOL_PICTURES, S::RadioFirst}, {IDC_SYMBOL_CHARACTER, S::Check}, {IDC_SYMBOL_1, S::Combo},
    {IDC_SYMBOL_2, S::Combo},    {IDC_SYMBOL_3, S::Combo},     {IDC_SYMBOL_TEXT, S::Text},
    {IDC_SYMBOL_SIZE1, S::Number}, {IDC_SYMBOL_SIZE2, S::Number}, {IDC_SYMBOL_SIZE3, S::Number},
    {IDC_SYMBOL_LABEL, S::Text}, {IDC_SYMBOL_CSIZE, S::Number},
};
constexpr ComboEntries kSymbolCombos[] = {{IDC_SYMBOL_1, kSymbols}, {IDC_SYMBOL_2, kSymbols}, {IDC_SYMBOL_3, kSymbols}};
constexpr KeywordRule kSymbolRules[] = {
    {Rule::Numbers, "SYMBOL=", {IDC_SYMBOL_1, IDC_SYMBOL_2, IDC_SYMBOL_3}, {}, IDC_SYMBOL_PICTURES},
    {Rule::Quoted, "SYMBOL=", {IDC_SYMBOL_TEXT}, {}, IDC_SYMBOL_CHARACTER},
    {Rule::Joined, "SIZE=", {IDC_SYMBOL_SIZE1, IDC_SYMBOL_SIZE2, IDC_SYMBOL_SIZE3}},
    {Rule::Value, "LABEL=", {IDC_SYMBOL_LABEL}},
    {Rule::Value, "CSIZE=", {IDC_SYMBOL_CSIZE}},
};

constexpr FormField kSurfaceLineFields[] = {
    {IDC_LINE_SURFACE, S::Combo}, {IDC_LINE_CUT, S::Number}, {IDC_LINE_DASH1, S::Combo},
    {IDC_LINE_DASH2, S::Combo},   {IDC_LINE_DASH3, S::Combo},
};
constexpr ComboEntries kSurfaceLineCombos[] = {
    {IDC_LINE_SURFACE, kSurfaceNames}, {IDC_LINE_DASH1, kDashes}, {IDC_LINE_DASH2, kDashes}, {IDC_LINE_DASH3, kDashes}};
constexpr KeywordRule kLineRules[] = {
    {Rule::Word, "SURFACE=", {IDC_LINE_SURFACE}, kSurfaceWords},
    {Rule::Value, "CUT=", {IDC_LINE_CUT}},
    {Rule::Numbers, "DASH=", {IDC_LINE_DASH1, IDC_LINE_DASH2, IDC_LINE_DASH3}},
};
constexpr FormField kLineFields[] = {{IDC_LINE_DASH1, S::Combo}, {IDC_LINE_DASH2, S::Combo}, {IDC_LINE_DASH3, S::Combo}};
constexpr ComboEntries kLineCombos[] = {{IDC_LINE_DASH1, kDashes}, {IDC_LINE_DASH2, kDashes}, {IDC_LINE_DASH3, kDashes}};

constexpr FormField kLegendFields[] = {
    {IDC_LEGEND_NONE, S::Check}, {IDC_LEGEND_X, S::Number}, {IDC_LEGEND_Y, S::Number},
    {IDC_LEGEND_TITLE, S::Text}, {IDC_LEGEND_LABELS, S::Text},
};
constexpr KeywordRule kLegendRules[] = {
    {Rule::Bare, "LEGEND=NONE", {IDC_LEGEND_NONE}},
    {Rule::Joined, "LEGEND=", {IDC_LEGEND_X, IDC_LEGEND_Y}, {}, 0, IDC_LEGEND_NONE},
    {Rule::Quoted, "LTITLE=", {IDC_LEGEND_TITLE}, {}, 0, IDC_LEGEND_NONE},
    {Rule::QuotedList, "LLABEL=", {IDC_LEGEND_LABELS}, {}, 0, IDC_LEGEND_NONE},
};

constexpr FormField kPlotFields[] = {
    {IDC_PLOT_DENSITY, S::Combo}, {IDC_PLOT_BORDER, S::Combo},   {IDC_PLOT_HULL, S::Check},
    {IDC_PLOT_KERNEL, S::Check},  {IDC_PLOT_INFLUENCE, S::Check}, {IDC_PLOT_ELL, S::Check},
    {IDC_PLOT_ELM, S::Number},    {IDC_PLOT_JITTER, S::Check},   {IDC_PLOT_FLOWER, S::Check},
    {IDC_PLOT_LINE, S::Check},    {IDC_PLOT_TSP, S::Check},      {IDC_PLOT_SPAN, S::Check},
    {IDC_PLOT_DELAUNEY, S::Check}, {IDC_PLOT_VORONOI, S::Check}, {IDC_PLOT_SPIKE, S::Check},
    {IDC_PLOT_VECTOR, S::Check},
};
constexpr ComboEntries kPlotCombos[] = {{IDC_PLOT_DENSITY, kDensityNames}, {IDC_PLOT_BORDER, kBorderNames}};
constexpr KeywordRule kPlotRules[] = {
    {Rule::Word, "DENSITY=", {IDC_PLOT_DENSITY}, kDensityWords},
    {Rule::Word, "BORDER=", {IDC_PLOT_BORDER}, kBorderWords},
    {Rule::Bare, "HULL", {IDC_PLOT_HULL}},
    {Rule::Bare, "KERNEL", {IDC_PLOT_KERNEL}},
    {Rule::Bare, "INFLUENCE", {IDC_PLOT_INFLUENCE}},
    {Rule::Bare, "ELL", {IDC_PLOT_ELL}},
    {Rule::Value, "ELM=", {IDC_PLOT_ELM}},
    {Rule::Bare, "JITTER", {IDC_PLOT_JITTER}},
    {Rule::Bare, "FLOWER", {IDC_PLOT_FLOWER}},
    {Rule::Bare, "LINE", {IDC_PLOT_LINE}},
    {Rule::Bare, "TSP", {IDC_PLOT_TSP}},
    {Rule::Bare, "SPAN", {IDC_PLOT_SPAN}},
    {Rule::Bare, "DELAUNEY", {IDC_PLOT_DELAUNEY}},
    {Rule::Bare, "VORONOI", {IDC_PLOT_VORONOI}},
    {Rule::Bare, "SPIKE", {IDC_PLOT_SPIKE}},
    {Rule::Bare, "VECTOR", {IDC_PLOT_VECTOR}},
};
// The scatterplot matrix offers what suits its cells.
constexpr FormField kSplomFields[] = {
    {IDC_PLOT_DENSITY, S::Combo}, {IDC_PLOT_HULL, S::Check}, {IDC_PLOT_KERNEL, S::Check},
    {IDC_PLOT_ELL, S::Check},     {IDC_PLOT_ELM, S::Number}, {IDC_PLOT_JITTER, S::Check},
    {IDC_PLOT_LINE, S::Check},    {IDC_PLOT_SPAN, S::Check},
};
constexpr ComboEntries kSplomCombos[] = {{IDC_PLOT_DENSITY, kDensityNames}};

constexpr FormField kSmootherFields[] = {
    {IDC_SMOOTH_METHOD, S::Combo},     {IDC_SMOOTH_RATIO, S::Check},   {IDC_SMOOTH_ORDER, S::Check},
    {IDC_SMOOTH_ANGLE, S::Check},      {IDC_SMOOTH_NOWEIGHT, S::RadioFirst}, {IDC_SMOOTH_ANDREWS, S::Check},
    {IDC_SMOOTH_BISQUARE, S::Check},   {IDC_SMOOTH_HUBER, S::Check},   {IDC_SMOOTH_TRIMMED, S::Check},
    {IDC_SMOOTH_CONFI, S::Number},     {IDC_SMOOTH_TENSION, S::Check}, {IDC_SMOOTH_SHORT, S::Check},
};
constexpr ComboEntries kSmootherCombos[] = {{IDC_SMOOTH_METHOD, kSmoothNames}};
constexpr KeywordRule kSmootherRules[] = {
    {Rule::Word, "SMOOTH=", {IDC_SMOOTH_METHOD}, kSmoothWords},
    {Rule::Bare, "RATIO", {IDC_SMOOTH_RATIO}},
    {Rule::Bare, "ORDER", {IDC_SMOOTH_ORDER}},
    {Rule::Bare, "ANGLE", {IDC_SMOOTH_ANGLE}},
    {Rule::Bare, "ANDREWS", {IDC_SMOOTH_ANDREWS}},
    {Rule::Bare, "BISQUARE", {IDC_SMOOTH_BISQUARE}},
    {Rule::Bare, "HUBER", {IDC_SMOOTH_HUBER}},
    {Rule::Bare, "TRIMMED", {IDC_SMOOTH_TRIMMED}},
    {Rule::Value, "CONFI=", {IDC_SMOOTH_CONFI}},
    {Rule::Bare, "TENSION", {IDC_SMOOTH_TENSION}},
    {Rule::Bare, "SHORT", {IDC_SMOOTH_SHORT}},
};
constexpr FormField kResidualFields[] = {
    {IDC_SMOOTH_METHOD, S::Combo},   {IDC_SMOOTH_RATIO, S::Check},          {IDC_SMOOTH_ORDER, S::Check},
    {IDC_SMOOTH_ANGLE, S::Check},    {IDC_SMOOTH_NOWEIGHT, S::RadioFirst},  {IDC_SMOOTH_ANDREWS, S::Check},
    {IDC_SMOOTH_BISQUARE, S::Check}, {IDC_SMOOTH_HUBER, S::Check},
};
constexpr ComboEntries kResidualCombos[] = {{IDC_SMOOTH_METHOD, kResidNames}};
constexpr KeywordRule kResidualRules[] = {
    {Rule::Word, "RESID=", {IDC_SMOOTH_METHOD}, kResidWords},
    {Rule::Bare, "RATIO", {IDC_SMOOTH_RATIO}},
    {Rule::Bare, "ORDER", {IDC_SMOOTH_ORDER}},
    {Rule::Bare, "ANGLE", {IDC_SMOOTH_ANGLE}},
    {Rule::Bare, "ANDREWS", {IDC_SMOOTH_ANDREWS}},
    {Rule::Bare, "BISQUARE", {IDC_SMOOTH_BISQUARE}},
    {Rule::Bare, "HUBER", {IDC_SMOOTH_HUBER}},
};

constexpr FormField kCoordinateFields[] = {
    {IDC_COORD_RECT, S::RadioFirst}, {IDC_COORD_POLAR, S::Check}, {IDC_COORD_SPHERE, S::Check},
    {IDC_COORD_TRI, S::Check},       {IDC_COORD_PROJECTION, S::Combo},
};
constexpr FormField kScatterCoordinateFields[] = {
    {IDC_COORD_RECT, S::RadioFirst}, {IDC_COORD_POLAR, S::Check},       {IDC_COORD_SPHERE, S::Check},
    {IDC_COORD_TRI, S::Check},       {IDC_COORD_PROJECTION, S::Combo},  {IDC_TARGET1, S::Names},
};
constexpr ComboEntries kCoordinateCombos[] = {{IDC_COORD_PROJECTION, kProjectionNames}};
constexpr KeywordRule kCoordinateRules[] = {
    {Rule::Bare, "POLAR", {IDC_COORD_POLAR}},
    {Rule::Bare, "SPHERE", {IDC_COORD_SPHERE}},
    {Rule::Bare, "TRI", {IDC_COORD_TRI}},
    {Rule::Word, "PROJECT=", {IDC_COORD_PROJECTION}, kProjectionWords},
};

constexpr FormField kErrorFields[] = {
    {IDC_ERROR_DIRECTION, S::Combo}, {IDC_ERROR_NONE, S::RadioFirst}, {IDC_ERROR_SD, S::Check},
    {IDC_ERROR_SE, S::Check},        {IDC_ERROR_MULTIPLE, S::Number}, {IDC_ERROR_THICKNESS, S::Number},
    {IDC_ERROR_BOX, S::Check},
};
constexpr ComboEntries kErrorCombos[] = {{IDC_ERROR_DIRECTION, kDirectionNames}};
constexpr KeywordRule kErrorRules[] = {
    {Rule::Word, "DIRECTION=", {IDC_ERROR_DIRECTION}, kDirectionWords},
    {Rule::OptionalValue, "ERROR", {IDC_ERROR_MULTIPLE}, {}, IDC_ERROR_SD},
    {Rule::Bare, "SERROR", {IDC_ERROR_SE}},
    {Rule::Value, "ETHICK=", {IDC_ERROR_THICKNESS}},
    {Rule::Bare, "ETYPE=BOX", {IDC_ERROR_BOX}},
};

constexpr FormField kBarOptionFields[] = {
    {IDC_BAROPT_PERCENT, S::Check}, {IDC_BAROPT_THREED, S::Check},
    {IDC_BAROPT_BASE, S::Number},   {IDC_BAROPT_THICKNESS, S::Number},
};
constexpr KeywordRule kBarOptionRules[] = {
    {Rule::Bare, "PERCENT", {IDC_BAROPT_PERCENT}},
    {Rule::Bare, "THREED", {IDC_BAROPT_THREED}},
    {Rule::Value, "BASE=", {IDC_BAROPT_BASE}},
    {Rule::Value, "BTHICK=", {IDC_BAROPT_THICKNESS}},
};
constexpr FormField kDotOptionFields[] = {
    {IDC_BAROPT_PERCENT, S::Check}, {IDC_BAROPT_THREED, S::Check}, {IDC_BAROPT_LINE, S::Check}};
constexpr KeywordRule kDotOptionRules[] = {
    {Rule::Bare, "PERCENT", {IDC_BAROPT_PERCENT}},
    {Rule::Bare, "THREED", {IDC_BAROPT_THREED}},
    {Rule::Bare, "LINE", {IDC_BAROPT_LINE}},
};
constexpr FormField kLineOptionFields[] = {{IDC_BAROPT_PERCENT, S::Check}, {IDC_BAROPT_THREED, S::Check}};

constexpr FormField kBarLabelFields[] = {{IDC_LABEL_CSIZE, S::Number}, {IDC_LABEL_VALUES, S::Check}};
constexpr KeywordRule kBarLabelRules[] = {
    {Rule::Value, "CSIZE=", {IDC_LABEL_CSIZE}},
    {Rule::Bare, "LABEL", {IDC_LABEL_VALUES}},
};

constexpr FormField kHistogramFields[] = {
    {IDC_HIST_CUM, S::Check}, {IDC_HIST_BARS, S::Number}, {IDC_HIST_BWIDTH, S::Number}, {IDC_HIST_TENSION, S::Number}};
constexpr KeywordRule kHistogramRules[] = {
    {Rule::Bare, "CUM", {IDC_HIST_CUM}},
    {Rule::Value, "BARS=", {IDC_HIST_BARS}},
    {Rule::Value, "BWIDTH=", {IDC_HIST_BWIDTH}},
    {Rule::Value, "TENSION=", {IDC_HIST_TENSION}},
};
constexpr FormField kBoxFields[] = {{IDC_BOX_NOTCH, S::Check}};
constexpr KeywordRule kBoxRules[] = {{Rule::Bare, "NOTCH", {IDC_BOX_NOTCH}}};

constexpr FormField kCaseLabelFields[] = {{IDC_GRAPH_LABEL_TEXT, S::Text}, {IDC_LABEL_CSIZE, S::Number}};
constexpr KeywordRule kCaseLabelRules[] = {
    {Rule::Quoted, "LABEL=", {IDC_GRAPH_LABEL_TEXT}},
    {Rule::Value, "CSIZE=", {IDC_LABEL_CSIZE}},
};

constexpr FormField kPieScaleFields[] = {
    {IDC_PIE_LINEAR, S::RadioFirst}, {IDC_PIE_NOSCALE, S::Check},    {IDC_PIE_POWER, S::Check},
    {IDC_PIE_LOG, S::Check},         {IDC_PIE_POWER_VALUE, S::Number}, {IDC_PIE_LOG_VALUE, S::Number},
};
constexpr KeywordRule kPieScaleRules[] = {
    {Rule::Bare, "SCALE=NONE", {IDC_PIE_NOSCALE}},
    {Rule::Value, "YPOW=", {IDC_PIE_POWER_VALUE}, {}, IDC_PIE_POWER},
    {Rule::Value, "YLOG=", {IDC_PIE_LOG_VALUE}, {}, IDC_PIE_LOG},
};

constexpr FormField kIconLocationFields[] = {{IDC_ILOC_X, S::Names}, {IDC_ILOC_Y, S::Names}};
constexpr KeywordRule kIconLocationRules[] = {{Rule::Joined, "ILOC=", {IDC_ILOC_X, IDC_ILOC_Y}}};

struct NamedForm {
    std::string_view templateName;
    OptionForm form;
};

const NamedForm kForms[] = {
    {"XAxisCreate", {kAxisFields, {}, {}}},
    {"AllAxesCreate", {kAllAxesFields, kAllAxesCombos, {}}},
    {"AllAxesFPlot", {kAllAxesFields, kAllAxesCombos, {}}},
    {"LayoutCreate", {kLayoutFields, {}, kLayoutRules}},
    {"ColorAndFillCreate", {kColorFillFields, {}, kColorFillRules}},
    {"ColorCreate", {kColorFields, {}, std::span(kColorFillRules).first(3)}},
    {"SymbolAndLabelCreate", {kSymbolFields, kSymbolCombos, kSymbolRules}},
    {"SurfaceLineStyle", {kSurfaceLineFields, kSurfaceLineCombos, kLineRules}},
    {"LineStyle", {kLineFields, kLineCombos, std::span(kLineRules).last(1)}},
    {"LegendCreate", {kLegendFields, {}, kLegendRules}},
    {"PlotOptions", {kPlotFields, kPlotCombos, kPlotRules}},
    {"SplomOptions", {kSplomFields, kSplomCombos, kPlotRules}},
    {"Smoother", {kSmootherFields, kSmootherCombos, kSmootherRules}},
    {"Residuals", {kResidualFields, kResidualCombos, kResidualRules}},
    {"Coordinates", {kScatterCoordinateFields, kCoordinateCombos, kCoordinateRules}},
    {"CommonCoordinates", {kCoordinateFields, kCoordinateCombos, kCoordinateRules}},
    {"ErrorBars", {kErrorFields, kErrorCombos, kErrorRules}},
    {"BarOptions", {kBarOptionFields, {}, kBarOptionRules}},
    {"BarLabel", {kBarLabelFields, {}, kBarLabelRules}},
    {"SliceLabel", {kBarLabelFields, {}, kBarLabelRules}},
    {"PyramidLabel", {kBarLabelFields, {}, kBarLabelRules}},
    {"DotOptions", {kDotOptionFields, {}, kDotOptionRules}},
    {"CommonOptions", {kLineOptionFields, {}, std::span(kDotOptionRules).first(2)}},
    {"HistogramOptions", {kHistogramFields, {}, kHistogramRules}},
    {"BoxPlotOptions", {kBoxFields, {}, kBoxRules}},
    {"CaseLabels", {kCaseLabelFields, {}, kCaseLabelRules}},
    {"PieChartScale", {kPieScaleFields, {}, kPieScaleRules}},
    {"IconLocation", {kIconLocationFields, {}, kIconLocationRules}},
};

bool given(std::string_view text) { return text.find_first_not_of(' ') != std::string_view::npos; }


// A list's first name, or the field's text.
std::string_view firstLine(std::string_view value) { return value.substr(0, value.find('\n')); }

void appendQuoted(CommandText& line, std::string_view text) {
    const char quote = text.find('\'') == std::string_view::npos ? '\'' : '"';
    line.append(quote).append(text).append(quote);
}

void appendRule(CommandText& line, const KeywordRule& r, const ControlValues& v) {
    if (r.when && !isChecked(v, r.when)) return;
    if (r.unless && isChecked(v, r.unless)) return;
    const CommandText::Piece piece(line);  // a keyword and its value, whole or not at all
    const std::string_view value = valueOf(v, r.ids[0]);
    switch (r.rule) {
    case Rule::Bare:
        if (isChecked(v, r.ids[0])) line.append(' ').append(r.keyword);
        return;
    case Rule::Value:
        if (given(value)) line.append(' ').append(r.keyword).append(withoutBlanks(value));
        return;
    case Rule::Quoted:
        if (!given(value)) return;
        line.append(' ').append(r.keyword);
        appendQuoted(line, value);
        return;
    case Rule::QuotedList: {
        if (!given(value)) return;
        line.append(' ').append(r.keyword);
        std::string_view rest = value;
        bool first = true;
        while (!rest.empty()) {
            const std::size_t comma = rest.find(',');
            std::string_view item = rest.substr(0, comma);
            rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
            while (!item.empty() && item.front() == ' ') item.remove_prefix(1);
            while (!item.empty() && item.back() == ' ') item.remove_suffix(1);
            if (item.empty()) continue;
            if (!first) line.append(',');
            appendQuoted(line, item);
            first = false;
        }
        return;
    }
    case Rule::Joined:
    case Rule::Numbers: {
        std::string joined;
        for (int id : r.ids) {
            if (id == 0) continue;
            std::string_view part = firstLine(valueOf(v, id));
            std::string number;
            if (r.rule == Rule::Numbers) {
                const int position = positionOf(v, id);
                if (position <= 0) continue;
                number = std::to_string(position);
                part = number;
            }
            if (!given(part)) continue;
            if (!joined.empty()) joined += ',';
            joined += withoutBlanks(part);
        }
        if (!joined.empty()) line.append(' ').append(r.keyword).append(joined);
        return;
    }
    case Rule::Word: {
        const int position = positionOf(v, r.ids[0]);
        if (position < 0 || static_cast<std::size_t>(position) >= r.words.size()) return;
        if (const std::string_view word = r.words[static_cast<std::size_t>(position)]; !word.empty())
            line.append(' ').append(r.keyword).append(word);
        return;
    }
    case Rule::OptionalValue:
        line.append(' ').append(r.keyword);
        if (given(value)) line.append('=').append(value);
        return;
    }
}

}  // namespace

const OptionForm& formOf(std::string_view templateName) {
    for (const NamedForm& named : kForms)
        if (named.templateName == templateName) return named.form;
    static const OptionForm kNone{};
    return kNone;
}

bool isChecked(const ControlValues& values, int id) {
    const auto it = values.find(id);
    return it != values.end() && it->second == "1";
}

std::string_view valueOf(const ControlValues& values, int id) {
    const auto it = values.find(id);
    return it == values.end() ? std::string_view() : std::string_view(it->second);
}

int positionOf(const ControlValues& values, int id) {
    const std::string_view text = valueOf(values, id);
    int position = 0;
    std::from_chars(text.data(), text.data() + text.size(), position);
    return position;
}

ControlValues defaultValues(const OptionForm& form) {
    ControlValues values;
    for (const FormField& field : form.fields)
        if (field.store == Store::RadioFirst) values[field.id].assign(1, '1');
    return values;
}

Bindings<ControlValues> formBindings(std::span<const FormField> fields) {
    Bindings<ControlValues> bindings;
    for (const FormField& field : fields) bindings.entry(field.id, field.store);
    return bindings;
}

std::string validateValues(const OptionForm& form, const ControlValues& values) {
    if (const std::string_view refusal = formBindings(form.fields).validate(values); !refusal.empty())
        return std::string(refusal);
    if (isChecked(values, IDC_SYMBOL_CHARACTER) && !given(valueOf(values, IDC_SYMBOL_TEXT)))
        return "You must enter a character to be displayed as the symbol.";
    return {};
}

AxisOptions axisOptionsOf(const ControlValues& v) {
    AxisOptions axis;
    axis.label = valueOf(v, IDC_AXIS_LABEL);
    axis.maximum = valueOf(v, IDC_AXIS_MAX);
    axis.minimum = valueOf(v, IDC_AXIS_MIN);
    axis.upperLimit = valueOf(v, IDC_AXIS_UPPER);
    axis.lowerLimit = valueOf(v, IDC_AXIS_LOWER);
    axis.tick = valueOf(v, IDC_AXIS_TICK);
    axis.pip = valueOf(v, IDC_AXIS_PIP);
    axis.transformation = isChecked(v, IDC_AXIS_POW) ? kTransformPower
                          : isChecked(v, IDC_AXIS_LOG) ? kTransformLog
                                                       : kTransformNone;
    axis.power = valueOf(v, IDC_AXIS_POWER);
    axis.logBase = valueOf(v, IDC_AXIS_LOGBASE);
    axis.decimals = valueOf(v, IDC_AXIS_DECIMALS);
    axis.grid = isChecked(v, IDC_AXIS_GRID);
    axis.reverse = isChecked(v, IDC_AXIS_REVERSE);
    return axis;
}

AllAxesOptions allAxesOptionsOf(const ControlValues& v) {
    AllAxesOptions axes;
    axes.axes2d = positionOf(v, IDC_ALLAXES_AXES2D);
    axes.scales2d = positionOf(v, IDC_ALLAXES_SCALES2D);
    axes.axes3d = positionOf(v, IDC_ALLAXES_AXES3D);
    axes.scales3d = positionOf(v, IDC_ALLAXES_SCALES3D);
    axes.tickStyle = isChecked(v, IDC_ALLAXES_OUTSIDE)   ? TickStyle::Outside
                     : isChecked(v, IDC_ALLAXES_THROUGH) ? TickStyle::Through
                                                         : TickStyle::Inside;
    axes.tickLocation = isChecked(v, IDC_ALLAXES_INDENT)  ? TickLocation::Indent
                        : isChecked(v, IDC_ALLAXES_FLOAT) ? TickLocation::Float
                                                          : TickLocation::Flush;
    axes.transpose = isChecked(v, IDC_ALLAXES_TRANSPOSE);
    return axes;
}

void appendOptionKeywords(CommandText& line, int code, std::string_view templateName, const ControlValues& values,
                          bool threeDimensional) {
    if (const char letter = axisLetter(code)) {
        appendAxisOptions(line, letter, axisOptionsOf(values));
        return;
    }
    if (code == 2004) {
        appendAllAxesOptions(line, allAxesOptionsOf(values), threeDimensional);
        return;
    }
    for (const KeywordRule& rule : formOf(templateName).rules) appendRule(line, rule, values);
}

}  // namespace kvs::graph
