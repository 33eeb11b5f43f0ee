// Sort, Rank and Transpose: one line each from the names of target list 10,
// after the "Save file" step.
#include "core/bound_dialog.h"
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/messages.h"
#include "data/composers.h"
#include "data/data_texts.h"
#include "core/save_file_step.h"

namespace kvs::data {

namespace {

struct SortSettings {
    int liveOrder = IDC_SORT_ASCENDING;       // as last clicked, kept even when cancelled
    int confirmedOrder = IDC_SORT_ASCENDING;  // as of the last OK
};

SortSettings sortSettings;

class SortDialog : public BoundDialog<SortSettings> {
public:
    SortDialog()
        : BoundDialog(sortSettings, Bindings<SortSettings>().radio({IDC_SORT_ASCENDING, IDC_SORT_DESCENDING},
                                                                   &SortSettings::liveOrder, Commit::OnClick)) {}

    void reset(DialogContext& context) override {
        sortSettings.liveOrder = IDC_SORT_ASCENDING;
        bindings_.show(context.view, sortSettings);
        context.view.setChecked(IDC_SAVEFILE, false);
    }

private:
    // The save step runs before the composition, so a refused list keeps the
    // SAVE line the step queued.
    bool prepare(DialogView& view, SortSettings& settings) override {
        settings.confirmedOrder = settings.liveOrder;
        return runSaveFileStep(view, "");
    }
    Composition compose(const SortSettings& settings, const DialogView& view) const override {
        return composeSort(listNames(view, IDC_TARGET1), settings.confirmedOrder);
    }
    Composition previewOf(const DialogView& view, SortSettings& settings) const override {
        settings.confirmedOrder = settings.liveOrder;
        return withProposedSave(view, "", compose(settings, view));
    }
};

// Rank and Transpose: the "Save file" step, then one line from list 10.
class SavedNamesDialog : public DialogBehaviour {
public:
    explicit SavedNamesDialog(Composition (*composer)(const Names&)) : composer_(composer) {}

    bool accept(DialogContext& context, int) override {
        return runSaveFileStep(context.view, "") &&
               deliver(context.view.handle(), composer_(listNames(context.view, IDC_TARGET1)));
    }

    std::optional<Composition> preview(DialogContext& context) override {
        return withProposedSave(context.view, "", composer_(listNames(context.view, IDC_TARGET1)));
    }

    void reset(DialogContext& context) override { context.view.setChecked(IDC_SAVEFILE, false); }

private:
    Composition (*composer_)(const Names&);
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
    for (const std::string& name : names) {
        if (line.size() > kJoinLimit) break;  // after a whole name, as every joined list stops
        line.append(name).append(' ');
    }
    return Composition().add(line);
}

DialogBehaviour& sortBehaviour() { return soleInstance<SortDialog>(); }
DialogBehaviour& rankBehaviour() {
    static SavedNamesDialog dialog(composeRank);
    return dialog;
}

DialogBehaviour& transposeBehaviour() {
    static SavedNamesDialog dialog(composeTranspose);
    return dialog;
}

}  // namespace kvs::data
