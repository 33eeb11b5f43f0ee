// The time-series and control-chart builders as pure functions, row by row.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/chart_composers.h"
#include "stats/series_composers.h"
#include "stats/stats_texts.h"

namespace kvs::stats {
namespace {

// The one line of a block, or its refusal.
std::string lineOf(const ProcedureBlock& block) {
    if (block.body.refused()) return "refused: " + block.body.refusal;
    EXPECT_EQ(block.body.lines.size(), 1u);
    return block.body.lines.empty() ? std::string() : block.body.lines.front();
}

const Names kSales = {"SALES"};

TEST(SeriesComposers, ArimaOrdersDefaultsAndForecast) {
    ArimaSettings s;
    EXPECT_EQ(lineOf(composeArima(s, kSales)), "ARIMA SALES");  // " /" with nothing after it goes
    s.ar = true, s.arValue = "1", s.ma = true, s.maValue = "1", s.periodicity = true;
    s.forecast = true, s.forecastNumber = "10", s.constant = true;
    EXPECT_EQ(lineOf(composeArima(s, kSales)), "ARIMA SALES / P=1 Q=1 FORECAST=10 CONSTANT");
    // Unchecked orders are not written; "0", "12", "20", ".01", "0" are the defaults.
    ArimaSettings t;
    t.arValue = "2", t.seasonalAr = true, t.seasonalArValue = "0", t.seasonalMa = true, t.periodicity = true;
    t.period = "4", t.iterations = "21", t.convergence = "0.01", t.backcast = "0";
    t.forecast = true, t.forecastKind = IDC_SERIES_FROM, t.forecastFrom = "100", t.forecastTo = "120";
    EXPECT_EQ(lineOf(composeArima(t, {"A", "B"})), "ARIMA A B / PS=0 SEASON=4 ITER=21 CONV=0.01 FORECAST=100 ..120");
    t.forecastTo = " ";
    EXPECT_EQ(lineOf(composeArima(t, kSales)), "refused: You must provide a complete range.");
    EXPECT_EQ(lineOf(composeArima(s, {})), "refused: You must select variables.");
    const ProcedureBlock block = composeArima(s, kSales);
    EXPECT_EQ(block.procedure, "SERIES");
    EXPECT_EQ(block.saveFile, "ARIMA.KVD");
}

TEST(SeriesComposers, ExpoComponentsPeriodAndRange) {
    ExpoSettings s;
    EXPECT_EQ(lineOf(composeExpo(s, kSales)), "EXPO SALES");
    s.trend = true, s.linear = ".2", s.percent = "5";
    s.seasonal = true, s.seasonalKind = IDC_EXPO_MULTI, s.additive = ".1", s.multiplicative = ".3";
    s.period = "12";  // written although "Seasonal periodicity:" is unchecked
    s.smooth = ".5";
    EXPECT_EQ(lineOf(composeExpo(s, kSales)), "EXPO SALES / LINEAR=.2 MULTI=.3 SEASON=12 SMOOTH=.5");
    s.trendKind = IDC_EXPO_PERCENT, s.seasonal = false, s.period.clear(), s.smooth.clear();
    s.forecast = true, s.forecastKind = IDC_SERIES_FROM, s.forecastFrom = "100", s.forecastTo = "120";
    EXPECT_EQ(lineOf(composeExpo(s, kSales)), "EXPO SALES / PERCENT=5 FORECAST=100..120");
    EXPECT_EQ(composeExpo(s, kSales).saveFile, "EXPO.KVD");
    s.forecastKind = IDC_SERIES_NUMBER;
    EXPECT_EQ(lineOf(composeExpo(s, kSales)), "refused: You must provide a complete range.");
}

TEST(SeriesComposers, OneLineDialogs) {
    struct Row {
        ProcedureBlock block;
        std::string line;
        std::string_view saveFile;
    };
    const Names two = {"SALES", "PRICE"};
    SmoothSettings median;
    median.by = IDC_SMOOTH_BY_MEDIAN, median.median = "5";
    SmoothSettings weights;
    weights.by = IDC_SMOOTH_BY_WEIGHT, weights.weights = "1,2,1";
    SeasonalSettings mult;
    mult.term = true, mult.termKind = IDC_SEASONAL_MULT, mult.season = "4";
    SeasonalSettings additive;
    additive.term = true;
    const std::vector<Row> rows = {
        {composeLagged(234, {"3"}, two), "FOURIER SALES PRICE /LAG=3", "FOURIER.KVD"},
        {composeLagged(234, {""}, kSales), "FOURIER SALES", "FOURIER.KVD"},
        {composeLagged(234, {"10"}, kSales), "refused: Lag requires values between 1 and 9.", ""},
        {composeLagged(234, {"2.5"}, kSales), "refused: Lag requires values between 1 and 9.", ""},
        {composeLagged(239, {"12"}, kSales), "ACF SALES/LAG=12", ""},
        {composeLagged(240, {""}, kSales), "PACF SALES", ""},
        {composeLagged(241, {"6"}, two), "CCF SALES PRICE/LAG=6", ""},
        {composeLagged(241, {"6"}, {}), "refused: You must select variables.", ""},
        {composeLowess({".5"}, kSales), "SMOOTH SALES", "LOWESS.KVD"},
        {composeLowess({"0.5"}, kSales), "SMOOTH SALES/LOWESS=0.5", "LOWESS.KVD"},
        {composeSeasonal({}, kSales), "ADJSEASON SALES", "SEASONAL.KVD"},
        {composeSeasonal(mult, kSales), "ADJSEASON SALES / MULT SEASON=4", "SEASONAL.KVD"},
        {composeSeasonal(additive, kSales), "ADJSEASON SALES / ADDITIVE", "SEASONAL.KVD"},
        {composeSmooth({}, kSales), "SMOOTH SALES /MEAN=3", "SMOOTH.KVD"},
        {composeSmooth(median, kSales), "SMOOTH SALES /MEDIAN=5", "SMOOTH.KVD"},
        {composeSmooth(weights, kSales), "SMOOTH SALES /WT=1,2,1", "SMOOTH.KVD"},
        {composeTplot(two), "TPLOT SALES PRICE", ""},
        {composeTime({"1990", "", "", "YEAR"}), "TIME 1990 / FORMAT='YEAR'", ""},
        {composeTime({"1990", "1", "12", "MONTH"}), "TIME 1990,1,12 / FORMAT='MONTH'", ""},
        {composeTime({"1990", "", "", " "}), "refused: You must provide more input.", ""},
        {composeTime({"", "", "", "YEAR"}), "refused: You must provide more input.", ""},
        {composeTime({"1990", "", "12", "YEAR"}), "refused: You must provide more input.", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(lineOf(row.block), row.line);
        if (!row.block.body.refused()) {
            EXPECT_EQ(row.block.saveFile, row.saveFile) << row.line;
        }
    }
}

TEST(SeriesComposers, TransformationsAndTheirValues) {
    const std::vector<std::pair<int, std::string>> rows = {
        {IDC_TRANSFORM_LOG, "LOG SALES"},          {IDC_TRANSFORM_SQUARE, "SQUARE SALES"},
        {IDC_TRANSFORM_MEAN, "MEAN SALES"},        {IDC_TRANSFORM_TREND, "TREND SALES"},
        {IDC_TRANSFORM_DIFF, "DIFF SALES/LAG=2"},  {IDC_TRANSFORM_PCHANGE, "PCHANGE SALES/LAG=2"},
        {IDC_TRANSFORM_LAG, "LAG SALES/LAG=2"},    {IDC_TRANSFORM_POWER, "POWER SALES/EXP=2"},
    };
    for (const auto& [chosen, line] : rows) {
        EXPECT_EQ(lineOf(composeTransform({chosen, "2"}, kSales)), line);
        if (transformTakesValue(chosen)) {
            EXPECT_EQ(lineOf(composeTransform({chosen, " "}, kSales)),
                      "refused: You must provide a value for the selected function.");
        }
    }
    EXPECT_EQ(composeTransform({}, kSales).saveFile, "TRANSFRM.KVD");
}

const Names kWeight = {"WEIGHT"};
const Names kLot = {"LOT"};

TEST(ChartComposers, ShewhartTypesLimitsAndSubgroupOptions) {
    ShewhartSettings s;
    s.chart = 5, s.upper = "3", s.lower = "-3";
    EXPECT_EQ(lineOf(composeShewhart(s, kWeight, kLot)), "SHEWHART WEIGHT*LOT / TYPE=XBAR_R SLIMITS=3, -3");
    s.limitType = IDC_QC_PROBABILITY, s.upper = "0.00135", s.lower = "0.99865";
    EXPECT_EQ(lineOf(composeShewhart(s, kWeight, kLot)),
              "SHEWHART WEIGHT*LOT / TYPE=XBAR_R PLIMITS=0.00135, 0.99865");
    s.limitType = IDC_QC_PRESET, s.upper.clear();  // only the lower limit
    s.center = "10", s.sigma = "2", s.averageSize = true, s.indicateSize = true, s.zUnits = true;
    EXPECT_EQ(lineOf(composeShewhart(s, {"A", "B"}, kLot)),
              "SHEWHART A B*LOT / TYPE=XBAR_R LIMITS=0.99865 CENTER=10 SIGMA=2 AVGN Z");
    s.aggregate = true, s.averageSize = false, s.zUnits = false, s.lower.clear();
    s.chart = 8;  // a proportion: its sigma box is disabled and not read
    EXPECT_EQ(lineOf(composeShewhart(s, kWeight, kLot)), "SHEWHART WEIGHT*LOT / TYPE=P CENTER=10 AGG=TOTAL");
    EXPECT_EQ(lineOf(composeShewhart(s, kWeight, {})), "refused: You must select variables.");
    EXPECT_EQ(lineOf(composeShewhart(s, {}, kLot)), "refused: You must select variables.");
    // Every entry of the chart-type box writes its keyword.
    std::vector<std::string> keywords;
    for (int chart = 0; chart < 11; ++chart) {
        ShewhartSettings plain;
        plain.chart = chart;
        const std::string line = lineOf(composeShewhart(plain, kWeight, kLot));
        keywords.push_back(line.substr(line.find("TYPE=") + 5));
    }
    EXPECT_EQ(keywords, (std::vector<std::string>{"XBAR", "VAR", "S", "R", "XBAR_S", "XBAR_R", "X", "NP", "P", "C",
                                                  "U"}));
    EXPECT_EQ(composeShewhart(s, kWeight, kLot).procedure, "QC");
    EXPECT_TRUE(composeShewhart(s, kWeight, kLot).saveFile.empty());
}

TEST(ChartComposers, CurvesAndTheProportionsCentre) {
    CurveSettings s;
    EXPECT_EQ(lineOf(composeCurve(271, s)), "OC / TYPE=XBAR");
    s.chart = 3, s.sampleSize = "5", s.center = "2", s.sigma = "0.5", s.upper = "0.001", s.lower = "0.999";
    EXPECT_EQ(lineOf(composeCurve(272, s)), "ARL / TYPE=R N=5 CENTER=2 SIGMA=0.5 PLIMITS=0.001, 0.999");
    s.chart = 5, s.upper.clear();
    for (const char* refused : {"", "0", "-0.5", "1", "1.5", "abc"}) {
        s.center = refused;
        EXPECT_EQ(lineOf(composeCurve(271, s)), "refused: Center value must be between 0 and 1") << refused;
    }
    s.center = "0.05";
    EXPECT_EQ(lineOf(composeCurve(271, s)), "OC / TYPE=P N=5 CENTER=0.05 PLIMITS=0.999");
    s.chart = 4, s.center = "7";  // only a proportion's centre is checked
    EXPECT_EQ(lineOf(composeCurve(271, s)), "OC / TYPE=NP N=5 CENTER=7 PLIMITS=0.999");
}

TEST(ChartComposers, TheOtherCharts) {
    ParetoSettings pareto{true, true, true};
    BoxChartSettings box{"", "", "8"};
    MovingChartSettings moving;
    moving.span = "5", moving.upper = "3", moving.averageSize = true, moving.aggregate = true;
    MovingChartSettings ewma;
    ewma.span = "0.2", ewma.limitType = IDC_QC_PROBABILITY, ewma.lower = "0.00135";
    RegressionChartSettings regression;
    regression.upper = "3", regression.sigma = "2";
    CusumSettings both;
    CusumSettings upper;
    upper.k = "0.5", upper.h = "4", upper.start = "0", upper.lowerSum = false, upper.zcl = "3", upper.aggregate = true;
    CusumSettings lower;
    lower.upperSum = false;
    CusumSettings neither = lower;
    neither.lowerSum = false;
    TsqSettings tsq;
    tsq.upper = "0.99", tsq.aggregate = true;
    TsqSettings external = tsq;
    external.external = true, external.covarianceFile = "C:\\COV.KVD";
    TsqSettings noFile = external;
    noFile.covarianceFile = "  ";
    const std::vector<std::pair<ProcedureBlock, std::string>> rows = {
        {composePareto({}, kWeight, kLot), "PARETO WEIGHT*LOT"},
        {composePareto(pareto, kWeight, kLot), "PARETO WEIGHT*LOT / CUM P AGG"},
        {composeBoxChart({"10", "12", "8"}, kWeight, kLot), "BOX WEIGHT*LOT / CENTER=10 LIMITS=12, 8"},
        {composeBoxChart(box, kWeight, kLot), "BOX WEIGHT*LOT / LIMITS=8"},
        {composeMovingChart(275, moving, kWeight, kLot), "MA WEIGHT*LOT / WIDTH=5 SLIMITS=3 AVGN AGG"},
        {composeMovingChart(276, ewma, kWeight, kLot), "EWMA WEIGHT*LOT / K=0.2 PLIMITS=0.00135"},
        {composeMovingChart(276, ewma, {}, kLot), "refused: You must select variables."},
        {composeRegressionChart(regression, kWeight, kLot), "REGRESS WEIGHT*LOT / SLIMITS=3 SIGMA=2"},
        {composeCusum(both, kWeight, kLot), "CUSUM WEIGHT*LOT"},
        {composeCusum(upper, kWeight, kLot), "CUSUM WEIGHT*LOT / K=0.5 H=4 START=0 UPPER ZCL=3 AGG"},
        {composeCusum(lower, kWeight, kLot), "CUSUM WEIGHT*LOT / LOWER"},
        {composeCusum(neither, kWeight, kLot), "refused: You must select 'Upper' or 'Lower' graph to display."},
        {composeTsq(tsq, {"A", "B"}, kLot), "TSQ A B*LOT / PLIMITS=0.99 AGG"},
        {composeTsq(external, {"A", "B"}, kLot), "TSQ A B*LOT / COVAR=C:\\COV.KVD PLIMITS=0.99 AGG"},
        {composeTsq(noFile, {"A"}, kLot), "refused: You must select external file."},
        {composeTsq(tsq, {"A"}, {}), "refused: You must select variables."},
        {composePca({}, kWeight), "PCA WEIGHT"},
        {composePca({"12", "8"}, kWeight), "PCA WEIGHT / USL=12 LSL=8"},
        {composePca({"", "8"}, {}), "refused: You must select variables."},
    };
    for (const auto& [block, line] : rows) {
        EXPECT_EQ(lineOf(block), line);
        EXPECT_EQ(block.procedure, "QC") << line;
    }
}

}  // namespace
}  // namespace kvs::stats
