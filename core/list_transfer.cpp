#include "core/list_transfer.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

namespace kvs {

namespace {

bool isUsed(const DialogView& view, const ListTransferRow& row, const TargetCapacity& capacity) {
    return view.has(row.targetList) && capacity(row.targetList) > 0;
}

void addSelected(DialogView& view, const ListTransferRow& row, int capacity, ListInsert how) {
    const int source = sourceListOf(view, row);
    const std::vector<int> picked = view.listSelection(source);
    if (picked.empty()) return;
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
        view.listAdd(row.targetList, name, how);
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
            addSelected(view, row, capacity(row.targetList), how);
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

}  // namespace kvs
