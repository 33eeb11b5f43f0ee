#include "core/seam.h"

#include <string>

#include "core/command_queue.h"
#include "core/command_text.h"
#include "core/file_choosers.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "data/data_texts.h"

namespace kvs::data {

void runEditorExtract(std::uint16_t, WindowRef owner) {
    LibraryState& lib = library();
    if (lib.dialogUp) {
        showStop(ui().focusWindow(), kvs::text::kOneDialog);
        return;
    }
    std::string path;
    if (!chooseSaveFile(owner, text::kExtractTitle, path)) return;
    CommandText line(text::kExtractStart);
    line.append(path).append(text::kExtractEnd);
    queue::push(line.c_str(), nullptr);
    lib.commandsQueued = 1;
}

}  // namespace kvs::data
