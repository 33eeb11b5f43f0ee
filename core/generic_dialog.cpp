#include "core/generic_dialog.h"

#include <algorithm>

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

void GenericDialog::prepareTargets(DialogView& view) {
    Descriptor& d = descriptor_;
    targets_.clear();
    if (!d.first.exists) return;
    const int mode = row_.mode;
    // A dialog that picks one variable shows the first selection in its
    // one-variable list, which never holds more than one name.
    if (!view.has(IDC_TARGET1) && view.has(IDC_ONE_VARIABLE))
        targets_.push_back({IDC_ONE_VARIABLE, &d.first, 1, {}});
    else
        targets_.push_back({IDC_TARGET1, &d.first, mode == 0 ? 1 : d.firstCapacity, {}});
    view.enable(IDC_ADD1, false);
    view.enable(IDC_REMOVE1, false);
    if (d.second.exists) {
        const std::int32_t capacity = mode == 1 ? std::min<std::int32_t>(d.secondCapacity, 1) : d.secondCapacity;
        targets_.push_back({IDC_TARGET2, &d.second, capacity, {}});
        if (d.secondCapacity > 0) {
            view.enable(IDC_ADD2, false);
            view.enable(IDC_REMOVE2, false);
        }
    }
    if (fourLists()) {
        if (d.third.exists) {
            targets_.push_back({IDC_TARGET3, &d.third, d.thirdCapacity, {}});
            view.enable(IDC_ADD3, false);
            view.enable(IDC_REMOVE3, false);
        }
        if (d.fourth.exists) {
            targets_.push_back({IDC_TARGET4, &d.fourth, d.fourthCapacity, {}});
            if (d.fourthCapacity > 0) {
                view.enable(IDC_ADD4, false);
                view.enable(IDC_REMOVE4, false);
            }
        }
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
        target.backup = target.array->entries;
        std::fill(target.array->entries.begin(), target.array->entries.end(), -1);
    }

    int focus = 0;
    if (behaviour_) {
        DialogContext context{view, *this};
        focus = behaviour_->init(context);
    }
    updateTransferButtons(view, [this](int id) { return targetCapacity(id); });
    if (focus) view.setFocus(focus);
    return focus;
}

void GenericDialog::onCommand(DialogView& view, int controlId, int notifyCode) {
    if (closing_) return;
    const auto capacity = [this](int id) { return targetCapacity(id); };
    DialogContext context{view, *this};
    if (controlId != kIdOk && controlId != kIdCancel &&
        handleListTransfer(view, controlId, notifyCode, capacity, listInsertRule())) {
        if (behaviour_) behaviour_->listsChanged(context);
        return;
    }
    switch (controlId) {
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
        for (Target& target : targets_) target.array->entries = target.backup;
        if (behaviour_) {
            DialogContext context{view, *this};
            behaviour_->cancel(context);
        }
    }
    view.listClear(IDC_SOURCE);
    if (descriptor_.listFlag) view.listClear(IDC_SOURCE2);
    library().helpContext = 0;
    view.end(result);
}

void GenericDialog::help(DialogView& view) { openHelpTopic(view.handle(), helpContext()); }

std::uint32_t GenericDialog::helpContext() const {
    return behaviour_ ? behaviour_->helpContext(commandId_) : commandId_;
}

void GenericDialog::resetAll(DialogView& view) {
    for (const Target& target : targets_) view.listClear(target.listId);
    if (behaviour_) {
        DialogContext context{view, *this};
        behaviour_->reset(context);
    }
    updateTransferButtons(view, [this](int id) { return targetCapacity(id); });
}

void GenericDialog::onSysCommand(DialogView&, int code) { answerHelpCommand(code); }

}  // namespace kvs
