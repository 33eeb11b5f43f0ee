// Let and If...Then...Let: one assignment line each, the second guarded by
// up to three conditions.
#pragma once

#include "core/command_text.h"
#include "core/dialog_behaviour.h"
#include "data/condition_rows.h"

namespace kvs::data {

DialogBehaviour& letBehaviour();
DialogBehaviour& ifThenLetBehaviour();

// "LET variable = value" from row 1; false when either is missing.
bool composeLet(const ConditionState& state, CommandText& line);
// "IF (...) ... THEN LET ..."; false when fewer than two pieces are complete
// or an assignment is half filled.
bool composeIfThenLet(const ConditionState& state, CommandText& line);

}  // namespace kvs::data
