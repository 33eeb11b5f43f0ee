#include "core/generic_dialog.h"

#include <algorithm>
#include <new>

#include "core/command_queue.h"
#include "core/help_requests.h"
#include "core/library_state.h"
#include "core/list_transfer.h"
#include "core/messages.h"
#include "include/kvs_imports.h"
#include "resources/common_ids.h"

namespace kvs {

GenericDialog::GenericDialog(const DispatchRow& row, Descriptor& descriptor)
    : row_(row), descriptor_(descriptor), commandId_(row.id),
      behaviour_(row.behaviour ? &row.behaviour() : nullptr) {}

bool GenericDialog::fourLists() const { return row_.launch == Launch::Graph; }

const VariableCatalogue& GenericDialog::catalogueOf(const DialogView& view, const Target& target) const {
    return target.listId == IDC_TARGET2 && view.has(IDC_SOURCE2) ? secondCatalogue_ : sourceCatalogue_;
}

int GenericDialog::targetCapacity(int listId) const {
    for (const Target& target : targets_)
        if (target.listId == listId) return target.capacity;
    return 0;
}

// The target lists this dialog shows, with the selection arrays behind them.
// An array whose list the template lacks is left as it is.
void GenericDialog::prepareTargets(DialogView& view) {
    Descriptor& d = descriptor_;
    targets_.clear();
    if (!d.first.exists) return;
    const int mode = row_.mode;
    const auto addTarget = [&](int listId, SelectionArray& array, std::int32_t capacity, int add, int remove,
                               bool disableButtons) {
        if (!view.has(listId)) return;
        if (behaviour_) capacity = behaviour_->listCapacity(listId, capacity);
        targets_.push_back({listId, &array, capacity, {}});
        if (!disableButtons) return;
        if (view.has(add)) view.enable(add, false);
        if (view.has(remove)) view.enable(remove, false);
    };
    // A dialog that picks one variable shows the first selection in its
    // one-variable list, which never holds more than one name.
    if (!view.has(IDC_TARGET1) && view.has(IDC_ONE_VARIABLE))
        addTarget(IDC_ONE_VARIABLE, d.first, 1, IDC_ADD1, IDC_REMOVE1, true);
    else
        addTarget(IDC_TARGET1, d.first, mode == 0 ? 1 : d.firstCapacity, IDC_ADD1, IDC_REMOVE1, true);
    if (d.second.exists) {
        const std::int32_t capacity = mode == 1 ? std::min<std::int32_t>(d.secondCapacity, 1) : d.secondCapacity;
        addTarget(IDC_TARGET2, d.second, capacity, IDC_ADD2, IDC_REMOVE2, d.secondCapacity > 0);
    }
    if (fourLists()) {
        if (d.third.exists) addTarget(IDC_TARGET3, d.third, d.thirdCapacity, IDC_ADD3, IDC_REMOVE3, true);
        if (d.fourth.exists)
            addTarget(IDC_TARGET4, d.fourth, d.fourthCapacity, IDC_ADD4, IDC_REMOVE4, d.fourthCapacity > 0);
    }
    if (!behaviour_) return;
    for (const OwnList& own : behaviour_->ownLists()) {
        if (!view.has(own.listId) || !own.array) continue;
        if (own.array->entries.size() < static_cast<std::size_t>(own.capacity))
            own.array->entries.resize(static_cast<std::size_t>(own.capacity), -1);
        own.array->exists = true;
        std::erase_if(targets_, [&](const Target& t) { return t.listId == own.listId; });
        targets_.push_back({own.listId, own.array, own.capacity, {}});
    }
}

int GenericDialog::onInit(DialogView& view) {
    LibraryState& lib = library();
    const std::int32_t variables = GetNumVars();
    view.centre();
    INQFMV_EX();
    lib.helpContext = helpContext();
    prepareTargets(view);

    const ListInsert how = listInsertRule();
    if (descriptor_.allocated) {
        DialogContext context{view, *this};
        if (!behaviour_ || !behaviour_->fillSources(context, sourceCatalogue_, secondCatalogue_)) {
            const bool numericOnly = descriptor_.switch1 != 0;
            if (view.has(IDC_SOURCE))
                fillVariableList(view, IDC_SOURCE, how, variables, numericOnly, commandId_, sourceCatalogue_);
            if (descriptor_.listFlag && view.has(IDC_SOURCE2))
                fillVariableList(view, IDC_SOURCE2, how, variables, numericOnly, commandId_, secondCatalogue_);
        }
        for (Target& target : targets_) {
            const bool skip = target.listId == IDC_TARGET1 && row_.has(kNoFirstListRestore);
            if (skip || target.capacity <= 0 || target.array->entries.empty() || target.array->entries[0] == -1)
                continue;
            restoreSelection(view, target.array->entries, target.capacity, target.listId, catalogueOf(view, target));
        }
    }
    // While the dialog runs the arrays are empty; OK rebuilds them from the
    // lists and Cancel puts the backups back.
    for (Target& target : targets_) {
        target.backup.assign(target.array->entries.begin(), target.array->entries.end());
        std::fill(target.array->entries.begin(), target.array->entries.end(), -1);
    }

    int focus = 0;
    if (behaviour_) {
        DialogContext context{view, *this};
        focus = behaviour_->init(context);
    }
    updateTransferButtons(view, [this](int id) { return targetCapacity(id); });
    updateReorderButtons(view);
    nameTransferButtons(view);
    filters_.install(view, sourceCatalogue_, secondCatalogue_);
    installPreview(view);
    // Last, so the layout it scales holds every control added above.
    layout_.install(view, commandId_);
    if (focus) view.setFocus(focus);
    return focus;
}

void GenericDialog::onCommand(DialogView& view, int controlId, int notifyCode) {
    if (closing_) return;
    if (CommandPreview::owns(controlId)) {
        if (controlId == IDC_COPY_COMMANDS && notifyCode == kButtonClicked) preview_.copy(view);
        return;
    }
    if (filters_.owns(controlId)) {
        // Filtering took selected names out of view: the list's selection changed.
        const int list = filters_.command(view, controlId, notifyCode);
        if (!list) return;
        controlId = list, notifyCode = kListSelChange;
    }
    handleCommand(view, controlId, notifyCode);
    if (closing_) return;
    filters_.follow(view);
    refreshPreview(view);
}

// A dialog that composes a command shows it from the start; the dialog grows
// to hold the preview and is centred again.
void GenericDialog::installPreview(DialogView& view) {
    if (!behaviour_) return;
    DialogContext context{view, *this};
    std::optional<Composition> first = behaviour_->preview(context);
    if (!first || !preview_.install(view)) return;
    view.centre();
    preview_.show(view, first);
}

// Lines a refused OK left queued (a SAVE line the step pushed before the
// refusal) reach the host with the next OK's, so the preview shows them too.
void GenericDialog::refreshPreview(DialogView& view) {
    if (!preview_.installed() || !behaviour_) return;
    DialogContext context{view, *this};
    try {
        std::optional<Composition> next = behaviour_->preview(context);
        if (next && !next->refused() && queue::count() > 0) {
            std::vector<std::string> queued;
            for (std::int32_t i = 0; i < queue::count(); ++i)
                if (const char* command = queue::commandAt(i)) queued.emplace_back(command);
            next->lines.insert(next->lines.begin(), queued.begin(), queued.end());
        }
        preview_.show(view, next);
    } catch (const std::bad_alloc&) {
        preview_.show(view, std::nullopt);
    }
}

void GenericDialog::handleCommand(DialogView& view, int controlId, int notifyCode) {
    const auto capacity = [this](int id) { return targetCapacity(id); };
    DialogContext context{view, *this};
    if (controlId != kIdOk && controlId != kIdCancel &&
        handleListTransfer(view, controlId, notifyCode, capacity, listInsertRule())) {
        updateReorderButtons(view);
        if (behaviour_) behaviour_->listsChanged(context);
        return;
    }
    switch (controlId) {
    case IDC_MOVE_UP:
    case IDC_MOVE_DOWN:
        if (notifyCode == kButtonClicked) moveEntries(view, controlId);
        return;
    case IDC_HELPBUTTON: help(view); return;
    case IDC_RESETALL: resetAll(view); return;
    case kIdCancel: close(view, kIdCancel); return;
    case kIdOk:
    case IDC_CONTINUE:
        if (notifyCode != kButtonClicked) return;
        if (!behaviour_ || !behaviour_->accept(context, controlId)) return;
        for (Target& target : targets_)
            storeSelection(view, target.listId, target.capacity, catalogueOf(view, target), target.array->entries);
        close(view, controlId);
        return;
    default:
        if (behaviour_) behaviour_->notify(context, classify(view, controlId, notifyCode));
    }
}

void GenericDialog::close(DialogView& view, int result) {
    closing_ = true;
    INQFMV_EX();
    if (result == kIdCancel) {
        // An array ReinitDialogs released meanwhile stays released.
        for (Target& target : targets_)
            if (target.array->entries.size() == target.backup.size())
                std::copy(target.backup.begin(), target.backup.end(), target.array->entries.begin());
        if (behaviour_) {
            DialogContext context{view, *this};
            behaviour_->cancel(context);
        }
    }
    if (view.has(IDC_SOURCE)) view.listClear(IDC_SOURCE);
    if (descriptor_.listFlag && view.has(IDC_SOURCE2)) view.listClear(IDC_SOURCE2);
    library().helpContext = 0;
    view.end(result);
}

void GenericDialog::help(DialogView& view) { openHelpTopic(view.handle(), helpContext()); }

std::uint32_t GenericDialog::helpContext() const {
    return behaviour_ ? behaviour_->helpContext(commandId_) : commandId_;
}

void GenericDialog::resetAll(DialogView& view) {
    for (const Target& target : targets_) view.listClear(target.listId);
    filters_.clear(view);
    if (behaviour_) {
        DialogContext context{view, *this};
        behaviour_->reset(context);
    }
    updateTransferButtons(view, [this](int id) { return targetCapacity(id); });
    updateReorderButtons(view);
}

// A size that cannot be laid out for want of memory leaves the controls
// where they are; the dialog stays usable.
void GenericDialog::onResize(DialogView& view, int width, int height) {
    try {
        layout_.resize(view, width, height);
    } catch (const std::bad_alloc&) {
    }
}

void GenericDialog::onSysCommand(DialogView&, int code) { answerHelpCommand(code); }

}  // namespace kvs
