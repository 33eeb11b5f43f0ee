// The time-series builders (232 to 241, 243, 244) as pure functions: a
// dialog's settings and the names in its variable list give the one line of
// its SERIES block, or the refusal.
#pragma once

#include <cstdint>
#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/stats_ids.h"

namespace kvs::stats {

// The forecast of ARIMA and Exponential Smoothing, a part of both records:
// a number of cases, or a range of cases from one value to another.
struct Forecast {
    bool forecast = false;
    int forecastKind = IDC_SERIES_NUMBER;  // or IDC_SERIES_FROM
    std::string forecastNumber;
    std::string forecastFrom;
    std::string forecastTo;
};

// ARIMA (232).
struct ArimaSettings : Forecast {
    bool ar = false;
    std::string arValue = "0";
    bool seasonalAr = false;
    std::string seasonalArValue;
    bool ma = false;
    std::string maValue = "0";
    bool seasonalMa = false;
    std::string seasonalMaValue = "0";
    bool periodicity = false;
    std::string period = "12";
    std::string iterations = "20";
    std::string convergence = ".01";
    std::string backcast = "0";
    bool constant = false;
};
ProcedureBlock composeArima(const ArimaSettings& settings, const Names& variables);

// Exponential Smoothing (233).
struct ExpoSettings : Forecast {
    bool trend = false;
    int trendKind = IDC_EXPO_LINEAR;  // or IDC_EXPO_PERCENT
    std::string linear;
    std::string percent;
    bool seasonal = false;
    int seasonalKind = IDC_EXPO_ADDITIVE;  // or IDC_EXPO_MULTI
    std::string additive;
    std::string multiplicative;
    bool periodicity = false;  // kept and shown; the period is written whenever given
    std::string period;
    std::string smooth;
};
ProcedureBlock composeExpo(const ExpoSettings& settings, const Names& variables);

// Fourier (234), ACF (239), PACF (240) and CCF (241): the variables and a lag.
struct LagSettings {
    std::string lag;
};
ProcedureBlock composeLagged(std::uint16_t commandId, const LagSettings& settings, const Names& variables);

// LOWESS (235).
struct LowessSettings {
    std::string tension = ".5";
};
ProcedureBlock composeLowess(const LowessSettings& settings, const Names& variables);

// Seasonal Adjustment (236).
struct SeasonalSettings {
    bool term = false;
    int termKind = IDC_SEASONAL_ADDITIVE;  // or IDC_SEASONAL_MULT
    std::string season = "12";
};
ProcedureBlock composeSeasonal(const SeasonalSettings& settings, const Names& variables);

// Smooth (237): weights, a running mean or a running median.
struct SmoothSettings {
    int by = IDC_SMOOTH_BY_MEAN;  // IDC_SMOOTH_BY_WEIGHT, _MEAN or _MEDIAN
    std::string weights;
    std::string mean = "3";
    std::string median = "3";
};
ProcedureBlock composeSmooth(const SmoothSettings& settings, const Names& variables);

// Tplot (238).
ProcedureBlock composeTplot(const Names& variables);

// Time (243): the start, up to two more values, the format.
struct TimeSettings {
    std::string start;
    std::string second;
    std::string third;
    std::string format;
};
ProcedureBlock composeTime(const TimeSettings& settings);

// Transformations (244): one of eight, with its value where it takes one.
struct TransformSettings {
    int chosen = IDC_TRANSFORM_LOG;  // IDC_TRANSFORM_FIRST to IDC_TRANSFORM_POWER
    std::string value;
};
ProcedureBlock composeTransform(const TransformSettings& settings, const Names& variables);
// Whether the chosen transformation takes the value.
bool transformTakesValue(int chosen);

}  // namespace kvs::stats
