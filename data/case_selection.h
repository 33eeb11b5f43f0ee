// Select: up to four conditions joined by AND / OR, one "SELECT" line.
#pragma once

#include "core/command_text.h"
#include "core/dialog_behaviour.h"
#include "data/condition_rows.h"

namespace kvs::data {

DialogBehaviour& selectBehaviour();

// Appends the conditions of the rows to line, which starts with "SELECT "
// unless continueLine; false when the first row is incomplete.
bool composeSelect(const ConditionState& state, CommandText& line, bool continueLine);

}  // namespace kvs::data
