// Factor Analysis (215): MODEL, the PRINT length when not medium, the
// ESTIMATE line with the method, and EXIT when asked, after the FACTOR
// procedure line. A saving mode other than "None" saves the file as a
// checked "Save file" does.
#include "stats/choice_boxes.h"
#include "stats/multivariate_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

Bindings<FactorSettings> factorBindings() {
    Bindings<FactorSettings> b;
    b.combo(IDC_FACTOR_METHOD, &FactorSettings::method)
        .radio({IDC_FACTOR_LISTWISE, IDC_FACTOR_PAIRWISE}, &FactorSettings::missing)
        .radio({IDC_FACTOR_CORR, IDC_FACTOR_COV}, &FactorSettings::matrix)
        .number(IDC_FACTOR_NUMBER, &FactorSettings::number, kStoredValueLimit)
        .number(IDC_FACTOR_EIGEN, &FactorSettings::eigen, kStoredValueLimit)
        .number(IDC_FACTOR_ITERATIONS, &FactorSettings::iterations, kStoredValueLimit)
        .number(IDC_FACTOR_CONVERGENCE, &FactorSettings::convergence, kStoredValueLimit)
        .check(IDC_FACTOR_SORT, &FactorSettings::sort)
        .combo(IDC_FACTOR_PRINT, &FactorSettings::print)
        .combo(IDC_FACTOR_SAVE_MODE, &FactorSettings::saveMode)
        .check(IDC_FACTOR_EXIT, &FactorSettings::exit);
    return b;
}

class FactorDialog : public ProcedureDialog<FactorSettings> {
public:
    FactorDialog() : ProcedureDialog(settings(), factorBindings()) {}

    int init(DialogContext& context) override {
        fillChoices(context.view, IDC_FACTOR_METHOD, text::kFactorMethods);
        fillEntries(context.view, IDC_FACTOR_PRINT, text::kPrintLengths);
        fillEntries(context.view, IDC_FACTOR_SAVE_MODE, text::kFactorSaveModes);
        return ProcedureDialog::init(context);
    }

private:
    static FactorSettings& settings() {
        static FactorSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const FactorSettings& s, const DialogView& view) const override {
        return composeFactor(s, listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& factorBehaviour() { return soleInstance<FactorDialog>(); }

}  // namespace kvs::stats
