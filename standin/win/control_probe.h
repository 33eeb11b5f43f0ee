// What a user sees of a real dialog's controls, in the scenario engine's
// terms, and how a scenario names them.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "tools/scenario/engine.h"

namespace kvs::standin {

scenario::ControlKind controlKind(HWND control);
bool isMultiSelectList(HWND control);
bool isMultilineEdit(HWND control);

scenario::ControlInfo describeControl(HWND control);

// A button by its own text, or a list, edit or combo box by the static text
// just before it in template order (the order of the dialog's children).
// With field set, a button of that text followed by an edit or combo box
// names that field (a radio choice with its value).
std::optional<int> controlByLabel(HWND dialog, std::string_view label, bool field);

}  // namespace kvs::standin
