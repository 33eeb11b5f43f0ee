// A statistics procedure's command block. The dialog's state gives, by a
// pure function, the block's lines (or its refusal); delivering it is the
// thin step that runs the save chooser, tells the host the title and pushes,
// in this order: the procedure line (keyword, dialog caption) unless the
// host is inside that procedure already, the SAVE line, the block's lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/composition.h"
#include "core/seam.h"

namespace kvs {

struct ProcedureBlock {
    std::string_view procedure;  // "LOGIT", "TTEST", "SERIES"
    std::string_view saveFile;   // proposed when "Save file" is checked; empty: the dialog saves nothing
    std::string saveQualifier;   // written after "SAVE '...'"
    Composition body;            // the lines after SAVE, or the refusal
    bool saveUnasked = false;    // the file is saved though "Save file" is not ticked

    static ProcedureBlock refuse(std::string_view procedure, std::string_view message) {
        return {procedure, {}, {}, Composition::refuse(message), false};
    }
};

// The lines as the host would receive them, without asking anyone: the
// procedure line when moduleActive is false, the SAVE line for savePath when
// it is not empty, then the body. Empty when the block is refused.
std::vector<std::string> blockLines(const ProcedureBlock& block, bool moduleActive, std::string_view savePath);

// The block as deliverBlock would push it, asking no one: the SAVE line
// names the proposed file. The refusal when the block is refused.
Composition previewBlock(const DialogView& view, const ProcedureBlock& block);

// A dialog's caption as the block's title: at most 260 characters.
std::string blockTitle(WindowRef dialog);

// Pushes the procedure line (keyword, title) unless the module is active.
void pushProcedureLine(std::string_view procedure, const std::string& title);

// Shows the refusal (stop icon, "KORVAN"), or runs the save chooser when the
// dialog's "Save file" is checked (a cancel stops here), calls AddTitle and
// pushes the block. True when the lines were pushed.
bool deliverBlock(DialogView& view, const ProcedureBlock& block);

}  // namespace kvs
