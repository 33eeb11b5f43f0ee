// Basic Statistics (248), Cronbach (250) and Stem (251): one line each
// after the STATS procedure line. Basic Statistics keeps its grouping
// variable in the one-variable list 245 itself; with one it compares the
// groups (ONEWAY), without one it lists the chosen statistics.
#include "core/descriptor.h"
#include "stats/choice_boxes.h"
#include "stats/multivariate_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

Bindings<BasicStatsSettings> basicStatsBindings() {
    Bindings<BasicStatsSettings> b;
    b.check(IDC_BSTATS_CIM, &BasicStatsSettings::cim)
        .number(IDC_BSTATS_CONFIDENCE, &BasicStatsSettings::confidence, kStoredValueLimit)
        .check(IDC_BSTATS_TUKEY, &BasicStatsSettings::tukey)
        .combo(IDC_BSTATS_PRINT, &BasicStatsSettings::print)
        .combo(IDC_BSTATS_SAVE_KIND, &BasicStatsSettings::saveKind)
        .enableWith(IDC_BSTATS_CONFIDENCE, IDC_BSTATS_CIM);
    return b;
}

class BasicStatsDialog : public ProcedureDialog<BasicStatsSettings> {
public:
    BasicStatsDialog() : ProcedureDialog(settings(), basicStatsBindings()) {}

    int init(DialogContext& context) override {
        DialogView& view = context.view;
        view.listClear(IDC_BSTATS_LIST);
        for (const text::Choice& statistic : text::kStatisticsList)
            view.listAdd(IDC_BSTATS_LIST, statistic.entry, ListInsert::Append);
        fillEntries(view, IDC_BSTATS_PRINT, text::kPrintLengths);
        fillEntries(view, IDC_BSTATS_SAVE_KIND, text::kStatsSaveKinds);
        return ProcedureDialog::init(context);
    }


    std::vector<OwnList> ownLists() override { return {{IDC_VARIABLE_LIST, &grouping_, 1}}; }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(grouping_);
    }

private:
    static BasicStatsSettings& settings() {
        static BasicStatsSettings remembered;
        return remembered;
    }
    void readOwn(const DialogView& view, BasicStatsSettings& s) const override {
        std::uint32_t chosen = 0;
        for (int index : view.listSelection(IDC_BSTATS_LIST))
            if (index >= 0 && index < 32) chosen |= 1u << index;
        s.statistics = chosen;
    }
    void shown(DialogView& view) override {
        for (std::size_t i = 0; i < std::size(text::kStatisticsList); ++i)
            view.listSelect(IDC_BSTATS_LIST, static_cast<int>(i), (working_.statistics & (1u << i)) != 0);
    }
    ProcedureBlock compose(const BasicStatsSettings& s, const DialogView& view) const override {
        return composeBasicStats(s, listNames(view, IDC_TARGET1), listNames(view, IDC_VARIABLE_LIST));
    }

    SelectionArray grouping_{};
};

struct NoSettings {};

class CronbachDialog : public ProcedureDialog<NoSettings> {
public:
    CronbachDialog() : ProcedureDialog(settings(), Bindings<NoSettings>()) {}

private:
    static NoSettings& settings() {
        static NoSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const NoSettings&, const DialogView& view) const override {
        return composeCronbach(listNames(view, IDC_TARGET1));
    }
};

class StemDialog : public ProcedureDialog<StemSettings> {
public:
    StemDialog()
        : ProcedureDialog(settings(),
                          Bindings<StemSettings>().number(IDC_STEM_LINES, &StemSettings::lines, kStoredValueLimit)) {}

private:
    static StemSettings& settings() {
        static StemSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const StemSettings& s, const DialogView& view) const override {
        return composeStem(s, listNames(view, IDC_TARGET1));
    }
};

}  // namespace

DialogBehaviour& basicStatsBehaviour() { return soleInstance<BasicStatsDialog>(); }
DialogBehaviour& cronbachBehaviour() { return soleInstance<CronbachDialog>(); }
DialogBehaviour& stemBehaviour() { return soleInstance<StemDialog>(); }

}  // namespace kvs::stats
