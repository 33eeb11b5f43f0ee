#include "stats/series_composers.h"

#include <cmath>
#include <cstdlib>
#include <string>

#include "core/blank_text.h"
#include "core/messages.h"
#include "stats/line_endings.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

ProcedureBlock seriesBlock(std::string_view saveFile, const CommandText& line) {
    return {text::kSeries, saveFile, {}, Composition().add(line)};
}

ProcedureBlock refusal(std::string_view message) { return ProcedureBlock::refuse(text::kSeries, message); }

// " FORECAST=" and the number, or the range written with its own dots
// (ARIMA " ..", Exponential Smoothing ".."). False when a value it needs is
// missing.
bool appendForecast(CommandText& line, const Forecast& f, std::string_view rangeDots) {
    if (!f.forecast) return true;
    if (f.forecastKind == IDC_SERIES_FROM) {
        if (isBlankText(f.forecastFrom) || isBlankText(f.forecastTo)) return false;
        const CommandText::Piece piece(line);
        line.append(text::kForecast).append(f.forecastFrom).append(rangeDots).append(f.forecastTo);
        return true;
    }
    if (isBlankText(f.forecastNumber)) return false;
    appendOption(line, text::kForecast, f.forecastNumber);
    return true;
}

// A whole number from 1 to 9.
bool isLagInRange(std::string_view value) {
    const std::string text(value);
    char* end = nullptr;
    const double lag = std::strtod(text.c_str(), &end);
    if (end == text.c_str() || *end != '\0') return false;
    return lag >= 1 && lag <= 9 && std::floor(lag) == lag;
}

}  // namespace

ProcedureBlock composeArima(const ArimaSettings& s, const Names& variables) {
    const Composition named = namesLine(text::kArima, variables);
    if (named.refused()) return refusal(named.refusal);
    CommandText line(named.lines.front());
    line.append(text::kOptionsSlash);
    if (s.ar) appendOptionUnlessDefault(line, text::kArParameters, s.arValue, text::kDefaultParameters);
    if (s.seasonalAr) appendOption(line, text::kSeasonalAr, s.seasonalArValue);
    if (s.ma) appendOptionUnlessDefault(line, text::kMaParameters, s.maValue, text::kDefaultParameters);
    if (s.seasonalMa) appendOptionUnlessDefault(line, text::kSeasonalMa, s.seasonalMaValue, text::kDefaultParameters);
    if (s.periodicity) appendOptionUnlessDefault(line, text::kSeason, s.period, text::kDefaultSeason);
    appendOptionUnlessDefault(line, text::kIterations, s.iterations, text::kDefaultIterations);
    appendOptionUnlessDefault(line, text::kConvergence, s.convergence, text::kDefaultConvergence);
    appendOptionUnlessDefault(line, text::kBackcast, s.backcast, text::kDefaultBackcast);
    if (!appendForecast(line, s, text::kArimaRange)) return refusal(text::kCompleteRange);
    if (s.constant) line.append(text::kEstimateConstant);
    closeOptions(line);
    return seriesBlock(text::kArimaFile, line);
}

ProcedureBlock composeExpo(const ExpoSettings& s, const Names& variables) {
    const Composition named = namesLine(text::kExpo, variables);
    if (named.refused()) return refusal(named.refusal);
    CommandText line(named.lines.front());
    line.append(text::kOptionsSlash);
    if (s.trend) {
        if (s.trendKind == IDC_EXPO_PERCENT) appendOption(line, text::kPercent, s.percent);
        else appendOption(line, text::kLinear, s.linear);
    }
    if (s.seasonal) {
        if (s.seasonalKind == IDC_EXPO_MULTI) appendOption(line, text::kMultiplicativeValue, s.multiplicative);
        else appendOption(line, text::kAdditiveValue, s.additive);
    }
    if (!appendForecast(line, s, text::kExpoRange)) return refusal(text::kCompleteRange);
    // The period counts whenever it is given, whatever its check box says.
    appendOption(line, text::kSeason, s.period);
    appendOption(line, text::kSmoothValue, s.smooth);
    closeOptions(line);
    return seriesBlock(text::kExpoFile, line);
}

ProcedureBlock composeLagged(std::uint16_t commandId, const LagSettings& s, const Names& variables) {
    std::string_view verb = text::kAcf;
    std::string_view lag = text::kLag;  // right behind the last name: "ACF SALES/LAG=12"
    std::string_view saveFile;
    switch (commandId) {
    case 234:
        verb = text::kFourier;
        lag = text::kFourierLag;
        saveFile = text::kFourierFile;
        break;
    case 240: verb = text::kPacf; break;
    case 241: verb = text::kCcf; break;
    default: break;
    }
    const Composition named = namesLine(verb, variables);
    if (named.refused()) return refusal(named.refusal);
    if (commandId == 234 && !isBlankText(s.lag) && !isLagInRange(s.lag)) return refusal(text::kLagRange);
    CommandText line(named.lines.front());
    appendOption(line, lag, s.lag);
    return seriesBlock(saveFile, line);
}

ProcedureBlock composeLowess(const LowessSettings& s, const Names& variables) {
    const Composition named = namesLine(text::kSmooth, variables);
    if (named.refused()) return refusal(named.refusal);
    CommandText line(named.lines.front());
    appendOptionUnlessDefault(line, text::kLowess, s.tension, text::kDefaultTension);
    return seriesBlock(text::kLowessFile, line);
}

ProcedureBlock composeSeasonal(const SeasonalSettings& s, const Names& variables) {
    const Composition named = namesLine(text::kAdjustSeason, variables);
    if (named.refused()) return refusal(named.refusal);
    CommandText line(named.lines.front());
    line.append(text::kOptionsSlash);
    if (s.term) line.append(s.termKind == IDC_SEASONAL_MULT ? text::kMultiplicative : text::kAdditive);
    appendOptionUnlessDefault(line, text::kSeason, s.season, text::kDefaultSeason);
    closeOptions(line);
    return seriesBlock(text::kSeasonalFile, line);
}

ProcedureBlock composeSmooth(const SmoothSettings& s, const Names& variables) {
    const Composition named = namesLine(text::kSmooth, variables);
    if (named.refused()) return refusal(named.refusal);
    CommandText line(named.lines.front());
    switch (s.by) {
    case IDC_SMOOTH_BY_WEIGHT: appendOption(line, text::kWeights, s.weights); break;
    case IDC_SMOOTH_BY_MEDIAN: appendOption(line, text::kRunningMedian, s.median); break;
    default: appendOption(line, text::kRunningMean, s.mean); break;
    }
    return seriesBlock(text::kSmoothFile, line);
}

ProcedureBlock composeTplot(const Names& variables) {
    const Composition named = namesLine(text::kTplot, variables);
    if (named.refused()) return refusal(named.refusal);
    return {text::kSeries, {}, {}, named};
}

ProcedureBlock composeTime(const TimeSettings& s) {
    // A third value without a second would read as the second.
    if (isBlankText(s.start) || isBlankText(s.format) || (isBlankText(s.second) && !isBlankText(s.third)))
        return refusal(kvs::text::kProvideMoreInput);
    CommandText line(text::kTime);
    line.append(s.start);
    appendOption(line, text::kTimeSeparator, s.second);
    appendOption(line, text::kTimeSeparator, s.third);
    line.append(text::kFormat).append(s.format).append(text::kFormatEnd);
    return seriesBlock({}, line);
}

bool transformTakesValue(int chosen) {
    const int at = chosen - IDC_TRANSFORM_FIRST;
    return at >= 0 && at < static_cast<int>(std::size(text::kTransformations)) &&
           !text::kTransformations[at].option.empty();
}

ProcedureBlock composeTransform(const TransformSettings& s, const Names& variables) {
    int at = s.chosen - IDC_TRANSFORM_FIRST;
    if (at < 0 || at >= static_cast<int>(std::size(text::kTransformations))) at = 0;
    const text::Transformation& chosen = text::kTransformations[at];
    const Composition named = namesLine(chosen.verb, variables);
    if (named.refused()) return refusal(named.refusal);
    CommandText line(named.lines.front());
    if (!chosen.option.empty() && !appendOption(line, chosen.option, s.value)) return refusal(text::kFunctionValue);
    return seriesBlock(text::kTransformFile, line);
}

}  // namespace kvs::stats
