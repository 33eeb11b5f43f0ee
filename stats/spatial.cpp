// Spatial Statistics (217): a variable measured at coordinates, and one
// analysis a run: variogram, kriging, simulation or point statistics. Each
// of the first three saves to its own file; point statistics save nothing.
#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/line_endings.h"
#include "stats/analysis_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

struct SpatialAnalysis {
    int choice;
    std::string_view verb;
    std::string_view file;
};
constexpr SpatialAnalysis kAnalyses[] = {
    {IDC_SPATIAL_VARIO, text::kVario, text::kVarioFile},
    {IDC_SPATIAL_KRIG, text::kKrig, text::kKrigingFile},
    {IDC_SPATIAL_SIMULATE, text::kSimulate, text::kSimulateFile},
    {IDC_SPATIAL_POINT, text::kPoint, {}},
};

const SpatialAnalysis& analysisOf(int choice) {
    for (const SpatialAnalysis& a : kAnalyses)
        if (a.choice == choice) return a;
    return kAnalyses[0];
}

}  // namespace

ProcedureBlock composeSpatial(const SpatialSettings& s, const Names& variable, const Names& coordinates) {
    const SpatialAnalysis& analysis = analysisOf(s.analysis);
    if (analysis.choice == IDC_SPATIAL_POINT) {
        if (coordinates.size() < 2) return ProcedureBlock::refuse(text::kSpatial, text::kSelectPointCoordinates);
    } else if (variable.empty() || coordinates.empty()) {
        return ProcedureBlock::refuse(text::kSpatial, kvs::text::kSelectVariables);
    }
    CommandText verb(analysis.verb);
    switch (analysis.choice) {
    case IDC_SPATIAL_VARIO:
        appendOption(verb, text::kLagCount, s.lags);
        appendOption(verb, text::kLagWidth, s.lagWidth);
        break;
    case IDC_SPATIAL_KRIG:
        appendOption(verb, text::kSearchPoints, s.points);
        appendOption(verb, text::kSearchRadius, s.radius);
        break;
    case IDC_SPATIAL_SIMULATE:
        appendOption(verb, text::kRealizations, s.realizations);
        appendOption(verb, text::kSeed, s.seed);
        break;
    default: break;
    }
    closeOptions(verb);
    Composition body;
    body.add(variable.empty() ? variablesModel(coordinates, {}) : variablesModel(variable, coordinates));
    body.add(verb);
    return {text::kSpatial, analysis.file, {}, std::move(body)};
}

namespace {

constexpr std::int32_t kCoordinates = 3;  // X, Y and Z
SpatialSettings spatialSettings;

// Each analysis's options are open while it is the one chosen.
Bindings<SpatialSettings> spatialBindings() {
    Bindings<SpatialSettings> b;
    b.radio({IDC_SPATIAL_VARIO, IDC_SPATIAL_KRIG, IDC_SPATIAL_SIMULATE, IDC_SPATIAL_POINT},
            &SpatialSettings::analysis);
    struct Option {
        int id, label;
        std::string SpatialSettings::*value;
        int choice;
    };
    constexpr Option kOptions[] = {
        {IDC_SPATIAL_LAGS, IDC_SPATIAL_LAGS_LABEL, &SpatialSettings::lags, IDC_SPATIAL_VARIO},
        {IDC_SPATIAL_WIDTH, IDC_SPATIAL_WIDTH_LABEL, &SpatialSettings::lagWidth, IDC_SPATIAL_VARIO},
        {IDC_SPATIAL_POINTS, IDC_SPATIAL_POINTS_LABEL, &SpatialSettings::points, IDC_SPATIAL_KRIG},
        {IDC_SPATIAL_RADIUS, IDC_SPATIAL_RADIUS_LABEL, &SpatialSettings::radius, IDC_SPATIAL_KRIG},
        {IDC_SPATIAL_REALIZE, IDC_SPATIAL_REALIZE_LABEL, &SpatialSettings::realizations, IDC_SPATIAL_SIMULATE},
        {IDC_SPATIAL_SEED, IDC_SPATIAL_SEED_LABEL, &SpatialSettings::seed, IDC_SPATIAL_SIMULATE}};
    for (const Option& o : kOptions)
        b.number(o.id, o.value, kStoredValueLimit).enableWith(o.id, o.choice).enableWith(o.label, o.choice);
    return b;
}

class SpatialDialog : public ProcedureDialog<SpatialSettings> {
public:
    SpatialDialog() : ProcedureDialog(spatialSettings, spatialBindings()) {}

    std::int32_t listCapacity(int listId, std::int32_t capacity) const override {
        return listId == IDC_TARGET1 ? kCoordinates : capacity;
    }

private:
    void shown(DialogView& view) override { follow(view); }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked) follow(context.view);
    }
    // Point statistics write no file.
    void follow(DialogView& view) { view.enable(IDC_SAVEFILE, !view.isChecked(IDC_SPATIAL_POINT)); }

    ProcedureBlock compose(const SpatialSettings& s, const DialogView& view) const override {
        return composeSpatial(s, listNames(view, IDC_TARGET2), listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& spatialBehaviour() { return soleInstance<SpatialDialog>(); }

}  // namespace kvs::stats
