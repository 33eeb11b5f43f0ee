// The builders of Basic Statistics, Cronbach, Stem, Correlations, the
// clustering dialogs, Factor Analysis and MDS, row by row.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/multivariate_composers.h"

namespace kvs::stats {
namespace {

// The block's lines joined by " | ", or its refusal.
std::string linesOf(const ProcedureBlock& block) {
    if (block.body.refused()) return "refused: " + block.body.refusal;
    std::string all;
    for (const std::string& line : block.body.lines) all += (all.empty() ? "" : " | ") + line;
    return all;
}

const Names kAb = {"A", "B"};

TEST(MultivariateComposers, BasicStatisticsListsOnlyAChangedChoice) {
    BasicStatsSettings s;
    EXPECT_EQ(linesOf(composeBasicStats(s, kAb, {})), "STATISTICS A B");
    s.statistics = BasicStatsSettings::kDefaultStatistics | 0x1000u;  // and Sum
    EXPECT_EQ(linesOf(composeBasicStats(s, kAb, {})), "STATISTICS A B / Mean Min Max SD Sum N");
    s.statistics = BasicStatsSettings::kDefaultStatistics, s.cim = true;  // the interval alone lists them too
    EXPECT_EQ(linesOf(composeBasicStats(s, kAb, {})), "STATISTICS A B / Mean Min Max SD N CIM");
    s.confidence = "0.95", s.statistics = 0x7FFFu, s.print = kPrintShort;  // "unless default" is exact
    EXPECT_EQ(linesOf(composeBasicStats(s, kAb, {})),
              "PRINT SHORT | STATISTICS A B / Mean Min Max SD CV Kurtosis Median Range SEK SEM SES Skewness Sum "
              "Variance N CIM=0.95");
    s.statistics = 0, s.cim = false;
    EXPECT_EQ(linesOf(composeBasicStats(s, kAb, {})), "PRINT SHORT | STATISTICS A B");
    EXPECT_EQ(linesOf(composeBasicStats(s, {}, {"G"})), "refused: You must select variables.");
}

TEST(MultivariateComposers, BasicStatisticsByGroupsAndItsSave) {
    BasicStatsSettings s;
    s.tukey = true, s.cim = true, s.print = kPrintLong;
    const ProcedureBlock oneway = composeBasicStats(s, kAb, {"G"});
    EXPECT_EQ(linesOf(oneway), "PRINT LONG | ONEWAY A B * G / TUKEY");
    EXPECT_EQ(oneway.procedure, "STATS");
    EXPECT_EQ(oneway.saveFile, "ONEWAY.KVD");
    EXPECT_EQ(oneway.saveQualifier, "");
    s.saveKind = 1;
    EXPECT_EQ(composeBasicStats(s, kAb, {}).saveQualifier, "/ AG");
    EXPECT_EQ(composeBasicStats(s, kAb, {}).saveFile, "STATS.KVD");
}

TEST(MultivariateComposers, CronbachAndStem) {
    EXPECT_EQ(linesOf(composeCronbach(kAb)), "CRONBACH A B");
    EXPECT_EQ(composeCronbach(kAb).saveFile, "CRONBACH.KVD");
    EXPECT_EQ(linesOf(composeCronbach({})), "refused: You must select variables.");
    EXPECT_EQ(linesOf(composeStem({"  "}, kAb)), "STEM A B");  // blanks are no value
    EXPECT_EQ(linesOf(composeStem({"12"}, kAb)), "STEM A B / LINE=12");
    EXPECT_EQ(composeStem({}, kAb).saveFile, "");
}

TEST(MultivariateComposers, CorrelationsMeasuresRectangleAndDeletion) {
    struct Row {
        CorrSettings settings;
        Names with;
        std::string lines;
    };
    const std::vector<Row> rows = {
        {{}, {}, "PEARSON A B"},
        {{8, IDC_CORR_LISTWISE}, {"C"}, "TETRA A B * C"},
        {{10, IDC_CORR_PAIRWISE}, {}, "S3 A B / PAIRWISE"},
        {{13, IDC_CORR_LISTWISE}, {"C", "D"}, "S6 A B * C D"},
        {{-1, IDC_CORR_LISTWISE}, {}, "PEARSON A B"},  // nothing chosen: the first measure
    };
    for (const Row& row : rows) EXPECT_EQ(linesOf(composeCorrelations(row.settings, kAb, row.with)), row.lines);
    EXPECT_EQ(composeCorrelations({}, kAb, {}).saveFile, "CORR.KVD");
    EXPECT_EQ(linesOf(composeCorrelations({}, {}, {"C"})), "refused: You must select variables.");
}

TEST(MultivariateComposers, JoinWritesWhatItClustersAndSavesTheNumber) {
    JoinSettings s;
    EXPECT_EQ(linesOf(composeJoin(s, kAb, false)), "JOIN A B / ROWS");
    EXPECT_EQ(linesOf(composeJoin(s, kAb, true)), "refused: You must provide more input.");
    s.power = "3";  // only with Minkowski
    s.distance = 3, s.linkage = 5, s.clustering = IDC_JOIN_MATRIX, s.saveNumber = " 4 ";
    const ProcedureBlock saved = composeJoin(s, kAb, true);
    EXPECT_EQ(linesOf(saved), "JOIN A B / MATRIX DISTANCE=PEARSON LINKAGE=WARD");
    EXPECT_EQ(saved.saveQualifier, " NUMBER=4");
    EXPECT_EQ(saved.saveFile, "JOIN.KVD");
    s.distance = 2, s.linkage = 0, s.clustering = IDC_JOIN_COLUMNS, s.polar = true;
    EXPECT_EQ(linesOf(composeJoin(s, kAb, false)), "JOIN A B / COLUMNS DISTANCE=MINKOWSKI POWER=3 POLAR");
    EXPECT_EQ(composeJoin(s, kAb, false).saveQualifier, "");
}

TEST(MultivariateComposers, KmeansAndAddtree) {
    EXPECT_EQ(linesOf(composeKmeans({}, kAb)), "KMEANS A B");
    EXPECT_EQ(linesOf(composeKmeans({"3", "40", 6}, kAb)), "KMEANS A B / NUMBER=3 ITER=40 DISTANCE=CHISQUARE");
    EXPECT_EQ(composeKmeans({}, kAb).saveFile, "KMEANS.KVD");
    AddtreeSettings t;
    EXPECT_EQ(linesOf(composeAddtree(t, kAb)), "ADDTREE A B");
    t.numbers = false, t.tree = false, t.residuals = true;
    EXPECT_EQ(linesOf(composeAddtree(t, kAb)), "ADDTREE A B / NONUMBERS NOTREE RESIDUALS");
    EXPECT_EQ(composeAddtree(t, kAb).saveFile, "ADDTREE.KVD");
    EXPECT_EQ(linesOf(composeAddtree(t, {})), "refused: You must select variables.");
}

TEST(MultivariateComposers, FactorLinesAndSavingMode) {
    FactorSettings s;
    const ProcedureBlock plain = composeFactor(s, kAb);
    EXPECT_EQ(linesOf(plain), "MODEL A B | ESTIMATE / METHOD=PCA LISTWISE CORR");
    EXPECT_EQ(plain.procedure, "FACTOR");
    EXPECT_EQ(plain.saveFile, "FACTOR.KVD");
    EXPECT_FALSE(factorSavesByMode(s));
    s.method = 1, s.missing = IDC_FACTOR_PAIRWISE, s.matrix = IDC_FACTOR_COV, s.sort = true;
    s.number = "2", s.eigen = "1", s.iterations = "25", s.convergence = "0.001", s.print = kPrintShort, s.exit = true;
    EXPECT_EQ(linesOf(composeFactor(s, kAb)),
              "MODEL A B | PRINT SHORT | ESTIMATE / METHOD=IPA PAIRWISE COV SORT NUMBER=2 EIGEN=1 ITER=25 "
              "CONV=0.001 | EXIT");
    s.saveMode = 2;
    EXPECT_TRUE(factorSavesByMode(s));
    EXPECT_EQ(linesOf(composeFactor(s, {})), "refused: You must select variables.");
}

TEST(MultivariateComposers, MdsShapeLossAndSaveKind) {
    MdsSettings s;
    const ProcedureBlock plain = composeMds(s, kAb);
    EXPECT_EQ(linesOf(plain), "MODEL A B / SHAPE=SQUARE | ESTIMATE / LOSS=KRUSKAL REGRESSION=MONO");
    EXPECT_EQ(plain.saveQualifier, " / CONFIG");
    EXPECT_EQ(plain.saveFile, "MDS.KVD");
    s.shape = IDC_MDS_RECT, s.rows = "5", s.convergence = ".005", s.loss = IDC_MDS_YOUNG, s.regression = 2;
    s.split = 2, s.weight = true, s.saveKind = 2;
    const ProcedureBlock changed = composeMds(s, kAb);
    EXPECT_EQ(linesOf(changed), "MODEL A B / SHAPE=RECT ROWS=5 | ESTIMATE / CONVERGE=.005 LOSS=YOUNG WEIGHT SPLIT=MATRIX");
    EXPECT_EQ(changed.saveQualifier, " / RESID");
    s.loss = IDC_MDS_KRUSKAL, s.saveKind = 1, s.split = 1;
    EXPECT_EQ(linesOf(composeMds(s, kAb)),
              "MODEL A B / SHAPE=RECT ROWS=5 | ESTIMATE / CONVERGE=.005 LOSS=KRUSKAL REGRESSION=LOG WEIGHT SPLIT=ROW");
    EXPECT_EQ(composeMds(s, kAb).saveQualifier, " / DIST");
}

}  // namespace
}  // namespace kvs::stats
