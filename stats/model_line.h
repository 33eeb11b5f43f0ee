// The MODEL line of the estimate-model dialogs (Logit and the linear models):
// "MODEL " + the dependents separated by blanks + " = " + "CONSTANT+" when
// the constant is in + the conditionals joined by "+" and ended by " ; "
// (Logit only) + the independents joined by "+", one trailing "+" stripped.
#pragma once

#include "core/command_text.h"
#include "core/join_names.h"

namespace kvs::stats {

CommandText modelLine(const Names& dependents, bool constant, const Names& independents,
                      const Names& conditionals = {});

}  // namespace kvs::stats
