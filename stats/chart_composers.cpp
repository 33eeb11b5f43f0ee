#include "stats/chart_composers.h"

#include <cstdlib>
#include <iterator>
#include <optional>
#include <span>
#include <string>

#include "core/blank_text.h"
#include "core/messages.h"
#include "stats/line_endings.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

// The attribute charts (counts and proportions) of each chart-type box.
constexpr int kFirstShewhartAttribute = 7;  // "Binominal Count (np)"
constexpr int kFirstCurveAttribute = 4;
constexpr int kCurveProportion = 5;         // "Binominal Proportion (p)"

ProcedureBlock refusal(std::string_view message) { return ProcedureBlock::refuse(text::kQc, message); }

// "KEYWORD y1 y2*x /", or nothing when a list is empty.
std::optional<CommandText> chartStart(std::string_view keyword, const Names& y, const Names& x) {
    if (y.empty() || x.empty()) return std::nullopt;
    CommandText line(keyword);
    joinNames(y, line, ' ');
    line.append(text::kBy);
    joinNames(x, line, ' ');
    line.append(text::kOptionsSlash);
    return line;
}

ProcedureBlock chartBlock(CommandText& line) {
    closeOptions(line);
    return {text::kQc, {}, {}, Composition().add(line)};
}

// The second value of a pair: ", " + value when the line holds the first
// keyword already, else keyword + value.
void appendSecondValue(CommandText& line, std::string_view written, std::string_view keyword,
                       std::string_view value) {
    if (isBlankText(value)) return;
    const CommandText::Piece piece(line);
    line.append(line.str().find(written) != std::string::npos ? text::kLimitSeparator : keyword).append(value);
}

// The limit type's letter, then "LIMITS=" upper and lower, when either is
// given: " PLIMITS=0.00135, 0.99865".
void appendLimits(CommandText& line, const ChartLimits& limits) {
    if (isBlankText(limits.upper) && isBlankText(limits.lower)) return;
    switch (limits.limitType) {
    case IDC_QC_PROBABILITY: line.append(text::kProbabilityType); break;
    case IDC_QC_PRESET: line.append(text::kPresetType); break;
    default: line.append(text::kSigmaType); break;
    }
    appendOption(line, text::kLimits, limits.upper);
    appendSecondValue(line, text::kLimits, text::kLimits, limits.lower);
}

std::string_view keywordAt(std::span<const text::ChartType> charts, int at) {
    if (at < 0 || at >= static_cast<int>(charts.size())) at = 0;
    return charts[static_cast<std::size_t>(at)].keyword;
}

}  // namespace

bool shewhartTakesSigma(int chart) { return chart < kFirstShewhartAttribute; }
bool curveTakesSigma(int chart) { return chart < kFirstCurveAttribute; }

ProcedureBlock composeShewhart(const ShewhartSettings& s, const Names& y, const Names& x) {
    std::optional<CommandText> line = chartStart(text::kShewhart, y, x);
    if (!line) return refusal(kvs::text::kSelectVariables);
    appendOption(*line, text::kChartType, keywordAt(text::kShewhartCharts, s.chart));
    appendLimits(*line, s);
    appendOption(*line, text::kCenter, s.center);
    if (shewhartTakesSigma(s.chart)) appendOption(*line, text::kSigma, s.sigma);
    if (s.averageSize) line->append(text::kAverageSize);
    if (s.aggregate) {
        line->append(text::kAggregate);
        if (s.indicateSize) line->append(text::kTotal);
    }
    if (s.zUnits) line->append(text::kZUnits);
    return chartBlock(*line);
}

bool curveCenterRefused(const CurveSettings& s) {
    if (s.chart != kCurveProportion) return false;
    // Text that is not a number reads as 0.
    const std::string center(withoutBlanks(s.center));
    char* end = nullptr;
    double value = std::strtod(center.c_str(), &end);
    if (end == center.c_str() || *end != '\0') value = 0;
    return value <= 0 || value >= 1;
}

ProcedureBlock composeCurve(std::uint16_t commandId, const CurveSettings& s) {
    if (curveCenterRefused(s)) return refusal(text::kCenterRange);
    CommandText line(commandId == 272 ? text::kArl : text::kOc);
    line.append(text::kOptionsSlash);
    appendOption(line, text::kChartType, keywordAt(text::kCurveCharts, s.chart));
    appendOption(line, text::kSampleSize, s.sampleSize);
    appendOption(line, text::kCenter, s.center);
    if (curveTakesSigma(s.chart)) appendOption(line, text::kSigma, s.sigma);
    appendOption(line, text::kProbabilityLimits, s.upper);
    appendSecondValue(line, text::kProbabilityLimits, text::kProbabilityLimits, s.lower);
    return chartBlock(line);
}

ProcedureBlock composePareto(const ParetoSettings& s, const Names& y, const Names& x) {
    std::optional<CommandText> line = chartStart(text::kPareto, y, x);
    if (!line) return refusal(kvs::text::kSelectVariables);
    if (s.cumulative) line->append(text::kCumulative);
    if (s.percent) line->append(text::kParetoPercent);
    if (s.aggregate) line->append(text::kAggregate);
    return chartBlock(*line);
}

ProcedureBlock composeBoxChart(const BoxChartSettings& s, const Names& y, const Names& x) {
    std::optional<CommandText> line = chartStart(text::kBoxChart, y, x);
    if (!line) return refusal(kvs::text::kSelectVariables);
    appendOption(*line, text::kCenter, s.center);
    appendOption(*line, text::kSpacedLimits, s.upper);
    appendSecondValue(*line, text::kLimits, text::kSpacedLimits, s.lower);
    return chartBlock(*line);
}

ProcedureBlock composeMovingChart(std::uint16_t commandId, const MovingChartSettings& s, const Names& y,
                                  const Names& x) {
    const bool ewma = commandId == 276;
    std::optional<CommandText> line = chartStart(ewma ? text::kEwma : text::kMovingAverage, y, x);
    if (!line) return refusal(kvs::text::kSelectVariables);
    appendOption(*line, ewma ? text::kSpanK : text::kWidth, s.span);
    appendLimits(*line, s);
    appendOption(*line, text::kCenter, s.center);
    appendOption(*line, text::kSigma, s.sigma);
    if (s.averageSize) line->append(text::kAverageSize);
    if (s.aggregate) line->append(text::kAggregate);
    return chartBlock(*line);
}

ProcedureBlock composeRegressionChart(const RegressionChartSettings& s, const Names& y, const Names& x) {
    std::optional<CommandText> line = chartStart(text::kRegressionChart, y, x);
    if (!line) return refusal(kvs::text::kSelectVariables);
    appendLimits(*line, s);
    appendOption(*line, text::kSigma, s.sigma);
    return chartBlock(*line);
}

ProcedureBlock composeCusum(const CusumSettings& s, const Names& y, const Names& x) {
    std::optional<CommandText> line = chartStart(text::kCusum, y, x);
    if (!line) return refusal(kvs::text::kSelectVariables);
    if (!s.upperSum && !s.lowerSum) return refusal(text::kUpperOrLower);
    appendOption(*line, text::kSpanK, s.k);
    appendOption(*line, text::kCusumH, s.h);
    appendOption(*line, text::kStartPoint, s.start);
    if (s.upperSum != s.lowerSum) line->append(s.upperSum ? text::kUpperSum : text::kLowerSum);
    appendOption(*line, text::kZcl, s.zcl);
    appendOption(*line, text::kCenter, s.center);
    appendOption(*line, text::kSigma, s.sigma);
    if (s.aggregate) line->append(text::kAggregate);
    return chartBlock(*line);
}

ProcedureBlock composeTsq(const TsqSettings& s, const Names& variables, const Names& subgroup) {
    std::optional<CommandText> line = chartStart(text::kTsq, variables, subgroup);
    if (!line) return refusal(kvs::text::kSelectVariables);
    // The file as chosen, unquoted: the line is rewritten "%s COVAR=%s".
    if (s.external && !appendOption(*line, text::kCovariance, s.covarianceFile))
        return refusal(text::kExternalFile);
    appendLimits(*line, s);
    if (s.averageSize) line->append(text::kAverageSize);
    if (s.aggregate) line->append(text::kAggregate);
    return chartBlock(*line);
}

ProcedureBlock composePca(const PcaSettings& s, const Names& variables) {
    const Composition named = namesLine(text::kPca, variables);
    if (named.refused()) return refusal(named.refusal);
    CommandText line(named.lines.front());
    line.append(text::kOptionsSlash);
    appendOption(line, text::kUsl, s.upperLimit);
    appendOption(line, text::kLsl, s.lowerLimit);
    return chartBlock(line);
}

}  // namespace kvs::stats
