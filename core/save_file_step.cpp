#include "core/save_file_step.h"

#include "core/command_queue.h"
#include "core/command_text.h"
#include "core/file_choosers.h"
#include "resources/common_ids.h"

namespace kvs {

namespace {
constexpr std::string_view kSaveStart = "SAVE '";
constexpr std::string_view kSaveEnd = "'";
}  // namespace

std::string saveLine(std::string_view path, std::string_view qualifier) {
    CommandText line(kSaveStart);
    line.append(path).append(kSaveEnd);
    line.append(qualifier);
    return line.str();
}

std::optional<std::string> chooseSaveLine(DialogView& view, std::string_view defaultName, std::string_view qualifier,
                                          bool unasked) {
    if (!unasked && !view.isChecked(IDC_SAVEFILE)) return std::string();
    std::string path(defaultName);
    if (!saveAFile(view.handle(), path)) return std::nullopt;
    return saveLine(savedFileName(), qualifier);
}

std::string proposedSaveLine(const DialogView& view, std::string_view defaultName, std::string_view qualifier,
                             bool unasked) {
    if (!unasked && !view.isChecked(IDC_SAVEFILE)) return std::string();
    return saveLine(defaultName, qualifier);
}

Composition withProposedSave(const DialogView& view, std::string_view defaultName, Composition composition) {
    if (composition.refused()) return composition;
    std::string save = proposedSaveLine(view, defaultName);
    if (!save.empty()) composition.lines.insert(composition.lines.begin(), std::move(save));
    return composition;
}

bool runSaveFileStep(DialogView& view, std::string_view defaultName) {
    const std::optional<std::string> line = chooseSaveLine(view, defaultName);
    if (!line) return false;
    if (!line->empty()) queue::push(line->c_str(), nullptr);
    return true;
}

}  // namespace kvs
