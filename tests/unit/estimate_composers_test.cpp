// The builders of Probit, TSLS, the GLM comparisons, Nonlinear Model, Loss
// and Survival, row by row: their lines, SAVE qualifiers and refusals.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/estimate_composers.h"

namespace kvs::stats {
namespace {

using Lines = std::vector<std::string>;

TEST(EstimateComposers, ProbitAndTsls) {
    EstimateSettings s;
    EXPECT_EQ(composeProbit(s, {"Y"}, {"A", "B"}).body.lines, (Lines{"MODEL Y = CONSTANT+A+B", "ESTIMATE"}));
    EXPECT_EQ(composeProbit(s, {"Y"}, {}).body.lines, (Lines{"MODEL Y = CONSTANT", "ESTIMATE"}));
    EXPECT_EQ(composeProbit(s, {"Y"}, {}).saveFile, "PROBIT.KVD");
    EXPECT_EQ(composeTsls(s, {"Y"}, {"A"}, {"Z1", "Z2"}).body.lines,
              (Lines{"MODEL Y = CONSTANT+A / CONSTANT +Z1+Z2", "ESTIMATE"}));
    s.constant = false;
    s.robust = true;
    EXPECT_EQ(composeTsls(s, {"Y"}, {"A", "B"}, {"Z"}).body.lines, (Lines{"MODEL Y = A+B / Z", "ESTIMATE / HC"}));
    EXPECT_EQ(composeTsls(s, {"Y"}, {"A"}, {"Z"}).saveFile, "TSLS.KVD");

    EXPECT_EQ(composeProbit(s, {}, {"A"}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeProbit(s, {"Y"}, {}).body.refusal, "You must select independent variable(s).");
    EXPECT_EQ(composeTsls(s, {}, {"A"}, {"Z"}).body.refusal, "You must select variables.");
    EXPECT_EQ(composeTsls(s, {"Y"}, {}, {"Z"}).body.refusal, "You must select independent variable(s).");
    EXPECT_EQ(composeTsls(s, {"Y"}, {"A"}, {}).body.refusal, "You must provide more input.");
}

TEST(EstimateComposers, PairwiseTests) {
    const std::pair<int, std::string> rows[] = {{IDC_POST_BONFERRONI, "POST A / BONF"},
                                                {IDC_POST_TUKEY, "POST A / TUKEY"},
                                                {IDC_POST_LSD, "POST A / LSD"},
                                                {IDC_POST_SCHEFFE, "POST A / SCHEFFE"},
                                                {0, "POST A / BONF"}};
    for (const auto& [test, line] : rows) {
        const ProcedureBlock block = composePairwise({test}, {"A"});
        EXPECT_EQ(block.procedure, "GLM");
        EXPECT_EQ(block.body.lines, (Lines{"HYPOTHESIS", line, "TEST"}));
    }
    EXPECT_EQ(composePairwise({}, {}).body.refusal, "You must select category/factor variables.");
    // Named dependents restrict the comparisons.
    EXPECT_EQ(composePairwise({IDC_POST_TUKEY}, {"A"}, {"Y1", "Y2"}).body.lines,
              (Lines{"HYPOTHESIS", "POST A / TUKEY", "DEPEND Y1 Y2", "TEST"}));
}

TEST(EstimateComposers, NonlinSaveQualifiersAndMethods) {
    NonlinSettings s;
    s.saveValue = "B0,B1";
    const std::string qualifiers[] = {" / DATA", " / RESID", " / RESID,DATA", " / RS=B0,B1",
                                      " / CI=B0,B1", " / CR=B0,B1 CONFI=0.95", " /  PARAMS"};
    for (int save = 0; save < 7; ++save) {
        s.save = save;
        EXPECT_EQ(nonlinSaveQualifier(s), qualifiers[save]);
    }
    s.save = 9;
    EXPECT_EQ(nonlinSaveQualifier(s), " / DATA");

    s.equation = "A*EXP(B*X)";
    EXPECT_EQ(composeNonlin(s, {"Y"}).body.lines, (Lines{"MODEL Y = A*EXP(B*X)", "ESTIMATE"}));
    s.method = IDC_NONLIN_SIMPLEX;
    EXPECT_EQ(composeNonlin(s, {"Y"}).body.lines[1], "ESTIMATE / SIMPLEX");
    s.method = IDC_NONLIN_QUASI;
    EXPECT_EQ(composeNonlin(s, {"Y"}).body.lines[1], "ESTIMATE / QUASI");
    EXPECT_EQ(composeNonlin(s, {"Y"}).saveFile, "NONLIN.KVD");

    EXPECT_EQ(composeNonlin(s, {}).body.refusal, "You must select variables.");
    s.equation = "  ";
    EXPECT_EQ(composeNonlin(s, {"Y"}).body.refusal, "You must provide more input.");
    // A save entry that names parameters needs them, only when saving.
    s.equation = "A";
    s.save = 4;
    s.saveValue = " ";
    EXPECT_FALSE(composeNonlin(s, {"Y"}).body.refused());
    s.saving = true;
    EXPECT_EQ(composeNonlin(s, {"Y"}).body.refusal, "You must provide more input.");
}

TEST(EstimateComposers, Loss) {
    EXPECT_EQ(composeLoss({}).body.lines, Lines{"LOSS"});
    EXPECT_EQ(composeLoss({IDC_LOSS_FUNCTION, "ABS(Y-ESTIMATE)"}).body.lines, Lines{"LOSS = ABS(Y-ESTIMATE)"});
    EXPECT_EQ(composeLoss({IDC_LOSS_FUNCTION, " "}).body.refusal, "You must provide more input.");
    EXPECT_EQ(composeLoss({}).procedure, "NONLIN");
}

TEST(EstimateComposers, SurvivalLinesAndTimeDependentCovariates) {
    SurvivalSettings s;
    SurvivalLists lists;
    lists.time = {"T"};
    lists.covariates = {"AGE"};
    EXPECT_EQ(composeSurvival(s, lists).body.lines, (Lines{"MODEL T = AGE", "ESTIMATE"}));
    lists.strata = {"S"};
    EXPECT_EQ(composeSurvival(s, lists).body.lines[0], "MODEL T = AGE / STRATA=S");
    lists.covariates.clear();
    s.lifeTable = true;
    lists.censor = {"C"};
    lists.lower = {"L"};
    EXPECT_EQ(composeSurvival(s, lists).body.lines, (Lines{"MODEL T / CENSOR=C, LOWER=L, STRATA=S", "LTAB"}));

    // Only the sets the model uses are written, in the sets' order.
    s.lifeTable = false;
    s.covariates.sets = {{"TDC1", {"X1", "X2"}, 0}, {"TDC2", {}, 0}, {"TDC3", {"Z1"}, 0}};
    lists = {{"T"}, {"*TDC3", "AGE", "*TDC1"}, {}, {}, {}};
    EXPECT_EQ(composeSurvival(s, lists).body.refusal, "You must specify Maximum time.");
    s.covariates.categories = " 36 ";
    EXPECT_EQ(composeSurvival(s, lists).body.lines,
              (Lines{"SET TDC1 = X1 X2 ", "SET TDC3 = Z1 ", "MODEL T = TDC3+AGE+TDC1 / TMAX=36", "ESTIMATE"}));
    lists.covariates = {"*TDC2"};
    EXPECT_EQ(composeSurvival(s, lists).body.refusal,
              "You must specify Time Dependent Covariates for each Covariate.");
    lists.covariates = {"*GONE"};
    EXPECT_EQ(composeSurvival(s, lists).body.refusal,
              "You must select Time Dependent Covariates for each Covariate.");
    lists.covariates.clear();
    EXPECT_EQ(composeSurvival(s, lists).body.refusal, "You must select independent variable(s).");
    lists.time.clear();
    EXPECT_EQ(composeSurvival(s, lists).body.refusal, "You must select variables.");
    EXPECT_EQ(composeSurvival(s, {{"T"}, {"A"}, {}, {}, {}}).saveFile, "SURVIVAL.KVD");
}

}  // namespace
}  // namespace kvs::stats
