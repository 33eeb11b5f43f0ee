#include "core/dispatch_table.h"

#include <algorithm>

namespace kvs {

namespace {

// Sorted by id. Graph-launched rows carry 256/256 (their third and fourth
// lists take 256 too).
constexpr DispatchRow kRows[] = {
    {43, "ListDlgBox", "List Cases", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {45, "By", "By Groups", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {46, "Edselect", "Select", Family::Data, Launch::Standard, 2, 256, 256, 0, 0},
    {47, "WTDLG", "Weight", Family::Data, Launch::Standard, 1, 1, 0, 0, 0},
    {67, "Let", "Let", Family::Data, Launch::Standard, 2, 256, 256, 0, 0},
    {69, "IfThenLet", "If...Then...Let", Family::Data, Launch::Standard, 2, 256, 256, 0, 0},
    {70, "STANDARDIZE", "Standardize", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {71, "Rank", "Rank", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {72, "Sort", "Sort", Family::Data, Launch::Standard, 1, 10, 0, 0, 0},
    {73, "Append", "Append", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {74, "Merge", "Merge", Family::Data, Launch::Standard, 2, 256, 256, 0, 0},
    {75, "Transpose", "Transpose", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {76, nullptr, nullptr, Family::Data, Launch::Special, 0, 0, 0, 0, 0},  // editor extract: a save-file chooser that queues "EXTRACT '...'"
    {77, "IDVAR", "ID Variable", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {78, nullptr, nullptr, Family::Data, Launch::Special, 0, 0, 0, 0, 0},  // the "Labels" dialog: value labels of one variable (data/value_labels)
    {83, "Order", "Order", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {84, "Category", "Category", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {85, "Frequency", "Frequency", Family::Data, Launch::Standard, 1, 256, 0, 1, 1},
    {87, "Basic", "Basic", Family::Data, Launch::Standard, 1, 1, 0, 0, 0},
    {88, "Matrix", "Enter Matrix", Family::Data, Launch::Standard, 1, 1, 0, 0, 0},
    {92, "Wrap", "Reshape", Family::Data, Launch::Standard, 1, 256, 0, 0, 0},
    {101, "PlotV6", "Scatterplot", Family::Graph, Launch::Graph, 2, 256, 256, 2, 2},
    {102, "Pyramid", "Pyramid", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {103, "Bar", "Bar", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {106, "BoxPlot", "Box Plot", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {107, "HiLo", "High-Low-Close Plot", Family::Graph, Launch::Standard, 1, 256, 0, 2, 5},
    {108, "Dot", "Dot", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {109, "Line", "Line", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {111, "Histogram", "Histogram", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {113, "DotDensity", "Dot Density", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {114, "DensityFunction", "Density Function", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {116, "FourierPlot", "Andrews' Fourier Plot", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {118, "Parallel", "Parallel Coordinate Display", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {119, "FPlot", "Function Plot", Family::Graph, Launch::Standard, 1, 1, 1, 0, 0},
    {120, "IconPlot", "Icon Plot", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {121, "Pplot", "Probability Plot", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {128, "Map", "Map", Family::Graph, Launch::Standard, 1, 1, 1, 0, 0},
    {129, "PieChart", "Pie Chart", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {146, "QPlot", "Quantile Plot", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {147, "Splom", "Scatterplot Matrix", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
    {150, nullptr, nullptr, Family::Graph, Launch::Special, 0, 0, 0, 0, 0},  // graph font dialog, writes lfKvgFont
    {153, nullptr, nullptr, Family::Graph, Launch::Special, 0, 0, 0, 0, 0},  // default graph font from lfDefKvgFont
    {202, "Join", "Hierarchical Clustering", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {203, "Kmeans", "K-means", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {204, "Correlations", "Correlations", Family::Statistics, Launch::Graph, 2, 256, 256, 0, 0},
    {215, "Factor", "Factor Analysis", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {216, "MDS", "Multidimensional Scaling", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {217, "SPATIAL", "Spatial Statistics", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 5},
    {218, "Manova", "ANOVA: Estimate Model", Family::Statistics, Launch::Graph, 2, 256, 256, 0, 0},
    {219, "GLM", "GLM: Estimate Model", Family::Statistics, Launch::Standard, 2, 256, 256, 0, 0},
    {221, "Regression", "Regression", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {222, "Discriminant", "Discriminant Analysis", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {223, "Nonlinear", "Nonlinear Model", Family::Statistics, Launch::Standard, 2, 256, 256, 0, 0},
    {224, "LossMain", "Loss", Family::Statistics, Launch::Standard, 2, 256, 256, 0, 0},
    {226, "Friedman", "Friedman Tests", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {227, "TwoSampleKS", "Two Sample Kolmogorov-Smirnov", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {228, "KW", "Kruskal-Wallis", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {229, "Sign", "Sign Tests", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {230, "Runs", "Wald-Wolfowitz Runs", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {231, "Wilcoxon", "Wilcoxon Tests", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {232, "ARIMA", "ARIMA", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {233, "Exponential", "Exponential Smoothing", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {234, "Fourier", "Fourier", Family::Statistics, Launch::Standard, 1, 2, 0, 0, 0},
    {235, "LOWESS", "LOWESS", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {236, "Seasonal", "Seasonal Adjustment", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {237, "SeriesSmooth", "Smooth", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {238, "TPlot", "Tplot", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {239, "ACF", "ACF Plot", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {240, "PACF", "PACF Plot", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {241, "CCF", "CCF Plot", Family::Statistics, Launch::Standard, 1, 2, 0, 0, 0},
    {242, nullptr, nullptr, Family::Statistics, Launch::Special, 0, 0, 0, 0, 0},  // series "CLEAR", no dialog
    {243, "Time", "Time", Family::Statistics, Launch::Standard, 0, 0, 0, 0, 0},
    {244, "Transform", "Transformations", Family::Statistics, Launch::Standard, 1, 1, 0, 1, 1},
    {245, nullptr, nullptr, Family::Statistics, Launch::Special, 0, 0, 0, 0, 0},  // series "MISSING=DELETE", no dialog
    {246, nullptr, nullptr, Family::Statistics, Launch::Special, 0, 0, 0, 0, 0},  // series "MISSING=INTERPOLATE", no dialog
    {248, "Statistics", "Basic Statistics", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {250, "Cronbach", "Cronbach", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {251, "StemPlot", "Stem", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {252, "Loglin", "LogLinear Model", Family::Statistics, Launch::Standard, 2, 1, 256, 0, 0},
    {253, "XTabNWay", "Multiway Tables", Family::Statistics, Launch::Standard, 1, 256, 0, 2, 3},
    {254, "ADDTREE", "Additive Trees", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {256, "Ttest", "Two-sample t-test", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {257, "TtestPaired", "Paired t-test", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {258, "TtestOneSample", "One-sample t-test", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {260, "Post", "GLM: Pairwise Comparisons", Family::Statistics, Launch::Standard, 0, 256, 256, 0, 0},
    {261, "Hypothesis", "GLM: Hypothesis Test", Family::Statistics, Launch::Standard, 0, 256, 256, 0, 0},
    {262, "AnovaTest", "ANOVA: Hypothesis Test", Family::Statistics, Launch::Standard, 0, 256, 256, 0, 0},
    {266, "XTab1Way", "One-way Frequency Tables", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {267, "XTab2Way", "Two-way Tables", Family::Statistics, Launch::Standard, 1, 256, 0, 2, 2},
    {268, "OneSampleKS", "One Sample Kolmogorov-Smirnov", Family::Statistics, Launch::Standard, 1, 256, 1, 0, 0},
    {269, "Ramona", "RAMONA: Model", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {270, "Shewhart", "Shewhart", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {271, "Oc", "Operating Characteristic Curve", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {272, "Arl", "Average Run Length", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {273, "Pareto", "Pareto", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {274, "BoxWhisker", "Box and Whisker", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {275, "Ma", "Moving Average", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {276, "EWMa", "Exponentially Weighted Moving Average", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {277, "Regress", "Regression Chart", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {278, "Cusum", "Cusum", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {279, "Tsq", "TSQ", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 2},
    {280, "Pca", "Process Control Analysis", Family::Statistics, Launch::Standard, 1, 256, 0, 1, 1},
    {281, "ExperimentalDesign", "Design of Experiments", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {282, "LoglinTabulate", "Loglinear Model: Tabulate", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {283, "Coran", "Correspondence Analysis", Family::Statistics, Launch::Graph, 1, 256, 256, 0, 0},
    {284, "SetCor", "Set and Canonical Correlations", Family::Statistics, Launch::Graph, 2, 256, 256, 0, 0},
    {285, "PerMap", "Perceptual Mapping", Family::Statistics, Launch::Graph, 1, 256, 256, 0, 0},
    {286, "Posac", "POSAC", Family::Statistics, Launch::Standard, 1, 256, 1, 0, 0},
    {287, "Conjoint", "Conjoint Analysis", Family::Statistics, Launch::Graph, 1, 256, 256, 0, 0},
    {288, "Trees", "Trees", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {289, "Logit", "Logit: Estimate Model", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {290, "LogitPost", "Logit: Hypothesis", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {291, "Probit", "Probit", Family::Statistics, Launch::Standard, 1, 256, 1, 0, 0},
    {292, "Survival", "Survival: Estimate Model", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 5},
    {294, "TSLS", "Two Stage Least Squares", Family::Statistics, Launch::Standard, 1, 1, 1, 1, 1},
    {295, "TestatCL", "Test Item Analysis: Classical", Family::Statistics, Launch::Standard, 1, 1, 0, 0, 0},
    {296, "Signal", "Signal Detection", Family::Statistics, Launch::Standard, 1, 256, 1, 2, 2},
    {297, "TestatLog", "Test Item Analysis: Logistic", Family::Statistics, Launch::Standard, 1, 1, 0, 0, 0},
    {298, "LogitDeciles", "Logit: Deciles of Risk", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {299, "LogitQuantiles", "Logit: Quantiles", Family::Statistics, Launch::Standard, 1, 1, 0, 0, 0},
    {300, "LogitSimulate", "Logit: Simulation", Family::Statistics, Launch::Standard, 1, 1, 0, 0, 0},
    {483, "TRAXComSelect", "Select TRAX Program", Family::Statistics, Launch::Standard, 1, 256, 0, 0, 0},
    {1124, "Profile", "Profile", Family::Graph, Launch::Graph, 2, 256, 256, 0, 0},
};

constexpr bool sortedById() {
    for (std::size_t i = 1; i < std::size(kRows); ++i)
        if (kRows[i - 1].id >= kRows[i].id) return false;
    return true;
}
static_assert(sortedById(), "dispatch rows must stay sorted by id");

}  // namespace

std::span<const DispatchRow> dispatchTable() { return kRows; }

const DispatchRow* findDispatchRow(std::uint16_t id) {
    auto it = std::lower_bound(std::begin(kRows), std::end(kRows), id,
                               [](const DispatchRow& row, std::uint16_t key) { return row.id < key; });
    return it != std::end(kRows) && it->id == id ? &*it : nullptr;
}

bool familyOf(std::uint16_t id, Family& family) {
    if (id >= 41 && id <= 93) family = Family::Data;
    else if ((id >= 100 && id <= 153) || id == 1124) family = Family::Graph;
    else if ((id >= 201 && id <= 304) || id == 483) family = Family::Statistics;
    else return false;
    return true;
}

}  // namespace kvs
