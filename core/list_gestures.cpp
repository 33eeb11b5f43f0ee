// What the generic dialog does with the mouse and keyboard in its lists
// beyond the Add and Remove buttons: drag and drop, Delete, Ctrl+A, and the
// Move Up and Move Down buttons of a list whose order the command keeps.
#include "core/generic_dialog.h"
#include "core/library_state.h"
#include "core/list_reorder.h"
#include "core/list_transfer.h"
#include "core/transfer_names.h"

namespace kvs {

bool GenericDialog::canDrop(DialogView& view, int fromList, int toList) {
    if (closing_) return false;
    const auto capacity = [this](int id) { return targetCapacity(id); };
    if (toList == 0) return canDragFrom(view, fromList, capacity);
    return listDropOf(view, fromList, toList, capacity) != ListDrop::None;
}

void GenericDialog::onDrop(DialogView& view, int fromList, int toList, int index) {
    if (closing_) return;
    const auto capacity = [this](int id) { return targetCapacity(id); };
    if (!handleListDrop(view, fromList, toList, index, capacity, listInsertRule())) return;
    listsChanged(view);
    refreshPreview(view);
}

bool GenericDialog::onListKey(DialogView& view, int listId, ListKey key) {
    if (closing_) return false;
    const auto capacity = [this](int id) { return targetCapacity(id); };
    if (key == ListKey::Delete) {
        if (!handleListDelete(view, listId, capacity)) return false;
        listsChanged(view);
        refreshPreview(view);
        return true;
    }
    if (!canDragFrom(view, listId, capacity)) return false;
    // Selecting everything is a selection change like a user's: the list
    // box itself would not notify one made by a message.
    const std::vector<int> before = view.listSelection(listId);
    view.listSelect(listId, -1, true);
    if (view.listSelection(listId) != before) onCommand(view, listId, kListSelChange);
    return true;
}

int GenericDialog::orderedList() const { return behaviour_ ? behaviour_->orderedList() : IDC_TARGET1; }

void GenericDialog::moveEntries(DialogView& view, int buttonId) {
    const int list = orderedList();
    if (!view.has(list) || targetCapacity(list) <= 0) return;
    const int step = buttonId == IDC_MOVE_UP ? -1 : 1;
    const int count = view.listCount(list);
    const std::vector<int> selected = view.listSelection(list);
    if (!canMoveSelectionBy(count, selected, step)) return;
    applyReordering(view, list, moveSelectionBy(count, selected, step));
    listsChanged(view);
    // A button that can move no further gives the focus to its list rather
    // than keep it disabled.
    if (!view.isEnabled(buttonId)) view.setFocus(list);
}

void GenericDialog::updateReorderButtons(DialogView& view) {
    if (!view.has(IDC_MOVE_UP) && !view.has(IDC_MOVE_DOWN)) return;
    const int list = orderedList();
    const bool used = view.has(list) && targetCapacity(list) > 0;
    const int count = used ? view.listCount(list) : 0;
    const std::vector<int> selected = used ? view.listSelection(list) : std::vector<int>{};
    view.enable(IDC_MOVE_UP, canMoveSelectionBy(count, selected, -1));
    view.enable(IDC_MOVE_DOWN, canMoveSelectionBy(count, selected, 1));
}

void GenericDialog::nameTransferButtons(DialogView& view) {
    const auto used = [&](const ListTransferRow& row) {
        return view.has(row.targetList) && targetCapacity(row.targetList) > 0;
    };
    const auto labelOf = [&](int listId) { return view.labelOf(listId); };
    for (const auto& [button, name] : transferButtonNames(kListTransfers, used, labelOf))
        if (view.has(button)) view.setAccessibleName(button, name);
    // Move Up and Move Down may sit away from their list, so their names say which.
    const std::string ordered = view.has(IDC_MOVE_UP) ? view.labelOf(orderedList()) : std::string();
    if (const std::string up = moveButtonName(true, ordered); !up.empty()) view.setAccessibleName(IDC_MOVE_UP, up);
    if (const std::string down = moveButtonName(false, ordered); !down.empty()) view.setAccessibleName(IDC_MOVE_DOWN, down);
}

void GenericDialog::listsChanged(DialogView& view) {
    updateTransferButtons(view, [this](int id) { return targetCapacity(id); });
    updateReorderButtons(view);
    if (behaviour_) {
        DialogContext context{view, *this};
        behaviour_->listsChanged(context);
    }
}

}  // namespace kvs
