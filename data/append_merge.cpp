#include "data/composers.h"

#include "core/command_queue.h"
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/file_choosers.h"
#include "core/generic_dialog.h"
#include "core/library_state.h"
#include "data/data_texts.h"
#include "core/join_names.h"
#include "data/key_selection.h"
#include "data/text_pieces.h"
#include "core/save_file_step.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

constexpr std::size_t kBrowseCapacity = 256;
constexpr std::uint32_t kMergeHelpContext = 91;

struct AppendState {
    int liveOption = 0;       // as last clicked, kept through Cancel
    int confirmedOption = 0;  // as of the last OK
    std::string file1, file2;
};

struct MergeState {
    std::string file1, file2;
};

AppendState appendState;
MergeState mergeState;

std::string nameBlock(const DialogView& view, int fieldId) {
    std::string text = view.text(fieldId);
    if (text.size() > kFileNameLength) text.resize(kFileNameLength);
    return text;
}

// "Filename(s) not specified.": owned by the dialog, stop icon, and no
// caption of the library's own.
void showFileNotSpecified(const DialogView& view) {
    MessageRequest request;
    request.owner = view.handle();
    request.text = std::string(text::kFileNotSpecified);
    request.icon = MessageIcon::Stop;
    ui().messageBox(request);
}

class AppendDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        for (int id : {IDC_APPEND_MATCH, IDC_APPEND_UNION, IDC_APPEND_INTERSECT})
            context.view.setChecked(id, id == appendState.liveOption);
        for (int id : {IDC_APPEND_FILE1, IDC_APPEND_FILE2}) context.view.limitText(id, kFileNameLength);
        return 0;
    }

    void notify(DialogContext& context, const Notification& n) override {
        if (n.event != Event::Clicked) return;
        switch (n.controlId) {
        case IDC_APPEND_MATCH:
        case IDC_APPEND_UNION:
        case IDC_APPEND_INTERSECT: appendState.liveOption = n.controlId; return;
        case IDC_APPEND_BROWSE1: browse(context.view, appendState.file1, IDC_APPEND_FILE1); return;
        case IDC_APPEND_BROWSE2: browse(context.view, appendState.file2, IDC_APPEND_FILE2); return;
        default: return;
        }
    }

    bool accept(DialogContext& context, int) override { return ok(context.view); }
    void addDefaults(DefaultsTable& table) override { table.record(appendState); }

    // The line is pushed even with a name missing, so it is what OK gives.
    std::optional<Composition> preview(DialogContext& context) override {
        CommandText line;
        composeAppendLine(nameBlock(context.view, IDC_APPEND_FILE1), nameBlock(context.view, IDC_APPEND_FILE2),
                          appendState.liveOption, line);
        return withProposedSave(context.view, text::kAppendDefaultFile, Composition().add(line));
    }

private:
    static void browse(DialogView& view, const std::string& remembered, int fieldId) {
        std::string chosen;
        browseForAFile(view, chosen, kBrowseCapacity, remembered, fieldId);
    }

    static bool ok(DialogView& view) {
        if (!runSaveFileStep(view, text::kAppendDefaultFile)) return false;
        appendState.file1 = nameBlock(view, IDC_APPEND_FILE1);
        appendState.file2 = nameBlock(view, IDC_APPEND_FILE2);
        appendState.confirmedOption = appendState.liveOption;
        CommandText line;
        // A missing name is reported, and the line is queued all the same:
        // the host reports what it cannot run.
        const int missing = composeAppendLine(appendState.file1, appendState.file2, appendState.confirmedOption, line);
        for (int i = 0; i < missing; ++i) showFileNotSpecified(view);
        queue::push(line.c_str(), nullptr);
        library().dataCommand = 1;
        return true;
    }
};

class MergeDialog : public DialogBehaviour {
public:
    bool fillSources(DialogContext& context, VariableCatalogue& first, VariableCatalogue& second) override {
        DialogView& view = context.view;
        for (int id : {IDC_MERGE_FILE1, IDC_MERGE_FILE2}) view.limitText(id, kFileNameLength);
        view.setText(IDC_MERGE_FILE1, mergeState.file1);
        view.setText(IDC_MERGE_FILE2, mergeState.file2);
        fillListFromFile(view, mergeState.file1, IDC_SOURCE, listInsertRule(), &first);
        fillListFromFile(view, mergeState.file2, IDC_SOURCE2, listInsertRule(), &second);
        return true;
    }

    void notify(DialogContext& context, const Notification& n) override {
        if (n.event != Event::Clicked) return;
        switch (n.controlId) {
        case IDC_MERGE_BROWSE1: browse(context, mergeState.file1, IDC_MERGE_FILE1, IDC_SOURCE); return;
        case IDC_MERGE_BROWSE2: browse(context, mergeState.file2, IDC_MERGE_FILE2, IDC_SOURCE2); return;
        case IDC_MERGE_KEYS: keys(context.view); return;
        default: return;
        }
    }

    bool accept(DialogContext& context, int) override { return ok(context.view); }
    void addDefaults(DefaultsTable& table) override { table.record(mergeState); }

    std::optional<Composition> preview(DialogContext& context) override {
        return withProposedSave(context.view, "",
                                mergeLine(context.view, nameBlock(context.view, IDC_MERGE_FILE1),
                                          nameBlock(context.view, IDC_MERGE_FILE2)));
    }

    std::uint32_t helpContext(std::uint16_t) const override { return kMergeHelpContext; }

private:
    static void browse(DialogContext& context, const std::string& remembered, int fieldId, int listId) {
        std::string chosen;
        if (browseForAFile(context.view, chosen, kBrowseCapacity, remembered, fieldId))
            fillListFromFile(context.view, chosen, listId, listInsertRule(), &context.dialog.catalogue(listId));
    }

    static void keys(DialogView& view) {
        // The sub-dialog's own help context must not outlive it.
        const std::uint32_t context = library().helpContext;
        runKeySelection(view.handle());
        library().helpContext = context;
    }

    static bool ok(DialogView& view) {
        // A SAVE line queued here stays queued even when OK is refused below.
        if (!runSaveFileStep(view, "")) return false;
        mergeState.file1 = nameBlock(view, IDC_MERGE_FILE1);
        mergeState.file2 = nameBlock(view, IDC_MERGE_FILE2);
        const Composition merge = mergeLine(view, mergeState.file1, mergeState.file2);
        if (merge.refused()) {
            showFileNotSpecified(view);
            return false;
        }
        return deliver(view.handle(), merge);
    }

    static Composition mergeLine(const DialogView& view, std::string_view file1, std::string_view file2) {
        CommandText names1, names2;
        joinNames(view, IDC_TARGET1, names1, ' ');
        joinNames(view, IDC_TARGET2, names2, ' ');
        CommandText line;
        if (!composeMergeLine(file1, names1.str(), file2, names2.str(), keyFlag(), keyText(), line))
            return Composition::refuse(text::kFileNotSpecified);
        return Composition().add(line);
    }
};

void appendNames(std::string_view names, CommandText& line) {
    if (names.empty()) return;
    const CommandText::Piece piece(line);
    line.append('(').append(names).append(')');
}

}  // namespace

int composeAppendLine(std::string_view file1, std::string_view file2, int option, CommandText& line) {
    int missing = 0;
    line.append(text::kAppend);
    if (!quoteFileName(file1, "", true, true, line)) ++missing;
    line.append(' ');
    if (!quoteFileName(file2, "", true, true, line)) ++missing;
    line.append(text::kOptionSeparator);
    switch (option) {
    case IDC_APPEND_MATCH: line.append(text::kMatch); break;
    case IDC_APPEND_UNION: line.append(text::kUnion); break;
    case IDC_APPEND_INTERSECT: line.append(text::kIntersect); break;
    default: break;
    }
    return missing;
}

bool composeMergeLine(std::string_view file1, std::string_view names1, std::string_view file2,
                      std::string_view names2, int keyFlag, std::string_view keys, CommandText& line) {
    line.append(text::kMerge);
    if (!quoteFileName(file1, "", true, true, line)) return false;
    appendNames(names1, line);
    line.append(' ');
    if (quoteFileName(file2, "", true, true, line)) appendNames(names2, line);
    if (keyFlag == 1 && !keys.empty()) {
        const CommandText::Piece piece(line);
        line.append(text::kOptionSeparator).append(keys);
    }
    return true;
}

DialogBehaviour& appendBehaviour() { return soleInstance<AppendDialog>(); }
DialogBehaviour& mergeBehaviour() { return soleInstance<MergeDialog>(); }


}  // namespace kvs::data
