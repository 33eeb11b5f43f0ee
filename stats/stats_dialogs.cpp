// The statistics family's rows. The procedure dialogs come with their
// behaviours; until then their rows keep the launcher's facts.
#include "stats/series_commands.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_family.h"

namespace kvs::stats {

namespace {

constexpr DispatchRow kRows[] = {
    dialogRow(Family::Statistics, 202, "Join", "Hierarchical Clustering", Launch::Standard, 1, 256, 0, 0, 0).behaving(joinBehaviour),
    dialogRow(Family::Statistics, 203, "Kmeans", "K-means", Launch::Standard, 1, 256, 0, 0, 0).behaving(kmeansBehaviour),
    dialogRow(Family::Statistics, 204, "Correlations", "Correlations", Launch::Graph, 2, 256, 256, 0, 0).behaving(correlationsBehaviour),
    dialogRow(Family::Statistics, 215, "Factor", "Factor Analysis", Launch::Standard, 1, 256, 0, 0, 0).behaving(factorBehaviour),
    dialogRow(Family::Statistics, 216, "MDS", "Multidimensional Scaling", Launch::Standard, 1, 256, 0, 0, 0).behaving(mdsBehaviour),
    dialogRow(Family::Statistics, 217, "SPATIAL", "Spatial Statistics", Launch::Standard, 1, 256, 1, 2, 5).behaving(spatialBehaviour),
    dialogRow(Family::Statistics, 218, "Manova", "ANOVA: Estimate Model", Launch::Graph, 2, 256, 256, 0, 0).flagged(kKeepsStateThroughReinit).behaving(anovaBehaviour),
    dialogRow(Family::Statistics, 219, "GLM", "GLM: Estimate Model", Launch::Standard, 2, 256, 256, 0, 0).flagged(kKeepsStateThroughReinit).behaving(glmBehaviour),
    dialogRow(Family::Statistics, 221, "Regression", "Regression", Launch::Standard, 1, 256, 1, 2, 2).flagged(kKeepsStateThroughReinit).behaving(regressionBehaviour),
    dialogRow(Family::Statistics, 222, "Discriminant", "Discriminant Analysis", Launch::Standard, 1, 256, 1, 2, 2).behaving(discriminantBehaviour),
    dialogRow(Family::Statistics, 223, "Nonlinear", "Nonlinear Model", Launch::Standard, 2, 256, 256, 0, 0).behaving(nonlinBehaviour),
    dialogRow(Family::Statistics, 224, "LossMain", "Loss", Launch::Standard, 2, 256, 256, 0, 0).behaving(lossBehaviour),
    dialogRow(Family::Statistics, 226, "Friedman", "Friedman Tests", Launch::Standard, 1, 256, 0, 0, 0).behaving(friedmanBehaviour),
    dialogRow(Family::Statistics, 227, "TwoSampleKS", "Two Sample Kolmogorov-Smirnov", Launch::Standard, 1, 256, 1, 2, 2).behaving(twoSampleKsBehaviour),
    dialogRow(Family::Statistics, 228, "KW", "Kruskal-Wallis", Launch::Standard, 1, 256, 1, 2, 2).behaving(kruskalWallisBehaviour),
    dialogRow(Family::Statistics, 229, "Sign", "Sign Tests", Launch::Standard, 1, 256, 0, 0, 0).behaving(signTestBehaviour),
    dialogRow(Family::Statistics, 230, "Runs", "Wald-Wolfowitz Runs", Launch::Standard, 1, 256, 0, 0, 0).behaving(runsTestBehaviour),
    dialogRow(Family::Statistics, 231, "Wilcoxon", "Wilcoxon Tests", Launch::Standard, 1, 256, 0, 0, 0).behaving(wilcoxonBehaviour),
    dialogRow(Family::Statistics, 232, "ARIMA", "ARIMA", Launch::Standard, 1, 1, 0, 1, 1).flagged(kKeepsStateThroughReinit).behaving(arimaBehaviour),
    dialogRow(Family::Statistics, 233, "Exponential", "Exponential Smoothing", Launch::Standard, 1, 1, 0, 1, 1).behaving(expoBehaviour),
    dialogRow(Family::Statistics, 234, "Fourier", "Fourier", Launch::Standard, 1, 2, 0, 0, 0).behaving(fourierBehaviour),
    dialogRow(Family::Statistics, 235, "LOWESS", "LOWESS", Launch::Standard, 1, 1, 0, 1, 1).behaving(lowessBehaviour),
    dialogRow(Family::Statistics, 236, "Seasonal", "Seasonal Adjustment", Launch::Standard, 1, 1, 0, 1, 1).behaving(seasonalBehaviour),
    dialogRow(Family::Statistics, 237, "SeriesSmooth", "Smooth", Launch::Standard, 1, 1, 0, 1, 1).behaving(smoothBehaviour),
    dialogRow(Family::Statistics, 238, "TPlot", "Tplot", Launch::Standard, 1, 1, 0, 1, 1).behaving(tplotBehaviour),
    dialogRow(Family::Statistics, 239, "ACF", "ACF Plot", Launch::Standard, 1, 1, 0, 1, 1).behaving(acfBehaviour),
    dialogRow(Family::Statistics, 240, "PACF", "PACF Plot", Launch::Standard, 1, 1, 0, 1, 1).behaving(pacfBehaviour),
    dialogRow(Family::Statistics, 241, "CCF", "CCF Plot", Launch::Standard, 1, 2, 0, 0, 0).behaving(ccfBehaviour),
    dialogRow(Family::Statistics, 243, "Time", "Time", Launch::Standard, 0, 0, 0, 0, 0).behaving(timeBehaviour),
    dialogRow(Family::Statistics, 244, "Transform", "Transformations", Launch::Standard, 1, 1, 0, 1, 1).behaving(transformBehaviour),
    dialogRow(Family::Statistics, 248, "Statistics", "Basic Statistics", Launch::Standard, 1, 256, 0, 0, 0).behaving(basicStatsBehaviour),
    dialogRow(Family::Statistics, 250, "Cronbach", "Cronbach", Launch::Standard, 1, 256, 0, 0, 0).behaving(cronbachBehaviour),
    dialogRow(Family::Statistics, 251, "StemPlot", "Stem", Launch::Standard, 1, 256, 0, 0, 0).behaving(stemBehaviour),
    dialogRow(Family::Statistics, 252, "Loglin", "LogLinear Model", Launch::Standard, 2, 1, 256, 0, 0).flagged(kMarkerStartsUnset).behaving(loglinBehaviour),
    dialogRow(Family::Statistics, 253, "XTabNWay", "Multiway Tables", Launch::Standard, 1, 256, 0, 2, 3).behaving(multiwayTablesBehaviour),
    dialogRow(Family::Statistics, 254, "ADDTREE", "Additive Trees", Launch::Standard, 1, 256, 0, 0, 0).behaving(addtreeBehaviour),
    dialogRow(Family::Statistics, 256, "Ttest", "Two-sample t-test", Launch::Standard, 1, 256, 1, 2, 2).behaving(twoSampleTtestBehaviour),
    dialogRow(Family::Statistics, 257, "TtestPaired", "Paired t-test", Launch::Standard, 1, 256, 0, 0, 0).behaving(pairedTtestBehaviour),
    dialogRow(Family::Statistics, 258, "TtestOneSample", "One-sample t-test", Launch::Standard, 1, 256, 0, 0, 0).behaving(oneSampleTtestBehaviour),
    dialogRow(Family::Statistics, 260, "Post", "GLM: Pairwise Comparisons", Launch::Standard, 0, 256, 256, 0, 0).flagged(kKeepsStateThroughReinit).behaving(glmPairwiseBehaviour),
    dialogRow(Family::Statistics, 261, "Hypothesis", "GLM: Hypothesis Test", Launch::Standard, 0, 256, 256, 0, 0).flagged(kKeepsStateThroughReinit).behaving(glmHypothesisBehaviour),
    dialogRow(Family::Statistics, 262, "AnovaTest", "ANOVA: Hypothesis Test", Launch::Standard, 0, 256, 256, 0, 0).flagged(kKeepsStateThroughReinit).behaving(anovaHypothesisBehaviour),
    dialogRow(Family::Statistics, 266, "XTab1Way", "One-way Frequency Tables", Launch::Standard, 1, 256, 0, 0, 0).behaving(oneWayTablesBehaviour),
    dialogRow(Family::Statistics, 267, "XTab2Way", "Two-way Tables", Launch::Standard, 1, 256, 0, 2, 2).behaving(twoWayTablesBehaviour),
    dialogRow(Family::Statistics, 268, "OneSampleKS", "One Sample Kolmogorov-Smirnov", Launch::Standard, 1, 256, 1, 0, 0).behaving(oneSampleKsBehaviour),
    dialogRow(Family::Statistics, 269, "Ramona", "RAMONA: Model", Launch::Standard, 1, 256, 0, 0, 0).flagged(kMarkerStartsUnset).behaving(ramonaBehaviour),
    dialogRow(Family::Statistics, 270, "Shewhart", "Shewhart", Launch::Standard, 1, 256, 0, 1, 2).behaving(shewhartBehaviour),
    dialogRow(Family::Statistics, 271, "Oc", "Operating Characteristic Curve", Launch::Standard, 1, 256, 0, 0, 0).flagged(kMarkerStartsUnset).behaving(operatingCurveBehaviour),
    dialogRow(Family::Statistics, 272, "Arl", "Average Run Length", Launch::Standard, 1, 256, 0, 0, 0).flagged(kMarkerStartsUnset).behaving(averageRunLengthBehaviour),
    dialogRow(Family::Statistics, 273, "Pareto", "Pareto", Launch::Standard, 1, 256, 0, 1, 2).behaving(paretoBehaviour),
    dialogRow(Family::Statistics, 274, "BoxWhisker", "Box and Whisker", Launch::Standard, 1, 256, 0, 1, 2).behaving(boxChartBehaviour),
    dialogRow(Family::Statistics, 275, "Ma", "Moving Average", Launch::Standard, 1, 256, 0, 1, 2).behaving(movingAverageBehaviour),
    dialogRow(Family::Statistics, 276, "EWMa", "Exponentially Weighted Moving Average", Launch::Standard, 1, 256, 0, 1, 2).behaving(ewmaBehaviour),
    dialogRow(Family::Statistics, 277, "Regress", "Regression Chart", Launch::Standard, 1, 256, 0, 1, 2).behaving(regressionChartBehaviour),
    dialogRow(Family::Statistics, 278, "Cusum", "Cusum", Launch::Standard, 1, 256, 0, 1, 2).behaving(cusumBehaviour),
    dialogRow(Family::Statistics, 279, "Tsq", "TSQ", Launch::Standard, 1, 256, 0, 1, 2).behaving(tsqBehaviour),
    dialogRow(Family::Statistics, 280, "Pca", "Process Control Analysis", Launch::Standard, 1, 256, 0, 1, 1).behaving(pcaBehaviour),
    dialogRow(Family::Statistics, 281, "ExperimentalDesign", "Design of Experiments", Launch::Standard, 1, 256, 0, 0, 0).flagged(kMarkerStartsUnset).behaving(designBehaviour),
    dialogRow(Family::Statistics, 282, "LoglinTabulate", "Loglinear Model: Tabulate", Launch::Standard, 1, 256, 0, 0, 0).behaving(loglinTabulateBehaviour),
    dialogRow(Family::Statistics, 283, "Coran", "Correspondence Analysis", Launch::Graph, 1, 256, 256, 0, 0).behaving(coranBehaviour),
    dialogRow(Family::Statistics, 284, "SetCor", "Set and Canonical Correlations", Launch::Graph, 2, 256, 256, 0, 0).behaving(setcorBehaviour),
    dialogRow(Family::Statistics, 285, "PerMap", "Perceptual Mapping", Launch::Graph, 1, 256, 256, 0, 0).behaving(permapBehaviour),
    dialogRow(Family::Statistics, 286, "Posac", "POSAC", Launch::Standard, 1, 256, 1, 0, 0).behaving(posacBehaviour),
    dialogRow(Family::Statistics, 287, "Conjoint", "Conjoint Analysis", Launch::Graph, 1, 256, 256, 0, 0).behaving(conjointBehaviour),
    dialogRow(Family::Statistics, 288, "Trees", "Trees", Launch::Standard, 1, 256, 1, 2, 2).behaving(treesBehaviour),
    dialogRow(Family::Statistics, 289, "Logit", "Logit: Estimate Model", Launch::Standard, 1, 256, 1, 2, 2).flagged(kKeepsStateThroughReinit | kNoFirstListRestore).behaving(logitBehaviour),
    dialogRow(Family::Statistics, 290, "LogitPost", "Logit: Hypothesis", Launch::Standard, 1, 256, 0, 0, 0).flagged(kMarkerStartsUnset).behaving(logitHypothesisBehaviour),
    dialogRow(Family::Statistics, 291, "Probit", "Probit", Launch::Standard, 1, 256, 1, 0, 0).behaving(probitBehaviour),
    dialogRow(Family::Statistics, 292, "Survival", "Survival: Estimate Model", Launch::Standard, 1, 256, 1, 2, 5).behaving(survivalBehaviour),
    dialogRow(Family::Statistics, 294, "TSLS", "Two Stage Least Squares", Launch::Standard, 1, 1, 1, 1, 1).behaving(tslsBehaviour),
    dialogRow(Family::Statistics, 295, "TestatCL", "Test Item Analysis: Classical", Launch::Standard, 1, 1, 0, 0, 0).behaving(testatClassicalBehaviour),
    dialogRow(Family::Statistics, 296, "Signal", "Signal Detection", Launch::Standard, 1, 256, 1, 2, 2).behaving(signalBehaviour),
    dialogRow(Family::Statistics, 297, "TestatLog", "Test Item Analysis: Logistic", Launch::Standard, 1, 1, 0, 0, 0).behaving(testatLogisticBehaviour),
    dialogRow(Family::Statistics, 298, "LogitDeciles", "Logit: Deciles of Risk", Launch::Standard, 1, 256, 0, 0, 0).flagged(kMarkerStartsUnset).behaving(logitDecilesBehaviour),
    dialogRow(Family::Statistics, 299, "LogitQuantiles", "Logit: Quantiles", Launch::Standard, 1, 1, 0, 0, 0).behaving(logitQuantilesBehaviour),
    dialogRow(Family::Statistics, 300, "LogitSimulate", "Logit: Simulation", Launch::Standard, 1, 1, 0, 0, 0).behaving(logitSimulationBehaviour),
    dialogRow(Family::Statistics, 483, "TRAXComSelect", "Select TRAX Program", Launch::Standard, 1, 256, 0, 0, 0).behaving(traxSelectBehaviour),
    specialRow(Family::Statistics, 242, runSeriesCommand),  // "CLEAR", no dialog
    specialRow(Family::Statistics, 245, runSeriesCommand),  // "MISSING=DELETE", no dialog
    specialRow(Family::Statistics, 246, runSeriesCommand),  // "MISSING=INTERPOLATE", no dialog
};

}  // namespace

FamilyTable family() { return {kRows, nullptr, nullptr}; }

}  // namespace kvs::stats
