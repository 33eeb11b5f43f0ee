#include "core/procedure_block.h"

#include <optional>

#include "core/command_queue.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "core/save_file_step.h"
#include "include/kvs_imports.h"

namespace kvs {

namespace {
constexpr std::size_t kTitleCapacity = 261;  // 260 characters and the NUL
}

std::vector<std::string> blockLines(const ProcedureBlock& block, bool moduleActive, std::string_view savePath) {
    std::vector<std::string> lines;
    if (block.body.refused()) return lines;
    if (!moduleActive) lines.emplace_back(block.procedure);
    if (!savePath.empty()) lines.push_back(saveLine(savePath, block.saveQualifier));
    lines.insert(lines.end(), block.body.lines.begin(), block.body.lines.end());
    return lines;
}

Composition previewBlock(const DialogView& view, const ProcedureBlock& block) {
    if (block.body.refused()) return block.body;
    std::string save;
    if (!block.saveFile.empty()) {
        const std::string proposed = proposedSaveLine(view, block.saveFile, block.saveQualifier, block.saveUnasked);
        if (!proposed.empty()) save = std::string(block.saveFile);
    }
    const std::string keyword(block.procedure);
    Composition preview;
    preview.lines = blockLines(block, IsThisModuleNameActive(keyword.c_str()) != 0, save);
    return preview;
}

std::string blockTitle(WindowRef dialog) { return ui().windowTitle(dialog, kTitleCapacity); }

void pushProcedureLine(std::string_view procedure, const std::string& title) {
    const std::string keyword(procedure);
    if (!IsThisModuleNameActive(keyword.c_str())) queue::push(keyword.c_str(), title.c_str());
}

bool deliverBlock(DialogView& view, const ProcedureBlock& block) {
    if (block.body.refused()) {
        showStop(view.handle(), block.body.refusal);
        return false;
    }
    std::string save;
    if (!block.saveFile.empty()) {
        const std::optional<std::string> chosen = chooseSaveLine(view, block.saveFile, block.saveQualifier, block.saveUnasked);
        if (!chosen) return false;
        save = *chosen;
    }
    const std::string title = blockTitle(view.handle());
    const std::string procedure(block.procedure);
    AddTitle(procedure.c_str(), title.c_str());
    pushProcedureLine(block.procedure, title);
    if (!save.empty()) queue::push(save.c_str(), nullptr);
    for (const std::string& line : block.body.lines) queue::push(line.c_str(), nullptr);
    return true;
}

}  // namespace kvs
