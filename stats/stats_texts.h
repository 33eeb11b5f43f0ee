// Texts and keywords of the statistics dialogs.
#pragma once

#include <string_view>

namespace kvs::stats::text {

inline constexpr std::string_view kEnterMean = "You must enter a value for mean.";

// t-tests.
inline constexpr std::string_view kTtest = "TTEST";
inline constexpr std::string_view kTest = "TEST ";
inline constexpr std::string_view kGroupedBy = " * ";
inline constexpr std::string_view kBonferroni = " / BONF";
inline constexpr std::string_view kAdjustSlash = " /";
inline constexpr std::string_view kDunn = " DUNN";
inline constexpr std::string_view kConfidenceSlash = "/ ";
inline constexpr std::string_view kConfidence = " CONF=";
inline constexpr std::string_view kDefaultConfidence = ".95";

// Logit.
inline constexpr std::string_view kLogit = "LOGIT";
inline constexpr std::string_view kLogitFile = "LOGIT.KVD";
inline constexpr std::string_view kModel = "MODEL ";
inline constexpr std::string_view kEquals = " = ";
inline constexpr std::string_view kConstant = "CONSTANT+";
inline constexpr std::string_view kConditionalEnd = " ; ";
inline constexpr std::string_view kEstimate = "ESTIMATE /";
inline constexpr std::string_view kPredict = " PREDICT ";
inline constexpr std::string_view kQml = " QML ";
inline constexpr std::string_view kStart = " START=";
inline constexpr std::string_view kConverge = " CONVERGE=";
inline constexpr std::string_view kDefaultConverge = "1.0e-6";
inline constexpr std::string_view kTolerance = " TOL=";
inline constexpr std::string_view kDefaultTolerance = "1.0e-12";
inline constexpr std::string_view kStepwiseStart = "START /";
inline constexpr std::string_view kForward = " FORWARD";
inline constexpr std::string_view kBackward = " BACKWARD";
inline constexpr std::string_view kEnter = " ENTER=";
inline constexpr std::string_view kRemove = " REMOVE=";
inline constexpr std::string_view kDefaultProbability = "0.15";
inline constexpr std::string_view kForce = " FORCE=";
inline constexpr std::string_view kMaxStep = " MAXSTEP=";
inline constexpr std::string_view kStepAuto = "STEP / AUTO";

// Discrete choice and categories.
inline constexpr std::string_view kAlternatives = "ALT ";
inline constexpr std::string_view kCategoryCount = "NCAT=";
inline constexpr std::string_view kSet = "SET ";
inline constexpr std::string_view kSetEquals = " = ";
inline constexpr std::string_view kSetExists = "Set name already exists!";
inline constexpr std::string_view kCategory = "CATEGORY ";
inline constexpr std::string_view kEffect = " / EFFECT";
inline constexpr std::string_view kDummy = " / DUMMY";

// Deciles, quantiles, simulation.
inline constexpr std::string_view kDeciles = "DC ";
inline constexpr std::string_view kSmart = "/ SMART";
inline constexpr std::string_view kQuantiles = "QNTL ";
inline constexpr std::string_view kValuesAfter = " / ";
inline constexpr std::string_view kSimulation = "SIMUL ";

// Hypothesis lines.
inline constexpr std::string_view kHypothesis = "HYPOTHESIS";
inline constexpr std::string_view kConstrain = "CONSTRAIN ";
inline constexpr std::string_view kTestLine = "TEST";

// The companion package's program selector: the TRAX procedure line, then
// the call of the chosen program.
inline constexpr std::string_view kTrax = "TRAX";
inline constexpr std::string_view kTraxCall = "CALL ";
struct TraxProgram {
    std::string_view name;
    std::string_view description;
};
inline constexpr TraxProgram kTraxPrograms[] = {
    {"DESCRIBE", "Descriptive statistics of numeric variables"},
    {"FREQ", "Frequency tables of categorical variables"},
    {"CROSSTAB", "Two-way tables with tests of association"},
    {"MEANS", "Group means and one-way analysis of variance"},
    {"REGRESS", "Multiple linear regression"},
    {"FACTOR", "Principal components and factor analysis"},
    {"CLUSTER", "Hierarchical and k-means clustering"},
    {"NONPAR", "Nonparametric tests of location"},
    {"SURVIVAL", "Life tables and survival curves"},
    {"REPORT", "Formatted listing and summary of cases"},
};

// Linear models: ANOVA, GLM, Regression, Discriminant Analysis.
inline constexpr std::string_view kAnova = "ANOVA";
inline constexpr std::string_view kAnovaFile = "ANOVA.KVD";
inline constexpr std::string_view kGlm = "GLM";
inline constexpr std::string_view kGlmFile = "GLM.KVD";
inline constexpr std::string_view kRegress = "REGRESS";
inline constexpr std::string_view kRegressFile = "REGRESS.KVD";
inline constexpr std::string_view kDiscrim = "DISCRIM";
inline constexpr std::string_view kDiscrimFile = "DISCRIM.KVD";
inline constexpr std::string_view kSelectFactors = "You must select category/factor variables.";
inline constexpr std::string_view kSelectIndependents = "You must select independent variable(s).";
inline constexpr std::string_view kEnterCases = "You must enter the number of cases.";
inline constexpr std::string_view kDependentsChanged =
    "Your dependent variables have changed.  The Repeated Measures which you set up may not apply to these new "
    "dependent variables.";
inline constexpr std::string_view kCases = " /N=";

// Estimation options of the linear models.
inline constexpr std::string_view kEstimateComplete = "ESTIMATE / ";
inline constexpr std::string_view kToleranceLong = " TOLERANCE=";
inline constexpr std::string_view kDefaultModelTolerance = "1.0e-11";
inline constexpr std::string_view kDefaultDiscrimTolerance = ".001";
inline constexpr std::string_view kMix = " MIX";
inline constexpr std::string_view kMixture = " MIXTURE";
inline constexpr std::string_view kFenter = " FENTER=";
inline constexpr std::string_view kFremove = " FREMOVE=";
inline constexpr std::string_view kDefaultModelProbability = ".15";
inline constexpr std::string_view kDefaultFenter = "4";
inline constexpr std::string_view kDefaultFremove = "3.9";
inline constexpr std::string_view kDefaultForce = "0";
inline constexpr std::string_view kStepAutoTight = "STEP /AUTO";

// Repeated measures and the discriminant print line.
inline constexpr std::string_view kRepeat = "/ REPEAT ";
inline constexpr std::string_view kRepeatNames = "NAMES=";
inline constexpr std::string_view kPrintNone = "PRINT NONE /";
inline constexpr std::string_view kDiscriminantPrint[] = {
    " FMATRIX", " FSTATS", " EIGEN",  " CMEANS", " SUM",   " MEANS", " WILKS",
    " CFUNC",   " TRACES", " CDFUNC", " SCDFUNC", " CLASS", " JCLASS", " WCOV",
    " WCORR",   " TCOV",   " TCORR",  " GCOV",   " GCORR", " MAHAL", " CSCORE",
};

// Messages of the series and control-chart dialogs.
inline constexpr std::string_view kCompleteRange = "You must provide a complete range.";
inline constexpr std::string_view kLagRange = "Lag requires values between 1 and 9.";
inline constexpr std::string_view kFunctionValue = "You must provide a value for the selected function.";
inline constexpr std::string_view kUpperOrLower = "You must select 'Upper' or 'Lower' graph to display.";
inline constexpr std::string_view kExternalFile = "You must select external file.";
inline constexpr std::string_view kCenterRange = "Center value must be between 0 and 1";

// Time series.
inline constexpr std::string_view kSeries = "SERIES";
inline constexpr std::string_view kOptionsSlash = " /";
inline constexpr std::string_view kArima = "ARIMA ";
inline constexpr std::string_view kArimaFile = "ARIMA.KVD";
inline constexpr std::string_view kArParameters = " P=";
inline constexpr std::string_view kSeasonalAr = " PS=";
inline constexpr std::string_view kMaParameters = " Q=";
inline constexpr std::string_view kSeasonalMa = " QS=";
inline constexpr std::string_view kSeason = " SEASON=";
inline constexpr std::string_view kIterations = " ITER=";
inline constexpr std::string_view kConvergence = " CONV=";
inline constexpr std::string_view kBackcast = " BACKCAST=";
inline constexpr std::string_view kForecast = " FORECAST=";
inline constexpr std::string_view kArimaRange = " ..";
inline constexpr std::string_view kExpoRange = "..";
inline constexpr std::string_view kEstimateConstant = " CONSTANT";
inline constexpr std::string_view kDefaultParameters = "0";
inline constexpr std::string_view kDefaultSeason = "12";
inline constexpr std::string_view kDefaultIterations = "20";
inline constexpr std::string_view kDefaultConvergence = ".01";
inline constexpr std::string_view kDefaultBackcast = "0";
inline constexpr std::string_view kExpo = "EXPO ";
inline constexpr std::string_view kExpoFile = "EXPO.KVD";
inline constexpr std::string_view kLinear = " LINEAR=";
inline constexpr std::string_view kPercent = " PERCENT=";
inline constexpr std::string_view kAdditiveValue = " ADDI=";
inline constexpr std::string_view kMultiplicativeValue = " MULTI=";
inline constexpr std::string_view kSmoothValue = " SMOOTH=";
inline constexpr std::string_view kFourier = "FOURIER ";
inline constexpr std::string_view kFourierFile = "FOURIER.KVD";
inline constexpr std::string_view kFourierLag = " /LAG=";
inline constexpr std::string_view kLag = "/LAG=";
inline constexpr std::string_view kAcf = "ACF ";
inline constexpr std::string_view kPacf = "PACF ";
inline constexpr std::string_view kCcf = "CCF ";
inline constexpr std::string_view kSmooth = "SMOOTH ";
inline constexpr std::string_view kLowessFile = "LOWESS.KVD";
inline constexpr std::string_view kLowess = "/LOWESS=";
inline constexpr std::string_view kDefaultTension = ".5";
inline constexpr std::string_view kAdjustSeason = "ADJSEASON ";
inline constexpr std::string_view kSeasonalFile = "SEASONAL.KVD";
inline constexpr std::string_view kAdditive = " ADDITIVE";
inline constexpr std::string_view kMultiplicative = " MULT";
inline constexpr std::string_view kSmoothFile = "SMOOTH.KVD";
inline constexpr std::string_view kWeights = " /WT=";
inline constexpr std::string_view kRunningMean = " /MEAN=";
inline constexpr std::string_view kRunningMedian = " /MEDIAN=";
inline constexpr std::string_view kTplot = "TPLOT ";
inline constexpr std::string_view kTime = "TIME ";
inline constexpr std::string_view kTimeSeparator = ",";
inline constexpr std::string_view kFormat = " / FORMAT='";
inline constexpr std::string_view kFormatEnd = "'";
inline constexpr std::string_view kTransformFile = "TRANSFRM.KVD";

// The transformations, by radio button (IDC_TRANSFORM_FIRST on): the verb,
// and the option that carries the value for those that take one.
struct Transformation {
    std::string_view verb;
    std::string_view option;  // empty: the transformation takes no value
};
inline constexpr Transformation kTransformations[] = {
    {"LOG ", ""},         {"SQUARE ", ""},  {"MEAN ", ""},        {"TREND ", ""},
    {"DIFF ", "/LAG="},   {"PCHANGE ", "/LAG="}, {"LAG ", "/LAG="}, {"POWER ", "/EXP="},
};

// Quality control charts.
inline constexpr std::string_view kQc = "QC";
inline constexpr std::string_view kShewhart = "SHEWHART ";
inline constexpr std::string_view kOc = "OC";
inline constexpr std::string_view kArl = "ARL";
inline constexpr std::string_view kPareto = "PARETO ";
inline constexpr std::string_view kBoxChart = "BOX ";
inline constexpr std::string_view kMovingAverage = "MA ";
inline constexpr std::string_view kEwma = "EWMA ";
inline constexpr std::string_view kRegressionChart = "REGRESS ";
inline constexpr std::string_view kCusum = "CUSUM ";
inline constexpr std::string_view kTsq = "TSQ ";
inline constexpr std::string_view kPca = "PCA ";
inline constexpr std::string_view kBy = "*";
inline constexpr std::string_view kChartType = " TYPE=";
inline constexpr std::string_view kLimits = "LIMITS=";
inline constexpr std::string_view kSpacedLimits = " LIMITS=";
inline constexpr std::string_view kProbabilityLimits = " PLIMITS=";
inline constexpr std::string_view kLimitSeparator = ", ";
inline constexpr std::string_view kProbabilityType = " P";
inline constexpr std::string_view kPresetType = " ";
inline constexpr std::string_view kSigmaType = " S";
inline constexpr std::string_view kCenter = " CENTER=";
inline constexpr std::string_view kSigma = " SIGMA=";
inline constexpr std::string_view kSampleSize = " N=";
inline constexpr std::string_view kAverageSize = " AVGN";
inline constexpr std::string_view kAggregate = " AGG";
inline constexpr std::string_view kTotal = "=TOTAL";
inline constexpr std::string_view kZUnits = " Z";
inline constexpr std::string_view kCumulative = " CUM";
inline constexpr std::string_view kParetoPercent = " P";
inline constexpr std::string_view kWidth = " WIDTH=";
inline constexpr std::string_view kSpanK = " K=";
inline constexpr std::string_view kCusumH = " H=";
inline constexpr std::string_view kStartPoint = " START=";
inline constexpr std::string_view kUpperSum = " UPPER";
inline constexpr std::string_view kLowerSum = " LOWER";
inline constexpr std::string_view kZcl = " ZCL=";
inline constexpr std::string_view kCovariance = " COVAR=";
inline constexpr std::string_view kUsl = " USL=";
inline constexpr std::string_view kLsl = " LSL=";

// The chart types of the chart-type box, in the order shown, and the
// keyword each writes.
struct ChartType {
    std::string_view entry;
    std::string_view keyword;
};
inline constexpr ChartType kShewhartCharts[] = {
    {"X-bar", "XBAR"},
    {"Variance (Var)", "VAR"},
    {"Standard Deviation (s)", "S"},
    {"Range (r)", "R"},
    {"X-Bar and Std.Dev.", "XBAR_S"},
    {"X-bar and Range", "XBAR_R"},
    {"Individual Cases (X)", "X"},
    {"Binominal Count (np)", "NP"},
    {"Binominal Proportion (p)", "P"},
    {"Poisson Count (c)", "C"},
    {"Poisson Rate (u)", "U"},
};
// The operating-characteristic and average-run-length curves: the same
// without the combined and individual charts.
inline constexpr ChartType kCurveCharts[] = {
    {"X-bar", "XBAR"},
    {"Variance (Var)", "VAR"},
    {"Standard Deviation (s)", "S"},
    {"Range (r)", "R"},
    {"Binominal Count (np)", "NP"},
    {"Binominal Proportion (p)", "P"},
    {"Poisson Count (c)", "C"},
    {"Poisson Rate (u)", "U"},
};

// Probit, Two Stage Least Squares, the GLM comparisons and hypotheses,
// Nonlinear Model, Loss and Survival.
inline constexpr std::string_view kProbit = "PROBIT";
inline constexpr std::string_view kProbitFile = "PROBIT.KVD";
inline constexpr std::string_view kTsls = "TSLS";
inline constexpr std::string_view kTslsFile = "TSLS.KVD";
inline constexpr std::string_view kInstruments = " / ";
inline constexpr std::string_view kInstrumentConstant = "CONSTANT +";
inline constexpr std::string_view kEstimatePlain = "ESTIMATE";
inline constexpr std::string_view kRobust = " / HC";
inline constexpr std::string_view kPost = "POST ";
inline constexpr std::string_view kPostTests[] = {" / BONF", " / TUKEY", " / LSD", " / SCHEFFE"};
inline constexpr std::string_view kNonlin = "NONLIN";
inline constexpr std::string_view kNonlinFile = "NONLIN.KVD";
inline constexpr std::string_view kSaveQualifier = " / ";
// The save box's entries, in order, and what each writes after " / ".
inline constexpr std::string_view kNonlinSaveEntries[] = {
    "Data", "Residuals", "Residuals/Data", "Response Surface", "Confidence Interval", "Confidence Region", "Parameters",
};
inline constexpr std::string_view kNonlinSaveKeywords[] = {"DATA", "RESID", "RESID,DATA", "RS", "CI", "CR", " PARAMS"};
inline constexpr std::string_view kSaveConfidence = " CONFI=";
inline constexpr std::string_view kDefaultSaveConfidence = "0.95";
inline constexpr std::string_view kSimplex = " / SIMPLEX";
inline constexpr std::string_view kQuasi = " / QUASI";
inline constexpr std::string_view kLoss = "LOSS";
inline constexpr std::string_view kLossEquals = "LOSS = ";
inline constexpr std::string_view kSurvival = "SURVIVAL";
inline constexpr std::string_view kSurvivalFile = "SURVIVAL.KVD";
inline constexpr std::string_view kSurvivalOptions = " / ";
inline constexpr std::string_view kCensor = "CENSOR=";
inline constexpr std::string_view kLower = "LOWER=";
inline constexpr std::string_view kStrata = "STRATA=";
inline constexpr std::string_view kMaximumTime = "TMAX=";
inline constexpr std::string_view kOptionComma = ", ";
inline constexpr std::string_view kLifeTable = "LTAB";
inline constexpr std::string_view kSpecifyCovariates = "You must specify Time Dependent Covariates for each Covariate.";
inline constexpr std::string_view kSelectCovariates = "You must select Time Dependent Covariates for each Covariate.";
inline constexpr std::string_view kMaximumTimeMissing = "You must specify Maximum time.";

// Spatial statistics, POSAC, conjoint, correspondence analysis, set
// correlations, perceptual mapping, trees, signal detection, test items and
// RAMONA.
inline constexpr std::string_view kSelectPointCoordinates =
    "You must select at least X and Y variables for Point calculations.";
inline constexpr std::string_view kPosacVariables = "You must select at least 3 variables for POSAC.";
inline constexpr std::string_view kNoIndependentsForBiplot =
    "You must not select independent variable(s) for Biplot or MDPREF.";
inline constexpr std::string_view kSpatial = "SPATIAL";
inline constexpr std::string_view kVarioFile = "VARIO.KVD";
inline constexpr std::string_view kKrigingFile = "KRIGING.KVD";
inline constexpr std::string_view kSimulateFile = "SIMULATE.KVD";
inline constexpr std::string_view kPoint = "POINT";
inline constexpr std::string_view kVario = "VARIO /";
inline constexpr std::string_view kKrig = "KRIG /";
inline constexpr std::string_view kSimulate = "SIMULATE /";
inline constexpr std::string_view kPosac = "POSAC";
inline constexpr std::string_view kPosacFile = "POSAC.KVD";
inline constexpr std::string_view kConjoint = "CONJOINT";
inline constexpr std::string_view kConjointFile = "CONJOINT.KVD";
inline constexpr std::string_view kIterationsLong = " ITERATIONS=";
inline constexpr std::string_view kConvergenceLong = " CONVERGENCE=";
inline constexpr std::string_view kDefaultScalingConvergence = "0.00001";
inline constexpr std::string_view kPolarity = " POLARITY=";
inline constexpr std::string_view kPositive = "POSITIVE";
inline constexpr std::string_view kNegative = "NEGATIVE";
inline constexpr std::string_view kStressLoss = " LOSS=STRESS";
inline constexpr std::string_view kRegression = " REGRESSION=";
inline constexpr std::string_view kMonotonic = "MONOTONIC";
inline constexpr std::string_view kLinearRegression = "LINEAR";
inline constexpr std::string_view kPowerRegression = "POWER";
inline constexpr std::string_view kCoran = "CORAN";
inline constexpr std::string_view kPairwise = "/ PAIRWISE";
inline constexpr std::string_view kSetcor = "SETCOR";
inline constexpr std::string_view kError = "ERROR";
inline constexpr std::string_view kPermap = "PERMAP";
inline constexpr std::string_view kPermapMethod = "ESTIMATE / METHOD=";
inline constexpr std::string_view kNegativePolarity = " POLARITY=NEGATIVE";
inline constexpr std::string_view kDimension = " DIMENSION=";
inline constexpr std::string_view kStandardize = " STANDARDIZE";
// The perceptual-mapping methods, in the order the method box shows them;
// the first two take no independent variables.
struct MappingMethod {
    std::string_view entry;
    std::string_view keyword;
};
inline constexpr MappingMethod kMappingMethods[] = {
    {"Biplot", "BIPLOT"},       {"MDPREF", "MDPREF"},        {"Vector model", "VECTOR"},
    {"Circle model", "CIRCLE"}, {"Ellipse model", "ELLIPSE"},
};
inline constexpr std::string_view kTrees = "TREES";
inline constexpr std::string_view kExpand = "/ EXPAND";
inline constexpr std::string_view kSignal = "SIGNAL";
inline constexpr std::string_view kDefaultSignalConverge = "0.001";
inline constexpr std::string_view kM0 = " M0=";
inline constexpr std::string_view kDefaultM0 = "1.814";
inline constexpr std::string_view kMean = " MEAN=";
inline constexpr std::string_view kStartValues = " START";
inline constexpr std::string_view kDf = " DF=";
inline constexpr std::string_view kTestat = "TESTAT";
inline constexpr std::string_view kTestatFile = "TESTAT.KVD";
inline constexpr std::string_view kKey = "KEY";
inline constexpr std::string_view kLog1 = "/ LOG1";
inline constexpr std::string_view kLog2 = "/ LOG2";
inline constexpr std::string_view kSteps = " STEPS=";
inline constexpr std::string_view kDefaultTestatConverge = "0.005";
inline constexpr std::string_view kLconverge = " LCONVERGE=";
inline constexpr std::string_view kClassical = "ESTIMATE / CLASS";
inline constexpr std::string_view kHalf = " HALF";
inline constexpr std::string_view kRamona = "RAMONA";
inline constexpr std::string_view kManifest = "MANIFEST";
inline constexpr std::string_view kLatent = "LATENT";
inline constexpr std::string_view kPathSeparator = ", ";
inline constexpr std::string_view kDispersion = " DISP=";
inline constexpr std::string_view kCovariances = "COVA";
inline constexpr std::string_view kCorrelations = "CORR";
inline constexpr std::string_view kRough = "ROUGH";
inline constexpr std::string_view kClose = "CLOSE";
inline constexpr std::string_view kMethod = " METHOD=";
inline constexpr std::string_view kAdfGramian = "ADFG";
inline constexpr std::string_view kAdfUnbiased = "ADFU";
inline constexpr std::string_view kNcases = " NCASES=";
inline constexpr std::string_view kConvg = " CONVG=";
inline constexpr std::string_view kDefaultConvg = "0.0001";
inline constexpr std::string_view kConfi = " CONFI=";

}  // namespace kvs::stats::text

// Basic Statistics, Cronbach, Stem, Correlations, clustering, Factor
// Analysis and Multidimensional Scaling.
namespace kvs::stats::text {

// An entry of a choice box and the keyword it writes.
struct Choice {
    std::string_view entry;
    std::string_view keyword;
};

// Basic Statistics (248), Cronbach (250), Stem (251).
inline constexpr std::string_view kStats = "STATS";
inline constexpr std::string_view kStatsFile = "STATS.KVD";
inline constexpr std::string_view kOnewayFile = "ONEWAY.KVD";
inline constexpr std::string_view kCronbachFile = "CRONBACH.KVD";
inline constexpr std::string_view kStatistics = "STATISTICS";
inline constexpr std::string_view kOneway = "ONEWAY";
inline constexpr std::string_view kCronbach = "CRONBACH ";
inline constexpr std::string_view kStem = "STEM ";
inline constexpr std::string_view kTukey = " / TUKEY";
inline constexpr std::string_view kStatisticsSlash = " /";
inline constexpr std::string_view kCim = " CIM";
inline constexpr std::string_view kCimValue = "=";
inline constexpr std::string_view kDefaultCim = ".95";
inline constexpr std::string_view kStemLines = " / LINE=";
inline constexpr std::string_view kSaveAggregated = "/ AG";
inline constexpr std::string_view kPrintShort = "PRINT SHORT";
inline constexpr std::string_view kPrintLong = "PRINT LONG";
// The statistics of the list, in the order shown and written.
inline constexpr Choice kStatisticsList[] = {
    {"Mean", " Mean"},         {"Minimum", " Min"},      {"Maximum", " Max"},
    {"Std. deviation", " SD"}, {"CV", " CV"},            {"Kurtosis", " Kurtosis"},
    {"Median", " Median"},     {"Range", " Range"},      {"SE of kurtosis", " SEK"},
    {"SE of mean", " SEM"},    {"SE of skewness", " SES"}, {"Skewness", " Skewness"},
    {"Sum", " Sum"},           {"Variance", " Variance"}, {"N of cases", " N"},
};
inline constexpr std::string_view kPrintLengths[] = {"Short", "Medium", "Long"};
inline constexpr std::string_view kStatsSaveKinds[] = {"Statistics", "Aggregate by groups"};

// Correlations (204).
inline constexpr std::string_view kCorr = "CORR";
inline constexpr std::string_view kCorrFile = "CORR.KVD";
inline constexpr std::string_view kCorrPairwise = " / PAIRWISE";
inline constexpr std::string_view kWith = " * ";
inline constexpr Choice kCorrMeasures[] = {
    {"Pearson", "PEARSON"},
    {"Covariance", "COVARIANCE"},
    {"SSCP", "SSCP"},
    {"Spearman", "SPEARMAN"},
    {"Gamma", "GAMMA"},
    {"Mu2", "MU2"},
    {"Tau", "TAU"},
    {"Euclidean distance", "EUCLID"},
    {"Tetrachoric", "TETRA"},
    {"S2 (Russell and Rao)", "S2"},
    {"S3 (Jaccard)", "S3"},
    {"S4 (simple matching)", "S4"},
    {"S5 (Anderberg)", "S5"},
    {"S6 (Tanimoto)", "S6"},
};

// Clustering (202 JOIN, 203 KMEANS, 254 ADDTREE).
inline constexpr std::string_view kCluster = "CLUSTER";
inline constexpr std::string_view kJoinFile = "JOIN.KVD";
inline constexpr std::string_view kKmeansFile = "KMEANS.KVD";
inline constexpr std::string_view kAddtreeFile = "ADDTREE.KVD";
inline constexpr std::string_view kJoin = "JOIN";
inline constexpr std::string_view kKmeans = "KMEANS";
inline constexpr std::string_view kAddtree = "ADDTREE";
inline constexpr std::string_view kClusterSlash = " /";
inline constexpr std::string_view kRows = " ROWS";
inline constexpr std::string_view kColumns = " COLUMNS";
inline constexpr std::string_view kMatrix = " MATRIX";
inline constexpr std::string_view kDistance = " DISTANCE=";
inline constexpr std::string_view kPower = " POWER=";
inline constexpr std::string_view kLinkage = " LINKAGE=";
inline constexpr std::string_view kPolar = " POLAR";
inline constexpr std::string_view kNumber = " NUMBER=";
inline constexpr std::string_view kIter = " ITER=";
inline constexpr std::string_view kHeight = " HEIGHT";
inline constexpr std::string_view kMinvar = " MINVAR";
inline constexpr std::string_view kNoNumbers = " NONUMBERS";
inline constexpr std::string_view kNoSubtract = " NOSUBTRACT";
inline constexpr std::string_view kNoTree = " NOTREE";
inline constexpr std::string_view kData = " DATA";
inline constexpr std::string_view kTransformed = " TRANSFORMED";
inline constexpr std::string_view kAdditiveMatrix = " ADDITIVE";
inline constexpr std::string_view kResiduals = " RESIDUALS";
// The first entry of each is the procedure's own default and writes nothing.
inline constexpr Choice kDistances[] = {
    {"Euclidean", "EUCLIDEAN"}, {"Normalized Euclidean", "NORM"}, {"Minkowski", "MINKOWSKI"},
    {"Pearson", "PEARSON"},     {"R-square", "RSQUARED"},         {"Gamma", "GAMMA"},
    {"Chi-square", "CHISQUARE"}, {"Phi-square", "PHI2"},          {"Percent", "PERCENT"},
};
inline constexpr int kMinkowski = 2;  // the distance that takes a power
inline constexpr Choice kLinkages[] = {
    {"Single", "SINGLE"},     {"Complete", "COMPLETE"}, {"Average", "AVERAGE"}, {"Centroid", "CENTROID"},
    {"Median", "MEDIAN"},     {"Ward", "WARD"},         {"Weighted", "WEIGHTED"},
};

// Factor Analysis (215).
inline constexpr std::string_view kFactor = "FACTOR";
inline constexpr std::string_view kFactorFile = "FACTOR.KVD";
inline constexpr std::string_view kFactorMethod = "/ METHOD=";
inline constexpr std::string_view kListwise = " LISTWISE";
inline constexpr std::string_view kPairwiseDeletion = " PAIRWISE";
inline constexpr std::string_view kCorrMatrix = " CORR";
inline constexpr std::string_view kCovMatrix = " COV";
inline constexpr std::string_view kSort = " SORT";
inline constexpr std::string_view kEigen = " EIGEN=";
inline constexpr std::string_view kConv = " CONV=";
inline constexpr std::string_view kDefaultFactorConv = ".001";
inline constexpr std::string_view kPrint = "PRINT";
inline constexpr std::string_view kLong = " LONG";
inline constexpr std::string_view kShort = " SHORT";
inline constexpr std::string_view kExit = "EXIT";
inline constexpr Choice kFactorMethods[] = {
    {"Principal components", "PCA"},
    {"Iterated principal axis", "IPA"},
    {"Maximum likelihood", "MLA"},
};
inline constexpr std::string_view kFactorSaveModes[] = {"None", "Scores", "Coefficients", "Loadings"};

// Multidimensional Scaling (216).
inline constexpr std::string_view kMds = "MDS";
inline constexpr std::string_view kMdsFile = "MDS.KVD";
inline constexpr std::string_view kShapeSquare = " / SHAPE=SQUARE";
inline constexpr std::string_view kShapeRect = " / SHAPE=RECT";
inline constexpr std::string_view kMdsRows = " ROWS=";
inline constexpr std::string_view kDim = " DIM=";
inline constexpr std::string_view kMdsConverge = " CONVERGE=";
inline constexpr std::string_view kDefaultMdsConverge = "0.005";
inline constexpr std::string_view kWeight = " WEIGHT";
inline constexpr std::string_view kSplit = " SPLIT=";
inline constexpr std::string_view kMdsLoss = " LOSS=";
inline constexpr std::string_view kKruskalRegression = "KRUSKAL REGRESSION=";
inline constexpr std::string_view kGuttman = "GUTTMAN";
inline constexpr std::string_view kYoung = "YOUNG";
inline constexpr Choice kMdsRegressions[] = {
    {"Monotonic", "MONO"}, {"Linear", "LINEAR"}, {"Log", "LOG"}, {"Power", "POWER"},
};
inline constexpr Choice kMdsSplits[] = {{"None", ""}, {"Rows", "ROW"}, {"Matrices", "MATRIX"}};
inline constexpr std::string_view kMdsSaveQualifier = " / ";
inline constexpr Choice kMdsSaveKinds[] = {
    {"Configuration", "CONFIG"}, {"Distances", "DIST"}, {"Residuals", "RESID"},
};

// Nonparametric tests.
inline constexpr std::string_view kNpar = "NPAR";
inline constexpr std::string_view kNparFile = "NPAR.KVD";
inline constexpr std::string_view kFriedman = "FRIEDMAN ";
inline constexpr std::string_view kKruskal = "KRUSKAL ";
inline constexpr std::string_view kSign = "SIGN ";
inline constexpr std::string_view kRuns = "RUNS ";
inline constexpr std::string_view kWilcoxon = "WILCOXON ";
inline constexpr std::string_view kKolmogorov = "KS ";
inline constexpr std::string_view kCut = " /CUT=";
inline constexpr std::string_view kNormal = " / NORMAL";
inline constexpr std::string_view kUniform = " / UNIFORM";
inline constexpr std::string_view kExponential = " / EXPONENTIAL";
inline constexpr std::string_view kLilliefors = " / LILLIEFORS";
inline constexpr std::string_view kParameters = "=";
inline constexpr std::string_view kParameterSeparator = ",";
inline constexpr std::string_view kDefaultMean = "0";
inline constexpr std::string_view kDefaultSd = "1";
inline constexpr std::string_view kDefaultLower = "0";
inline constexpr std::string_view kDefaultUpper = "1";
inline constexpr std::string_view kDefaultScale = "1";

// Tables.
inline constexpr std::string_view kXtab = "XTAB";
inline constexpr std::string_view kTablesFile = "TABLES.KVD";
inline constexpr std::string_view kTabulate = "TABULATE ";
inline constexpr std::string_view kCrossedBy = " * ";
inline constexpr std::string_view kPrintOnly = " NONE/";
// The statistics a table prints, by check box (IDC_XTAB_FREQ on).
inline constexpr std::string_view kTablePrints[] = {
    " FREQ", " PERCENT", " ROWP", " COLP", " EXPECT", " DEVIATE", " STANDARD", " CHISQ",
};
inline constexpr std::string_view kListLayout = " LIST";
inline constexpr std::string_view kMissing = " MISS";
inline constexpr std::string_view kMantel = " MANTEL";
inline constexpr std::string_view kDefaultConfi = "0.95";

// Log-linear models.
inline constexpr std::string_view kLoglin = "LOGLIN";
inline constexpr std::string_view kLoglinFile = "LOGLIN.KVD";
inline constexpr std::string_view kLambdasQualifier = " / LAMBDAS";
inline constexpr std::string_view kEstimatesQualifier = " / ESTIMATES";
inline constexpr std::string_view kCrossed = "*";
inline constexpr std::string_view kLoglinPrintNone = "PRINT NONE/";
// What the model prints, by check box (IDC_LOGLIN_OBSERVED on).
inline constexpr std::string_view kLoglinPrints[] = {" OBSERVED", " EXPECT", " STANDARD", " LAMBDA", " CHISQ"};
inline constexpr std::string_view kDefaultConv = "0.0001";
inline constexpr std::string_view kLconv = " LCONV=";
inline constexpr std::string_view kDefaultLconv = "0.000001";
inline constexpr std::string_view kDefaultLoglinTol = "0.001";
inline constexpr std::string_view kHalvings = " HALF=";
inline constexpr std::string_view kDelta = " DELTA=";

// Design of Experiments.
inline constexpr std::string_view kDesign = "DESIGN";
inline constexpr std::string_view kDesignFile = "XDESIGN.KVD";
// The verb of each design, by radio button (IDC_DOE_FULL on).
inline constexpr std::string_view kDesignVerbs[] = {"FACTORIAL", "FACTORIAL", "LATIN", "PLACKETT", "BOXBEHNKEN", "TAGUCHI"};
inline constexpr std::string_view kLevels = " LEVELS=";
inline constexpr std::string_view kDefaultLevels = "2";
inline constexpr std::string_view kFactors = " FACTORS=";
inline constexpr std::string_view kRunCount = " RUNS=";
inline constexpr std::string_view kReplications = " REPS=";
inline constexpr std::string_view kDefaultReplications = "1";
inline constexpr std::string_view kDesignType = " TYPE=";
inline constexpr std::string_view kLetters = " LETTERS";
inline constexpr std::string_view kSquares = " SQUARES";
inline constexpr std::string_view kRandomize = " RAND";
inline constexpr std::string_view kBlock = " BLOCK";
// The Taguchi arrays the Array box offers, in order.
inline constexpr std::string_view kTaguchiArrays[] = {"L4",  "L8",  "L9",  "L12", "L16", "L18", "L25",
                                                      "L27", "L32", "L36", "L50", "L54", "L64", "L81"};

// The options of the spatial analyses.
inline constexpr std::string_view kLagCount = " NLAGS=";
inline constexpr std::string_view kLagWidth = " WIDTH=";
inline constexpr std::string_view kSearchPoints = " POINTS=";
inline constexpr std::string_view kSearchRadius = " RADIUS=";
inline constexpr std::string_view kRealizations = " NREAL=";
inline constexpr std::string_view kSeed = " SEED=";

// The linear models' category, covariate, quadratic and dependent clauses.
inline constexpr std::string_view kMissingCategory = " /MISS";
inline constexpr std::string_view kCovariates = "COVAR ";
inline constexpr std::string_view kQuadratic = " / QUAD";
inline constexpr std::string_view kDepend = "DEPEND ";

}  // namespace kvs::stats::text
