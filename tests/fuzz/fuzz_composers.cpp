// The composers of the data and graph families fed made-up settings and
// names: each must give lines within its buffer (the composition buffer's
// 9,998 characters and its NUL; a graph line's 9,999) or a refusal, never a
// crash or a sanitizer report. A graph line made of plain names and texts
// must also be well formed at its bounds: no keyword without its value, no
// "**", no quoted text left open, and a line past the list bound ends in a
// whole name.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <optional>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "core/join_names.h"
#include "core/numeric_field.h"
#include "data/composers.h"
#include "graph/graph_composers.h"
#include "stats/analysis_composers.h"
#include "stats/chart_composers.h"
#include "stats/design_composers.h"
#include "stats/estimate_composers.h"
#include "stats/loglin_composers.h"
#include "stats/model_composers.h"
#include "stats/multivariate_composers.h"
#include "stats/npar_composers.h"
#include "stats/series_composers.h"
#include "stats/stats_composers.h"
#include "stats/tables_composers.h"
#include "tools/scenario/line_checks.h"

namespace {

using kvs::Composition;
using kvs::Names;

// Appends nothing: the option records are the scenario fuzzer's to reach.
class NoOptions : public kvs::graph::OptionSource {
public:
    bool buttonEnabled(int) const override { return true; }
    void append(kvs::CommandText&, int, bool) const override {}
};

// Mostly variable-like names; now and then a long, odd or empty one.
Names names(FuzzedDataProvider& in) {
    Names list(in.ConsumeIntegralInRange<std::size_t>(0, 3000));
    for (std::string& name : list) {
        if (in.ConsumeIntegralInRange(0, 15) == 0) name = in.ConsumeRandomLengthString(64);
        else name = "V" + std::to_string(in.ConsumeIntegral<std::uint16_t>());
    }
    return list;
}

void check(const Composition& c, std::size_t capacity = kvs::CommandText::kCapacity) {
    for (const std::string& line : c.lines)
        if (line.size() > capacity - 1) std::abort();
}

// Text that cannot itself make a line look malformed.
bool plain(std::string_view text) { return text.find_first_of("*='\"") == std::string_view::npos; }
// A list box never holds an empty name; a plain one has no separator in it.
bool plain(const Names& names) {
    for (const std::string& name : names)
        if (name.empty() || !plain(name) || name.find_first_of(" ,/") != std::string::npos) return false;
    return true;
}

// Graph lines have the graph builders' 10,000-byte buffer.
void checkGraph(const Composition& c, std::initializer_list<const Names*> lists = {}, bool plainTexts = true) {
    check(c, kvs::CommandText::kGraphCapacity);
    bool plainLists = plainTexts;
    for (const Names* list : lists) plainLists = plainLists && plain(*list);
    if (!plainLists) return;
    // A finding says what it found, with the line's end.
    const auto fail = [](std::string_view why, const std::string& line) {
        std::fprintf(stderr, "malformed graph line (%.*s): ...%s\n", static_cast<int>(why.size()), why.data(),
                     line.substr(line.size() > 80 ? line.size() - 80 : 0).c_str());
        std::abort();
    };
    for (const std::string& line : c.lines) {
        if (const std::string fault = kvs::scenario::commandLineFault(line, kvs::CommandText::kGraphCapacity);
            !fault.empty())
            fail(fault, line);
        if (line.size() <= kvs::kJoinLimit) continue;
        // Past the bound the last word is a whole name or a keyword.
        const std::size_t cut = line.find_last_of(" *,=/");
        const std::string last = line.substr(cut == std::string::npos ? 0 : cut + 1);
        // (an option's value, a number, may follow a list that stayed within the bound)
        bool whole = last.empty() || last.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos ||
                     kvs::parseNumber(last).has_value();
        for (const Names* list : lists)
            for (const std::string& name : *list) whole = whole || name == last;
        if (!whole) fail("does not end in a whole name", line);
    }
}

void check(const kvs::CommandText& line) {
    if (line.size() > kvs::CommandText::kCapacity - 1) std::abort();
}

kvs::data::ConditionState conditions(FuzzedDataProvider& in) {
    kvs::data::ConditionState state;
    for (kvs::data::ConditionRow& row : state.rows) {
        row.connector = in.ConsumeIntegralInRange(-1, 3);
        row.variable = in.ConsumeRandomLengthString(40);
        row.op = in.ConsumeIntegralInRange(-1, 12);
        row.value = in.ConsumeRandomLengthString(200);
    }
    state.thenConnectors = {in.ConsumeIntegralInRange(-1, 3), in.ConsumeIntegralInRange(-1, 3)};
    state.ifNot = in.ConsumeBool();
    state.selectOff = in.ConsumeBool();
    state.complete = in.ConsumeBool();
    state.functionType = in.ConsumeIntegralInRange(-1, 8);
    return state;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    const NoOptions options;
    switch (in.ConsumeIntegralInRange(0, 22)) {
    case 0: check(kvs::data::composeSort(names(in), in.ConsumeIntegralInRange(-1, 3))); break;
    case 1: check(kvs::data::composeRank(names(in))); break;
    case 2: check(kvs::data::composeTranspose(names(in))); break;
    case 3: check(kvs::data::composeOrder(names(in))); break;
    case 4: check(kvs::data::composeStandardize(in.ConsumeIntegralInRange(-1, 4), names(in))); break;
    case 5: {
        std::vector<kvs::data::ValueLabel> labels(in.ConsumeIntegralInRange<std::size_t>(0, 500));
        for (auto& [value, label] : labels)
            value = in.ConsumeRandomLengthString(20), label = in.ConsumeRandomLengthString(60);
        const std::string line = kvs::data::composeLabelLine(in.ConsumeRandomLengthString(20), labels);
        if (line.size() > kvs::CommandText::kCapacity - 1) std::abort();
        break;
    }
    case 6: {
        const kvs::data::ConditionState state = conditions(in);
        kvs::CommandText line;
        kvs::data::composeSelect(state, line, in.ConsumeBool());
        check(line);
        kvs::CommandText let;
        kvs::data::composeLet(state, let);
        check(let);
        kvs::CommandText ifThen;
        kvs::data::composeIfThenLet(state, ifThen);
        check(ifThen);
        break;
    }
    case 7: {
        kvs::CommandText line;
        const std::string a = in.ConsumeRandomLengthString(600), b = in.ConsumeRandomLengthString(600);
        kvs::data::composeAppendLine(a, b, in.ConsumeIntegralInRange(0, 40), line);
        check(line);
        kvs::CommandText merge;
        kvs::data::composeMergeLine(a, in.ConsumeRandomLengthString(2000), b, in.ConsumeRandomLengthString(2000),
                                    in.ConsumeIntegralInRange(-1, 2), in.ConsumeRandomLengthString(2000), merge);
        check(merge);
        break;
    }
    case 8: check(kvs::data::composeProgram(in.ConsumeRandomLengthString(12), in.ConsumeRandomLengthString(40000))); break;
    case 13: {
        kvs::stats::TtestSettings s;
        s.bonferroni = in.ConsumeBool(), s.dunnSidak = in.ConsumeBool();
        s.confidence = in.ConsumeRandomLengthString(40), s.mean = in.ConsumeRandomLengthString(40);
        const std::uint16_t ids[] = {256, 257, 258};
        check(kvs::stats::composeTtest(ids[in.ConsumeIntegralInRange(0, 2)], s, names(in), names(in)).body);
        break;
    }
    case 14: {
        kvs::stats::LogitSettings s;
        s.constant = in.ConsumeBool(), s.constantEnabled = in.ConsumeBool(), s.predict = in.ConsumeBool();
        s.quasiLikelihood = in.ConsumeBool(), s.optionsUsed = in.ConsumeBool();
        kvs::stats::LogitOptions& o = s.options;
        o.converge = in.ConsumeRandomLengthString(40), o.tolerance = in.ConsumeRandomLengthString(40);
        o.estimation = in.ConsumeBool() ? IDC_LOGITOPT_STEPWISE : IDC_LOGITOPT_COMPLETE;
        o.direction = in.ConsumeBool() ? IDC_LOGITOPT_BACKWARD : IDC_LOGITOPT_FORWARD;
        o.stepping = in.ConsumeBool() ? IDC_LOGITOPT_INTERACT : IDC_LOGITOPT_AUTO;
        o.enter = in.ConsumeRandomLengthString(40), o.remove = in.ConsumeRandomLengthString(40);
        o.force = in.ConsumeRandomLengthString(40), o.maxStep = in.ConsumeRandomLengthString(40);
        o.start = in.ConsumeRandomLengthString(40);
        check(kvs::stats::composeLogit(s, names(in), names(in), names(in)).body);
        break;
    }
    case 15: check(kvs::stats::hypothesisLines(in.ConsumeRandomLengthString(40000))); break;
    case 16: {
        // The linear models (218, 219, 221, 222) with every option text.
        const auto text = [&in] { return std::optional<std::string>(in.ConsumeRandomLengthString(40)); };
        kvs::stats::EstimationOptions o;
        o.stepwise = in.ConsumeBool(), o.forward = in.ConsumeBool(), o.automatic = in.ConsumeBool();
        o.fStatistic = in.ConsumeBool(), o.mixture = in.ConsumeBool();
        o.tolerance = text(), o.enter = text(), o.remove = text(), o.fenter = text(), o.fremove = text();
        o.force = text(), o.maxStep = text();
        kvs::stats::ModelSettings s;
        s.constant = in.ConsumeBool(), s.matrix = in.ConsumeBool(), s.cases = in.ConsumeRandomLengthString(40);
        s.missingCategory = in.ConsumeBool(), s.quadratic = in.ConsumeBool(), s.exit = in.ConsumeBool();
        s.covariates = names(in);
        kvs::stats::RepeatedMeasures measures;
        measures.perform = in.ConsumeBool();
        for (auto& factor : measures.factors) factor = {text(), text(), text()};
        kvs::stats::DiscriminantStatistics statistics;
        for (bool& box : statistics.print) box = in.ConsumeBool();
        const kvs::Names dependents = names(in), independents = names(in);
        measures.dependents = in.ConsumeBool() ? dependents : names(in);
        check(kvs::stats::composeGlm(in.ConsumeBool() ? 218 : 219, s, o, measures, dependents, independents).body);
        check(kvs::stats::composeRegression(s, o, dependents, independents).body);
        check(kvs::stats::composeDiscriminant(s, o, statistics, dependents, independents).body);
        break;
    }
    case 17: {
        namespace st = kvs::stats;
        const auto value = [&in] { return in.ConsumeRandomLengthString(40); };
        st::ArimaSettings a;
        a.ar = in.ConsumeBool(), a.arValue = value(), a.seasonalAr = in.ConsumeBool(), a.seasonalArValue = value();
        a.ma = in.ConsumeBool(), a.maValue = value(), a.seasonalMa = in.ConsumeBool(), a.seasonalMaValue = value();
        a.periodicity = in.ConsumeBool(), a.period = value(), a.iterations = value(), a.convergence = value();
        a.backcast = value(), a.constant = in.ConsumeBool();
        a.forecast = in.ConsumeBool(), a.forecastKind = in.ConsumeBool() ? IDC_SERIES_FROM : IDC_SERIES_NUMBER;
        a.forecastNumber = value(), a.forecastFrom = value(), a.forecastTo = value();
        check(st::composeArima(a, names(in)).body);
        st::ExpoSettings e;
        e.trend = in.ConsumeBool(), e.trendKind = in.ConsumeBool() ? IDC_EXPO_PERCENT : IDC_EXPO_LINEAR;
        e.linear = value(), e.percent = value(), e.seasonal = in.ConsumeBool(), e.additive = value();
        e.seasonalKind = in.ConsumeBool() ? IDC_EXPO_MULTI : IDC_EXPO_ADDITIVE, e.multiplicative = value();
        e.forecast = in.ConsumeBool(), e.forecastKind = in.ConsumeBool() ? IDC_SERIES_FROM : IDC_SERIES_NUMBER;
        e.forecastNumber = value(), e.forecastFrom = value(), e.forecastTo = value();
        e.period = value(), e.smooth = value();
        check(st::composeExpo(e, names(in)).body);
        const std::uint16_t lagged[] = {234, 239, 240, 241};
        check(st::composeLagged(lagged[in.ConsumeIntegralInRange(0, 3)], {value()}, names(in)).body);
        check(st::composeLowess({value()}, names(in)).body);
        check(st::composeSeasonal({in.ConsumeBool(), IDC_SEASONAL_MULT, value()}, names(in)).body);
        check(st::composeSmooth({IDC_SMOOTH_BY_WEIGHT + 2 * in.ConsumeIntegralInRange(0, 2),
                                 in.ConsumeRandomLengthString(200), value(), value()},
                                names(in)).body);
        check(st::composeTime({value(), value(), value(), value()}).body);
        check(st::composeTransform({in.ConsumeIntegralInRange(IDC_TRANSFORM_LOG - 1, IDC_TRANSFORM_POWER + 1), value()},
                                   names(in)).body);
        break;
    }
    case 18: {
        namespace st = kvs::stats;
        const auto limit = [&in] { return in.ConsumeRandomLengthString(130); };
        const auto value = [&in] { return in.ConsumeRandomLengthString(12); };
        const int types[] = {IDC_QC_PROBABILITY, IDC_QC_PRESET, IDC_QC_SIGMA_LIMITS};
        st::ShewhartSettings s;
        s.chart = in.ConsumeIntegralInRange(-1, 11), s.limitType = types[in.ConsumeIntegralInRange(0, 2)];
        s.upper = limit(), s.lower = limit(), s.center = value(), s.sigma = value();
        s.averageSize = in.ConsumeBool(), s.aggregate = in.ConsumeBool(), s.indicateSize = in.ConsumeBool();
        s.zUnits = in.ConsumeBool();
        check(st::composeShewhart(s, names(in), names(in)).body);
        check(st::composeCurve(in.ConsumeBool() ? 271 : 272,
                               {in.ConsumeIntegralInRange(-1, 8), value(), value(), value(), limit(), limit()})
                  .body);
        check(st::composePareto({in.ConsumeBool(), in.ConsumeBool(), in.ConsumeBool()}, names(in), names(in)).body);
        check(st::composeBoxChart({value(), limit(), limit()}, names(in), names(in)).body);
        st::MovingChartSettings m;
        m.limitType = types[in.ConsumeIntegralInRange(0, 2)], m.upper = limit(), m.lower = limit();
        m.span = value(), m.center = value(), m.sigma = value(), m.averageSize = in.ConsumeBool();
        check(st::composeMovingChart(in.ConsumeBool() ? 275 : 276, m, names(in), names(in)).body);
        st::CusumSettings c;
        c.k = value(), c.h = value(), c.start = value(), c.upperSum = in.ConsumeBool(), c.lowerSum = in.ConsumeBool();
        c.zcl = value(), c.center = value(), c.sigma = value(), c.aggregate = in.ConsumeBool();
        check(st::composeCusum(c, names(in), names(in)).body);
        st::TsqSettings t;
        t.limitType = types[in.ConsumeIntegralInRange(0, 1)], t.upper = limit(), t.lower = limit();
        t.external = in.ConsumeBool(), t.covarianceFile = in.ConsumeRandomLengthString(260);
        check(st::composeTsq(t, names(in), names(in)).body);
        check(st::composePca({value(), value()}, names(in)).body);
        break;
    }
    case 19: {
        // Probit, TSLS, pairwise comparisons, Nonlinear Model, Loss, Survival.
        namespace st = kvs::stats;
        const auto value = [&in] { return in.ConsumeRandomLengthString(200); };
        const st::EstimateSettings e{in.ConsumeBool(), in.ConsumeBool()};
        const kvs::Names dependent = names(in), independents = names(in), instruments = names(in);
        check(st::composeProbit(e, dependent, independents).body);
        check(st::composeTsls(e, dependent, independents, instruments).body);
        check(st::composePairwise({in.ConsumeIntegralInRange(IDC_POST_BONFERRONI - 1, IDC_POST_SCHEFFE + 1)},
                                  names(in)).body);
        check(st::composePairwise({}, names(in), names(in)).body);
        st::NonlinSettings n;
        n.equation = in.ConsumeRandomLengthString(12000), n.method = in.ConsumeIntegralInRange(43, 47);
        n.save = in.ConsumeIntegralInRange(-1, 7), n.saveValue = value(), n.confidence = value();
        n.saving = in.ConsumeBool();
        check(st::composeNonlin(n, dependent).body);
        if (st::nonlinSaveQualifier(n).size() > kvs::CommandText::kCapacity - 1) std::abort();
        check(st::composeLoss({in.ConsumeBool() ? IDC_LOSS_FUNCTION : IDC_LOSS_LEAST_SQUARES,
                               in.ConsumeRandomLengthString(12000)}).body);
        st::SurvivalSettings s;
        s.lifeTable = in.ConsumeBool(), s.covariates.categories = value();
        for (int i = in.ConsumeIntegralInRange(0, 20); i > 0; --i) s.covariates.sets.push_back({value(), names(in), 0});
        st::SurvivalLists lists{names(in), names(in), names(in), names(in), names(in)};
        for (std::string& covariate : lists.covariates)
            if (in.ConsumeBool()) covariate = "*" + covariate;
        check(st::composeSurvival(s, lists).body);
        break;
    }
    case 20: {
        namespace st = kvs::stats;
        const auto value = [&in] { return in.ConsumeRandomLengthString(40); };
        const auto position = [&in] { return in.ConsumeIntegralInRange(-1, 20); };
        st::BasicStatsSettings b;
        b.statistics = in.ConsumeIntegral<std::uint32_t>(), b.cim = in.ConsumeBool(), b.confidence = value();
        b.tukey = in.ConsumeBool(), b.print = position(), b.saveKind = position();
        check(st::composeBasicStats(b, names(in), names(in)).body);
        check(st::composeCronbach(names(in)).body);
        check(st::composeStem({value()}, names(in)).body);
        st::CorrSettings c;
        c.measure = position(), c.missing = in.ConsumeBool() ? IDC_CORR_PAIRWISE : IDC_CORR_LISTWISE;
        check(st::composeCorrelations(c, names(in), names(in)).body);
        st::JoinSettings j;
        j.clustering = IDC_JOIN_ROWS + in.ConsumeIntegralInRange(0, 2), j.distance = position(), j.power = value();
        j.linkage = position(), j.polar = in.ConsumeBool(), j.saveNumber = value();
        check(st::composeJoin(j, names(in), in.ConsumeBool()).body);
        check(st::composeKmeans({value(), value(), position()}, names(in)).body);
        st::AddtreeSettings t;
        t.height = in.ConsumeBool(), t.numbers = in.ConsumeBool(), t.tree = in.ConsumeBool(), t.data = in.ConsumeBool();
        check(st::composeAddtree(t, names(in)).body);
        st::FactorSettings f;
        f.method = position(), f.missing = in.ConsumeBool() ? IDC_FACTOR_PAIRWISE : IDC_FACTOR_LISTWISE;
        f.number = value(), f.eigen = value(), f.iterations = value(), f.convergence = value();
        f.print = position(), f.exit = in.ConsumeBool();
        check(st::composeFactor(f, names(in)).body);
        st::MdsSettings m;
        m.shape = in.ConsumeBool() ? IDC_MDS_RECT : IDC_MDS_SQUARE, m.rows = value(), m.dimensions = value();
        m.iterations = value(), m.convergence = value(), m.loss = IDC_MDS_KRUSKAL + in.ConsumeIntegralInRange(0, 2);
        m.regression = position(), m.split = position(), m.saveKind = position(), m.weight = in.ConsumeBool();
        check(st::composeMds(m, names(in)).body);
        break;
    }
    case 21: {
        // Spatial, POSAC, Conjoint, CORAN, SETCOR, PERMAP, Trees, Signal, TESTAT, RAMONA.
        namespace st = kvs::stats;
        const auto value = [&in] { return in.ConsumeRandomLengthString(200); };
        const kvs::Names left = names(in), right = names(in), third = names(in);
        st::SpatialSettings spatial;
        spatial.analysis = in.ConsumeIntegralInRange(IDC_SPATIAL_VARIO - 1, IDC_SPATIAL_POINT + 1);
        spatial.lags = in.ConsumeRandomLengthString(20);
        spatial.radius = in.ConsumeRandomLengthString(20);
        spatial.seed = in.ConsumeRandomLengthString(20);
        check(st::composeSpatial(spatial, left, right).body);
        check(st::composePosac({value(), value()}, left).body);
        check(st::composeConjoint({value(), value(), in.ConsumeIntegralInRange(IDC_CONJOINT_POSITIVE - 1, IDC_CONJOINT_NEGATIVE + 1),
                                   in.ConsumeIntegralInRange(IDC_CONJOINT_MONOTONIC - 1, IDC_CONJOINT_POWER + 1), in.ConsumeBool()},
                                  left, right).body);
        check(st::composeCoran({in.ConsumeBool()}, left, right).body);
        check(st::composeSetcor(left, right, third).body);
        check(st::composePermap({in.ConsumeIntegralInRange(-1, 6), in.ConsumeBool(), value(), in.ConsumeBool()}, left, right).body);
        check(st::composeTrees({in.ConsumeBool()}, left, right).body);
        check(st::composeSignal({value(), value(), value(), value(), value(), in.ConsumeBool()}, left, right).body);
        const st::TestatSettings t{in.ConsumeRandomLengthString(2000), in.ConsumeBool(),
                                   in.ConsumeBool() ? IDC_TESTAT_LOG1 : IDC_TESTAT_LOG2, value(), value(), value(), value()};
        check(st::composeTestat(in.ConsumeBool() ? 295 : 297, t, left).body);
        st::RamonaSettings r;
        r.latent = value(), r.paths = in.ConsumeRandomLengthString(20000);
        r.dispersion = in.ConsumeIntegralInRange(IDC_RAMONA_COVA, IDC_RAMONA_CORR);
        r.method = in.ConsumeIntegralInRange(IDC_RAMONA_ML - 1, IDC_RAMONA_ADFU + 1);
        r.cases = value(), r.iterations = value(), r.convergence = value(), r.confidence = value();
        check(st::composeRamona(r, left).body);
        break;
    }
    case 22: {
        // The nonparametric tests, the tables, the log-linear model, the designs.
        namespace st = kvs::stats;
        const auto value = [&in] { return in.ConsumeRandomLengthString(200); };
        const std::uint16_t nparIds[] = {226, 227, 228, 229, 230, 231, 268};
        st::NparSettings n;
        n.cut = value(), n.distribution = in.ConsumeIntegralInRange(IDC_KS_NORMAL - 1, IDC_KS_LILLIEFORS + 1);
        n.mean = value(), n.sd = value(), n.lower = value(), n.upper = value(), n.scale = value();
        check(st::composeNpar(nparIds[in.ConsumeIntegralInRange(0, 6)], n, names(in), names(in)).body);
        st::TableSettings t;
        t.counts = in.ConsumeBool(), t.percents = in.ConsumeBool(), t.rowPercents = in.ConsumeBool();
        t.columnPercents = in.ConsumeBool(), t.expected = in.ConsumeBool(), t.deviates = in.ConsumeBool();
        t.standardized = in.ConsumeBool(), t.chiSquare = in.ConsumeBool(), t.listLayout = in.ConsumeBool();
        t.missing = in.ConsumeBool(), t.mantel = in.ConsumeBool(), t.confidence = value();
        const std::uint16_t tableIds[] = {253, 266, 267};
        check(st::composeTables(tableIds[in.ConsumeIntegralInRange(0, 2)], t, names(in), names(in)).body);
        st::LoglinSettings l;
        l.terms = in.ConsumeRandomLengthString(12000), l.observed = in.ConsumeBool(), l.expected = in.ConsumeBool();
        l.standardized = in.ConsumeBool(), l.lambdas = in.ConsumeBool(), l.chiSquare = in.ConsumeBool();
        l.convergence = value(), l.likelihood = value(), l.tolerance = value(), l.iterations = value();
        l.halvings = value(), l.delta = value(), l.saved = in.ConsumeIntegralInRange(41, 44);
        const kvs::Names factors = names(in);
        check(st::composeLoglin(l, factors).body);
        check(st::composeLoglinTabulate(factors).body);
        st::DesignSettings d;
        d.design = in.ConsumeIntegralInRange(IDC_DOE_FULL - 1, IDC_DOE_TAGUCHI + 1);
        d.factors = value(), d.levels = value(), d.runs = value(), d.replications = value();
        d.array = in.ConsumeIntegralInRange(-2, 20), d.randomize = in.ConsumeBool(), d.letters = in.ConsumeBool();
        d.blocks = in.ConsumeBool(), d.squares = in.ConsumeBool();
        check(st::composeDesign(d).body);
        break;
    }
    case 9: {
        kvs::graph::ScatterplotState s;
        s.x = names(in), s.y = names(in), s.z = names(in), s.group = names(in), s.w = names(in);
        s.overlay = in.ConsumeBool(), s.repeat = in.ConsumeBool(), s.matrix = in.ConsumeBool();
        s.mirror = in.ConsumeBool(), s.mirrorChecked = in.ConsumeBool(), s.matrixChecked = in.ConsumeBool();
        s.display = in.ConsumeIntegralInRange(-1, 3), s.displayEnabled = in.ConsumeBool();
        checkGraph(kvs::graph::composeScatterplot(s, options), {&s.x, &s.y, &s.z, &s.group, &s.w});
        break;
    }
    case 10: {
        kvs::graph::BarFamilyState s;
        s.x = names(in), s.y = names(in), s.z = names(in), s.group = names(in);
        s.counts = in.ConsumeBool(), s.repeat = in.ConsumeBool(), s.repeatChecked = in.ConsumeBool();
        s.matrix = in.ConsumeBool(), s.matrixChecked = in.ConsumeBool(), s.stack = in.ConsumeBool();
        s.range = in.ConsumeBool(), s.overlay = in.ConsumeBool(), s.mirror = in.ConsumeBool();
        s.display = in.ConsumeIntegralInRange(-1, 3), s.displayEnabled = in.ConsumeBool();
        const int ids[] = {102, 103, 108, 109, 1124};
        checkGraph(kvs::graph::composeBarFamily(ids[in.ConsumeIntegralInRange(0, 4)], s, options),
                   {&s.x, &s.y, &s.z, &s.group});
        break;
    }
    case 11: {
        kvs::graph::DensityState s;
        s.x = names(in), s.y = names(in), s.group = names(in);
        s.repeat = in.ConsumeBool(), s.repeatChecked = in.ConsumeBool(), s.overlay = in.ConsumeBool();
        s.mirror = in.ConsumeBool(), s.style = in.ConsumeIntegralInRange(-1, 8), s.display = in.ConsumeIntegralInRange(-1, 4);
        const int ids[] = {106, 111, 113, 114};
        checkGraph(kvs::graph::composeDensity(ids[in.ConsumeIntegralInRange(0, 3)], s, options), {&s.x, &s.y, &s.group});
        break;
    }
    default: {
        kvs::graph::SimpleGraphState s;
        s.x = names(in), s.y = names(in), s.group = names(in);
        s.mirror = in.ConsumeBool(), s.overlay = in.ConsumeBool(), s.half = in.ConsumeBool();
        s.transpose = in.ConsumeBool(), s.ring = in.ConsumeBool(), s.threeD = in.ConsumeBool();
        s.slices = in.ConsumeRandomLengthString(20), s.probabilityScale = in.ConsumeBool();
        s.choice = in.ConsumeIntegralInRange(-1, 40);
        s.parameter1 = in.ConsumeRandomLengthString(30), s.parameter2 = in.ConsumeRandomLengthString(30);
        s.sphere = in.ConsumeBool();
        s.equationLeft = in.ConsumeRandomLengthString(300), s.equationRight = in.ConsumeRandomLengthString(3000);
        s.display = in.ConsumeIntegralInRange(-1, 3);
        const int ids[] = {116, 118, 119, 120, 121, 128, 129, 146, 147};
        const bool texts = plain(s.slices) && plain(s.parameter1) && plain(s.parameter2) && plain(s.equationLeft) &&
                           plain(s.equationRight) && !s.equationRight.empty() && s.equationRight.back() != ' ';
        checkGraph(kvs::graph::composeSimpleGraph(ids[in.ConsumeIntegralInRange(0, 8)], s, options),
                   {&s.x, &s.y, &s.group}, texts);
        break;
    }
    }
    return 0;
}
