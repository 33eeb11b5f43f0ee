#include "core/lifecycle.h"

#include "core/command_queue.h"
#include "core/descriptor.h"
#include "core/dialog_defaults.h"
#include "core/dispatch_table.h"
#include "core/file_choosers.h"
#include "core/file_filters.h"
#include "core/library_state.h"
#include "core/progress.h"
#include "include/kvs_dlg.h"

namespace kvs {

void onLibraryLoad() {
    library() = LibraryState{};
    // A library loaded again (as every scenario file does headlessly) starts
    // as the first load did, as a freshly mapped DLL would.
    resetExportedData();
    samplingProgress() = SamplingProgress{};
    resetDescriptorsForLoad();
    for (const FamilyTable& family : installedFamilies())
        if (family.resetForLoad) family.resetForLoad();
    rebuildDialogDefaults();
    ReinitDialogs(1);
    prepareFileFilters();
}

void onLibraryUnload() {
    queue::resetForLoad();
    // What the dialogs remember besides their descriptors is freed with them.
    dialogDefaults().apply(true);
    resetAllSelections(true);
    resetDescriptorsForLoad();
    // The table points into the descriptors just made anew.
    rebuildDialogDefaults();
    resetFileChoosers();
    library() = LibraryState{};
}

}  // namespace kvs
