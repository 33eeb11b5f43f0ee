// Names that assistive technology reads for the Add and Remove buttons and
// Move Up and Move Down: an arrow says nothing to a screen reader, "Add to
// Dependent" does.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "resources/list_transfer.h"

namespace kvs {

// A label as words: without its mnemonic marks ("&&" stays "&"), the blanks
// around it and a trailing colon. "Var&iable(s):  " gives "Variable(s)".
std::string labelWords(std::string_view label);

// "Add to LABEL" or "Remove from LABEL"; empty when the label has no words.
std::string addButtonName(std::string_view label);
std::string removeButtonName(std::string_view label);
// "Move up in LABEL" or "Move down in LABEL"; empty when the label has no words.
std::string moveButtonName(bool up, std::string_view label);

// The name of each Add and Remove button of the rows used, from the label of
// the target list the button serves. used tells whether a row's target list
// is in use, labelOf gives a list's label text.
std::vector<std::pair<int, std::string>> transferButtonNames(std::span<const ListTransferRow> rows,
                                                             const std::function<bool(const ListTransferRow&)>& used,
                                                             const std::function<std::string(int)>& labelOf);

}  // namespace kvs
