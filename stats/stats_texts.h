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

}  // namespace kvs::stats::text
