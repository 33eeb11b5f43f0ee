// The companion package's program selector (483): a list of its programs,
// each with a one-line description; OK queues the call of the one chosen.
// The host opens it with StartDialog or with TRAXCallDialog, which may name
// the program to start from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/procedure_block.h"

namespace kvs::stats {

inline constexpr std::uint16_t kTraxSelectorId = 483;

// The entry the list shows for program index: its name and description.
std::string traxEntry(std::size_t index);

// The block that calls program index, or the refusal when there is none.
ProcedureBlock composeTraxCall(int index);

// The program the next opening starts from, when it names one (-1: the one
// chosen last).
void preselectTraxProgram(std::int32_t index);

}  // namespace kvs::stats
