// The exported entry points StartDialog, ReinitDialogs and SetDlgSortList.
#include <algorithm>

#include "core/command_queue.h"
#include "core/descriptor.h"
#include "core/dialog_defaults.h"
#include "core/dispatch_table.h"
#include "core/export_guard.h"
#include "core/launcher.h"
#include "core/library_state.h"
#include "core/start_dialog.h"
#include "include/kvs_dlg.h"

namespace kvs {

namespace {

int runCase(const DispatchRow& row, WindowRef owner) {
    if (row.launch == Launch::Special) {
        if (row.special) row.special(row.id, owner);
        return 1;
    }
    Descriptor* descriptor = descriptorFor(row.id);
    if (!descriptor) return 0;
    LibraryState& lib = library();
    const bool hasSlots = row.firstSlot > 0;
    if (hasSlots)
        for (int slot = row.firstSlot; slot <= row.lastSlot; ++slot)
            lib.optionSlots[static_cast<std::size_t>(slot - 1)] = descriptor->extra[static_cast<std::size_t>(slot - row.firstSlot)];
    const int result = launchDialog(row, *descriptor, owner);
    if (result == 1 && hasSlots)
        for (int slot = row.firstSlot; slot <= row.lastSlot; ++slot)
            descriptor->extra[static_cast<std::size_t>(slot - row.firstSlot)] = lib.optionSlots[static_cast<std::size_t>(slot - 1)];
    return result;
}

int dispatch(std::uint16_t id, std::uint16_t currentId, Family family, WindowRef owner) {
    LibraryState& lib = library();
    lib.currentCommandId = currentId;
    int result = 0;
    if (const DispatchRow* row = findDispatchRow(id)) result = runCase(*row, owner);
    if (family == Family::Data) {
        lib.optionSlots[0] = -1;
        lib.optionSlots[1] = -2;
    }
    return result;
}

// A StartDialog made while another runs (from a host timer, say) must not
// pull the running dialog's state away: only the outermost call flushes and
// resets.
int nesting = 0;

// Runs dialog id with currentId as the current command id, then hands the
// queued lines to the host; the dialog's result (0 when none ran).
int run(std::uint16_t id, std::uint16_t currentId, WindowRef owner) {
    LibraryState& lib = library();
    const bool outermost = nesting == 0;
    const auto savedId = lib.currentCommandId;
    const auto savedSlots = lib.optionSlots;
    const auto savedHost = lib.hostWindow;
    ++nesting;
    lib.hostWindow = owner;
    Family family{};
    int result = 0;
    try {
        if (familyOf(id, family)) result = dispatch(id, currentId, family, owner);
    } catch (...) {
        // A dialog that failed half way leaves the library idle: the next
        // StartDialog must not look nested, and lines of the failed dialog
        // never reach the host.
        --nesting;
        if (outermost) {
            queue::resetForLoad();
            lib.optionSlots.fill(-1);
            lib.currentCommandId = kNoCommand;
        } else {
            lib.currentCommandId = savedId;
            lib.optionSlots = savedSlots;
            lib.hostWindow = savedHost;
        }
        throw;
    }
    --nesting;
    if (!outermost) {
        lib.currentCommandId = savedId;
        lib.optionSlots = savedSlots;
        lib.hostWindow = savedHost;
        return result;
    }
    queue::flush();
    lib.optionSlots.fill(-1);
    queue::clearCount();
    lib.currentCommandId = kNoCommand;
    return result;
}

}  // namespace

std::int32_t startDialog(std::uint32_t commandId, WindowRef owner, const char* helpFile) {
    setHelpPath(helpFile);
    const auto id = static_cast<std::uint16_t>(commandId & 0xFFFF);
    run(id, id, owner);
    return 1;
}

std::int32_t runDialogAs(std::uint16_t dialogId, std::uint16_t currentId, WindowRef owner, const char* helpFile) {
    if (helpFile) setHelpPath(helpFile);
    return run(dialogId, currentId, owner);
}

std::int32_t reinitDialogs(std::int32_t freeFlag) {
    LibraryState& lib = library();
    lib.optionSlots.fill(-1);
    const DispatchRow* running = findDialogRow(lib.currentCommandId);
    if (running && running->has(kKeepsStateThroughReinit)) return 1;
    resetAllSelections(freeFlag != 0);
    dialogDefaults().apply(freeFlag != 0);
    return 1;
}

}  // namespace kvs

extern "C" {

int32_t KVS_CALL StartDialog(uint32_t commandId, KvsWindow owner, const char* helpFile) {
    return kvs::guardedExport(1, [&] {
        return kvs::startDialog(commandId, reinterpret_cast<kvs::WindowRef>(owner), helpFile);
    });
}

int32_t KVS_CALL ReinitDialogs(int32_t freeMemory) {
    return kvs::guardedExport(1, [&] { return kvs::reinitDialogs(freeMemory); });
}

int32_t KVS_CALL SetDlgSortList(int32_t sorted) {
    kvs::library().sortList = sorted;
    return sorted;
}

}  // extern "C"
