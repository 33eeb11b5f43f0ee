// Option values the statistics dialogs keep between runs, as they reach a
// command: a value of blanks is no value; a quoted value goes in double
// quotes, or in apostrophes when it holds or begins with a double quote;
// "unless default" writes nothing while the value is exactly its default.
#pragma once

#include <string_view>

#include "core/command_text.h"

namespace kvs::stats {

// A stored option holds 16 characters with its NUL.
inline constexpr std::size_t kStoredValueLimit = 15;

// Appends keyword and value (one piece); false, nothing appended, for an
// empty value.
bool appendOption(CommandText& line, std::string_view keyword, std::string_view value, bool quote = false);

// As appendOption, but false and nothing appended while value equals
// defaultValue exactly (case and blanks count).
bool appendOptionUnlessDefault(CommandText& line, std::string_view keyword, std::string_view value,
                               std::string_view defaultValue);

}  // namespace kvs::stats
