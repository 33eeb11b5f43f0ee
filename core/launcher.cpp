#include "core/launcher.h"

#include <new>

#include "core/generic_dialog.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "include/kvs_imports.h"

namespace kvs {

namespace {

void allocate(SelectionArray& array, std::int32_t size, std::int32_t usedCount) {
    array.entries.assign(static_cast<std::size_t>(std::max(size, 0)), 0);
    array.fill(usedCount, -1);
    array.exists = true;
}

// First use: capacities from the file in use, arrays filled with -1.
bool allocateArrays(Descriptor& d, const DispatchRow& row, std::int32_t positions) {
    if (d.tableFirstCapacity != 0) d.firstCapacity = positions;
    const int mode = row.mode;
    try {
        d.allocated = 1;
        allocate(d.first, mode == 0 ? 2 : 2 * d.firstCapacity, firstUsedCount(d, mode));
        allocate(d.second, mode == 1 ? 1 : d.secondCapacity, secondUsedCount(d, mode));
        if (row.launch == Launch::Graph) {
            allocate(d.third, d.thirdCapacity, d.thirdCapacity);
            allocate(d.fourth, d.fourthCapacity, d.fourthCapacity);
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

// The arrays of the lists a dialog keeps itself, made before it opens so that
// running out of memory is told like the descriptor's own arrays.
bool allocateOwnLists(const DispatchRow& row) {
    if (!row.behaviour) return true;
    try {
        for (const OwnList& own : row.behaviour().ownLists()) {
            if (!own.array || own.array->entries.size() >= static_cast<std::size_t>(own.capacity)) continue;
            own.array->entries.resize(static_cast<std::size_t>(own.capacity), -1);
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

}  // namespace

int launchDialog(const DispatchRow& row, Descriptor& descriptor, WindowRef owner, bool subDialog) {
    LibraryState& lib = library();
    const std::int32_t positions = INQFMV_EX();
    if (lib.dialogUp && !subDialog) {
        showStop(ui().focusWindow(), text::kOneDialog);
        return 0;
    }
    if ((!descriptor.allocated && !allocateArrays(descriptor, row, positions)) || !allocateOwnLists(row)) {
        showNoMemory(owner);
        return 0;
    }
    DialogUpScope up;
    GenericDialog dialog(row, descriptor);
    const int result = ui().runModal(owner, row.templateName, dialog);
    if (result == -1) {
        showStop(owner, text::kCannotCreate);
        return 0;
    }
    return result == 1 ? 1 : 0;
}

int launchDialog(std::uint16_t id, WindowRef owner, bool subDialog) {
    const DispatchRow* row = findDialogRow(id);
    Descriptor* descriptor = descriptorFor(id);
    return row && descriptor ? launchDialog(*row, *descriptor, owner, subDialog) : 0;
}

}  // namespace kvs
