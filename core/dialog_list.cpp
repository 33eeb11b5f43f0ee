// The exported list of the menu commands StartDialog serves.
#include <cstdint>

#include "core/dispatch_table.h"
#include "core/export_guard.h"
#include "include/kvs_dlg.h"

extern "C" int32_t KVS_CALL GetDialogList(KvsDialogEntry* entries, int32_t capacity) {
    return kvs::guardedExport(0, [&] {
        // Rows whose dialog is not written yet are left out: StartDialog
        // reaches them, but they show nothing a user could work with.
        std::int32_t served = 0;
        for (const kvs::DispatchRow& row : kvs::dispatchTable()) {
            if (!row.behaviour && !row.special) continue;
            if (entries && served < capacity)
                entries[served] = {row.id, static_cast<std::uint16_t>(row.family), row.caption, row.templateName};
            ++served;
        }
        return served;
    });
}
