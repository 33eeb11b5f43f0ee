// The exported list of the menu commands StartDialog serves.
#include <cstdint>

#include "core/dispatch_table.h"
#include "core/export_guard.h"
#include "include/kvs_dlg.h"

extern "C" int32_t KVS_CALL GetDialogList(KvsDialogEntry* entries, int32_t capacity) {
    return kvs::guardedExport(0, [&] {
        const auto rows = kvs::dispatchTable();
        std::int32_t written = 0;
        for (const kvs::DispatchRow& row : rows) {
            if (!entries || written >= capacity) break;
            entries[written++] = {row.id, static_cast<std::uint16_t>(row.family), row.caption, row.templateName};
        }
        return static_cast<std::int32_t>(rows.size());
    });
}
