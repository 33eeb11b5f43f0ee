// The builders of Spatial Statistics, POSAC, Conjoint Analysis,
// Correspondence Analysis, Set Correlations, Perceptual Mapping, Trees,
// Signal Detection, Test Item Analysis and RAMONA: lines, files, refusals.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/analysis_composers.h"

namespace kvs::stats {
namespace {

using Lines = std::vector<std::string>;

SpatialSettings spatial(int analysis) {
    SpatialSettings s;
    s.analysis = analysis;
    return s;
}

TEST(AnalysisComposers, SpatialAnalysesAndTheirFiles) {
    struct Row {
        int analysis;
        std::string verb;
        std::string file;
    };
    const Row rows[] = {{IDC_SPATIAL_VARIO, "VARIO", "VARIO.KVD"},
                        {IDC_SPATIAL_KRIG, "KRIG", "KRIGING.KVD"},
                        {IDC_SPATIAL_SIMULATE, "SIMULATE", "SIMULATE.KVD"},
                        {IDC_SPATIAL_POINT, "POINT", ""},
                        {0, "VARIO", "VARIO.KVD"}};
    for (const Row& row : rows) {
        const ProcedureBlock block = composeSpatial(spatial(row.analysis), {"Z"}, {"X", "Y"});
        EXPECT_EQ(block.procedure, "SPATIAL");
        EXPECT_EQ(block.saveFile, row.file);
        EXPECT_EQ(block.body.lines, (Lines{"MODEL Z = X+Y", row.verb}));
    }
    // Points need two coordinates, no variable; the other analyses a variable and a coordinate.
    EXPECT_EQ(composeSpatial(spatial(IDC_SPATIAL_POINT), {}, {"X", "Y", "H"}).body.lines, (Lines{"MODEL X Y H", "POINT"}));
    const std::string point = "You must select at least X and Y variables for Point calculations.";
    EXPECT_EQ(composeSpatial(spatial(IDC_SPATIAL_POINT), {"Z"}, {"X"}).body.refusal, point);
    EXPECT_EQ(composeSpatial(spatial(IDC_SPATIAL_VARIO), {}, {"X", "Y"}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeSpatial(spatial(IDC_SPATIAL_KRIG), {"Z"}, {}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeSpatial(spatial(IDC_SPATIAL_SIMULATE), {"Z"}, {"X"}).body.lines, (Lines{"MODEL Z = X", "SIMULATE"}));
}

TEST(AnalysisComposers, SpatialOptionsOfTheChosenAnalysisOnly) {
    SpatialSettings s;
    s.lags = "10", s.points = "8", s.radius = "50", s.seed = "7";
    const auto line = [&](int analysis) {
        s.analysis = analysis;
        return composeSpatial(s, {"Z"}, {"X", "Y"}).body.lines.back();
    };
    EXPECT_EQ(line(IDC_SPATIAL_VARIO), "VARIO / NLAGS=10");
    EXPECT_EQ(line(IDC_SPATIAL_KRIG), "KRIG / POINTS=8 RADIUS=50");
    EXPECT_EQ(line(IDC_SPATIAL_SIMULATE), "SIMULATE / SEED=7");
    EXPECT_EQ(line(IDC_SPATIAL_POINT), "POINT");
    s.lags.clear(), s.lagWidth = "2.5", s.realizations = "100";
    EXPECT_EQ(line(IDC_SPATIAL_VARIO), "VARIO / WIDTH=2.5");
    EXPECT_EQ(line(IDC_SPATIAL_SIMULATE), "SIMULATE / NREAL=100 SEED=7");
    s.lagWidth.clear();
    EXPECT_EQ(line(IDC_SPATIAL_VARIO), "VARIO");
}

TEST(AnalysisComposers, PosacAndConjointOptions) {
    PosacSettings p;
    EXPECT_EQ(composePosac(p, {"A", "B", "C"}).body.lines, (Lines{"MODEL A B C", "ESTIMATE"}));
    EXPECT_EQ(composePosac(p, {"A", "B", "C"}).saveFile, "POSAC.KVD");
    EXPECT_EQ(composePosac(p, {"A", "B"}).body.refusal, "You must select at least 3 variables for POSAC.");
    p.iterations = "50";
    p.convergence = "0.00001 ";  // not the default text: written as typed, blanks dropped by the field
    EXPECT_EQ(composePosac(p, {"A", "B", "C"}).body.lines[1], "ESTIMATE / ITERATIONS=50 CONVERGENCE=0.00001 ");
    p.convergence = "1E-5";
    EXPECT_EQ(composePosac(p, {"A", "B", "C"}).body.lines[1], "ESTIMATE / ITERATIONS=50 CONVERGENCE=1E-5");

    ConjointSettings c;
    const ProcedureBlock block = composeConjoint(c, {"RANK"}, {"PRICE", "SIZE"});
    EXPECT_EQ(block.saveFile, "CONJOINT.KVD");
    EXPECT_EQ(block.body.lines,
              (Lines{"MODEL RANK = PRICE+SIZE", "ESTIMATE / POLARITY=POSITIVE REGRESSION=MONOTONIC"}));
    c.iterations = "40", c.convergence = ".001", c.polarity = IDC_CONJOINT_NEGATIVE, c.stress = true;
    const std::pair<int, std::string> regressions[] = {
        {IDC_CONJOINT_LINEAR, "LINEAR"}, {IDC_CONJOINT_POWER, "POWER"}, {IDC_CONJOINT_MONOTONIC, "MONOTONIC"}};
    for (const auto& [regression, keyword] : regressions) {
        c.regression = regression;
        EXPECT_EQ(composeConjoint(c, {"R1", "R2"}, {"A"}).body.lines,
                  (Lines{"MODEL R1 R2 = A",
                         "ESTIMATE / ITERATIONS=40 CONVERGENCE=.001 POLARITY=NEGATIVE LOSS=STRESS REGRESSION=" +
                             keyword}));
    }
    EXPECT_EQ(composeConjoint(c, {}, {"A"}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeConjoint(c, {"R"}, {}).body.refusal, "You must select independent variable(s).");
}

TEST(AnalysisComposers, CoranSetcorPermap) {
    EXPECT_EQ(composeCoran({}, {"ROW"}, {"COL"}).body.lines, (Lines{"MODEL ROW = COL", "ESTIMATE"}));
    EXPECT_EQ(composeCoran({true}, {"A", "B", "C"}, {}).body.lines, (Lines{"MODEL A B C", "ESTIMATE / PAIRWISE"}));
    EXPECT_TRUE(composeCoran({}, {"A"}, {}).saveFile.empty());
    EXPECT_EQ(composeCoran({}, {}, {"B"}).body.refusal, "You must select variables.");

    EXPECT_EQ(composeSetcor({"Y1", "Y2"}, {"X1", "X2"}, {}).body.lines,
              (Lines{"MODEL Y1 Y2 = X1+X2", "ESTIMATE"}));
    EXPECT_EQ(composeSetcor({"Y"}, {"X"}, {"G1", "G2"}).body.lines, (Lines{"MODEL Y = X", "ERROR G1 G2", "ESTIMATE"}));
    EXPECT_EQ(composeSetcor({}, {"X"}, {}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeSetcor({"Y"}, {}, {"G"}).body.refusal, "You must select independent variable(s).");

    PermapSettings m;
    EXPECT_EQ(composePermap(m, {"A", "B"}, {}).body.lines, (Lines{"MODEL A B", "ESTIMATE / METHOD=BIPLOT"}));
    m.method = 1;
    EXPECT_EQ(composePermap(m, {"A"}, {"X"}).body.refusal,
              "You must not select independent variable(s) for Biplot or MDPREF.");
    m.method = 0;
    EXPECT_EQ(composePermap(m, {"A"}, {"X"}).body.refusal,
              "You must not select independent variable(s) for Biplot or MDPREF.");
    const std::string methods[] = {"VECTOR", "CIRCLE", "ELLIPSE"};
    m.negative = true, m.dimension = "3", m.standardize = true;
    for (int method = 2; method < 5; ++method) {
        m.method = method;
        EXPECT_EQ(composePermap(m, {"A"}, {"X", "Y"}).body.lines,
                  (Lines{"MODEL A = X+Y",
                         "ESTIMATE / METHOD=" + methods[method - 2] + " POLARITY=NEGATIVE DIMENSION=3 STANDARDIZE"}));
        EXPECT_EQ(composePermap(m, {"A"}, {}).body.refusal, "You must select independent variable(s).");
    }
    m.method = 7;  // out of the box: the first method
    EXPECT_EQ(composePermap(m, {"A"}, {}).body.lines[1], "ESTIMATE / METHOD=BIPLOT POLARITY=NEGATIVE DIMENSION=3 STANDARDIZE");
    EXPECT_EQ(composePermap(m, {}, {}).body.refusal, "You must select variables.");
}

TEST(AnalysisComposers, TreesAndSignal) {
    EXPECT_EQ(composeTrees({}, {"Y"}, {"A", "B"}).body.lines, (Lines{"MODEL Y = A+B", "ESTIMATE"}));
    EXPECT_EQ(composeTrees({true}, {"Y"}, {"A"}).body.lines, (Lines{"MODEL Y = A", "ESTIMATE / EXPAND"}));
    EXPECT_EQ(composeTrees({}, {}, {"A"}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeTrees({}, {"Y"}, {}).body.refusal, "You must select independent variable(s).");

    SignalSettings s;
    EXPECT_EQ(composeSignal(s, {"R"}, {"S"}).body.lines, (Lines{"MODEL R = S", "ESTIMATE"}));
    s.iterations = "30", s.converge = "0.0001", s.m0 = "2", s.mean = "0.5", s.df = "4", s.start = true;
    EXPECT_EQ(composeSignal(s, {"R"}, {"S"}).body.lines[1],
              "ESTIMATE / ITERATIONS=30 CONVERGE=0.0001 M0=2 MEAN=0.5 DF=4 START");
    s = {};
    s.m0 = "1.8140";  // equal in value, not in text
    EXPECT_EQ(composeSignal(s, {"R"}, {"S"}).body.lines[1], "ESTIMATE / M0=1.8140");
    EXPECT_EQ(composeSignal(s, {"R"}, {}).body.refusal, "You must select independent variable(s).");
    EXPECT_TRUE(composeSignal(s, {"R"}, {"S"}).saveFile.empty());
}

TEST(AnalysisComposers, TestItemAnalysis) {
    TestatSettings t;
    EXPECT_EQ(composeTestat(295, t, {"I1", "I2"}).body.lines, (Lines{"MODEL I1 I2", "ESTIMATE / CLASS"}));
    EXPECT_EQ(composeTestat(297, t, {"I1", "I2"}).body.lines, (Lines{"MODEL I1 I2", "ESTIMATE / LOG1"}));
    EXPECT_EQ(composeTestat(297, t, {"I1"}).saveFile, "TESTAT.KVD");
    t.key = " 1 3 2 ", t.half = true, t.model = IDC_TESTAT_LOG2;
    t.steps = "5", t.iterations = "25", t.converge = "0.001", t.lconverge = "0.0001";
    EXPECT_EQ(composeTestat(295, t, {"I1", "I2", "I3"}).body.lines,
              (Lines{"MODEL I1 I2 I3", "KEY 1 3 2", "ESTIMATE / CLASS HALF"}));
    EXPECT_EQ(composeTestat(297, t, {"I1"}).body.lines,
              (Lines{"MODEL I1", "KEY 1 3 2", "ESTIMATE / LOG2 STEPS=5 ITER=25 CONVERGE=0.001 LCONVERGE=0.0001"}));
    EXPECT_EQ(composeTestat(297, t, {}).body.refusal, "You must select variables.");
}

TEST(AnalysisComposers, Ramona) {
    RamonaSettings r;
    EXPECT_EQ(composeRamona(r, {"A", "B"}).body.refusal, "You must provide more input.");
    r.paths = "  \r\n";
    EXPECT_EQ(composeRamona(r, {"A", "B"}).body.refusal, "You must provide more input.");
    r.paths = "A <- F(*)\r\n\r\n B <- F(*) \r\n";
    EXPECT_EQ(composeRamona(r, {}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeRamona(r, {"A", "B"}).body.lines,
              (Lines{"MANIFEST A B", "MODEL A <- F(*), B <- F(*)", "ESTIMATE / DISP=COVA START=ROUGH"}));
    EXPECT_TRUE(composeRamona(r, {"A"}).saveFile.empty());
    r.latent = "F", r.dispersion = IDC_RAMONA_CORR, r.start = IDC_RAMONA_CLOSE, r.cases = "200";
    r.iterations = "100", r.convergence = "0.001", r.confidence = "0.9";
    const std::pair<int, std::string> methods[] = {{IDC_RAMONA_ADFG, " METHOD=ADFG"}, {IDC_RAMONA_ADFU, " METHOD=ADFU"}};
    for (const auto& [method, keyword] : methods) {
        r.method = method;
        EXPECT_EQ(composeRamona(r, {"A", "B"}).body.lines,
                  (Lines{"MANIFEST A B", "LATENT F", "MODEL A <- F(*), B <- F(*)",
                         "ESTIMATE / DISP=CORR START=CLOSE" + keyword +
                             " NCASES=200 ITER=100 CONVG=0.001 CONFI=0.9"}));
    }
}

}  // namespace
}  // namespace kvs::stats
