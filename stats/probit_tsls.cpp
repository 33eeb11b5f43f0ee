// Probit (291) and Two Stage Least Squares (294): estimate-model dialogs
// with a dependent, the independents, the constant and, for TSLS, the
// instruments and robust standard errors.
#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/estimate_composers.h"
#include "stats/model_line.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"

namespace kvs::stats {

namespace {

// A model needs a right side: the constant or an independent.
bool emptyModel(const EstimateSettings& s, const Names& independents) { return !s.constant && independents.empty(); }

}  // namespace

ProcedureBlock composeProbit(const EstimateSettings& s, const Names& dependent, const Names& independents) {
    if (dependent.empty()) return ProcedureBlock::refuse(text::kProbit, kvs::text::kSelectVariables);
    if (emptyModel(s, independents)) return ProcedureBlock::refuse(text::kProbit, text::kSelectIndependents);
    Composition body;
    body.add(modelLine(dependent, s.constant, independents));
    body.add(text::kEstimatePlain);
    return {text::kProbit, text::kProbitFile, {}, std::move(body)};
}

ProcedureBlock composeTsls(const EstimateSettings& s, const Names& dependent, const Names& independents,
                           const Names& instruments) {
    if (dependent.empty()) return ProcedureBlock::refuse(text::kTsls, kvs::text::kSelectVariables);
    if (independents.empty()) return ProcedureBlock::refuse(text::kTsls, text::kSelectIndependents);
    if (instruments.empty()) return ProcedureBlock::refuse(text::kTsls, kvs::text::kProvideMoreInput);
    CommandText model = modelLine(dependent, s.constant, independents);
    // The constant is exogenous: it is its own instrument.
    model.append(text::kInstruments);
    if (s.constant) model.append(text::kInstrumentConstant);
    joinNames(instruments, model, '+');
    CommandText estimate(text::kEstimatePlain);
    if (s.robust) estimate.append(text::kRobust);
    Composition body;
    body.add(model);
    body.add(estimate);
    return {text::kTsls, text::kTslsFile, {}, std::move(body)};
}

namespace {

template <std::uint16_t Id>
class EstimateDialog : public ProcedureDialog<EstimateSettings> {
public:
    EstimateDialog() : ProcedureDialog(settings(), bindings()) {}

    std::vector<OwnList> ownLists() override {
        if (!kTsls) return {{IDC_DEPENDENT, &dependent_, 1}};
        return {{IDC_DEPENDENT, &dependent_, 1},
                {IDC_TARGET1, &independents_, kListCapacity},
                {IDC_TARGET3, &instruments_, kListCapacity}};
    }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(dependent_);
        table.record(independents_);
        table.record(instruments_);
    }

private:
    static constexpr bool kTsls = Id == 294;
    static constexpr std::int32_t kListCapacity = 256;

    static EstimateSettings& settings() {
        static EstimateSettings remembered;
        return remembered;
    }
    static Bindings<EstimateSettings> bindings() {
        Bindings<EstimateSettings> b;
        b.check(IDC_EST_MODEL_CONSTANT, &EstimateSettings::constant);
        if (kTsls) b.check(IDC_TSLS_HC, &EstimateSettings::robust);
        return b;
    }

    ProcedureBlock compose(const EstimateSettings& s, const DialogView& view) const override {
        if (kTsls)
            return composeTsls(s, listNames(view, IDC_DEPENDENT), listNames(view, IDC_TARGET1),
                               listNames(view, IDC_TARGET3));
        return composeProbit(s, listNames(view, IDC_DEPENDENT), listNames(view, IDC_TARGET1));
    }

    SelectionArray dependent_{};
    SelectionArray independents_{};
    SelectionArray instruments_{};
};

}  // namespace

DialogBehaviour& probitBehaviour() { return soleInstance<EstimateDialog<291>>(); }
DialogBehaviour& tslsBehaviour() { return soleInstance<EstimateDialog<294>>(); }

}  // namespace kvs::stats
