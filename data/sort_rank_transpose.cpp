// Sort, Rank and Transpose: one line each from the names of target list 10,
// after the "Save file" step.
#include "core/bindings.h"
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/messages.h"
#include "data/composers.h"
#include "data/data_texts.h"
#include "data/save_file_step.h"

namespace kvs::data {

namespace {

struct SortSettings {
    int liveOrder = IDC_SORT_ASCENDING;       // as last clicked, kept even when cancelled
    int confirmedOrder = IDC_SORT_ASCENDING;  // as of the last OK
};

SortSettings sortSettings;

const Bindings<SortSettings>& sortBindings() {
    static const Bindings<SortSettings> bindings = Bindings<SortSettings>().radio(
        {IDC_SORT_ASCENDING, IDC_SORT_DESCENDING}, &SortSettings::liveOrder, Commit::OnClick);
    return bindings;
}

// The save step runs before the composition, so a refused list keeps the
// SAVE line the step queued.
bool saveThenDeliver(DialogView& view, const Composition& composition) {
    return runSaveFileStep(view, "") && deliver(view.handle(), composition);
}

class SortDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        sortBindings().show(context.view, sortSettings);
        return 0;
    }

    void notify(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked) sortBindings().clicked(context.view, n.controlId, sortSettings);
    }

    bool accept(DialogContext& context, int) override {
        sortSettings.confirmedOrder = sortSettings.liveOrder;
        if (!runSaveFileStep(context.view, "")) return false;
        const Names keys = listNames(context.view, IDC_TARGET1);
        return deliver(context.view.handle(), composeSort(keys, sortSettings.confirmedOrder));
    }

    void reset(DialogContext& context) override {
        sortSettings.liveOrder = IDC_SORT_ASCENDING;
        sortBindings().show(context.view, sortSettings);
        context.view.setChecked(IDC_SAVEFILE, false);
    }

    void addDefaults(DefaultsTable& table) override { table.record(sortSettings); }
};

class RankDialog : public DialogBehaviour {
public:
    bool accept(DialogContext& context, int) override {
        if (!runSaveFileStep(context.view, "")) return false;
        return deliver(context.view.handle(), composeRank(listNames(context.view, IDC_TARGET1)));
    }

    void reset(DialogContext& context) override { context.view.setChecked(IDC_SAVEFILE, false); }
};

class TransposeDialog : public DialogBehaviour {
public:
    bool accept(DialogContext& context, int) override {
        return saveThenDeliver(context.view, composeTranspose(listNames(context.view, IDC_TARGET1)));
    }

    void reset(DialogContext& context) override { context.view.setChecked(IDC_SAVEFILE, false); }
};

}  // namespace

Composition composeSort(const Names& keys, int order) {
    if (keys.empty()) return Composition::refuse(kvs::text::kSelectVariables);
    CommandText line(text::kSort);
    for (std::size_t i = 0; i < keys.size() && i < kMaxSortKeys; ++i) line.append(keys[i]).append(' ');
    if (order == IDC_SORT_DESCENDING) line.append(text::kDescending);
    return Composition().add(line);
}

Composition composeRank(const Names& names) {
    CommandText line(text::kRank);
    if (joinNames(names, line, ' ') == 0) return Composition::refuse(kvs::text::kSelectVariables);
    return Composition().add(line);
}

Composition composeTranspose(const Names& names) {
    CommandText line(text::kTranspose);
    for (const std::string& name : names) line.append(name).append(' ');
    return Composition().add(line);
}

DialogBehaviour& sortBehaviour() { return soleInstance<SortDialog>(); }
DialogBehaviour& rankBehaviour() { return soleInstance<RankDialog>(); }
DialogBehaviour& transposeBehaviour() { return soleInstance<TransposeDialog>(); }

}  // namespace kvs::data
