// The axis keyword groups of the graph commands, one row per setting.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "graph/axis_options.h"

namespace kvs::graph {
namespace {

std::string axisText(int code, const std::function<void(AxisOptions&)>& change) {
    AxisOptions axis;
    change(axis);
    CommandText line("PLOT Y*X /");
    appendAxisOptions(line, axisLetter(code), axis);
    return line.str().substr(10);
}

TEST(GraphAxisOptions, EachSettingWritesItsGroup) {
    struct Row {
        const char* what;
        int code;
        std::function<void(AxisOptions&)> change;
        const char* text;
    };
    const std::vector<Row> rows = {
        {"nothing set", 2001, [](AxisOptions&) {}, ""},
        {"the example", 2001,
         [](AxisOptions& a) { a.label = "Weight", a.minimum = "0", a.maximum = "100", a.grid = true; },
         " XLABEL='Weight' XMIN=0 XMAX=100 XGRID"},
        {"a quote in the label", 2002, [](AxisOptions& a) { a.label = "Men's weight"; }, " YLABEL=\"Men's weight\""},
        {"both limits", 2001, [](AxisOptions& a) { a.upperLimit = "10", a.lowerLimit = "2"; }, " XLIMIT=10 ,2"},
        {"lower limit alone", 2001, [](AxisOptions& a) { a.lowerLimit = "2"; }, " XLIMIT=2"},
        {"ticks", 2003, [](AxisOptions& a) { a.tick = "5", a.pip = "1"; }, " ZTICK=5 ZPIP=1"},
        {"power", 2016, [](AxisOptions& a) { a.transformation = kTransformPower, a.power = "0.5"; }, " WPOW=0.5"},
        {"power without its value", 2001, [](AxisOptions& a) { a.transformation = kTransformPower; }, ""},
        {"log", 2002, [](AxisOptions& a) { a.transformation = kTransformLog, a.logBase = "10"; }, " YLOG=10"},
        {"no transformation keeps its fields quiet", 2002,
         [](AxisOptions& a) { a.power = "2", a.logBase = "10"; }, ""},
        {"format, grid and reverse", 2001, [](AxisOptions& a) { a.decimals = "2", a.grid = a.reverse = true; },
         " XFORMAT=2 XGRID XREV"},
        {"a value never filled leaves the rest in place", 2001,
         [](AxisOptions& a) { a.label = "", a.maximum = "9", a.reverse = true; }, " XMAX=9 XREV"},
    };
    for (const Row& row : rows) EXPECT_EQ(axisText(row.code, row.change), row.text) << row.what;
    EXPECT_EQ(axisLetter(2004), 0);
}

TEST(GraphAxisOptions, AllAxesByDimension) {
    auto text = [](const AllAxesOptions& axes, bool three) {
        CommandText line;
        appendAllAxesOptions(line, axes, three);
        return line.str();
    };
    AllAxesOptions example;
    example.axes2d = 1;  // "Box"
    example.tickStyle = TickStyle::Outside;
    example.transpose = true;
    EXPECT_EQ(text(example, false), " AXES=BOX STICK=OUT TRANSPOSE");
    EXPECT_EQ(text(example, true), " STICK=OUT TRANSPOSE");  // the 3-D lists are on "Automatic"

    AllAxesOptions other;
    other.axes3d = 6;    // "Spoon"
    other.scales3d = 3;  // "Book"
    other.scales2d = 5;  // "Vertical"
    other.tickStyle = TickStyle::Through;
    other.tickLocation = TickLocation::Float;
    EXPECT_EQ(text(other, true), " AXES=SPOON SCALE=BOOK STICK=THROUGH TICK=FLOAT");
    EXPECT_EQ(text(other, false), " SCALE=VERTICAL STICK=THROUGH TICK=FLOAT");
    other.tickLocation = TickLocation::Indent;
    other.scales2d = 12;
    EXPECT_EQ(text(other, false), " SCALE=NONE STICK=THROUGH TICK=INDENT");
    EXPECT_EQ(text(AllAxesOptions{}, false), "");
    EXPECT_EQ(axesStyle2d(13), "");
    EXPECT_EQ(axesStyle3d(8), "None");
}

}  // namespace
}  // namespace kvs::graph
