// The option sub-dialogs' records: which keyword groups their values write,
// what OK refuses, and the titles and help topics by graph type.
#include <gtest/gtest.h>

#include <string>

#include "graph/option_codes.h"
#include "graph/option_forms.h"
#include "resources/graph_ids.h"

namespace kvs::graph {
namespace {

std::string keywords(int code, std::string_view templateName, const ControlValues& values, bool threeD = false) {
    CommandText line;
    appendOptionKeywords(line, code, templateName, values, threeD);
    return line.str();
}

TEST(GraphOptionForms, RecordsWriteTheirKeywordsInTableOrder) {
    struct Row {
        int code;
        const char* templateName;
        ControlValues values;
        const char* expected;
    };
    const Row rows[] = {
        {2005, "LayoutCreate",
         {{IDC_LAYOUT_TITLE, "Men's weight"}, {IDC_LAYOUT_HEIGHT, "3IN"}, {IDC_LAYOUT_LOCX, "1"}, {IDC_LAYOUT_LOCY, "2"},
          {IDC_LAYOUT_SLOPE, "1"}},
         " HEIGHT=3IN LOC=1,2 TITLE=\"Men's weight\" SLOPE"},
        {2005, "LayoutCreate", {{IDC_LAYOUT_LOCY, "2"}, {IDC_LAYOUT_ROW, " "}}, " LOC=2"},
        {2006, "ColorAndFillCreate",
         {{IDC_COLOR_1, "0.5"}, {IDC_COLOR_3, "0.7"}, {IDC_COLOR_FRAME, "0.1"}, {IDC_FILL_1, "3"}},
         " COLOR=0.5,0.7 FCOLOR=0.1 FILL=3"},
        {2006, "ColorCreate", {{IDC_COLOR_1, "0.5"}, {IDC_FILL_1, "3"}}, " COLOR=0.5"},
        {2007, "SymbolAndLabelCreate",
         {{IDC_SYMBOL_PICTURES, "1"}, {IDC_SYMBOL_1, "2"}, {IDC_SYMBOL_3, "22"}, {IDC_SYMBOL_SIZE1, "2"},
          {IDC_SYMBOL_LABEL, "NAME$"}},
         " SYMBOL=2,22 SIZE=2 LABEL=NAME$"},
        {2007, "SymbolAndLabelCreate",
         {{IDC_SYMBOL_CHARACTER, "1"}, {IDC_SYMBOL_1, "2"}, {IDC_SYMBOL_TEXT, "x"}}, " SYMBOL='x'"},
        {2008, "SurfaceLineStyle", {{IDC_LINE_SURFACE, "1"}, {IDC_LINE_CUT, "5"}, {IDC_LINE_DASH2, "3"}},
         " SURFACE=XY CUT=5 DASH=3"},
        {2008, "LineStyle", {{IDC_LINE_DASH1, "1"}, {IDC_LINE_DASH2, "11"}}, " DASH=1,11"},
        {2010, "LegendCreate", {{IDC_LEGEND_NONE, "1"}, {IDC_LEGEND_TITLE, "Groups"}}, " LEGEND=NONE"},
        {2010, "LegendCreate",
         {{IDC_LEGEND_X, "1"}, {IDC_LEGEND_Y, "2"}, {IDC_LEGEND_TITLE, "Groups"}, {IDC_LEGEND_LABELS, "a, it's b,"}},
         " LEGEND=1,2 LTITLE='Groups' LLABEL='a',\"it's b\""},
        {2012, "PlotOptions", {{IDC_PLOT_BORDER, "3"}, {IDC_PLOT_ELL, "1"}, {IDC_PLOT_ELM, "0.9"}, {IDC_PLOT_VECTOR, "1"}},
         " BORDER=DOT ELL ELM=0.9 VECTOR"},
        {2013, "Smoother", {{IDC_SMOOTH_METHOD, "2"}, {IDC_SMOOTH_BISQUARE, "1"}, {IDC_SMOOTH_CONFI, "0.95"}},
         " SMOOTH=LOWESS BISQUARE CONFI=0.95"},
        {2014, "Residuals", {{IDC_SMOOTH_METHOD, "16"}, {IDC_SMOOTH_ORDER, "1"}}, " RESID=TRIMMED ORDER"},
        {2019, "CommonCoordinates", {{IDC_COORD_POLAR, "1"}, {IDC_COORD_PROJECTION, "10"}}, " POLAR PROJECT=FISHEYE"},
        {2015, "Coordinates", {{IDC_COORD_TRI, "1"}, {IDC_TARGET1, "w1\nw2"}}, " TRI"},
        {2017, "ErrorBars", {{IDC_ERROR_SD, "1"}, {IDC_ERROR_DIRECTION, "1"}}, " DIRECTION=UP ERROR"},
        {2017, "ErrorBars", {{IDC_ERROR_SD, "1"}, {IDC_ERROR_MULTIPLE, "2"}, {IDC_ERROR_BOX, "1"}}, " ERROR=2 ETYPE=BOX"},
        {2017, "ErrorBars", {{IDC_ERROR_SE, "1"}, {IDC_ERROR_MULTIPLE, "2"}}, " SERROR"},
        {2018, "BarOptions", {{IDC_BAROPT_THREED, "1"}, {IDC_BAROPT_BASE, "10"}}, " THREED BASE=10"},
        {2020, "SliceLabel", {{IDC_LABEL_CSIZE, "2"}, {IDC_LABEL_VALUES, "1"}}, " CSIZE=2 LABEL"},
        {2021, "DotOptions", {{IDC_BAROPT_PERCENT, "1"}, {IDC_BAROPT_LINE, "1"}}, " PERCENT LINE"},
        {2023, "HistogramOptions", {{IDC_HIST_CUM, "1"}, {IDC_HIST_BARS, "10"}}, " CUM BARS=10"},
        {2024, "BoxPlotOptions", {{IDC_BOX_NOTCH, "1"}}, " NOTCH"},
        {2025, "CaseLabels", {{IDC_GRAPH_LABEL_TEXT, "NAME$"}, {IDC_LABEL_CSIZE, "1.5"}}, " LABEL='NAME$' CSIZE=1.5"},
        {2026, "PieChartScale", {{IDC_PIE_POWER, "1"}, {IDC_PIE_POWER_VALUE, "0.5"}, {IDC_PIE_LOG_VALUE, "10"}},
         " YPOW=0.5"},
        {2026, "PieChartScale", {{IDC_PIE_NOSCALE, "1"}}, " SCALE=NONE"},
        {2027, "IconLocation", {{IDC_ILOC_X, "LON"}, {IDC_ILOC_Y, "LAT\nALT"}}, " ILOC=LON,LAT"},
        {2009, "", {{IDC_BOX_NOTCH, "1"}}, ""},
    };
    for (const Row& row : rows) EXPECT_EQ(keywords(row.code, row.templateName, row.values), row.expected) << row.code;
}

TEST(GraphOptionForms, AxisRecordsGoThroughTheAxisComposer) {
    const ControlValues x = {{IDC_AXIS_LABEL, "Weight"}, {IDC_AXIS_MIN, "0"}, {IDC_AXIS_MAX, "100"},
                             {IDC_AXIS_GRID, "1"}, {IDC_AXIS_POW, "1"}};
    EXPECT_EQ(keywords(2001, "XAxisCreate", x), " XLABEL='Weight' XMIN=0 XMAX=100 XGRID");
    EXPECT_EQ(keywords(2016, "XAxisCreate", {{IDC_AXIS_UPPER, "10"}, {IDC_AXIS_LOWER, "2"}}), " WLIMIT=10 ,2");
    const ControlValues all = {{IDC_ALLAXES_AXES2D, "1"}, {IDC_ALLAXES_AXES3D, "3"}, {IDC_ALLAXES_OUTSIDE, "1"},
                               {IDC_ALLAXES_TRANSPOSE, "1"}};
    EXPECT_EQ(keywords(2004, "AllAxesCreate", all), " AXES=BOX STICK=OUT TRANSPOSE");
    EXPECT_EQ(keywords(2004, "AllAxesCreate", all, true), " AXES=BOOK STICK=OUT TRANSPOSE");
}

TEST(GraphOptionForms, DefaultsAndValidation) {
    const OptionForm& axis = formOf("XAxisCreate");
    const ControlValues fresh = defaultValues(axis);
    EXPECT_TRUE(isChecked(fresh, IDC_AXIS_NONE));
    EXPECT_FALSE(isChecked(fresh, IDC_AXIS_POW));
    EXPECT_EQ(validateValues(axis, fresh), "");
    EXPECT_EQ(validateValues(axis, {{IDC_AXIS_MIN, "1e"}}), "Entry is not a valid number.");
    EXPECT_EQ(validateValues(axis, {{IDC_AXIS_LABEL, "1e"}}), "");
    const OptionForm& symbol = formOf("SymbolAndLabelCreate");
    EXPECT_EQ(validateValues(symbol, {{IDC_SYMBOL_CHARACTER, "1"}}),
              "You must enter a character to be displayed as the symbol.");
    EXPECT_TRUE(formOf("NoSuchTemplate").fields.empty());
}

TEST(GraphOptionCodes, TitlesTemplatesAndHelpByGraph) {
    EXPECT_EQ(subDialogFor(2003, 101).title, "Z-Axis");
    EXPECT_EQ(subDialogFor(2016, 101).templateName, "XAxisCreate");
    EXPECT_EQ(subDialogFor(2004, 119).templateName, "AllAxesFPlot");
    EXPECT_EQ(subDialogFor(2006, 109).title, "Color");
    EXPECT_EQ(subDialogFor(2006, 103).templateName, "ColorAndFillCreate");
    EXPECT_EQ(subDialogFor(2008, 107).templateName, "LineStyle");
    EXPECT_EQ(subDialogFor(2012, 147).title, "Scatterplot Matrix Options");
    EXPECT_EQ(subDialogFor(2018, 102).title, "Pyramid Options");
    EXPECT_EQ(subDialogFor(2020, 129).templateName, "SliceLabel");
    EXPECT_EQ(subDialogFor(2022, 1124).title, "Profile Options");
    EXPECT_EQ(subDialogFor(2023, 114).title, "Density Function Options");
    EXPECT_EQ(subDialogFor(2009, 101).kind, OptionKind::None);
    EXPECT_EQ(subDialogFor(2011, 101).kind, OptionKind::None);
    EXPECT_EQ(optionHelpContext(2018, 103), 103u);
    EXPECT_EQ(optionHelpContext(2012, 121), 121u);
    EXPECT_EQ(optionHelpContext(2023, 114), 114u);
    EXPECT_EQ(optionHelpContext(2023, 111), 2023u);
    EXPECT_EQ(optionHelpContext(2001, 101), 2001u);
}

}  // namespace
}  // namespace kvs::graph
