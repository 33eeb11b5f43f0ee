// The time-series dialogs (232 to 241, 243, 244): one SERIES line each, from
// the variables of list 10 and the dialog's options.
#include "core/file_choosers.h"
#include "stats/procedure_dialog.h"
#include "stats/series_commands.h"
#include "stats/series_composers.h"
#include "stats/stats_dialogs_list.h"

namespace kvs::stats {

namespace {

// A series option holds 10 characters; the smoother's weights 100.
constexpr std::size_t kSeriesValueLimit = 10;
constexpr std::size_t kWeightsLimit = 100;

bool seriesIssued = false;

void enableIf(DialogView& view, int id, bool on) {
    if (view.has(id)) view.enable(id, on);
}

// A series dialog: its record, the composer of its line, and which fields
// follow which choices.
template <typename Record>
class SeriesDialog : public ProcedureDialog<Record> {
public:
    using Compose = ProcedureBlock (*)(const Record&, const Names&);

    SeriesDialog(Record& stored, Bindings<Record> bindings, Compose compose)
        : ProcedureDialog<Record>(stored, std::move(bindings)), compose_(compose) {}

    bool accept(DialogContext& context, int button) override {
        if (!ProcedureDialog<Record>::accept(context, button)) return false;
        seriesIssued = true;
        return true;
    }

protected:
    ProcedureBlock compose(const Record& settings, const DialogView& view) const override {
        static const Names none;  // Time has no variable list
        return compose_(settings, view.has(IDC_TARGET1) ? listNames(view, IDC_TARGET1) : none);
    }
    void shown(DialogView& view) override { follow(view); }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked) follow(context.view);
    }
    // The fields enabled by the choices as they now stand.
    virtual void follow(DialogView&) {}

private:
    Compose compose_;
};

template <typename Record>
Record& remembered() {
    static Record record;
    return record;
}

// The forecast's controls, in ARIMA and Exponential Smoothing.
template <typename Record>
void bindForecast(Bindings<Record>& b) {
    b.check(IDC_SERIES_FORECAST, &Record::forecast)
        .radio({IDC_SERIES_NUMBER, IDC_SERIES_FROM}, &Record::forecastKind)
        .number(IDC_SERIES_NUMBER_VALUE, &Record::forecastNumber, kSeriesValueLimit)
        .number(IDC_SERIES_FROM_VALUE, &Record::forecastFrom, kSeriesValueLimit)
        .number(IDC_SERIES_TO_VALUE, &Record::forecastTo, kSeriesValueLimit);
}

// The kind while the forecast is on, each value while its kind is chosen.
void followForecast(DialogView& view) {
    const bool on = view.isChecked(IDC_SERIES_FORECAST);
    enableIf(view, IDC_SERIES_NUMBER, on);
    enableIf(view, IDC_SERIES_FROM, on);
    enableIf(view, IDC_SERIES_NUMBER_VALUE, on && view.isChecked(IDC_SERIES_NUMBER));
    enableIf(view, IDC_SERIES_FROM_VALUE, on && view.isChecked(IDC_SERIES_FROM));
    enableIf(view, IDC_SERIES_TO_VALUE, on && view.isChecked(IDC_SERIES_FROM));
}

Bindings<ArimaSettings> arimaBindings() {
    Bindings<ArimaSettings> b;
    b.check(IDC_ARIMA_AR, &ArimaSettings::ar)
        .number(IDC_ARIMA_AR_VALUE, &ArimaSettings::arValue, kSeriesValueLimit)
        .check(IDC_ARIMA_SAR, &ArimaSettings::seasonalAr)
        .number(IDC_ARIMA_SAR_VALUE, &ArimaSettings::seasonalArValue, kSeriesValueLimit)
        .check(IDC_ARIMA_MA, &ArimaSettings::ma)
        .number(IDC_ARIMA_MA_VALUE, &ArimaSettings::maValue, kSeriesValueLimit)
        .check(IDC_ARIMA_SMA, &ArimaSettings::seasonalMa)
        .number(IDC_ARIMA_SMA_VALUE, &ArimaSettings::seasonalMaValue, kSeriesValueLimit)
        .check(IDC_SERIES_PERIOD, &ArimaSettings::periodicity)
        .number(IDC_SERIES_PERIOD_VALUE, &ArimaSettings::period, kSeriesValueLimit)
        .number(IDC_ARIMA_ITERATIONS, &ArimaSettings::iterations, kSeriesValueLimit)
        .number(IDC_ARIMA_CONVERGENCE, &ArimaSettings::convergence, kSeriesValueLimit)
        .number(IDC_ARIMA_BACKCAST, &ArimaSettings::backcast, kSeriesValueLimit)
        .check(IDC_ARIMA_CONSTANT, &ArimaSettings::constant);
    bindForecast(b);
    // Each order is given while its box is checked.
    b.enableWith(IDC_ARIMA_AR_VALUE, IDC_ARIMA_AR)
        .enableWith(IDC_ARIMA_SAR_VALUE, IDC_ARIMA_SAR)
        .enableWith(IDC_ARIMA_MA_VALUE, IDC_ARIMA_MA)
        .enableWith(IDC_ARIMA_SMA_VALUE, IDC_ARIMA_SMA)
        .enableWith(IDC_SERIES_PERIOD_VALUE, IDC_SERIES_PERIOD);
    return b;
}

class ArimaDialog : public SeriesDialog<ArimaSettings> {
public:
    ArimaDialog() : SeriesDialog(remembered<ArimaSettings>(), arimaBindings(), composeArima) {}

private:
    void follow(DialogView& view) override { followForecast(view); }
};

Bindings<ExpoSettings> expoBindings() {
    Bindings<ExpoSettings> b;
    b.check(IDC_EXPO_TREND, &ExpoSettings::trend)
        .radio({IDC_EXPO_LINEAR, IDC_EXPO_PERCENT}, &ExpoSettings::trendKind)
        .number(IDC_EXPO_LINEAR_VALUE, &ExpoSettings::linear, kSeriesValueLimit)
        .number(IDC_EXPO_PERCENT_VALUE, &ExpoSettings::percent, kSeriesValueLimit)
        .check(IDC_EXPO_SEASONAL, &ExpoSettings::seasonal)
        .radio({IDC_EXPO_ADDITIVE, IDC_EXPO_MULTI}, &ExpoSettings::seasonalKind)
        .number(IDC_EXPO_ADDITIVE_VALUE, &ExpoSettings::additive, kSeriesValueLimit)
        .number(IDC_EXPO_MULTI_VALUE, &ExpoSettings::multiplicative, kSeriesValueLimit)
        .check(IDC_SERIES_PERIOD, &ExpoSettings::periodicity)
        .number(IDC_SERIES_PERIOD_VALUE, &ExpoSettings::period, kSeriesValueLimit)
        .number(IDC_EXPO_SMOOTH, &ExpoSettings::smooth, kSeriesValueLimit);
    bindForecast(b);
    return b;
}

class ExpoDialog : public SeriesDialog<ExpoSettings> {
public:
    ExpoDialog() : SeriesDialog(remembered<ExpoSettings>(), expoBindings(), composeExpo) {}

private:
    void follow(DialogView& view) override {
        const bool trend = view.isChecked(IDC_EXPO_TREND);
        enableIf(view, IDC_EXPO_LINEAR, trend);
        enableIf(view, IDC_EXPO_PERCENT, trend);
        enableIf(view, IDC_EXPO_LINEAR_VALUE, trend && view.isChecked(IDC_EXPO_LINEAR));
        enableIf(view, IDC_EXPO_PERCENT_VALUE, trend && view.isChecked(IDC_EXPO_PERCENT));
        const bool seasonal = view.isChecked(IDC_EXPO_SEASONAL);
        enableIf(view, IDC_EXPO_ADDITIVE, seasonal);
        enableIf(view, IDC_EXPO_MULTI, seasonal);
        enableIf(view, IDC_EXPO_ADDITIVE_VALUE, seasonal && view.isChecked(IDC_EXPO_ADDITIVE));
        enableIf(view, IDC_EXPO_MULTI_VALUE, seasonal && view.isChecked(IDC_EXPO_MULTI));
        followForecast(view);
    }
};

// Fourier, ACF, PACF and CCF.
template <std::uint16_t Id>
class LagDialog : public SeriesDialog<LagSettings> {
public:
    LagDialog()
        : SeriesDialog(settings(),
                       Bindings<LagSettings>().number(IDC_SERIES_LAG, &LagSettings::lag, kSeriesValueLimit),
                       composeFor) {}

private:
    static LagSettings& settings() {
        static LagSettings record;
        return record;
    }
    static ProcedureBlock composeFor(const LagSettings& s, const Names& variables) {
        return composeLagged(Id, s, variables);
    }
};

class LowessDialog : public SeriesDialog<LowessSettings> {
public:
    LowessDialog()
        : SeriesDialog(remembered<LowessSettings>(),
                       Bindings<LowessSettings>().number(IDC_LOWESS_TENSION, &LowessSettings::tension,
                                                         kSeriesValueLimit),
                       composeLowess) {}
};

class SeasonalDialog : public SeriesDialog<SeasonalSettings> {
public:
    SeasonalDialog()
        : SeriesDialog(remembered<SeasonalSettings>(),
                       Bindings<SeasonalSettings>()
                           .check(IDC_SEASONAL_TERM, &SeasonalSettings::term)
                           .radio({IDC_SEASONAL_ADDITIVE, IDC_SEASONAL_MULT}, &SeasonalSettings::termKind)
                           .number(IDC_SEASONAL_SEASON, &SeasonalSettings::season, kSeriesValueLimit),
                       composeSeasonal) {}

private:
    void follow(DialogView& view) override {
        const bool term = view.isChecked(IDC_SEASONAL_TERM);
        enableIf(view, IDC_SEASONAL_ADDITIVE, term);
        enableIf(view, IDC_SEASONAL_MULT, term);
    }
};

class SmoothDialog : public SeriesDialog<SmoothSettings> {
public:
    SmoothDialog()
        : SeriesDialog(remembered<SmoothSettings>(),
                       Bindings<SmoothSettings>()
                           .radio({IDC_SMOOTH_BY_WEIGHT, IDC_SMOOTH_BY_MEAN, IDC_SMOOTH_BY_MEDIAN}, &SmoothSettings::by)
                           .text(IDC_SMOOTH_WEIGHT, &SmoothSettings::weights, kWeightsLimit)
                           .number(IDC_SMOOTH_MEAN, &SmoothSettings::mean, kSeriesValueLimit)
                           .number(IDC_SMOOTH_MEDIAN, &SmoothSettings::median, kSeriesValueLimit)
                           .enableWith(IDC_SMOOTH_WEIGHT, IDC_SMOOTH_BY_WEIGHT)
                           .enableWith(IDC_SMOOTH_MEAN, IDC_SMOOTH_BY_MEAN)
                           .enableWith(IDC_SMOOTH_MEDIAN, IDC_SMOOTH_BY_MEDIAN),
                       composeSmooth) {}
};

struct NoSettings {};

class TplotDialog : public SeriesDialog<NoSettings> {
public:
    TplotDialog() : SeriesDialog(remembered<NoSettings>(), Bindings<NoSettings>(), composeTplotOf) {}

private:
    static ProcedureBlock composeTplotOf(const NoSettings&, const Names& variables) { return composeTplot(variables); }
};

// Time: no variables; "Data file..." chooses the time dialog's data file,
// shown in its field.
class TimeDialog : public SeriesDialog<TimeSettings> {
public:
    TimeDialog()
        : SeriesDialog(remembered<TimeSettings>(),
                       Bindings<TimeSettings>()
                           .number(IDC_TIME_START, &TimeSettings::start, kSeriesValueLimit)
                           .number(IDC_TIME_SECOND, &TimeSettings::second, kSeriesValueLimit)
                           .number(IDC_TIME_THIRD, &TimeSettings::third, kSeriesValueLimit)
                           .text(IDC_TIME_FORMAT, &TimeSettings::format, kSeriesValueLimit),
                       composeTimeOf) {}

private:
    static ProcedureBlock composeTimeOf(const TimeSettings& s, const Names&) { return composeTime(s); }
    void shown(DialogView& view) override {
        const FileRecord* file = fileRecord(kOpenTimeData);
        if (view.has(IDC_TIME_FILE)) view.setText(IDC_TIME_FILE, file && file->state == 1 ? file->path : "");
    }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.clicked(IDC_TIME_OPEN)) openAFile(context.view, kOpenTimeData);
    }
};

class TransformDialog : public SeriesDialog<TransformSettings> {
public:
    TransformDialog()
        : SeriesDialog(remembered<TransformSettings>(),
                       Bindings<TransformSettings>()
                           .radio({IDC_TRANSFORM_LOG, IDC_TRANSFORM_SQUARE, IDC_TRANSFORM_MEAN, IDC_TRANSFORM_TREND,
                                   IDC_TRANSFORM_DIFF, IDC_TRANSFORM_PCHANGE, IDC_TRANSFORM_LAG, IDC_TRANSFORM_POWER},
                                  &TransformSettings::chosen)
                           .number(IDC_TRANSFORM_VALUE, &TransformSettings::value, kSeriesValueLimit),
                       composeTransform) {}

private:
    void follow(DialogView& view) override {
        int chosen = 0;
        for (int id = IDC_TRANSFORM_LOG; id <= IDC_TRANSFORM_POWER; ++id)
            if (view.isChecked(id)) chosen = id;
        enableIf(view, IDC_TRANSFORM_VALUE, transformTakesValue(chosen));
    }
};

}  // namespace

bool seriesCommandIssued() { return seriesIssued; }

DialogBehaviour& arimaBehaviour() { return soleInstance<ArimaDialog>(); }
DialogBehaviour& expoBehaviour() { return soleInstance<ExpoDialog>(); }
DialogBehaviour& fourierBehaviour() { return soleInstance<LagDialog<234>>(); }
DialogBehaviour& lowessBehaviour() { return soleInstance<LowessDialog>(); }
DialogBehaviour& seasonalBehaviour() { return soleInstance<SeasonalDialog>(); }
DialogBehaviour& smoothBehaviour() { return soleInstance<SmoothDialog>(); }
DialogBehaviour& tplotBehaviour() { return soleInstance<TplotDialog>(); }
DialogBehaviour& acfBehaviour() { return soleInstance<LagDialog<239>>(); }
DialogBehaviour& pacfBehaviour() { return soleInstance<LagDialog<240>>(); }
DialogBehaviour& ccfBehaviour() { return soleInstance<LagDialog<241>>(); }
DialogBehaviour& timeBehaviour() { return soleInstance<TimeDialog>(); }
DialogBehaviour& transformBehaviour() { return soleInstance<TransformDialog>(); }

}  // namespace kvs::stats
