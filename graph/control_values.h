// Moving a record of control values (graph/option_forms.h) into a dialog's
// controls and back, for the graph dialogs and their option sub-dialogs.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/seam.h"
#include "graph/option_forms.h"

namespace kvs::graph {

void fillCombos(DialogView& view, std::span<const ComboEntries> combos);
void showValues(DialogView& view, std::span<const FormField> fields, const ControlValues& values);
void readValues(const DialogView& view, std::span<const FormField> fields, ControlValues& values);
// The fields that take a number.
std::vector<int> numberIdsOf(std::span<const FormField> fields);

// The names of a values entry kept for a list, one a line.
std::vector<std::string> namesOf(std::string_view value);

// A graph dialog's message: a beep, then the exclamation box under the
// package's caption, owned by owner.
void showGraphMessage(WindowRef owner, std::string_view text);

}  // namespace kvs::graph
