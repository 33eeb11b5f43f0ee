// The quality-control chart dialogs (270 to 280): one QC chart line each,
// from "Y - variable:" (list 10), "X - variable:" (the one-variable list
// 245) and the chart's options.
#include <span>

#include "core/descriptor.h"
#include "core/file_choosers.h"
#include "core/messages.h"
#include "stats/chart_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"

namespace kvs::stats {

namespace {

// Limits hold 120 characters, the other numbers 10.
constexpr std::size_t kLimitValueLimit = 120;
constexpr std::size_t kChartValueLimit = 10;
constexpr std::size_t kCovarianceFileLimit = 255;

void enableIf(DialogView& view, int id, bool on) {
    if (view.has(id)) view.enable(id, on);
}

void fillCharts(DialogView& view, std::span<const text::ChartType> charts) {
    view.comboClear(IDC_QC_CHART);
    for (const text::ChartType& chart : charts) view.comboAdd(IDC_QC_CHART, chart.entry);
}

// The limit type and values of a chart that has them.
template <typename Record>
Bindings<Record>& bindLimits(Bindings<Record>& b, std::initializer_list<int> types) {
    return b.radio(types, &Record::limitType)
        .number(IDC_QC_UPPER, &Record::upper, kLimitValueLimit)
        .number(IDC_QC_LOWER, &Record::lower, kLimitValueLimit);
}

// A chart dialog: its record, the lists it reads, and which controls follow
// which choices. The X variable is a list the dialog keeps itself.
template <typename Record>
class ChartDialog : public ProcedureDialog<Record> {
public:
    ChartDialog(Record& stored, Bindings<Record> bindings) : ProcedureDialog<Record>(stored, std::move(bindings)) {}

    int init(DialogContext& context) override {
        prepare(context.view);
        return ProcedureDialog<Record>::init(context);
    }

    std::vector<OwnList> ownLists() override { return {{IDC_VARIABLE_LIST, &subgroup_, 1}}; }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog<Record>::addDefaults(table);
        table.record(subgroup_);
    }

protected:
    ProcedureBlock compose(const Record& settings, const DialogView& view) const override {
        static const Names none;
        const Names& y = view.has(IDC_TARGET1) ? listNames(view, IDC_TARGET1) : none;
        const Names& x = view.has(IDC_VARIABLE_LIST) ? listNames(view, IDC_VARIABLE_LIST) : none;
        return composeChart(settings, y, x);
    }
    virtual ProcedureBlock composeChart(const Record& settings, const Names& y, const Names& x) const = 0;
    // Before the settings are shown (the chart-type box's entries).
    virtual void prepare(DialogView&) {}
    // The controls enabled by the choices as they now stand.
    virtual void follow(DialogView&) {}

    void shown(DialogView& view) override { follow(view); }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked || n.event == Event::ComboSelectionChanged) follow(context.view);
    }

private:
    SelectionArray subgroup_{};
};

template <typename Record>
Record& remembered() {
    static Record record;
    return record;
}

// Shewhart (270).
Bindings<ShewhartSettings> shewhartBindings() {
    Bindings<ShewhartSettings> b;
    b.combo(IDC_QC_CHART, &ShewhartSettings::chart);
    bindLimits(b, {IDC_QC_PROBABILITY, IDC_QC_PRESET, IDC_QC_SIGMA_LIMITS})
        .number(IDC_QC_CENTER, &ShewhartSettings::center, kChartValueLimit)
        .number(IDC_QC_SIGMA, &ShewhartSettings::sigma, kChartValueLimit)
        .check(IDC_QC_AVERAGE_SIZE, &ShewhartSettings::averageSize)
        .check(IDC_QC_AGGREGATE, &ShewhartSettings::aggregate)
        .check(IDC_QC_INDICATE_SIZE, &ShewhartSettings::indicateSize)
        .check(IDC_QC_Z_UNITS, &ShewhartSettings::zUnits);
    return b;
}

class ShewhartDialog : public ChartDialog<ShewhartSettings> {
public:
    ShewhartDialog() : ChartDialog(remembered<ShewhartSettings>(), shewhartBindings()) {}

private:
    ProcedureBlock composeChart(const ShewhartSettings& s, const Names& y, const Names& x) const override {
        return composeShewhart(s, y, x);
    }
    void prepare(DialogView& view) override { fillCharts(view, text::kShewhartCharts); }
    void follow(DialogView& view) override {
        enableIf(view, IDC_QC_SIGMA, shewhartTakesSigma(view.comboSelection(IDC_QC_CHART)));
        enableIf(view, IDC_QC_INDICATE_SIZE, view.isChecked(IDC_QC_AGGREGATE));
    }
};

// Operating Characteristic Curve (271) and Average Run Length (272): no
// variables.
template <std::uint16_t Id>
class CurveDialog : public ChartDialog<CurveSettings> {
public:
    CurveDialog()
        : ChartDialog(settings(), Bindings<CurveSettings>()
                                      .combo(IDC_QC_CHART, &CurveSettings::chart)
                                      .number(IDC_QC_SAMPLE_SIZE, &CurveSettings::sampleSize, kChartValueLimit)
                                      .number(IDC_QC_CENTER, &CurveSettings::center, kChartValueLimit)
                                      .number(IDC_QC_SIGMA, &CurveSettings::sigma, kChartValueLimit)
                                      .number(IDC_QC_UPPER, &CurveSettings::upper, kLimitValueLimit)
                                      .number(IDC_QC_LOWER, &CurveSettings::lower, kLimitValueLimit)) {}

    // A proportion chart's centre is checked before the number fields, as
    // text that is no number reads as 0 there; refused, it takes the focus.
    bool accept(DialogContext& context, int button) override {
        bindings_.read(context.view, working_);
        if (!curveCenterRefused(working_)) return ChartDialog::accept(context, button);
        showStop(context.view.handle(), text::kCenterRange);
        context.view.setFocus(IDC_QC_CENTER);
        return false;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        CurveSettings s = working_;
        bindings_.read(context.view, s);
        if (curveCenterRefused(s)) return Composition::refuse(text::kCenterRange);
        return ChartDialog::preview(context);
    }

private:
    static CurveSettings& settings() {
        static CurveSettings record;
        return record;
    }
    ProcedureBlock composeChart(const CurveSettings& s, const Names&, const Names&) const override {
        return composeCurve(Id, s);
    }
    void prepare(DialogView& view) override { fillCharts(view, text::kCurveCharts); }
    void follow(DialogView& view) override {
        enableIf(view, IDC_QC_SIGMA, curveTakesSigma(view.comboSelection(IDC_QC_CHART)));
    }
};

// Pareto (273).
class ParetoDialog : public ChartDialog<ParetoSettings> {
public:
    ParetoDialog()
        : ChartDialog(remembered<ParetoSettings>(), Bindings<ParetoSettings>()
                                                        .check(IDC_QC_CUMULATIVE, &ParetoSettings::cumulative)
                                                        .check(IDC_QC_PERCENT, &ParetoSettings::percent)
                                                        .check(IDC_QC_AGGREGATE, &ParetoSettings::aggregate)) {}

private:
    ProcedureBlock composeChart(const ParetoSettings& s, const Names& y, const Names& x) const override {
        return composePareto(s, y, x);
    }
};

// Box and Whisker (274).
class BoxChartDialog : public ChartDialog<BoxChartSettings> {
public:
    BoxChartDialog()
        : ChartDialog(remembered<BoxChartSettings>(),
                      Bindings<BoxChartSettings>()
                          .number(IDC_QC_CENTER, &BoxChartSettings::center, kChartValueLimit)
                          .number(IDC_QC_UPPER, &BoxChartSettings::upper, kLimitValueLimit)
                          .number(IDC_QC_LOWER, &BoxChartSettings::lower, kLimitValueLimit)) {}

private:
    ProcedureBlock composeChart(const BoxChartSettings& s, const Names& y, const Names& x) const override {
        return composeBoxChart(s, y, x);
    }
};

// Moving Average (275) and EWMA (276).
Bindings<MovingChartSettings> movingBindings() {
    Bindings<MovingChartSettings> b;
    b.number(IDC_QC_SPAN, &MovingChartSettings::span, kChartValueLimit);
    bindLimits(b, {IDC_QC_PROBABILITY, IDC_QC_PRESET, IDC_QC_SIGMA_LIMITS})
        .number(IDC_QC_CENTER, &MovingChartSettings::center, kChartValueLimit)
        .number(IDC_QC_SIGMA, &MovingChartSettings::sigma, kChartValueLimit)
        .check(IDC_QC_AVERAGE_SIZE, &MovingChartSettings::averageSize)
        .check(IDC_QC_AGGREGATE, &MovingChartSettings::aggregate);
    return b;
}

template <std::uint16_t Id>
class MovingChartDialog : public ChartDialog<MovingChartSettings> {
public:
    MovingChartDialog() : ChartDialog(settings(), movingBindings()) {}

private:
    static MovingChartSettings& settings() {
        static MovingChartSettings record;
        return record;
    }
    ProcedureBlock composeChart(const MovingChartSettings& s, const Names& y, const Names& x) const override {
        return composeMovingChart(Id, s, y, x);
    }
};

// Regression Chart (277).
Bindings<RegressionChartSettings> regressionBindings() {
    Bindings<RegressionChartSettings> b;
    bindLimits(b, {IDC_QC_PROBABILITY, IDC_QC_SIGMA_LIMITS})
        .number(IDC_QC_SIGMA, &RegressionChartSettings::sigma, kChartValueLimit);
    return b;
}

class RegressionChartDialog : public ChartDialog<RegressionChartSettings> {
public:
    RegressionChartDialog() : ChartDialog(remembered<RegressionChartSettings>(), regressionBindings()) {}

private:
    ProcedureBlock composeChart(const RegressionChartSettings& s, const Names& y, const Names& x) const override {
        return composeRegressionChart(s, y, x);
    }
};

// Cusum (278).
class CusumDialog : public ChartDialog<CusumSettings> {
public:
    CusumDialog()
        : ChartDialog(remembered<CusumSettings>(),
                      Bindings<CusumSettings>()
                          .number(IDC_QC_CUSUM_K, &CusumSettings::k, kChartValueLimit)
                          .number(IDC_QC_CUSUM_H, &CusumSettings::h, kChartValueLimit)
                          .number(IDC_QC_START, &CusumSettings::start, kChartValueLimit)
                          .check(IDC_QC_UPPER_SUM, &CusumSettings::upperSum)
                          .check(IDC_QC_LOWER_SUM, &CusumSettings::lowerSum)
                          .number(IDC_QC_ZCL, &CusumSettings::zcl, kChartValueLimit)
                          .number(IDC_QC_CENTER, &CusumSettings::center, kChartValueLimit)
                          .number(IDC_QC_SIGMA, &CusumSettings::sigma, kChartValueLimit)
                          .check(IDC_QC_AGGREGATE, &CusumSettings::aggregate)) {}

private:
    ProcedureBlock composeChart(const CusumSettings& s, const Names& y, const Names& x) const override {
        return composeCusum(s, y, x);
    }
};

// TSQ (279): "Covariance file..." chooses the external covariance matrix.
Bindings<TsqSettings> tsqBindings() {
    Bindings<TsqSettings> b;
    bindLimits(b, {IDC_QC_PROBABILITY, IDC_QC_PRESET})
        .check(IDC_QC_AVERAGE_SIZE, &TsqSettings::averageSize)
        .check(IDC_QC_AGGREGATE, &TsqSettings::aggregate)
        .check(IDC_QC_EXTERNAL, &TsqSettings::external)
        .text(IDC_QC_COVARIANCE, &TsqSettings::covarianceFile, kCovarianceFileLimit);
    return b;
}

class TsqDialog : public ChartDialog<TsqSettings> {
public:
    TsqDialog() : ChartDialog(remembered<TsqSettings>(), tsqBindings()) {}

private:
    ProcedureBlock composeChart(const TsqSettings& s, const Names& y, const Names& x) const override {
        return composeTsq(s, y, x);
    }
    void follow(DialogView& view) override {
        const bool external = view.isChecked(IDC_QC_EXTERNAL);
        enableIf(view, IDC_QC_BROWSE, external);
        enableIf(view, IDC_QC_COVARIANCE, external);
    }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.clicked(IDC_QC_BROWSE)) {
            std::string chosen;
            browseForAFile(context.view, chosen, kCovarianceFileLimit + 1, context.view.text(IDC_QC_COVARIANCE),
                           IDC_QC_COVARIANCE);
            return;
        }
        ChartDialog::changed(context, n);
    }
};

// Process Control Analysis (280): no X variable.
class PcaDialog : public ChartDialog<PcaSettings> {
public:
    PcaDialog()
        : ChartDialog(remembered<PcaSettings>(),
                      Bindings<PcaSettings>()
                          .number(IDC_QC_USL, &PcaSettings::upperLimit, kChartValueLimit)
                          .number(IDC_QC_LSL, &PcaSettings::lowerLimit, kChartValueLimit)) {}

private:
    ProcedureBlock composeChart(const PcaSettings& s, const Names& y, const Names&) const override {
        return composePca(s, y);
    }
};

}  // namespace

DialogBehaviour& shewhartBehaviour() { return soleInstance<ShewhartDialog>(); }
DialogBehaviour& operatingCurveBehaviour() { return soleInstance<CurveDialog<271>>(); }
DialogBehaviour& averageRunLengthBehaviour() { return soleInstance<CurveDialog<272>>(); }
DialogBehaviour& paretoBehaviour() { return soleInstance<ParetoDialog>(); }
DialogBehaviour& boxChartBehaviour() { return soleInstance<BoxChartDialog>(); }
DialogBehaviour& movingAverageBehaviour() { return soleInstance<MovingChartDialog<275>>(); }
DialogBehaviour& ewmaBehaviour() { return soleInstance<MovingChartDialog<276>>(); }
DialogBehaviour& regressionChartBehaviour() { return soleInstance<RegressionChartDialog>(); }
DialogBehaviour& cusumBehaviour() { return soleInstance<CusumDialog>(); }
DialogBehaviour& tsqBehaviour() { return soleInstance<TsqDialog>(); }
DialogBehaviour& pcaBehaviour() { return soleInstance<PcaDialog>(); }

}  // namespace kvs::stats
