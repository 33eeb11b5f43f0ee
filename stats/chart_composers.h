// The quality-control chart builders (270 to 280) as pure functions: a
// dialog's settings and the names in its lists give the one chart line of
// its QC block, or the refusal.
#pragma once

#include <cstdint>
#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/stats_ids.h"

namespace kvs::stats {

// The control limits of a chart, a part of its record: the kind of limits
// and the upper and lower values.
struct ChartLimits {
    int limitType = IDC_QC_SIGMA_LIMITS;  // IDC_QC_PROBABILITY, IDC_QC_PRESET or IDC_QC_SIGMA_LIMITS
    std::string upper;
    std::string lower;
};

// Whether a chart type (its position in the chart-type box) has a sigma of
// its own to give: the counts and proportions take theirs from the centre,
// so their "Sigma:" box is disabled and not read.
bool shewhartTakesSigma(int chart);
bool curveTakesSigma(int chart);

// Shewhart (270).
struct ShewhartSettings : ChartLimits {
    int chart = 0;  // position in kShewhartCharts
    std::string center;
    std::string sigma;
    bool averageSize = false;
    bool aggregate = false;
    bool indicateSize = false;
    bool zUnits = false;
};
ProcedureBlock composeShewhart(const ShewhartSettings& settings, const Names& y, const Names& x);

// Operating Characteristic Curve (271) and Average Run Length (272).
struct CurveSettings {
    int chart = 0;  // position in kCurveCharts
    std::string sampleSize;
    std::string center;
    std::string sigma;
    std::string upper;  // probability limits
    std::string lower;
};
ProcedureBlock composeCurve(std::uint16_t commandId, const CurveSettings& settings);
// Whether OK refuses the settings for their centre (a proportion chart
// needs one strictly between 0 and 1).
bool curveCenterRefused(const CurveSettings& settings);

// Pareto (273).
struct ParetoSettings {
    bool cumulative = false;
    bool percent = false;
    bool aggregate = false;
};
ProcedureBlock composePareto(const ParetoSettings& settings, const Names& y, const Names& x);

// Box and Whisker (274).
struct BoxChartSettings {
    std::string center;
    std::string upper;
    std::string lower;
};
ProcedureBlock composeBoxChart(const BoxChartSettings& settings, const Names& y, const Names& x);

// Moving Average (275) and Exponentially Weighted Moving Average (276).
struct MovingChartSettings : ChartLimits {
    std::string span;
    std::string center;
    std::string sigma;
    bool averageSize = false;
    bool aggregate = false;
};
ProcedureBlock composeMovingChart(std::uint16_t commandId, const MovingChartSettings& settings, const Names& y,
                                  const Names& x);

// Regression Chart (277): probability or sigma limits.
struct RegressionChartSettings : ChartLimits {
    std::string sigma;
};
ProcedureBlock composeRegressionChart(const RegressionChartSettings& settings, const Names& y, const Names& x);

// Cusum (278).
struct CusumSettings {
    std::string k;
    std::string h;
    std::string start;
    bool upperSum = true;
    bool lowerSum = true;
    std::string zcl;
    std::string center;
    std::string sigma;
    bool aggregate = false;
};
ProcedureBlock composeCusum(const CusumSettings& settings, const Names& y, const Names& x);

// TSQ (279): probability or preset limits, and a covariance matrix from an
// external file when asked.
struct TsqSettings : ChartLimits {
    TsqSettings() { limitType = IDC_QC_PROBABILITY; }
    bool averageSize = false;
    bool aggregate = false;
    bool external = false;
    std::string covarianceFile;
};
ProcedureBlock composeTsq(const TsqSettings& settings, const Names& variables, const Names& subgroup);

// Process Control Analysis (280).
struct PcaSettings {
    std::string upperLimit;
    std::string lowerLimit;
};
ProcedureBlock composePca(const PcaSettings& settings, const Names& variables);

}  // namespace kvs::stats
