// The estimation lines of the linear models, the repeated-measures clause,
// the discriminant print line, the builders of 218, 219, 221 and 222, and
// what Cancel of a procedure dialog gives back.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/estimation_options.h"
#include "stats/model_composers.h"

namespace kvs::stats {
namespace {

using Kind = EstimationKind;

EstimationOptions stepwise(bool forward, bool automatic) {
    EstimationOptions o;
    o.stepwise = true, o.forward = forward, o.automatic = automatic;
    return o;
}

// The texts as the options dialog creates them on first display.
EstimationOptions shown(EstimationOptions o, Kind kind) {
    o.tolerance = kind == Kind::Discriminant ? ".001" : "1.0e-11";
    o.enter = ".15", o.remove = ".15", o.fenter = "4", o.fremove = "3.9", o.force = "0";
    if (kind != Kind::Discriminant) o.maxStep = "";
    return o;
}

TEST(EstimationLines, CompleteEstimation) {
    struct Row {
        Kind kind;
        EstimationOptions options;
        std::string line;
    };
    EstimationOptions mixed;
    mixed.mixture = true;
    EstimationOptions tolerance = shown({}, Kind::Glm);
    tolerance.tolerance = "1.0E-11";
    const std::vector<Row> rows = {
        {Kind::Glm, {}, "ESTIMATE / "},  // never shown: the texts count as their defaults
        {Kind::Glm, shown({}, Kind::Glm), "ESTIMATE / "},
        {Kind::Glm, mixed, "ESTIMATE /  MIX"},
        {Kind::Glm, tolerance, "ESTIMATE /  TOL=1.0E-11"},
        {Kind::Regression, mixed, "ESTIMATE /  MIXTURE"},
        {Kind::Regression, tolerance, "ESTIMATE /  TOLERANCE=1.0E-11"},
        {Kind::Discriminant, mixed, "ESTIMATE / "},  // no mixture model
        {Kind::Discriminant, shown({}, Kind::Discriminant), "ESTIMATE / "},
        {Kind::Discriminant, tolerance, "ESTIMATE /  TOLERANCE=1.0E-11"},
    };
    for (const Row& row : rows) {
        const EstimationLines lines = composeEstimation(row.kind, row.options);
        EXPECT_EQ(lines.estimate, row.line);
        EXPECT_EQ(lines.second, "") << row.line;
    }
}

TEST(EstimationLines, StepwiseDefaultsAndTheSecondLine) {
    EXPECT_EQ(composeEstimation(Kind::Glm, shown(stepwise(true, true), Kind::Glm)).estimate, "START / FORWARD");
    EXPECT_EQ(composeEstimation(Kind::Glm, shown(stepwise(false, true), Kind::Glm)).second, "STEP / AUTO");
    EXPECT_EQ(composeEstimation(Kind::Glm, shown(stepwise(false, false), Kind::Glm)).second, "");
    const EstimationLines regression = composeEstimation(Kind::Regression, shown(stepwise(false, true), Kind::Regression));
    EXPECT_EQ(regression.estimate, "START / BACKWARD");
    EXPECT_EQ(regression.second, "STEP /AUTO");
    EXPECT_EQ(composeEstimation(Kind::Discriminant, shown(stepwise(false, true), Kind::Discriminant)).second,
              "STEP / AUTO");
}

TEST(EstimationLines, CriterionPairsByDialog) {
    struct Row {
        Kind kind;
        bool fStatistic;
        std::string line;
    };
    // Every value differs from its default.
    const auto changed = [](Kind kind, bool fStatistic) {
        EstimationOptions o = shown(stepwise(true, false), kind);
        o.fStatistic = fStatistic;
        o.tolerance = "1e-9", o.enter = ".1", o.remove = ".2", o.fenter = "5", o.fremove = "4.5";
        o.force = "2";
        if (kind != Kind::Discriminant) o.maxStep = "7";
        return o;
    };
    const std::vector<Row> rows = {
        {Kind::Glm, false, "START / FORWARD TOL=1e-9 ENTER=.1 REMOVE=.2 FENTER=5 FREMOVE=4.5 FORCE=2 MAXSTEP=7"},
        {Kind::Glm, true, "START / FORWARD TOL=1e-9 FENTER=5 FREMOVE=4.5 FENTER=5 FREMOVE=4.5 FORCE=2 MAXSTEP=7"},
        {Kind::Regression, false, "START / FORWARD TOLERANCE=1e-9 ENTER=.1 REMOVE=.2 FORCE=2 MAXSTEP=7"},
        {Kind::Regression, true, "START / FORWARD TOLERANCE=1e-9 FENTER=5 FREMOVE=4.5 FORCE=2 MAXSTEP=7"},
        {Kind::Discriminant, false, "START / FORWARD TOLERANCE=1e-9 ENTER=.1 REMOVE=.2 FORCE=2"},
        {Kind::Discriminant, true, "START / FORWARD TOLERANCE=1e-9 FENTER=5 FREMOVE=4.5 FORCE=2"},
    };
    for (const Row& row : rows) EXPECT_EQ(composeEstimation(row.kind, changed(row.kind, row.fStatistic)).estimate, row.line);

    // With "F-Statistic" the F pair is written even at its defaults (GLM then
    // adds nothing more); an empty value is left out, blanks are no value.
    EstimationOptions f = shown(stepwise(false, false), Kind::Glm);
    f.fStatistic = true;
    EXPECT_EQ(composeEstimation(Kind::Glm, f).estimate, "START / BACKWARD FENTER=4 FREMOVE=3.9");
    f.fenter = "  ", f.maxStep = " ";
    EXPECT_EQ(composeEstimation(Kind::Regression, f).estimate, "START / BACKWARD FREMOVE=3.9");
    f.fenter = "5";
    EXPECT_EQ(composeEstimation(Kind::Glm, f).estimate, "START / BACKWARD FENTER=5 FREMOVE=3.9 FENTER=5");
}

TEST(RepeatedClause, FactorsNamesAndLetters) {
    struct Row {
        std::vector<std::array<const char*, 3>> factors;  // name, levels, metric
        std::string clause;
    };
    const std::vector<Row> rows = {
        {{{"Time", "3", "1, 2, 4"}}, "/ REPEAT =3(1, 2, 4),NAMES='Time'"},
        {{{"", "2", ""}, {"", "3", ""}}, "/ REPEAT =2,3"},
        {{{"", "2", ""}, {"Dose", "3", ""}, {"", "4", ""}}, "/ REPEAT =2,3,4,NAMES='A','Dose','B'"},
        {{{"Time", "", ""}, {"", "3", ""}}, "/ REPEAT =3,NAMES='Time','A'"},
        {{{"T", "2", ""}, {"", "", "1, 2"}, {"U", "4", ""}}, "/ REPEAT =2,NAMES='T'"},  // stops at an empty factor
        {{}, "/ REPEAT "},
    };
    for (const Row& row : rows) {
        RepeatedMeasures measures;
        measures.perform = true;
        for (std::size_t i = 0; i < row.factors.size(); ++i)
            measures.factors[i] = {row.factors[i][0], row.factors[i][1], row.factors[i][2]};
        EXPECT_EQ(repeatedClause(measures), row.clause);
        measures.perform = false;
        EXPECT_EQ(repeatedClause(measures), "");
    }
}

TEST(PrintLine, CheckedBoxesInRecordOrder) {
    DiscriminantStatistics statistics;
    EXPECT_EQ(printLine(statistics), "");
    statistics.print[20] = statistics.print[0] = statistics.print[12] = true;
    EXPECT_EQ(printLine(statistics), "PRINT NONE / FMATRIX JCLASS CSCORE");
    statistics.print.fill(true);
    EXPECT_EQ(printLine(statistics),
              "PRINT NONE / FMATRIX FSTATS EIGEN CMEANS SUM MEANS WILKS CFUNC TRACES CDFUNC SCDFUNC CLASS JCLASS "
              "WCOV WCORR TCOV TCORR GCOV GCORR MAHAL CSCORE");
}

std::vector<std::string> linesOf(const ProcedureBlock& block) { return block.body.lines; }

TEST(ModelComposers, BlocksAndRefusals) {
    const Names y = {"Y"}, xs = {"A", "B"};
    ModelSettings s;
    EstimationOptions options = shown(stepwise(false, true), Kind::Glm);
    RepeatedMeasures measures;

    EXPECT_EQ(linesOf(composeGlm(219, s, options, measures, {"Y", "Z"}, xs)),
              (std::vector<std::string>{"MODEL Y Z = CONSTANT+A+B", "START / BACKWARD", "STEP / AUTO"}));
    const ProcedureBlock anova = composeGlm(218, s, {}, measures, y, xs);
    EXPECT_EQ(anova.procedure, "ANOVA");
    EXPECT_EQ(anova.saveFile, "ANOVA.KVD");
    EXPECT_EQ(linesOf(anova), (std::vector<std::string>{"CATEGORY A B", "MODEL Y = CONSTANT+A+B", "ESTIMATE / "}));
    EXPECT_EQ(composeGlm(218, s, {}, measures, y, {}).body.refusal, "You must select category/factor variables.");
    EXPECT_EQ(composeGlm(219, s, {}, measures, {}, xs).body.refusal, "You must select variables.");

    measures.perform = true;
    measures.factors[0] = {"Time", "3", "1, 2, 4"};
    measures.dependents = {"Y1", "Y2", "Y3"};
    EXPECT_EQ(linesOf(composeGlm(219, s, {}, measures, measures.dependents, {})).front(),
              "MODEL Y1 Y2 Y3 = CONSTANT / REPEAT =3(1, 2, 4),NAMES='Time'");
    EXPECT_EQ(composeGlm(219, s, {}, measures, {"Y1", "Y2"}, {}).body.refusal,
              "Your dependent variables have changed.  The Repeated Measures which you set up may not apply to "
              "these new dependent variables.");

    s.constantEnabled = false;
    const ProcedureBlock regression = composeRegression(s, {}, y, xs);
    EXPECT_EQ(regression.procedure, "REGRESS");
    EXPECT_EQ(regression.saveFile, "REGRESS.KVD");
    EXPECT_EQ(linesOf(regression), (std::vector<std::string>{"MODEL Y = A+B", "ESTIMATE / "}));
    s.constantEnabled = true, s.matrix = true, s.cases = " ";
    EXPECT_EQ(composeRegression(s, {}, y, xs).body.refusal, "You must enter the number of cases.");
    s.cases = "50";
    EXPECT_EQ(linesOf(composeRegression(s, {}, y, {})).front(), "MODEL Y = CONSTANT /N=50");

    s.matrix = false;
    DiscriminantStatistics statistics;
    statistics.print[1] = true;
    const ProcedureBlock discrim = composeDiscriminant(s, shown({}, Kind::Discriminant), statistics, y, xs);
    EXPECT_EQ(discrim.procedure, "DISCRIM");
    EXPECT_EQ(linesOf(discrim),
              (std::vector<std::string>{"MODEL Y = CONSTANT+A+B", "PRINT NONE / FSTATS", "ESTIMATE / "}));
    EXPECT_EQ(composeDiscriminant(s, {}, {}, y, {}).body.refusal, "You must select independent variable(s).");
}

// The clauses of the check boxes and the covariate list, each where the
// procedure reads it; every dialog of the four can leave the module.
TEST(ModelComposers, CovariatesMissingQuadraticAndExit) {
    const Names y = {"Y"}, xs = {"A", "B"};
    const RepeatedMeasures measures;
    ModelSettings s;
    s.covariates = {"AGE", "WT"}, s.missingCategory = true, s.quadratic = true, s.exit = true;
    EXPECT_EQ(linesOf(composeGlm(218, s, {}, measures, y, xs)),
              (std::vector<std::string>{"CATEGORY A B /MISS", "COVAR AGE WT", "MODEL Y = CONSTANT+A+B", "ESTIMATE / ",
                                        "EXIT"}));
    // GLM has no category line: the ANOVA-only settings write nothing there.
    EXPECT_EQ(linesOf(composeGlm(219, s, {}, measures, y, xs)),
              (std::vector<std::string>{"MODEL Y = CONSTANT+A+B", "ESTIMATE / ", "EXIT"}));
    EXPECT_EQ(linesOf(composeRegression(s, shown(stepwise(true, true), Kind::Regression), y, xs)).back(), "EXIT");
    EXPECT_EQ(linesOf(composeDiscriminant(s, {}, {}, y, xs)),
              (std::vector<std::string>{"MODEL Y = CONSTANT+A+B / QUAD", "ESTIMATE / ", "EXIT"}));
    s.covariates.clear(), s.missingCategory = false, s.exit = false;
    EXPECT_EQ(linesOf(composeGlm(218, s, {}, measures, y, xs)).front(), "CATEGORY A B");
    EXPECT_EQ(linesOf(composeGlm(218, s, {}, measures, y, xs)).size(), 3u);
}

TEST(CancelledRun, ChoicesComeBackTextsStayUnlessNew) {
    EstimationOptions opened;
    opened.tolerance = "1.0e-11";  // shown before the run
    EstimationOptions record = shown(stepwise(true, false), Kind::Glm);
    record.fStatistic = true, record.mixture = true, record.tolerance = ".5", record.force = "3";
    restoreCancelled(record, opened);
    EXPECT_FALSE(record.stepwise || record.forward || record.fStatistic || record.mixture);
    EXPECT_TRUE(record.automatic);
    EXPECT_EQ(record.tolerance, ".5");  // changed through Continue: kept
    EXPECT_FALSE(record.force.has_value());  // first made in the cancelled run: dropped

    RepeatedMeasures measures, before;
    before.factors[0].name = "Time";
    measures.perform = true;
    measures.factors[0].name = "Dose";
    measures.factors[0].levels = "4";
    measures.dependents = {"Y"};
    restoreCancelled(measures, before);
    EXPECT_FALSE(measures.perform);
    EXPECT_TRUE(measures.dependents.empty());
    EXPECT_EQ(measures.factors[0].name, "Dose");
    EXPECT_FALSE(measures.factors[0].levels.has_value());
}

}  // namespace
}  // namespace kvs::stats
