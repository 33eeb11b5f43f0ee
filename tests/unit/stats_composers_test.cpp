// The statistics builders as pure functions, row by row, and the stored
// option values they write.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/set_editor.h"
#include "stats/stats_composers.h"
#include "stats/stored_options.h"
#include "stats/trax_select.h"

namespace kvs::stats {
namespace {

std::vector<std::string> linesOf(const ProcedureBlock& block) { return block.body.lines; }

TEST(StoredOptions, BlanksAreNoValueAndQuotesFollowTheValue) {
    CommandText line("X");
    EXPECT_FALSE(appendOption(line, " TOL=", "   "));
    EXPECT_TRUE(appendOption(line, " TITLE=", "Men's", true));
    EXPECT_TRUE(appendOption(line, " NOTE=", "a \"b\"", true));
    EXPECT_TRUE(appendOption(line, " NOTE=", "\"b", true));
    EXPECT_EQ(line.str(), "X TITLE=\"Men's\" NOTE='a \"b\"' NOTE='\"b'");
}

TEST(StoredOptions, UnlessDefaultComparesExactly) {
    CommandText line("ESTIMATE /");
    EXPECT_FALSE(appendOptionUnlessDefault(line, " CONVERGE=", "1.0e-6", "1.0e-6"));
    EXPECT_TRUE(appendOptionUnlessDefault(line, " CONVERGE=", "1.0E-6", "1.0e-6"));
    EXPECT_TRUE(appendOptionUnlessDefault(line, " ENTER=", " 0.15", "0.15"));
    EXPECT_FALSE(appendOptionUnlessDefault(line, " FORCE=", "", "0"));
    EXPECT_EQ(line.str(), "ESTIMATE / CONVERGE=1.0E-6 ENTER= 0.15");
}

TEST(StatsComposers, TtestLines) {
    struct Row {
        std::uint16_t id;
        TtestSettings settings;
        Names grouping;
        std::string line;
    };
    const Names x = {"X"};
    const std::vector<Row> rows = {
        {256, {}, {"G"}, "TEST X * G"},
        {256, {false, false, ".99", ""}, {"G"}, "TEST X * G/  CONF=.99"},
        {256, {true, false, ".95", ""}, {}, "TEST X / BONF"},
        {256, {false, true, ".95", ""}, {}, "TEST X / DUNN"},
        {256, {true, true, ".9", ""}, {}, "TEST X / BONF DUNN CONF=.9"},
        {257, {false, false, "", ""}, {"G"}, "TEST X"},
        {258, {false, false, ".95", "5"}, {}, "TEST X=5"},
    };
    for (const Row& row : rows) {
        const ProcedureBlock block = composeTtest(row.id, row.settings, x, row.grouping);
        EXPECT_EQ(block.procedure, "TTEST");
        EXPECT_EQ(linesOf(block), std::vector<std::string>{row.line}) << row.line;
    }
    EXPECT_EQ(composeTtest(256, {}, {}, {}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeTtest(258, {false, false, ".95", "  "}, x, {}).body.refusal, "You must enter a value for mean.");
}

TEST(StatsComposers, LogitModelAndEstimateLines) {
    LogitSettings s;
    s.predict = true;
    EXPECT_EQ(linesOf(composeLogit(s, {"LOW"}, {"AGE", "RACE"}, {})),
              (std::vector<std::string>{"MODEL LOW = CONSTANT+AGE+RACE", "ESTIMATE / PREDICT "}));
    s.predict = false;
    EXPECT_EQ(linesOf(composeLogit(s, {"y"}, {}, {})), (std::vector<std::string>{"MODEL y = CONSTANT", "ESTIMATE"}));
    s.constant = false;
    s.quasiLikelihood = true;
    EXPECT_EQ(linesOf(composeLogit(s, {"y"}, {}, {"C1", "C2"})),
              (std::vector<std::string>{"MODEL y = C1+C2 ; ", "ESTIMATE / QML "}));
    EXPECT_EQ(linesOf(composeLogit(s, {"y", "z"}, {"A"}, {"C1"}))[0], "MODEL y z = C1 ; A");
    s.constant = true;
    s.constantEnabled = false;
    EXPECT_EQ(linesOf(composeLogit(s, {"y"}, {"A"}, {}))[0], "MODEL y = A");
    EXPECT_EQ(composeLogit(s, {}, {"A"}, {}).body.refusal, "You must select variables.");
    const ProcedureBlock block = composeLogit(LogitSettings{}, {"y"}, {}, {});
    EXPECT_EQ(block.procedure, "LOGIT");
    EXPECT_EQ(block.saveFile, "LOGIT.KVD");
}

TEST(StatsComposers, LogitOptionsCompleteAndStepwise) {
    LogitSettings s;
    s.optionsUsed = true;
    EXPECT_EQ(linesOf(composeLogit(s, {"y"}, {}, {}))[1], "ESTIMATE /") << "used options push the line as it stands";
    s.options.converge = "1.0E-6";
    s.options.tolerance = "1e-10";
    s.options.start = "0.5";
    EXPECT_EQ(linesOf(composeLogit(s, {"y"}, {}, {}))[1], "ESTIMATE / START=0.5 CONVERGE=1.0E-6 TOL=1e-10");
    s.options.estimation = IDC_LOGITOPT_STEPWISE;
    s.options.enter = "0.10";
    s.options.force = "2";
    s.options.maxStep = "5";
    EXPECT_EQ(linesOf(composeLogit(s, {"y"}, {}, {})),
              (std::vector<std::string>{"MODEL y = CONSTANT", "START / FORWARD ENTER=0.10 FORCE=2 MAXSTEP=5", "STEP / AUTO"}));
    s.options.direction = IDC_LOGITOPT_BACKWARD;
    s.options.stepping = IDC_LOGITOPT_INTERACT;
    s.options.remove = "0.2";
    EXPECT_EQ(linesOf(composeLogit(s, {"y"}, {}, {})),
              (std::vector<std::string>{"MODEL y = CONSTANT", "START / BACKWARD ENTER=0.10 REMOVE=0.2 FORCE=2 MAXSTEP=5"}));
}

TEST(StatsComposers, HypothesisLinesContinueAfterAComma) {
    EXPECT_TRUE(hypothesisLines("  ").lines.empty());
    EXPECT_EQ(hypothesisLines("A = 0\r\nB = 1,\r\nC = 0\rD = 2").lines,
              (std::vector<std::string>{"HYPOTHESIS", "CONSTRAIN A = 0", "CONSTRAIN B = 1,", "C = 0", "CONSTRAIN D = 2",
                                        "TEST"}));
}

TEST(StatsComposers, BlockLinesAsTheHostReceivesThem) {
    const ProcedureBlock block = composeLogit(LogitSettings{}, {"y"}, {}, {});
    EXPECT_EQ(blockLines(block, false, "D:\\WORK\\LOGIT.KVD"),
              (std::vector<std::string>{"LOGIT", "SAVE 'D:\\WORK\\LOGIT.KVD'", "MODEL y = CONSTANT", "ESTIMATE"}));
    EXPECT_EQ(blockLines(block, true, ""), (std::vector<std::string>{"MODEL y = CONSTANT", "ESTIMATE"}));
    EXPECT_TRUE(blockLines(composeLogit(LogitSettings{}, {}, {}, {}), false, "").empty());
}

}  // namespace
}  // namespace kvs::stats

namespace kvs::stats {
namespace {

TEST(SetEditor, DefaultNamesSkipTakenOnesAndCountOncePerSet) {
    std::vector<NamedSet> sets = {{"Set1", {}, 0}, {"Set3", {}, 0}};
    const std::string first = SetEditor::defaultName(289, 0, sets);
    EXPECT_EQ(first, "Set2");
    sets.push_back({first, {}, 0});
    EXPECT_EQ(SetEditor::defaultName(289, 1, sets), "Set4");
    EXPECT_EQ(SetEditor::defaultName(292, 0, {}), "TDC1");
    EXPECT_EQ(SetEditor::defaultName(289, 0, {{"set1", {}, 0}}), "Set1") << "case counts";
}

TEST(TraxSelector, CallsTheChosenProgramOnly) {
    EXPECT_EQ(composeTraxCall(0).body.lines, std::vector<std::string>{"CALL DESCRIBE"});
    EXPECT_EQ(composeTraxCall(9).body.lines, std::vector<std::string>{"CALL REPORT"});
    EXPECT_TRUE(composeTraxCall(-1).body.refused());
    EXPECT_TRUE(composeTraxCall(10).body.refused());
    EXPECT_EQ(composeTraxCall(3).procedure, "TRAX");
    EXPECT_TRUE(composeTraxCall(3).saveFile.empty()) << "the selector saves no file";
}

TEST(SetEditor, WorkingCopyGrowsBySixteen) {
    std::vector<NamedSet> sets(3);
    openRoom(sets);
    EXPECT_EQ(sets.capacity(), 19u);
    for (int i = 0; i < 16; ++i) {
        roomForNewSet(sets);
        sets.emplace_back();
    }
    EXPECT_EQ(sets.capacity(), 19u) << "room is made only when a set would not fit";
    roomForNewSet(sets);
    EXPECT_EQ(sets.capacity(), 35u);
    EXPECT_EQ(sets.size(), 19u);
}

TEST(StatsComposers, ChoiceAndCategoryLines) {
    Composition lines;
    appendChoiceLines(lines, {{{"A", {"x", "y"}, 0}, {"B", {}, 0}}, "ALTV", ""});
    EXPECT_EQ(lines.lines, (std::vector<std::string>{"ALT ALTV", "SET A = x y ", "SET B = "}));
    Composition withoutAlternatives;
    appendChoiceLines(withoutAlternatives, {{}, "", "3"});
    EXPECT_TRUE(withoutAlternatives.lines.empty()) << "NCAT= goes only with an alternatives variable";
    EXPECT_EQ(categoryLine({{"SEX", "RACE"}, IDC_CATEGORY_EFFECT}), "CATEGORY SEX RACE / EFFECT");
    EXPECT_EQ(categoryLine({{}, IDC_CATEGORY_DUMMY}), "");
}

}  // namespace
}  // namespace kvs::stats
