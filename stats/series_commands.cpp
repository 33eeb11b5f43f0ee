#include "stats/series_commands.h"

#include "core/command_queue.h"
#include "core/library_state.h"
#include "include/kvs_imports.h"

namespace kvs {

namespace {
constexpr std::size_t kTitleCapacity = 261;  // 260 characters and the NUL
}

void runSeriesCommand(std::uint16_t commandId, WindowRef owner) {
    LibraryState& lib = library();
    if (!IsThisModuleNameActive("SERIES")) {
        const std::string title = ui().windowTitle(owner, kTitleCapacity);
        queue::push("SERIES", title.c_str());
    }
    switch (commandId) {
    case 242: queue::push("CLEAR", nullptr); break;
    case 245:
        queue::push("MISSING=DELETE", nullptr);
        lib.seriesMissingDelete = 1;
        CheckMainMenuItem(245, 1);
        CheckMainMenuItem(246, 0);
        break;
    case 246:
        queue::push("MISSING=INTERPOLATE", nullptr);
        lib.seriesMissingDelete = 0;
        CheckMainMenuItem(245, 0);
        CheckMainMenuItem(246, 1);
        break;
    default: return;
    }
    lib.commandsQueued = 1;
}

}  // namespace kvs
