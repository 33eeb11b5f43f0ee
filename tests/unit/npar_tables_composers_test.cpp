// The builders of the nonparametric tests, the tables, the log-linear model
// and the experimental designs, row by row: their lines, SAVE files and
// qualifiers, and refusals.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/design_composers.h"
#include "stats/loglin_composers.h"
#include "stats/npar_composers.h"
#include "stats/tables_composers.h"

namespace kvs::stats {
namespace {

using Lines = std::vector<std::string>;

TEST(NparComposers, EachTestWritesItsVerbAndLists) {
    const NparSettings s;
    const struct {
        std::uint16_t id;
        Names variables, grouping;
        std::string line;
    } rows[] = {
        {226, {"A", "B", "C"}, {}, "FRIEDMAN A B C"},
        {227, {"A", "B"}, {}, "KS A B"},
        {227, {"A"}, {"G"}, "KS A * G"},
        {228, {"A", "B"}, {"G"}, "KRUSKAL A B * G"},
        {229, {"A", "B"}, {}, "SIGN A B"},
        {230, {"A"}, {}, "RUNS A"},
        {231, {"A", "B"}, {}, "WILCOXON A B"},
        {268, {"A"}, {}, "KS A / NORMAL"},
        {268, {"A", "B"}, {"G"}, "KS A B * G / NORMAL"},
    };
    for (const auto& row : rows) {
        const ProcedureBlock block = composeNpar(row.id, s, row.variables, row.grouping);
        EXPECT_EQ(block.procedure, "NPAR") << row.id;
        EXPECT_EQ(block.saveFile, "NPAR.KVD") << row.id;
        EXPECT_TRUE(block.saveQualifier.empty()) << row.id;
        EXPECT_EQ(block.body.lines, Lines{row.line}) << row.id;
    }
}

TEST(NparComposers, Refusals) {
    const NparSettings s;
    for (std::uint16_t id : {226, 227, 228, 229, 230, 231, 268})
        EXPECT_EQ(composeNpar(id, s, {}, {"G"}).body.refusal, "You must select variables.") << id;
    // Related-variable tests compare two or more; the two-sample test needs
    // two variables or a grouping variable; Kruskal-Wallis needs its groups.
    for (std::uint16_t id : {226, 229, 231})
        EXPECT_EQ(composeNpar(id, s, {"A"}, {}).body.refusal, "You must provide more input.") << id;
    EXPECT_EQ(composeNpar(227, s, {"A"}, {}).body.refusal, "You must provide more input.");
    EXPECT_EQ(composeNpar(228, s, {"A", "B"}, {}).body.refusal, "You must select category/factor variables.");
    EXPECT_FALSE(composeNpar(230, s, {"A"}, {}).body.refused());
}

TEST(NparComposers, CutPointAndDistributions) {
    NparSettings s;
    s.cut = "2.5";
    EXPECT_EQ(composeNpar(230, s, {"A", "B"}, {}).body.lines, Lines{"RUNS A B /CUT=2.5"});
    s.cut = " ";
    EXPECT_EQ(composeNpar(230, s, {"A"}, {}).body.lines, Lines{"RUNS A"});

    // A distribution's keyword stands alone while its parameters are the
    // defaults, compared exactly.
    const struct {
        int distribution;
        std::string mean, sd, lower, upper, scale, tail;
    } rows[] = {
        {IDC_KS_NORMAL, "0", "1", "", "", "", " / NORMAL"},
        {IDC_KS_NORMAL, "10", "1", "", "", "", " / NORMAL=10,1"},
        {IDC_KS_NORMAL, "0", "1.0", "", "", "", " / NORMAL=0,1.0"},
        {IDC_KS_UNIFORM, "", "", "0", "1", "", " / UNIFORM"},
        {IDC_KS_UNIFORM, "", "", "-1", "1", "", " / UNIFORM=-1,1"},
        {IDC_KS_EXPONENTIAL, "", "", "", "", "1", " / EXPONENTIAL"},
        {IDC_KS_EXPONENTIAL, "", "", "", "", "3", " / EXPONENTIAL=3"},
        {IDC_KS_LILLIEFORS, "", "", "", "", "", " / LILLIEFORS"},
        {0, "0", "1", "", "", "", " / NORMAL"},
    };
    for (const auto& row : rows) {
        NparSettings d;
        d.distribution = row.distribution;
        d.mean = row.mean, d.sd = row.sd, d.lower = row.lower, d.upper = row.upper, d.scale = row.scale;
        EXPECT_EQ(composeNpar(268, d, {"X"}, {}).body.lines, Lines{"KS X" + row.tail}) << row.tail;
    }
    NparSettings blank;
    blank.sd = "";
    EXPECT_EQ(composeNpar(268, blank, {"X"}, {}).body.refusal, "You must provide more input.");
    blank.distribution = IDC_KS_UNIFORM;
    blank.upper = "  ";
    EXPECT_EQ(composeNpar(268, blank, {"X"}, {}).body.refusal, "You must provide more input.");
    blank.distribution = IDC_KS_LILLIEFORS;
    EXPECT_FALSE(composeNpar(268, blank, {"X"}, {}).body.refused());
}

TEST(TablesComposers, PrintLineOnlyWhenTheStatisticsDiffer) {
    TableSettings s;
    ProcedureBlock block = composeTables(266, s, {"A", "B"}, {});
    EXPECT_EQ(block.procedure, "XTAB");
    EXPECT_EQ(block.saveFile, "TABLES.KVD");
    EXPECT_EQ(block.body.lines, Lines{"TABULATE A B"});
    s.percents = true;
    EXPECT_EQ(composeTables(266, s, {"A"}, {}).body.lines, (Lines{"PRINT NONE/ FREQ PERCENT", "TABULATE A"}));
    s = {};
    s.counts = false;
    EXPECT_EQ(composeTables(266, s, {"A"}, {}).body.lines, (Lines{"PRINT NONE", "TABULATE A"}));
    s = {};
    s.counts = false, s.percents = true, s.rowPercents = true, s.columnPercents = true, s.expected = true;
    s.deviates = true, s.standardized = true, s.chiSquare = true;
    EXPECT_EQ(composeTables(267, s, {"R"}, {"C"}).body.lines,
              (Lines{"PRINT NONE/ PERCENT ROWP COLP EXPECT DEVIATE STANDARD CHISQ", "TABULATE R * C"}));
}

TEST(TablesComposers, TableShapesAndOptions) {
    TableSettings s;
    EXPECT_EQ(composeTables(267, s, {"R1", "R2"}, {"C1", "C2"}).body.lines, Lines{"TABULATE R1 R2 * C1 C2"});
    EXPECT_EQ(composeTables(253, s, {"A", "B", "C"}, {}).body.lines, Lines{"TABULATE A*B*C"});
    s.listLayout = true;
    EXPECT_EQ(composeTables(266, s, {"A"}, {}).body.lines, Lines{"TABULATE A / LIST"});
    s.missing = true;
    EXPECT_EQ(composeTables(266, s, {"A"}, {}).body.lines, Lines{"TABULATE A / LIST MISS"});
    s.listLayout = false;
    EXPECT_EQ(composeTables(267, s, {"A"}, {"B"}).body.lines, Lines{"TABULATE A * B / MISS"});
    // The Mantel-Haenszel test and its confidence belong to multiway tables;
    // the confidence is written only with the test and when not "0.95".
    s.missing = false, s.mantel = true, s.confidence = "0.99";
    EXPECT_EQ(composeTables(267, s, {"A"}, {"B"}).body.lines, Lines{"TABULATE A * B"});
    EXPECT_EQ(composeTables(253, s, {"A", "B", "C"}, {}).body.lines, Lines{"TABULATE A*B*C / MANTEL CONFI=0.99"});
    s.confidence = "0.95";
    EXPECT_EQ(composeTables(253, s, {"A", "B"}, {}).body.lines, Lines{"TABULATE A*B / MANTEL"});
    s.confidence = ".95";
    EXPECT_EQ(composeTables(253, s, {"A", "B"}, {}).body.lines, Lines{"TABULATE A*B / MANTEL CONFI=.95"});
    s.mantel = false;
    EXPECT_EQ(composeTables(253, s, {"A", "B"}, {}).body.lines, Lines{"TABULATE A*B"});
}

TEST(TablesComposers, Refusals) {
    const TableSettings s;
    EXPECT_EQ(composeTables(266, s, {}, {}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeTables(267, s, {"A"}, {}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeTables(267, s, {}, {"B"}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeTables(253, s, {}, {}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeTables(253, s, {"A"}, {}).body.refusal, "You must provide more input.");
}

TEST(LoglinComposers, ModelPrintEstimationAndSaveQualifier) {
    LoglinSettings s;
    ProcedureBlock block = composeLoglin(s, {"A", "B", "C"});
    EXPECT_EQ(block.procedure, "LOGLIN");
    EXPECT_EQ(block.saveFile, "LOGLIN.KVD");
    EXPECT_EQ(block.saveQualifier, " / ESTIMATES");
    EXPECT_EQ(block.body.lines, (Lines{"MODEL A*B*C = A+B+C", "ESTIMATE"}));
    s.saved = IDC_LOGLIN_LAMBDAS;
    s.terms = "  A*B+C ";
    s.expected = true;
    block = composeLoglin(s, {"A", "B", "C"});
    EXPECT_EQ(block.saveQualifier, " / LAMBDAS");
    EXPECT_EQ(block.body.lines, (Lines{"PRINT NONE/ EXPECT LAMBDA CHISQ", "MODEL A*B*C = A*B+C", "ESTIMATE"}));
    s = {};
    s.lambdas = false, s.chiSquare = false;
    EXPECT_EQ(composeLoglin(s, {"A"}).body.lines, (Lines{"PRINT NONE", "MODEL A = A", "ESTIMATE"}));
    EXPECT_EQ(composeLoglin({}, {}).body.refusal, "You must select variables.");
}

TEST(LoglinComposers, EstimationValuesUnlessDefault) {
    const struct {
        std::string LoglinSettings::*field;
        std::string value, option;
    } rows[] = {
        {&LoglinSettings::convergence, "0.0001", ""},
        {&LoglinSettings::convergence, "1e-4", " / CONV=1e-4"},
        {&LoglinSettings::likelihood, "0.000001", ""},
        {&LoglinSettings::likelihood, "0.00001", " / LCONV=0.00001"},
        {&LoglinSettings::tolerance, "0.001", ""},
        {&LoglinSettings::tolerance, ".001", " / TOL=.001"},
        {&LoglinSettings::iterations, "", ""},
        {&LoglinSettings::iterations, "50", " / ITER=50"},
        {&LoglinSettings::halvings, "5", " / HALF=5"},
        {&LoglinSettings::delta, "0.5", " / DELTA=0.5"},
    };
    for (const auto& row : rows) {
        LoglinSettings s;
        s.*row.field = row.value;
        EXPECT_EQ(composeLoglin(s, {"A"}).body.lines.back(), "ESTIMATE" + row.option) << row.value;
    }
    LoglinSettings all;
    all.convergence = "0.01", all.likelihood = "0.01", all.tolerance = "0.01", all.iterations = "9";
    all.halvings = "2", all.delta = "0";
    EXPECT_EQ(composeLoglin(all, {"A"}).body.lines.back(),
              "ESTIMATE / CONV=0.01 LCONV=0.01 TOL=0.01 ITER=9 HALF=2 DELTA=0");
}

TEST(LoglinComposers, Tabulate) {
    const ProcedureBlock block = composeLoglinTabulate({"A", "B"});
    EXPECT_EQ(block.procedure, "LOGLIN");
    EXPECT_TRUE(block.saveFile.empty());
    EXPECT_EQ(block.body.lines, Lines{"TABULATE A*B"});
    EXPECT_EQ(composeLoglinTabulate({}).body.refusal, "You must select variables.");
}

TEST(DesignComposers, EachDesignAndItsSizes) {
    const struct {
        int design;
        std::string factors, levels, runs;
        std::string line;
    } rows[] = {
        {IDC_DOE_FULL, "3", "2", "", "FACTORIAL / FACTORS=3"},
        {IDC_DOE_FULL, "3", "3", "8", "FACTORIAL / FACTORS=3 LEVELS=3"},
        {IDC_DOE_FULL, "3", "", "", "FACTORIAL / FACTORS=3"},
        {IDC_DOE_FRACTIONAL, "5", "2", "16", "FACTORIAL / FACTORS=5 RUNS=16"},
        {IDC_DOE_LATIN, "5", "4", "9", "LATIN / LEVELS=4"},
        {IDC_DOE_LATIN, "", "2", "", "LATIN / LEVELS=2"},
        {IDC_DOE_PLACKETT, "", "2", "12", "PLACKETT / RUNS=12"},
        {IDC_DOE_PLACKETT, "7", "2", "12", "PLACKETT / FACTORS=7 RUNS=12"},
        {IDC_DOE_BOX, "3", "3", "5", "BOXBEHNKEN / FACTORS=3"},
        {IDC_DOE_TAGUCHI, "3", "3", "5", "TAGUCHI / TYPE=L4"},
        {0, "2", "2", "", "FACTORIAL / FACTORS=2"},
    };
    for (const auto& row : rows) {
        DesignSettings s;
        s.design = row.design, s.factors = row.factors, s.levels = row.levels, s.runs = row.runs;
        const ProcedureBlock block = composeDesign(s);
        EXPECT_EQ(block.procedure, "DESIGN");
        EXPECT_EQ(block.saveFile, "XDESIGN.KVD");
        EXPECT_EQ(block.body.lines, Lines{row.line}) << row.line;
    }
}

TEST(DesignComposers, OptionsArraysAndRefusals) {
    DesignSettings s;
    s.factors = "2", s.replications = "3", s.randomize = true, s.letters = true, s.blocks = true, s.squares = true;
    EXPECT_EQ(composeDesign(s).body.lines, Lines{"FACTORIAL / FACTORS=2 REPS=3 RAND LETTERS BLOCK"});
    s.design = IDC_DOE_LATIN, s.levels = "5", s.replications = "1";
    EXPECT_EQ(composeDesign(s).body.lines, Lines{"LATIN / LEVELS=5 SQUARES RAND LETTERS BLOCK"});
    s = {};
    s.design = IDC_DOE_TAGUCHI;
    s.array = 13;
    EXPECT_EQ(composeDesign(s).body.lines, Lines{"TAGUCHI / TYPE=L81"});
    s.array = 99;
    EXPECT_EQ(composeDesign(s).body.lines, Lines{"TAGUCHI / TYPE=L81"});
    s.array = -1;
    EXPECT_EQ(composeDesign(s).body.lines, Lines{"TAGUCHI / TYPE=L4"});

    const struct {
        int design;
        std::string factors, levels, runs;
    } refused[] = {
        {IDC_DOE_FULL, " ", "2", "8"},   {IDC_DOE_FRACTIONAL, "3", "2", ""}, {IDC_DOE_FRACTIONAL, "", "2", "8"},
        {IDC_DOE_LATIN, "3", "", "8"},   {IDC_DOE_PLACKETT, "3", "2", ""},   {IDC_DOE_BOX, "", "3", "8"},
    };
    for (const auto& row : refused) {
        DesignSettings r;
        r.design = row.design, r.factors = row.factors, r.levels = row.levels, r.runs = row.runs;
        EXPECT_EQ(composeDesign(r).body.refusal, "You must provide more input.") << row.design;
    }
}

}  // namespace
}  // namespace kvs::stats
