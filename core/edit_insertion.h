// Text put into an edit field where the user's selection is, as the
// insertion buttons of the condition, function-plot and model-equation
// dialogs do.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/seam.h"

namespace kvs {

// Replaces the selected text of edit control id (or inserts at the caret)
// with insert, keeps the field within bound characters and puts the caret
// caretFromEnd characters before the end of the inserted text. Returns the
// caret's position.
int replaceEditSelection(DialogView& view, int id, std::string_view insert, std::size_t bound = std::string::npos,
                         std::size_t caretFromEnd = 0);

}  // namespace kvs
