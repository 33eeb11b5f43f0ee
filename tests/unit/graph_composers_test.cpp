// The graph builders: the grammar, the validation rules and the order of the
// option groups.
#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "graph/graph_composers.h"

namespace kvs::graph {
namespace {

// Option records marked set write " <code>" (and "3D" for the axis flag).
class FakeOptions : public OptionSource {
public:
    std::set<int> set;
    std::set<int> disabledButtons;
    bool buttonEnabled(int id) const override { return disabledButtons.count(id) == 0; }
    void append(CommandText& line, int code, bool threeD) const override {
        if (set.count(code)) line.append(' ').append(std::to_string(code)).append(threeD && code == 2004 ? "3D" : "");
    }
};

std::string lineOf(const Composition& c) { return c.refused() ? "refused: " + c.refusal : c.lines.at(0); }

TEST(GraphComposers, ScatterplotGrammar) {
    const FakeOptions none;
    auto plot = [&](const std::function<void(ScatterplotState&)>& change, const OptionSource& options) {
        ScatterplotState s;
        change(s);
        return lineOf(composeScatterplot(s, options));
    };
    EXPECT_EQ(plot([](ScatterplotState& s) { s.x = {"x"}, s.y = {"y"}; }, none), "PLOT y*x ");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.x = {"x"}, s.y = {"y1", "y2"}, s.overlay = true, s.group = {"g"}; },
                   none),
              "PLOT y1 y2*x / OVERLAY GROUP=g");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.x = {"x"}, s.y = {"y"}, s.group = {"a", "b"}; }, none),
              "PLOT y*x / GROUP=a b");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.x = {"x"}, s.y = {"y"}, s.group = {"a", "b"}, s.mirror = true; },
                   none),
              "PLOT y*x / DUAL=a");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.w = {"w"}, s.z = {"z"}, s.y = {"y"}, s.x = {"x"}, s.repeat = true; },
                   none),
              "PLOT w*z*y*x / REPEAT");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.z = {"z1", "z2"}, s.matrix = s.matrixChecked = true; }, none),
              "PLOT z1 z2 / MATRIX");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.x = {"x"}, s.y = {"y"}, s.z = {"z"}, s.display = 2; }, none),
              "PLOT z*y*x / TILE");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.x = {"x"}, s.y = {"y"}, s.display = 1, s.displayEnabled = false; },
                   none),
              "PLOT y*x ");
    // Y-variables alone, and many grouping variables alone, are composed as they stand.
    EXPECT_EQ(plot([](ScatterplotState& s) { s.y = {"y"}; }, none), "PLOT y ");
    EXPECT_EQ(plot([](ScatterplotState& s) { s.group = {"a", "b", "c"}; }, none), "PLOT  / GROUP=a b c");
}

TEST(GraphComposers, ScatterplotRules) {
    const FakeOptions none;
    struct Row {
        int message;
        std::function<void(ScatterplotState&)> change;
    };
    const std::vector<Row> rows = {
        {1, [](ScatterplotState&) {}},
        {1, [](ScatterplotState& s) { s.group = {"g"}; }},
        {1, [](ScatterplotState& s) { s.z = {"z"}, s.group = {"g"}, s.mirrorChecked = true; }},
        {1, [](ScatterplotState& s) { s.group = {"g", "h"}; }},
        {2, [](ScatterplotState& s) { s.x = {"x"}; }},
        {2, [](ScatterplotState& s) { s.x = {"x"}, s.group = {"g"}; }},
        {2, [](ScatterplotState& s) { s.x = {"x"}, s.z = {"z"}, s.group = {"g"}, s.mirrorChecked = true; }},
        {2, [](ScatterplotState& s) { s.x = {"x"}, s.group = {"g", "h"}; }},
        {3, [](ScatterplotState& s) { s.z = {"z"}; }},
        {2, [](ScatterplotState& s) { s.x = {"x"}, s.z = {"z"}; }},
        {4, [](ScatterplotState& s) { s.y = {"y1", "y2"}, s.z = {"z"}; }},
        {4, [](ScatterplotState& s) { s.y = {"y"}, s.z = {"z1", "z2"}; }},
        {5, [](ScatterplotState& s) { s.w = {"w"}, s.x = {"x"}, s.y = {"y"}; }},
    };
    for (const Row& row : rows) {
        ScatterplotState s;
        row.change(s);
        EXPECT_EQ(composeScatterplot(s, none).refusal, scatterplotMessage(row.message)) << row.message;
    }
}

TEST(GraphComposers, ScatterplotOptionGroupsInOrderWhileTheirButtonsAreEnabled) {
    FakeOptions options;
    options.set = {2001, 2002, 2003, 2004, 2005, 2006, 2007, 2008, 2010, 2012, 2013, 2014, 2015, 2016};
    ScatterplotState s;
    s.x = {"x"}, s.y = {"y"};
    EXPECT_EQ(lineOf(composeScatterplot(s, options)),
              "PLOT y*x / 2012 2013 2014 2015 2001 2002 2004 2006 2007 2008 2005 2010");
    s.z = {"z"};
    options.disabledButtons = {kOptionsButton, kLayoutButton};
    EXPECT_EQ(lineOf(composeScatterplot(s, options)), "PLOT z*y*x / 2001 2002 2003 2016 20043D 2006 2007 2008");
}

TEST(GraphComposers, HighLowAndQuantile) {
    FakeOptions options;
    HighLowState h;
    EXPECT_EQ(lineOf(composeHighLow(h, options)), "refused: Need High, Low, and Close variables!");
    h.high = {"h"}, h.low = {"l"}, h.close = {"c"};
    EXPECT_EQ(lineOf(composeHighLow(h, options)), "PLOT c h l/ HILO");
    h.x = {"x"}, h.group = {"a", "b"}, h.mirror = true, h.overlay = true;
    options.set = {2004, 2013};
    EXPECT_EQ(lineOf(composeHighLow(h, options)), "PLOT c h l*x/ HILO DUAL=a,b OVERLAY 2013 2004");

    QuantileState q;
    EXPECT_EQ(lineOf(composeQuantile(q, FakeOptions{})),
              "refused: You must select an X-variable to produce a Quantile Plot.");
    q.x = {"x"}, q.y = {"y"};
    EXPECT_EQ(lineOf(composeQuantile(q, FakeOptions{})), "QPLOT y * x");
    q.group = {"a", "b"}, q.mirror = true;
    EXPECT_EQ(lineOf(composeQuantile(q, FakeOptions{})), "QPLOT y * x/ GROUP=a,b");  // DUAL= needs exactly one
    q.group = {"a"};
    EXPECT_EQ(lineOf(composeQuantile(q, FakeOptions{})), "QPLOT y * x/ DUAL=a");
    q.y.clear();
    EXPECT_EQ(lineOf(composeQuantile(q, FakeOptions{})), "QPLOT x/ DUAL=a");
}

}  // namespace
}  // namespace kvs::graph

namespace kvs::graph {
namespace {

TEST(GraphComposers, BarFamily) {
    const FakeOptions none;
    auto bar = [&](int id, const std::function<void(BarFamilyState&)>& change) {
        BarFamilyState s;
        change(s);
        return lineOf(composeBarFamily(id, s, none));
    };
    EXPECT_EQ(bar(103, [](BarFamilyState& s) { s.y = {"y"}, s.x = {"x"}; }), "BAR y*x ");
    EXPECT_EQ(bar(103, [](BarFamilyState& s) { s.y = {"y"}, s.x = {"x"}, s.counts = true; }), "BAR  . *y*x ");
    EXPECT_EQ(bar(103, [](BarFamilyState& s) { s.y = {"y"}, s.x = {"x"}, s.group = {"a", "b"}; }),
              "BAR y*x / GROUP=a,b");
    EXPECT_EQ(bar(103, [](BarFamilyState& s) { s.y = {"y"}, s.x = {"x"}, s.group = {"a", "b"}, s.mirror = true; }),
              "BAR y*x / DUAL=a,b");
    EXPECT_EQ(bar(103, [](BarFamilyState& s) {
                  s.y = {"y1", "y2"}, s.x = {"x"}, s.stack = s.range = s.overlay = true, s.display = 1;
              }),
              "BAR y1 y2*x / STACK RANGE OVERLAY TILE");
    EXPECT_EQ(bar(109, [](BarFamilyState& s) { s.y = {"y1", "y2"}, s.repeat = s.repeatChecked = true; }),
              "LINE y1 y2 / REPEAT");
    EXPECT_EQ(bar(108, [](BarFamilyState& s) { s.z = {"z1", "z2"}, s.matrix = s.matrixChecked = true; }),
              "DOT z1 z2 / MATRIX");
    // Keywords the graph does not have are not written, whatever the state says.
    EXPECT_EQ(bar(102, [](BarFamilyState& s) { s.y = {"y"}, s.x = {"x"}, s.stack = s.range = true, s.display = 1; }),
              "PYRAMID y*x ");
    EXPECT_EQ(bar(1124, [](BarFamilyState& s) { s.y = {"y"}, s.x = {"x"}, s.stack = true; }), "PROFILE y*x / STACK");
    // The profile writes STACK after OVERLAY, the bar before it.
    EXPECT_EQ(bar(1124, [](BarFamilyState& s) { s.y = {"y"}, s.x = {"x"}, s.stack = s.overlay = true; }),
              "PROFILE y*x / OVERLAY STACK");
    EXPECT_EQ(bar(103, [](BarFamilyState&) {}), "refused: " + barFamilyMessage(1, "Bar"));
    EXPECT_EQ(barFamilyMessage(1, "Bar"),
              "You must select an X-variable(s), or a Y-variable(s) with the Repeated trials option, or a "
              "Z-variable(s) with the Matrix columns option, to produce a Bar");
    EXPECT_EQ(bar(102, [](BarFamilyState& s) { s.y = {"y"}; }), "refused: " + barFamilyMessage(2, "Pyramid"));
    EXPECT_EQ(bar(108, [](BarFamilyState& s) { s.z = {"z"}; }), "refused: " + barFamilyMessage(3, "Dot"));
    EXPECT_EQ(bar(109, [](BarFamilyState& s) { s.x = {"x"}; }), "refused: " + barFamilyMessage(4, "Line"));
    EXPECT_EQ(bar(103, [](BarFamilyState& s) { s.y = {"y"}, s.counts = true, s.repeatChecked = true; }),
              "refused: " + barFamilyMessage(5, "Bar"));
    EXPECT_EQ(bar(1124, [](BarFamilyState& s) { s.group = {"g"}; }), "refused: " + barFamilyMessage(6, "Profile"));
}

TEST(GraphComposers, BarFamilyOptionOrderFollowsTheGraph) {
    FakeOptions options;
    options.set = {2001, 2002, 2003, 2004, 2005, 2006, 2007, 2008, 2010, 2017, 2018, 2019, 2020, 2021, 2022};
    BarFamilyState s;
    s.y = {"y"}, s.x = {"x"};
    // No Z-variable: the Z axis is left out, as in the scatterplot.
    EXPECT_EQ(lineOf(composeBarFamily(103, s, options)), "BAR y*x / 2018 2017 2019 2001 2002 2004 2005 2010 2006 2020");
    s.z = {"z"};
    EXPECT_EQ(lineOf(composeBarFamily(102, s, options)),
              "PYRAMID z*y*x / 2018 2019 2017 2001 2002 2003 20043D 2005 2010 2006 2020");
    s.display = 1;  // a tiled bar chart is flat
    EXPECT_EQ(lineOf(composeBarFamily(103, s, options)),
              "BAR z*y*x / TILE 2018 2017 2019 2001 2002 2004 2005 2010 2006 2020");
    s.z.clear(), s.display = 0;
    options.disabledButtons = {507};
    EXPECT_EQ(lineOf(composeBarFamily(108, s, options)), "DOT y*x / 2021 2017 2019 2005 2010 2006 2007 2008");
    EXPECT_EQ(lineOf(composeBarFamily(109, s, options)), "LINE y*x / 2022 2017 2019 2005 2010 2006 2008");
    EXPECT_EQ(lineOf(composeBarFamily(1124, s, options)), "PROFILE y*x / 2022 2019 2017 2005 2010 2006");
    EXPECT_TRUE(composeBarFamily(101, s, options).lines.empty());
}

}  // namespace
}  // namespace kvs::graph

namespace kvs::graph {
namespace {

TEST(GraphComposers, DensityFamily) {
    const FakeOptions none;
    auto density = [&](int id, const std::function<void(DensityState&)>& change) {
        DensityState s;
        change(s);
        return lineOf(composeDensity(id, s, none));
    };
    EXPECT_EQ(density(106, [](DensityState& s) { s.y = {"y"}, s.x = {"x"}, s.group = {"a", "b"}; }),
              "DENSITY y * x / GROUP=a,b BOX");
    EXPECT_EQ(density(113, [](DensityState& s) { s.x = {"x"}, s.style = 2, s.overlay = true; }),
              "DENSITY x/ OVERLAY JITTER");
    EXPECT_EQ(density(111, [](DensityState& s) { s.x = {"x"}, s.style = 2, s.display = 1; }),
              "DENSITY  . * x/ POLY TILE");  // the histogram has no "2D Contour"
    EXPECT_EQ(density(114, [](DensityState& s) { s.y = {"y"}, s.x = {"x"}, s.display = 1; }),
              "DENSITY  . * y * x/ HIST CONTOUR");
    EXPECT_EQ(density(114, [](DensityState& s) { s.x = {"x"}, s.mirror = true, s.group = {"g"}; }),
              "DENSITY  . * x/ DUAL=g HIST");
    EXPECT_EQ(density(106, [](DensityState&) {}),
              "refused: You must select an X-variable(s) or a Y-variable(s) with the Repeated trials option, to "
              "produce a Box Plot.");
    EXPECT_EQ(density(113, [](DensityState& s) { s.y = {"y"}; }),
              "refused: You must also select an X-Variable(s) or the Repeated trials option to produce a Dot "
              "Density Plot.");
    // The spaced style writes " * " after a Y list even with no X to follow.
    EXPECT_EQ(density(111, [](DensityState& s) { s.y = {"y"}, s.repeat = s.repeatChecked = true; }),
              "DENSITY  . * y * / REPEAT HIST");
    EXPECT_EQ(density(106, [](DensityState& s) { s.y = {"y"}, s.repeat = s.repeatChecked = true; }),
              "DENSITY y *  / REPEAT BOX");
}

TEST(GraphComposers, GraphsWithFewKeywords) {
    FakeOptions options;
    auto graph = [&](int id, const std::function<void(SimpleGraphState&)>& change) {
        SimpleGraphState s;
        change(s);
        return lineOf(composeSimpleGraph(id, s, options));
    };
    EXPECT_EQ(graph(129, [](SimpleGraphState& s) { s.x = {"c"}, s.slices = "4", s.ring = s.threeD = true; }),
              "PIE c/ SLICE=4 RING THREED");
    EXPECT_EQ(graph(129, [](SimpleGraphState& s) { s.y = {"n"}; }),
              "refused: You must select a Category variable to produce a Pie chart.");
    EXPECT_EQ(graph(120, [](SimpleGraphState& s) { s.y = {"a", "b"}, s.choice = 4, s.group = {"g"}; }),
              "ICON a b / GROUP=g FACE");
    EXPECT_EQ(graph(120, [](SimpleGraphState& s) { s.y = {"a"}; }),
              "refused: You must select at least 2 Feature variables to produce an Icon Plot.");
    EXPECT_EQ(graph(121, [](SimpleGraphState& s) { s.x = {"x"}, s.choice = 0; }), "PPLOT x/ NORMAL");
    EXPECT_EQ(graph(121, [](SimpleGraphState& s) { s.x = {"x"}, s.choice = 8, s.parameter1 = "2", s.parameter2 = "3"; }),
              "PPLOT x/ BETA=2,3");
    EXPECT_EQ(graph(121, [](SimpleGraphState& s) { s.x = {"x"}, s.choice = 1, s.parameter1 = "4"; }),
              "PPLOT x/ CHISQ=4");
    EXPECT_EQ(graph(116, [](SimpleGraphState& s) { s.y = {"a", "b", "c"}, s.overlay = true; }),
              "FOURIER a b c/ OVERLAY");
    EXPECT_EQ(graph(118, [](SimpleGraphState& s) { s.y = {"a"}; }),
              "refused: You must select at least 2 Parallel variables to produce a Parallel Coordinate Display.");
    EXPECT_EQ(graph(116, [](SimpleGraphState&) {}),
              "refused: You must select at least 2 Waveform variables to produce an Andrew's Fourier Plot.");
    EXPECT_EQ(graph(147, [](SimpleGraphState& s) { s.y = {"r1", "r2"}, s.x = {"c"}, s.half = true; }),
              "SPLOM r1 r2 * c/ HALF");
    EXPECT_EQ(graph(128, [](SimpleGraphState& s) { s.choice = 6, s.sphere = true; }), "MAP / PROJECT=ROBINSON SPHERE");
    EXPECT_EQ(graph(119, [](SimpleGraphState& s) { s.equationLeft = "y", s.equationRight = "x^2", s.display = 1; }),
              "FPLOT y = x^2 ; CONTOUR");
    EXPECT_EQ(graph(119, [](SimpleGraphState& s) { s.equationLeft = "y"; }),
              "refused: You must enter a complete equation to produce a Function plot.");
    options.set = {2005, 2020, 2026};
    EXPECT_EQ(graph(129, [](SimpleGraphState& s) { s.x = {"c"}; }), "PIE c/ 2005 2026 2020");
}

}  // namespace
}  // namespace kvs::graph
