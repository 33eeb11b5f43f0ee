// Multidimensional Scaling (216): MODEL with the matrix shape and the
// ESTIMATE line, after the MDS procedure line. The save writes what combo
// box 45 names: the configuration, the distances or the residuals.
#include "stats/choice_boxes.h"
#include "stats/multivariate_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

Bindings<MdsSettings> mdsBindings() {
    Bindings<MdsSettings> b;
    b.radio({IDC_MDS_SQUARE, IDC_MDS_RECT}, &MdsSettings::shape)
        .number(IDC_MDS_ROWS, &MdsSettings::rows, kStoredValueLimit)
        .number(IDC_MDS_DIMENSIONS, &MdsSettings::dimensions, kStoredValueLimit)
        .number(IDC_MDS_ITERATIONS, &MdsSettings::iterations, kStoredValueLimit)
        .number(IDC_MDS_CONVERGENCE, &MdsSettings::convergence, kStoredValueLimit)
        .radio({IDC_MDS_KRUSKAL, IDC_MDS_GUTTMAN, IDC_MDS_YOUNG}, &MdsSettings::loss)
        .combo(IDC_MDS_REGRESSION, &MdsSettings::regression)
        .check(IDC_MDS_WEIGHT, &MdsSettings::weight)
        .combo(IDC_MDS_SPLIT, &MdsSettings::split)
        .combo(IDC_MDS_SAVE_KIND, &MdsSettings::saveKind)
        .enableWith(IDC_MDS_ROWS, IDC_MDS_RECT)
        .enableWith(IDC_MDS_REGRESSION, IDC_MDS_KRUSKAL);
    return b;
}

class MdsDialog : public ProcedureDialog<MdsSettings> {
public:
    MdsDialog() : ProcedureDialog(settings(), mdsBindings()) {}

    int init(DialogContext& context) override {
        fillChoices(context.view, IDC_MDS_REGRESSION, text::kMdsRegressions);
        fillChoices(context.view, IDC_MDS_SPLIT, text::kMdsSplits);
        fillChoices(context.view, IDC_MDS_SAVE_KIND, text::kMdsSaveKinds);
        return ProcedureDialog::init(context);
    }

private:
    static MdsSettings& settings() {
        static MdsSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const MdsSettings& s, const DialogView& view) const override {
        return composeMds(s, listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& mdsBehaviour() { return soleInstance<MdsDialog>(); }

}  // namespace kvs::stats
