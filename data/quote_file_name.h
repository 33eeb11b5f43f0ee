// File names in command text.
#pragma once

#include <string_view>

#include "core/command_text.h"

namespace kvs::data {

// True when a name is empty or holds only blanks: such a name counts as
// not given.
bool isBlankName(std::string_view name);

// Adds prefix and name to out, the name between quote characters when
// quote is set: double quotes, or apostrophes when the name itself holds a
// double quote. Without keepText out is cleared first. A blank name adds
// nothing and gives 0; otherwise 1.
int quoteFileName(std::string_view name, std::string_view prefix, bool quote, bool keepText, CommandText& out);

}  // namespace kvs::data
