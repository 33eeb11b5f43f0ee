#include "core/lifecycle.h"

#include "core/command_queue.h"
#include "core/descriptor.h"
#include "core/dialog_defaults.h"
#include "core/dispatch_table.h"
#include "core/file_choosers.h"
#include "core/file_filters.h"
#include "core/library_state.h"
#include "include/kvs_dlg.h"

namespace kvs {

void onLibraryLoad() {
    library() = LibraryState{};
    resetDescriptorsForLoad();
    for (const FamilyTable& family : installedFamilies())
        if (family.resetForLoad) family.resetForLoad();
    rebuildDialogDefaults();
    ReinitDialogs(1);
    prepareFileFilters();
}

void onLibraryUnload() {
    queue::resetForLoad();
    resetAllSelections(true);
    resetDescriptorsForLoad();
    resetFileChoosers();
    library() = LibraryState{};
}

}  // namespace kvs
