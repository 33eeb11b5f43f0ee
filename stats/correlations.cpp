// Correlations (204): one line of the chosen measure over "Variable(s):"
// (list 10), against "With variable(s):" (list 11) when that holds names,
// after the CORR procedure line.
#include "stats/choice_boxes.h"
#include "stats/multivariate_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"

namespace kvs::stats {

namespace {

class CorrelationsDialog : public ProcedureDialog<CorrSettings> {
public:
    CorrelationsDialog()
        : ProcedureDialog(settings(), Bindings<CorrSettings>()
                                          .combo(IDC_CORR_MEASURE, &CorrSettings::measure)
                                          .radio({IDC_CORR_LISTWISE, IDC_CORR_PAIRWISE}, &CorrSettings::missing)) {}

    int init(DialogContext& context) override {
        fillChoices(context.view, IDC_CORR_MEASURE, text::kCorrMeasures);
        return ProcedureDialog::init(context);
    }

private:
    static CorrSettings& settings() {
        static CorrSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const CorrSettings& s, const DialogView& view) const override {
        return composeCorrelations(s, listNames(view, IDC_TARGET1), listNames(view, IDC_TARGET2));
    }
};

}  // namespace

DialogBehaviour& correlationsBehaviour() { return soleInstance<CorrelationsDialog>(); }

}  // namespace kvs::stats
