// The clustering dialogs: Hierarchical Clustering (202 JOIN), K-means (203)
// and Additive Trees (254), one line each after the CLUSTER procedure line.
// JOIN's save writes the number of clusters it keeps (" NUMBER=").
#include "stats/choice_boxes.h"
#include "stats/multivariate_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

Bindings<JoinSettings> joinBindings() {
    Bindings<JoinSettings> b;
    b.radio({IDC_JOIN_ROWS, IDC_JOIN_COLUMNS, IDC_JOIN_MATRIX}, &JoinSettings::clustering)
        .combo(IDC_JOIN_DISTANCE, &JoinSettings::distance)
        .number(IDC_JOIN_POWER, &JoinSettings::power, kStoredValueLimit)
        .combo(IDC_JOIN_LINKAGE, &JoinSettings::linkage)
        .check(IDC_JOIN_POLAR, &JoinSettings::polar)
        .number(IDC_JOIN_SAVE_NUMBER, &JoinSettings::saveNumber, kStoredValueLimit);
    return b;
}

class JoinDialog : public ProcedureDialog<JoinSettings> {
public:
    JoinDialog() : ProcedureDialog(settings(), joinBindings()) {}

    int init(DialogContext& context) override {
        fillChoices(context.view, IDC_JOIN_DISTANCE, text::kDistances);
        fillChoices(context.view, IDC_JOIN_LINKAGE, text::kLinkages);
        return ProcedureDialog::init(context);
    }

private:
    static JoinSettings& settings() {
        static JoinSettings remembered;
        return remembered;
    }
    // The power while Minkowski is the distance; the number while a file is saved.
    void shown(DialogView& view) override {
        enableIf(view, IDC_JOIN_POWER, view.comboSelection(IDC_JOIN_DISTANCE) == text::kMinkowski);
        enableIf(view, IDC_JOIN_SAVE_NUMBER, view.isChecked(IDC_SAVEFILE));
    }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked || n.event == Event::ComboSelectionChanged) shown(context.view);
    }
    ProcedureBlock compose(const JoinSettings& s, const DialogView& view) const override {
        return composeJoin(s, listNames(view, IDC_TARGET1), view.isChecked(IDC_SAVEFILE));
    }
};

class KmeansDialog : public ProcedureDialog<KmeansSettings> {
public:
    KmeansDialog()
        : ProcedureDialog(settings(), Bindings<KmeansSettings>()
                                          .number(IDC_KMEANS_GROUPS, &KmeansSettings::groups, kStoredValueLimit)
                                          .number(IDC_KMEANS_ITERATIONS, &KmeansSettings::iterations, kStoredValueLimit)
                                          .combo(IDC_KMEANS_DISTANCE, &KmeansSettings::distance)) {}

    int init(DialogContext& context) override {
        fillChoices(context.view, IDC_KMEANS_DISTANCE, text::kDistances);
        return ProcedureDialog::init(context);
    }

private:
    static KmeansSettings& settings() {
        static KmeansSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const KmeansSettings& s, const DialogView& view) const override {
        return composeKmeans(s, listNames(view, IDC_TARGET1));
    }
};

Bindings<AddtreeSettings> addtreeBindings() {
    Bindings<AddtreeSettings> b;
    b.check(IDC_ADDTREE_HEIGHT, &AddtreeSettings::height)
        .check(IDC_ADDTREE_MINVAR, &AddtreeSettings::minvar)
        .check(IDC_ADDTREE_NUMBERS, &AddtreeSettings::numbers)
        .check(IDC_ADDTREE_SUBTRACT, &AddtreeSettings::subtract)
        .check(IDC_ADDTREE_TREE, &AddtreeSettings::tree)
        .check(IDC_ADDTREE_DATA, &AddtreeSettings::data)
        .check(IDC_ADDTREE_TRANSFORMED, &AddtreeSettings::transformed)
        .check(IDC_ADDTREE_ADDITIVE, &AddtreeSettings::additive)
        .check(IDC_ADDTREE_RESIDUALS, &AddtreeSettings::residuals);
    return b;
}

class AddtreeDialog : public ProcedureDialog<AddtreeSettings> {
public:
    AddtreeDialog() : ProcedureDialog(settings(), addtreeBindings()) {}

private:
    static AddtreeSettings& settings() {
        static AddtreeSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const AddtreeSettings& s, const DialogView& view) const override {
        return composeAddtree(s, listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& joinBehaviour() { return soleInstance<JoinDialog>(); }
DialogBehaviour& kmeansBehaviour() { return soleInstance<KmeansDialog>(); }
DialogBehaviour& addtreeBehaviour() { return soleInstance<AddtreeDialog>(); }

}  // namespace kvs::stats
