// The "Save file" step of the data and statistics dialogs: with check box 99
// ticked, the save chooser proposes the procedure's file and the step gives
// "SAVE '...'" for the path chosen.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/composition.h"
#include "core/seam.h"

namespace kvs {

// The SAVE line for a chosen path, with the procedure's qualifier after it.
std::string saveLine(std::string_view path, std::string_view qualifier = {});

// Nothing to save when the box is not ticked (and the dialog does not save
// unasked); else the chooser. Empty optional when the user cancelled it:
// the OK is then refused.
std::optional<std::string> chooseSaveLine(DialogView& view, std::string_view defaultName,
                                          std::string_view qualifier = {}, bool unasked = false);

// What the step would give without asking: the SAVE line of the proposed
// file when the box is ticked (or the dialog saves unasked), else empty.
std::string proposedSaveLine(const DialogView& view, std::string_view defaultName, std::string_view qualifier = {},
                             bool unasked = false);

// The composition with the proposed SAVE line in front of its lines, as
// runSaveFileStep and deliver would push them.
Composition withProposedSave(const DialogView& view, std::string_view defaultName, Composition composition);

// The data dialogs' form: queues the SAVE line itself. False on a cancel.
bool runSaveFileStep(DialogView& view, std::string_view defaultName);

}  // namespace kvs
