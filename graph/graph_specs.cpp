// The twenty graph dialogs, one row each, and the readings that turn a
// dialog into its builder's state. A keyword flag counts only while its box
// is checked and enabled, so an option the dialog greyed out never reaches
// the command.
#include "graph/graph_specs.h"

#include "resources/graph_ids.h"

namespace kvs::graph {

namespace {

using W = std::string_view;
using S = Store;

bool on(const DialogView& v, int id) { return v.has(id) && v.isChecked(id) && v.isEnabled(id); }
bool checked(const DialogView& v, int id) { return v.has(id) && v.isChecked(id); }
int position(const DialogView& v, int id) { return v.has(id) ? std::max(v.comboSelection(id), 0) : 0; }
Names names(const DialogView& v, int id) { return v.has(id) ? listNames(v, id) : Names{}; }

// ---- drop-down lists -------------------------------------------------------

constexpr W kDisplayAs[] = {"None", "Contour", "Tile"};
constexpr W kBarDisplay[] = {"None", "Tile"};
constexpr W kDensityKinds[] = {"Histogram", "Gap", "Polygon", "Fuzzy"};
constexpr W kDensityDisplays[] = {"3D", "2D Contour", "2D Mosaic"};
constexpr W kHistogramDisplays[] = {"3D", "2D Mosaic"};
constexpr W kDotStyles[] = {"Dit", "Dot", "Jitter", "Stripe"};
constexpr W kIconKinds[] = {"Star", "Profile", "Histogram", "Fourier Blob", "Chernoff's Faces",
                            "Framed Rectangular", "Arrow", "Weather Vanes", "Sun"};
constexpr W kProjections[] = {"Mercator Conformal", "Oblique Gnomonic", "Oblique Stereographic",
                              "Oblique Orthographic", "Lambert Cylindrical", "Miller Cylindrical",
                              "Robinson", "Peters", "Sinusoidal", "Fisheye"};
constexpr W kDistributions[] = {"Normal", "Chi-Square", "Exponential", "Gamma Quantiles", "Uniform",
                                "Weibull", "t-statistic", "F-statistic", "Beta", "Logistic",
                                "Studentized Range", "Poisson", "Binomial"};

constexpr ComboEntries kScatterCombos[] = {{IDC_GRAPH_DISPLAY, kDisplayAs}};
constexpr ComboEntries kBarCombos[] = {{IDC_GRAPH_DISPLAY, kBarDisplay}};
constexpr ComboEntries kHistogramCombos[] = {{IDC_GRAPH_KIND, kDensityKinds}, {IDC_GRAPH_DISPLAY, kHistogramDisplays}};
constexpr ComboEntries kDensityCombos[] = {{IDC_GRAPH_KIND, kDensityKinds}, {IDC_GRAPH_DISPLAY, kDensityDisplays}};
constexpr ComboEntries kDotDensityCombos[] = {{IDC_GRAPH_KIND, kDotStyles}};
constexpr ComboEntries kIconCombos[] = {{IDC_GRAPH_KIND, kIconKinds}};
constexpr ComboEntries kMapCombos[] = {{IDC_GRAPH_KIND, kProjections}};
constexpr ComboEntries kPPlotCombos[] = {{IDC_GRAPH_KIND, kDistributions}};
constexpr ComboEntries kFPlotCombos[] = {{IDC_GRAPH_DISPLAY, kDisplayAs}};

// ---- remembered controls ---------------------------------------------------

constexpr FormField kScatterFields[] = {{IDC_GRAPH_REPEAT, S::Check}, {IDC_GRAPH_MATRIX, S::Check},
                                        {IDC_GRAPH_MIRROR, S::Check}, {IDC_GRAPH_OVERLAY, S::Check},
                                        {IDC_GRAPH_DISPLAY, S::Combo}};
constexpr FormField kBarFields[] = {{IDC_GRAPH_COUNTS, S::Check}, {IDC_GRAPH_REPEAT, S::Check},
                                    {IDC_GRAPH_MATRIX, S::Check}, {IDC_GRAPH_STACK, S::Check},
                                    {IDC_GRAPH_RANGE, S::Check},  {IDC_GRAPH_OVERLAY, S::Check},
                                    {IDC_GRAPH_MIRROR, S::Check}, {IDC_GRAPH_DISPLAY, S::Combo}};
constexpr FormField kBarFamilyFields[] = {{IDC_GRAPH_REPEAT, S::Check}, {IDC_GRAPH_MATRIX, S::Check},
                                          {IDC_GRAPH_OVERLAY, S::Check}, {IDC_GRAPH_MIRROR, S::Check}};
constexpr FormField kProfileFields[] = {{IDC_GRAPH_REPEAT, S::Check},  {IDC_GRAPH_MATRIX, S::Check},
                                        {IDC_GRAPH_STACK, S::Check},   {IDC_GRAPH_OVERLAY, S::Check},
                                        {IDC_GRAPH_MIRROR, S::Check}};
constexpr FormField kDensityFields[] = {{IDC_GRAPH_REPEAT, S::Check}, {IDC_GRAPH_OVERLAY, S::Check},
                                        {IDC_GRAPH_MIRROR, S::Check}, {IDC_GRAPH_KIND, S::Combo},
                                        {IDC_GRAPH_DISPLAY, S::Combo}};
constexpr FormField kMirrorOverlayFields[] = {{IDC_GRAPH_MIRROR, S::Check}, {IDC_GRAPH_OVERLAY, S::Check}};
constexpr FormField kPPlotFields[] = {{IDC_GRAPH_MIRROR, S::Check}, {IDC_GRAPH_OVERLAY, S::Check},
                                      {IDC_GRAPH_PSCALE, S::Check}, {IDC_GRAPH_KIND, S::Combo},
                                      {IDC_GRAPH_PARAM1, S::Number}, {IDC_GRAPH_PARAM2, S::Number}};
constexpr FormField kPieFields[] = {{IDC_GRAPH_SLICES, S::Number}, {IDC_GRAPH_RING, S::Check},
                                    {IDC_GRAPH_THREED, S::Check}};
constexpr FormField kIconFields[] = {{IDC_GRAPH_KIND, S::Combo}, {IDC_GRAPH_OVERLAY, S::Check}};
constexpr FormField kOverlayFields[] = {{IDC_GRAPH_OVERLAY, S::Check}};
constexpr FormField kSplomFields[] = {{IDC_GRAPH_HALF, S::Check}, {IDC_GRAPH_OVERLAY, S::Check}};
constexpr FormField kMapFields[] = {{IDC_GRAPH_KIND, S::Combo}, {IDC_GRAPH_SPHERE, S::Check}};
constexpr FormField kFPlotFields[] = {{IDC_FPLOT_LEFT, S::Text}, {IDC_FPLOT_EQUATION, S::Text},
                                      {IDC_FPLOT_2D, S::RadioFirst}, {IDC_FPLOT_3D, S::Check},
                                      {IDC_GRAPH_DISPLAY, S::Combo}};

// ---- option codes, in each builder's order ---------------------------------

constexpr int kScatterCodes[] = {2012, 2013, 2014, 2015, 2001, 2002, 2003, 2016, 2004, 2006, 2007, 2008, 2005, 2010};
constexpr int kHiLoCodes[] = {2013, 2019, 2001, 2002, 2004, 2006, 2007, 2008, 2005, 2010};
constexpr int kBarCodes[] = {2018, 2017, 2019, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2020};
constexpr int kPyramidCodes[] = {2018, 2019, 2017, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2020};
constexpr int kDotCodes[] = {2021, 2017, 2019, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2007, 2008};
constexpr int kLineCodes[] = {2022, 2017, 2019, 2001, 2002, 2003, 2004, 2005, 2010, 2006, 2008};
constexpr int kProfileCodes[] = {2022, 2019, 2017, 2001, 2002, 2003, 2004, 2005, 2010, 2006};
constexpr int kBoxCodes[] = {2024, 2019, 2001, 2002, 2004, 2005, 2010, 2006, 2007};
constexpr int kDotDensityCodes[] = {2019, 2001, 2002, 2004, 2005, 2010, 2007, 2006, 2008};
constexpr int kHistogramCodes[] = {2023, 2019, 2001, 2002, 2003, 2004, 2006, 2008, 2005, 2010};
constexpr int kFPlotCodes[] = {2019, 2001, 2002, 2003, 2016, 2004, 2005, 2006, 2008};
constexpr int kMapCodes[] = {2001, 2002, 2004, 2005, 2010, 2006, 2008, 2025};
constexpr int kPieCodes[] = {2005, 2026, 2020};
constexpr int kIconCodes[] = {2027, 2019, 2001, 2002, 2005, 2010, 2006, 2007, 2008};
constexpr int kPlotCodes[] = {2012, 2019, 2013, 2014, 2001, 2002, 2004, 2005, 2010, 2006, 2007, 2008};
constexpr int kWaveCodes[] = {2025, 2001, 2002, 2004, 2006, 2008, 2005, 2010};
constexpr int kSplomCodes[] = {2012, 2013, 2001, 2002, 2006, 2007, 2008, 2005, 2010};

// ---- readings --------------------------------------------------------------

Composition scatterplot(int, const DialogView& v, const GraphExtras& extras, const OptionSource& options) {
    ScatterplotState s;
    s.x = names(v, kXList);
    s.y = names(v, kYList);
    s.z = names(v, kZList);
    s.group = names(v, kGroupList);
    s.w = extras.wVariables;
    s.overlay = on(v, IDC_GRAPH_OVERLAY);
    s.repeat = on(v, IDC_GRAPH_REPEAT);
    s.matrix = on(v, IDC_GRAPH_MATRIX);
    s.mirror = on(v, IDC_GRAPH_MIRROR);
    s.mirrorChecked = checked(v, IDC_GRAPH_MIRROR);
    s.matrixChecked = checked(v, IDC_GRAPH_MATRIX);
    s.display = position(v, IDC_GRAPH_DISPLAY);
    s.displayEnabled = v.isEnabled(IDC_GRAPH_DISPLAY);
    return composeScatterplot(s, options);
}

Composition barFamily(int id, const DialogView& v, const GraphExtras&, const OptionSource& options) {
    BarFamilyState s;
    s.x = names(v, kXList);
    s.y = names(v, kYList);
    s.z = names(v, kZList);
    s.group = names(v, kGroupList);
    s.counts = on(v, IDC_GRAPH_COUNTS);
    s.repeat = on(v, IDC_GRAPH_REPEAT);
    s.repeatChecked = checked(v, IDC_GRAPH_REPEAT);
    s.matrix = on(v, IDC_GRAPH_MATRIX);
    s.matrixChecked = checked(v, IDC_GRAPH_MATRIX);
    s.stack = on(v, IDC_GRAPH_STACK);
    s.range = on(v, IDC_GRAPH_RANGE);
    s.overlay = on(v, IDC_GRAPH_OVERLAY);
    s.mirror = on(v, IDC_GRAPH_MIRROR);
    s.display = position(v, IDC_GRAPH_DISPLAY);
    s.displayEnabled = v.has(IDC_GRAPH_DISPLAY) && v.isEnabled(IDC_GRAPH_DISPLAY);
    return composeBarFamily(id, s, options);
}

Composition density(int id, const DialogView& v, const GraphExtras&, const OptionSource& options) {
    DensityState s;
    s.x = names(v, kXList);
    s.y = names(v, kYList);
    s.group = names(v, kGroupList);
    s.repeat = on(v, IDC_GRAPH_REPEAT);
    s.repeatChecked = checked(v, IDC_GRAPH_REPEAT);
    s.overlay = on(v, IDC_GRAPH_OVERLAY);
    s.mirror = on(v, IDC_GRAPH_MIRROR);
    s.style = position(v, IDC_GRAPH_KIND);
    s.display = position(v, IDC_GRAPH_DISPLAY);
    return composeDensity(id, s, options);
}

Composition highLow(int, const DialogView& v, const GraphExtras&, const OptionSource& options) {
    HighLowState s;
    s.high = names(v, kHighList);
    s.low = names(v, kLowList);
    s.close = names(v, kCloseList);
    s.x = names(v, kHiLoXList);
    s.group = names(v, kHiLoGroupList);
    s.mirror = on(v, IDC_GRAPH_MIRROR);
    s.overlay = on(v, IDC_GRAPH_OVERLAY);
    return composeHighLow(s, options);
}

Composition quantile(int, const DialogView& v, const GraphExtras&, const OptionSource& options) {
    QuantileState s;
    s.x = names(v, kXList);
    s.y = names(v, kYList);
    s.group = names(v, kGroupList);
    s.mirror = on(v, IDC_GRAPH_MIRROR);
    s.overlay = on(v, IDC_GRAPH_OVERLAY);
    return composeQuantile(s, options);
}

Composition simple(int id, const DialogView& v, const GraphExtras& extras, const OptionSource& options) {
    SimpleGraphState s;
    s.x = names(v, kXList);
    s.y = names(v, kYList);
    s.group = names(v, kGroupList);
    s.mirror = on(v, IDC_GRAPH_MIRROR);
    s.overlay = on(v, IDC_GRAPH_OVERLAY);
    s.half = on(v, IDC_GRAPH_HALF);
    s.transpose = extras.transposed;
    s.ring = on(v, IDC_GRAPH_RING);
    s.threeD = on(v, IDC_GRAPH_THREED);
    if (v.has(IDC_GRAPH_SLICES)) s.slices = v.text(IDC_GRAPH_SLICES);
    s.probabilityScale = on(v, IDC_GRAPH_PSCALE);
    s.choice = position(v, IDC_GRAPH_KIND);
    if (v.has(IDC_GRAPH_PARAM1) && v.isEnabled(IDC_GRAPH_PARAM1)) s.parameter1 = v.text(IDC_GRAPH_PARAM1);
    if (v.has(IDC_GRAPH_PARAM2) && v.isEnabled(IDC_GRAPH_PARAM2)) s.parameter2 = v.text(IDC_GRAPH_PARAM2);
    s.sphere = on(v, IDC_GRAPH_SPHERE);
    if (v.has(IDC_FPLOT_LEFT)) s.equationLeft = v.text(IDC_FPLOT_LEFT);
    if (v.has(IDC_FPLOT_EQUATION)) s.equationRight = v.text(IDC_FPLOT_EQUATION);
    if (v.has(IDC_GRAPH_DISPLAY) && v.isEnabled(IDC_GRAPH_DISPLAY)) s.display = position(v, IDC_GRAPH_DISPLAY);
    return composeSimpleGraph(id, s, options);
}

constexpr int kOpt = IDC_OPT_OPTIONS, kAxes = IDC_OPT_AXES, kLook = IDC_OPT_APPEARANCE, kLayout = IDC_OPT_LAYOUT;

const GraphSpec kGraphs[] = {
    {101, {kOpt, kAxes, kLook, kLayout}, kScatterCodes, kScatterFields, kScatterCombos, scatterplot},
    {102, {IDC_OPT_PYRAMID, IDC_OPT_COMMON_AXES, IDC_OPT_LINE_APPEARANCE, kLayout}, kPyramidCodes, kBarFamilyFields, {}, barFamily},
    {103, {IDC_OPT_BAR, IDC_OPT_COMMON_AXES, IDC_OPT_BAR_APPEARANCE, kLayout}, kBarCodes, kBarFields, kBarCombos, barFamily},
    {106, {IDC_OPT_BOX, IDC_OPT_2D_AXES, kLook, kLayout}, kBoxCodes, std::span(kDensityFields).first(3), {}, density},
    {107, {IDC_OPT_HILO, IDC_OPT_2D_AXES, kLook, kLayout}, kHiLoCodes, kMirrorOverlayFields, {}, highLow},
    {108, {IDC_OPT_DOT, IDC_OPT_COMMON_AXES, kLook, kLayout}, kDotCodes, kBarFamilyFields, {}, barFamily},
    {109, {IDC_OPT_LINE, IDC_OPT_COMMON_AXES, IDC_OPT_LINE_APPEARANCE, kLayout}, kLineCodes, kBarFamilyFields, {}, barFamily},
    {111, {IDC_OPT_HISTOGRAM, IDC_OPT_COMMON_AXES, kLook, kLayout}, kHistogramCodes, kDensityFields, kHistogramCombos, density},
    {113, {IDC_OPT_COORDINATES, IDC_OPT_2D_AXES, kLook, kLayout}, kDotDensityCodes, std::span(kDensityFields).first(4), kDotDensityCombos, density},
    {114, {IDC_OPT_DENSITY, IDC_OPT_COMMON_AXES, kLook, kLayout}, kHistogramCodes, kDensityFields, kDensityCombos, density},
    {116, {IDC_OPT_FOURIER, IDC_OPT_2D_AXES, kLayout, 0}, kWaveCodes, kOverlayFields, {}, simple},
    {118, {IDC_OPT_FOURIER, IDC_OPT_2D_AXES, kLayout, 0}, kWaveCodes, kOverlayFields, {}, simple},
    {119, {IDC_OPT_COORDINATES, kAxes, kLook, IDC_OPT_LAYOUT_ONLY}, kFPlotCodes, kFPlotFields, kFPlotCombos, simple},
    {120, {IDC_OPT_ICON, IDC_OPT_TRANS_AXES, kLook, kLayout}, kIconCodes, kIconFields, kIconCombos, simple},
    {121, {IDC_OPT_PPLOT, IDC_OPT_2D_AXES, kLook, kLayout}, kPlotCodes, kPPlotFields, kPPlotCombos, simple},
    {128, {IDC_OPT_2D_AXES, IDC_OPT_FOURIER, kLayout, 0}, kMapCodes, kMapFields, kMapCombos, simple},
    {129, {IDC_OPT_PIE_SCALE, IDC_OPT_SLICE_LABEL, IDC_OPT_LAYOUT_ONLY, 0}, kPieCodes, kPieFields, {}, simple},
    {146, {IDC_OPT_QPLOT, IDC_OPT_2D_AXES, kLook, kLayout}, kPlotCodes, kMirrorOverlayFields, {}, quantile},
    {147, {IDC_OPT_SPLOM, IDC_OPT_TRANS_AXES, kLook, kLayout}, kSplomCodes, kSplomFields, {}, simple},
    {1124, {IDC_OPT_PROFILE, IDC_OPT_COMMON_AXES, IDC_OPT_LINE_APPEARANCE, kLayout}, kProfileCodes, kProfileFields, {}, barFamily},
};

}  // namespace

const GraphSpec* graphSpec(int id) {
    for (const GraphSpec& spec : kGraphs)
        if (spec.id == id) return &spec;
    return nullptr;
}

}  // namespace kvs::graph
