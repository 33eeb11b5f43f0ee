#include "data/save_file_step.h"

#include <string>

#include "core/command_queue.h"
#include "core/command_text.h"
#include "core/file_choosers.h"
#include "data/data_texts.h"
#include "resources/data_ids.h"

namespace kvs::data {

bool runSaveFileStep(DialogView& view, std::string_view defaultName) {
    if (!view.isChecked(IDC_SAVEFILE)) return true;
    std::string path(defaultName);
    if (!saveAFile(view.handle(), path)) return false;
    CommandText line(text::kSaveStart);
    line.append(savedFileName()).append(text::kSaveEnd);
    queue::push(line.c_str(), nullptr);
    return true;
}

}  // namespace kvs::data
