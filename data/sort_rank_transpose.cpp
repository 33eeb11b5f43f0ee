#include "data/sort_rank_transpose.h"

#include "core/command_queue.h"
#include "core/command_text.h"
#include "core/messages.h"
#include "data/data_texts.h"
#include "data/join_names.h"
#include "data/save_file_step.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

constexpr int kMaxSortKeys = 10;

// The order as last clicked (kept even when the dialog is cancelled) and as
// confirmed by the last OK.
std::int32_t liveSortOrder = IDC_SORT_ASCENDING;
std::int32_t confirmedSortOrder = IDC_SORT_ASCENDING;

bool isOk(int controlId) { return controlId == kIdOk; }

class SortDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        showOrder(context.view, liveSortOrder);
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId == IDC_SORT_ASCENDING || controlId == IDC_SORT_DESCENDING) {
            liveSortOrder = controlId;
            return 0;
        }
        if (!isOk(controlId)) return 0;
        DialogView& view = context.view;
        confirmedSortOrder = liveSortOrder;
        if (!runSaveFileStep(view, "")) return 0;
        const int count = view.listCount(IDC_TARGET1);
        if (count == 0) {
            showStop(view.handle(), kvs::text::kSelectVariables);
            return 0;
        }
        CommandText line(text::kSort);
        for (int i = 0; i < count && i < kMaxSortKeys; ++i) line.append(view.listText(IDC_TARGET1, i)).append(' ');
        if (confirmedSortOrder == IDC_SORT_DESCENDING) line.append(text::kDescending);
        queue::push(line.c_str(), nullptr);
        return 1;
    }

    void reset(DialogContext& context) override {
        liveSortOrder = IDC_SORT_ASCENDING;
        showOrder(context.view, liveSortOrder);
        context.view.setChecked(IDC_SAVEFILE, false);
    }

private:
    static void showOrder(DialogView& view, int order) {
        view.setChecked(IDC_SORT_ASCENDING, order == IDC_SORT_ASCENDING);
        view.setChecked(IDC_SORT_DESCENDING, order == IDC_SORT_DESCENDING);
    }
};

class RankDialog : public DialogBehaviour {
public:
    int command(DialogContext& context, int controlId, int) override {
        if (!isOk(controlId)) return 0;
        DialogView& view = context.view;
        if (!runSaveFileStep(view, "")) return 0;
        CommandText line(text::kRank);
        if (joinNames(view, IDC_TARGET1, line, ' ') == 0) {
            showStop(view.handle(), kvs::text::kSelectVariables);
            return 0;
        }
        queue::push(line.c_str(), nullptr);
        return 1;
    }

    void reset(DialogContext& context) override { context.view.setChecked(IDC_SAVEFILE, false); }
};

class TransposeDialog : public DialogBehaviour {
public:
    int command(DialogContext& context, int controlId, int) override {
        if (!isOk(controlId)) return 0;
        DialogView& view = context.view;
        if (!runSaveFileStep(view, "")) return 0;
        // An empty list still gives "TRANSPOSE ": the kernel reports it.
        CommandText line(text::kTranspose);
        const int count = view.listCount(IDC_TARGET1);
        for (int i = 0; i < count; ++i) line.append(view.listText(IDC_TARGET1, i)).append(' ');
        queue::push(line.c_str(), nullptr);
        return 1;
    }

    void reset(DialogContext& context) override { context.view.setChecked(IDC_SAVEFILE, false); }
};

}  // namespace

DialogBehaviour& sortBehaviour() { return soleInstance<SortDialog>(); }
DialogBehaviour& rankBehaviour() { return soleInstance<RankDialog>(); }
DialogBehaviour& transposeBehaviour() { return soleInstance<TransposeDialog>(); }

void addSortDefaults(DefaultsTable& table) {
    table.word(liveSortOrder, IDC_SORT_ASCENDING);
    table.word(confirmedSortOrder, IDC_SORT_ASCENDING);
}

}  // namespace kvs::data
