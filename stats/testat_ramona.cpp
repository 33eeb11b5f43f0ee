// Test Item Analysis (295 classical, 297 logistic): the items, their answer
// key and the analysis' options; and RAMONA (269): manifest and latent
// variables, the paths of the model and its estimation.
#include "core/blank_text.h"
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

constexpr std::size_t kLongValueLimit = 127;  // a stored text of 128 characters
constexpr std::size_t kPathsLimit = 9000;

// keyword + " " + text, when the text holds more than blanks.
void addListLine(Composition& body, std::string_view keyword, std::string_view text) {
    if (isBlankText(text)) return;
    CommandText line(keyword);
    line.append(' ').appendCut(withoutBlanks(text));
    body.add(line);
}

}  // namespace

ProcedureBlock composeTestat(std::uint16_t commandId, const TestatSettings& s, const Names& items) {
    if (items.empty()) return ProcedureBlock::refuse(text::kTestat, kvs::text::kSelectVariables);
    Composition body;
    body.add(variablesModel(items, {}));
    addListLine(body, text::kKey, s.key);
    if (commandId == 295) {
        CommandText estimate(text::kClassical);
        if (s.half) estimate.append(text::kHalf);
        body.add(estimate);
    } else {
        CommandText estimate(text::kEstimatePlain);
        estimate.append(' ').append(s.model == IDC_TESTAT_LOG2 ? text::kLog2 : text::kLog1);
        appendOption(estimate, text::kSteps, s.steps);
        appendOption(estimate, text::kIterations, s.iterations);
        appendOptionUnlessDefault(estimate, text::kConverge, s.converge, text::kDefaultTestatConverge);
        appendOption(estimate, text::kLconverge, s.lconverge);
        body.add(estimate);
    }
    return {text::kTestat, text::kTestatFile, {}, std::move(body)};
}

ProcedureBlock composeRamona(const RamonaSettings& s, const Names& manifest) {
    if (manifest.empty()) return ProcedureBlock::refuse(text::kRamona, kvs::text::kSelectVariables);
    // The paths, one a line, go on one MODEL line separated by commas.
    CommandText model(text::kModel);
    bool first = true;
    std::string_view rest = s.paths;
    while (!rest.empty()) {
        const std::size_t end = rest.find_first_of("\r\n");
        const std::string_view path = withoutBlanks(rest.substr(0, end));
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
        if (path.empty()) continue;
        if (!first) model.append(text::kPathSeparator);
        model.appendCut(path);
        first = false;
    }
    if (first) return ProcedureBlock::refuse(text::kRamona, kvs::text::kProvideMoreInput);

    Composition body;
    CommandText variables(text::kManifest);
    variables.append(' ');
    joinNames(manifest, variables, ' ');
    body.add(variables);
    addListLine(body, text::kLatent, s.latent);
    body.add(model);
    CommandText estimate(text::kEstimate);
    estimate.append(text::kDispersion)
        .append(s.dispersion == IDC_RAMONA_CORR ? text::kCorrelations : text::kCovariances);
    estimate.append(text::kStart).append(s.start == IDC_RAMONA_CLOSE ? text::kClose : text::kRough);
    if (s.method == IDC_RAMONA_ADFG) estimate.append(text::kMethod).append(text::kAdfGramian);
    if (s.method == IDC_RAMONA_ADFU) estimate.append(text::kMethod).append(text::kAdfUnbiased);
    appendOption(estimate, text::kNcases, s.cases);
    appendOption(estimate, text::kIterations, s.iterations);
    appendOptionUnlessDefault(estimate, text::kConvg, s.convergence, text::kDefaultConvg);
    appendOption(estimate, text::kConfi, s.confidence);
    body.add(estimate);
    return {text::kRamona, {}, {}, std::move(body)};
}

namespace {

Bindings<TestatSettings> testatBindings(bool logistic) {
    Bindings<TestatSettings> b;
    b.text(IDC_TESTAT_KEY, &TestatSettings::key, kLongValueLimit);
    if (!logistic) return b.check(IDC_TESTAT_HALF, &TestatSettings::half);
    b.radio({IDC_TESTAT_LOG1, IDC_TESTAT_LOG2}, &TestatSettings::model)
        .number(IDC_TESTAT_STEPS, &TestatSettings::steps, kStoredValueLimit)
        .number(IDC_MV_ITERATIONS, &TestatSettings::iterations, kStoredValueLimit)
        .number(IDC_MV_CONVERGENCE, &TestatSettings::converge, kStoredValueLimit)
        .number(IDC_TESTAT_LCONVERGE, &TestatSettings::lconverge, kStoredValueLimit);
    return b;
}

template <std::uint16_t Id>
class TestatDialog : public ProcedureDialog<TestatSettings> {
public:
    TestatDialog() : ProcedureDialog(settings(), testatBindings(Id == 297)) {}

private:
    static TestatSettings& settings() {
        static TestatSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const TestatSettings& s, const DialogView& view) const override {
        return composeTestat(Id, s, listNames(view, IDC_TARGET1));
    }
};

RamonaSettings ramonaSettings;

Bindings<RamonaSettings> ramonaBindings() {
    Bindings<RamonaSettings> b;
    b.text(IDC_RAMONA_LATENT, &RamonaSettings::latent, kLongValueLimit)
        .text(IDC_RAMONA_MODEL, &RamonaSettings::paths, kPathsLimit)
        .radio({IDC_RAMONA_COVA, IDC_RAMONA_CORR}, &RamonaSettings::dispersion)
        .radio({IDC_RAMONA_ROUGH, IDC_RAMONA_CLOSE}, &RamonaSettings::start)
        .radio({IDC_RAMONA_ML, IDC_RAMONA_ADFG, IDC_RAMONA_ADFU}, &RamonaSettings::method)
        .number(IDC_RAMONA_CASES, &RamonaSettings::cases, kStoredValueLimit)
        .number(IDC_MV_ITERATIONS, &RamonaSettings::iterations, kStoredValueLimit)
        .number(IDC_MV_CONVERGENCE, &RamonaSettings::convergence, kStoredValueLimit)
        .number(IDC_RAMONA_CONFI, &RamonaSettings::confidence, kStoredValueLimit);
    return b;
}

class RamonaDialog : public ProcedureDialog<RamonaSettings> {
public:
    RamonaDialog() : ProcedureDialog(ramonaSettings, ramonaBindings()) {}

private:
    ProcedureBlock compose(const RamonaSettings& s, const DialogView& view) const override {
        return composeRamona(s, listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& testatClassicalBehaviour() { return soleInstance<TestatDialog<295>>(); }
DialogBehaviour& testatLogisticBehaviour() { return soleInstance<TestatDialog<297>>(); }
DialogBehaviour& ramonaBehaviour() { return soleInstance<RamonaDialog>(); }

}  // namespace kvs::stats
