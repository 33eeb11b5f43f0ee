#include "stats/trax_select.h"

#include <iterator>
#include <utility>

#include "core/dialog_defaults.h"
#include "core/export_guard.h"
#include "core/generic_dialog.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "core/start_dialog.h"
#include "include/kvs_dlg.h"
#include "resources/trax_ids.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"

namespace kvs::stats {

namespace {

constexpr auto kProgramCount = static_cast<int>(std::size(text::kTraxPrograms));

struct TraxChoice {
    int program = 0;
};

TraxChoice chosen;
std::int32_t preselected = -1;

class TraxSelector : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        DialogView& view = context.view;
        view.listClear(IDC_TRAX_PROGRAMS);
        for (std::size_t i = 0; i < std::size(text::kTraxPrograms); ++i)
            view.listAdd(IDC_TRAX_PROGRAMS, traxEntry(i), ListInsert::Append);
        const std::int32_t start = std::exchange(preselected, -1);
        const int shown = start >= 0 && start < kProgramCount ? static_cast<int>(start) : chosen.program;
        view.listSetCurrent(IDC_TRAX_PROGRAMS, shown);
        return 0;
    }

    bool accept(DialogContext& context, int) override {
        const std::vector<int> selection = context.view.listSelection(IDC_TRAX_PROGRAMS);
        const int program = selection.empty() ? -1 : selection.front();
        if (!deliverBlock(context.view, composeTraxCall(program))) return false;
        chosen.program = program;
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        const std::vector<int> selection = context.view.listSelection(IDC_TRAX_PROGRAMS);
        return previewBlock(context.view, composeTraxCall(selection.empty() ? -1 : selection.front()));
    }

    // A double click chooses the program as OK does.
    void notify(DialogContext& context, const Notification& n) override {
        if (n.event == Event::ListDoubleClicked && n.controlId == IDC_TRAX_PROGRAMS)
            context.dialog.onCommand(context.view, kIdOk, kButtonClicked);
    }

    void reset(DialogContext& context) override { context.view.listSetCurrent(IDC_TRAX_PROGRAMS, 0); }

    void addDefaults(DefaultsTable& table) override { table.record(chosen); }
};

}  // namespace

std::string traxEntry(std::size_t index) {
    const text::TraxProgram& program = text::kTraxPrograms[index];
    return std::string(program.name) + " - " + std::string(program.description);
}

ProcedureBlock composeTraxCall(int index) {
    if (index < 0 || index >= kProgramCount) return ProcedureBlock::refuse(text::kTrax, kvs::text::kProvideMoreInput);
    ProcedureBlock block{text::kTrax, {}, {}, {}};
    block.body.add(std::string(text::kTraxCall) + std::string(text::kTraxPrograms[index].name));
    return block;
}

void preselectTraxProgram(std::int32_t index) { preselected = index; }

DialogBehaviour& traxSelectBehaviour() { return soleInstance<TraxSelector>(); }

}  // namespace kvs::stats

extern "C" {

// Opens the selector as StartDialog opens a dialog, under the host window
// the library was last given, with commandId as the current command id;
// value names the program to start from and text, when given, the help
// file. The other values are reserved. Returns 1 when a program was chosen.
int32_t KVS_CALL TRAXCallDialog(uint32_t commandId, int32_t value, const char* text, int32_t, int32_t) {
    return kvs::guardedExport(0, [&] {
        kvs::stats::preselectTraxProgram(value);
        const std::int32_t result = kvs::runDialogAs(kvs::stats::kTraxSelectorId, static_cast<std::uint16_t>(commandId),
                                                     kvs::library().hostWindow, text);
        kvs::stats::preselectTraxProgram(-1);
        return result;
    });
}

}  // extern "C"
