#include "core/list_transfer.h"

#include "core/list_reorder.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

namespace kvs {

namespace {

bool isUsed(const DialogView& view, const ListTransferRow& row, const TargetCapacity& capacity) {
    return view.has(row.targetList) && capacity(row.targetList) > 0;
}

// The one way names come into a target list: Add, a double-click in the
// source list and a drop onto the target. The source's selected names go in
// order to the end (at -1, as the insertion rule puts them) or before
// position at; a name the target holds is skipped, a full target beeps and
// takes no more, and a one-variable target takes the new name in place of
// the old.
void addSelected(DialogView& view, const ListTransferRow& row, int capacity, ListInsert how, int at) {
    const int source = sourceListOf(view, row);
    const std::vector<int> picked = view.listSelection(source);
    if (picked.empty()) return;
    if (at >= view.listCount(row.targetList)) at = -1;
    // Redraw off while items move, so a list repaints once, not per item.
    view.setRedraw(row.targetList, false);
    view.setRedraw(source, false);
    std::unordered_set<std::string> present;
    const int existing = view.listCount(row.targetList);
    for (int i = 0; i < existing; ++i) present.insert(view.listText(row.targetList, i));
    for (int index : picked) {
        std::string name = view.listText(source, index);
        if (present.count(name)) continue;
        if (view.listCount(row.targetList) >= capacity) {
            if (capacity != 1) {
                ui().beep();
                break;
            }
            // A one-variable target takes the new name in place of the old.
            present.erase(view.listText(row.targetList, 0));
            view.listDelete(row.targetList, 0);
        }
        if (at < 0) {
            view.listAdd(row.targetList, name, how);
        } else {
            view.listInsertAt(row.targetList, at, name);
            ++at;
        }
        present.insert(std::move(name));
    }
    for (int index : picked) view.listSelect(source, index, false);
    view.setRedraw(source, true);
    view.setRedraw(row.targetList, true);
}

void removeSelected(DialogView& view, const ListTransferRow& row) {
    std::vector<int> picked = view.listSelection(row.targetList);
    std::sort(picked.rbegin(), picked.rend());
    for (int index : picked) view.listDelete(row.targetList, index);
}

// Only rows whose target list the dialog uses: in a dialog without target
// lists the source lists and Add buttons are the dialog's own.
bool isTransferControl(const DialogView& view, int id, const TargetCapacity& capacity) {
    for (const ListTransferRow& row : kListTransfers) {
        if (!isUsed(view, row, capacity)) continue;
        if (id == row.addButton || id == row.removeButton || id == row.targetList || id == row.sources[0] ||
            id == row.sources[1])
            return true;
    }
    return false;
}

// Carries out an Add, a Remove or a double-click; a selection change needs
// nothing but the buttons brought up to date.
void transfer(DialogView& view, int controlId, int notifyCode, const TargetCapacity& capacity, ListInsert how) {
    const bool click = notifyCode == kButtonClicked;
    const bool doubleClick = notifyCode == kListDblClick;
    for (const ListTransferRow& row : kListTransfers) {
        if (!isUsed(view, row, capacity)) continue;
        // A double-click in a source list adds to the first list it serves.
        if ((controlId == row.addButton && click) || (controlId == sourceListOf(view, row) && doubleClick)) {
            addSelected(view, row, capacity(row.targetList), how, -1);
            return;
        }
        if ((controlId == row.removeButton && click) || (controlId == row.targetList && doubleClick)) {
            removeSelected(view, row);
            return;
        }
    }
}

}  // namespace

int sourceListOf(const DialogView& view, const ListTransferRow& row) {
    return view.has(row.sources[0]) ? row.sources[0] : row.sources[1];
}

void updateTransferButtons(DialogView& view, const TargetCapacity& capacity) {
    for (const ListTransferRow& row : kListTransfers) {
        if (!isUsed(view, row, capacity)) continue;
        view.enable(row.addButton, !view.listSelection(sourceListOf(view, row)).empty());
        view.enable(row.removeButton, !view.listSelection(row.targetList).empty());
    }
}

bool handleListTransfer(DialogView& view, int controlId, int notifyCode, const TargetCapacity& capacity,
                        ListInsert how) {
    if (!isTransferControl(view, controlId, capacity)) return false;
    transfer(view, controlId, notifyCode, capacity, how);
    updateTransferButtons(view, capacity);
    return true;
}

namespace {

struct Drop {
    ListDrop kind = ListDrop::None;
    const ListTransferRow* row = nullptr;
};

// The row whose Add takes names from list `from` into list `to`, whose
// Remove a drop of target `from` onto its source `to` stands for, or whose
// target `from` and `to` both are.
Drop rowOfDrop(const DialogView& view, int from, int to, const TargetCapacity& capacity) {
    for (const ListTransferRow& row : kListTransfers) {
        if (!isUsed(view, row, capacity)) continue;
        const int source = sourceListOf(view, row);
        if (from == source && to == row.targetList) return {ListDrop::Add, &row};
        if (from == row.targetList && to == source) return {ListDrop::Remove, &row};
        if (from == row.targetList && to == row.targetList) return {ListDrop::Reorder, &row};
    }
    return {};
}

// A drop does what the button beside the lists would do, so it is refused
// where that button is disabled: the dialog's own rules hold for the mouse
// as they do for the buttons.
Drop dropOf(const DialogView& view, int from, int to, const TargetCapacity& capacity) {
    const Drop drop = rowOfDrop(view, from, to, capacity);
    if (!drop.row || !view.isEnabled(from) || !view.isEnabled(to) || view.listSelection(from).empty()) return {};
    if (drop.kind == ListDrop::Add && !view.isEnabled(drop.row->addButton)) return {};
    if (drop.kind == ListDrop::Remove && !view.isEnabled(drop.row->removeButton)) return {};
    return drop;
}

}  // namespace

bool canDragFrom(const DialogView& view, int listId, const TargetCapacity& capacity) {
    for (const ListTransferRow& row : kListTransfers) {
        if (!isUsed(view, row, capacity)) continue;
        if (listId == row.targetList || listId == sourceListOf(view, row)) return view.isEnabled(listId);
    }
    return false;
}

ListDrop listDropOf(const DialogView& view, int from, int to, const TargetCapacity& capacity) {
    return dropOf(view, from, to, capacity).kind;
}

bool handleListDrop(DialogView& view, int from, int to, int at, const TargetCapacity& capacity, ListInsert how) {
    const Drop drop = dropOf(view, from, to, capacity);
    switch (drop.kind) {
    case ListDrop::None: return false;
    case ListDrop::Add: addSelected(view, *drop.row, capacity(drop.row->targetList), how, at); break;
    case ListDrop::Remove: removeSelected(view, *drop.row); break;
    case ListDrop::Reorder:
        applyReordering(view, to, moveSelectionTo(view.listCount(to), view.listSelection(to), at));
        break;
    }
    updateTransferButtons(view, capacity);
    return true;
}

bool handleListDelete(DialogView& view, int listId, const TargetCapacity& capacity) {
    for (const ListTransferRow& row : kListTransfers) {
        if (!isUsed(view, row, capacity) || row.targetList != listId) continue;
        if (!view.isEnabled(row.removeButton) || view.listSelection(listId).empty()) return false;
        removeSelected(view, row);
        updateTransferButtons(view, capacity);
        return true;
    }
    return false;
}

}  // namespace kvs
