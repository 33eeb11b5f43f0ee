// Small pieces of command text the data dialogs share: blank tests, bounded
// field texts and quoted values and file names.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/command_text.h"

namespace kvs::data {

// True when a text is empty or holds only blanks: such a field counts as
// not filled in.
bool isBlank(std::string_view text);
inline bool hasText(std::string_view text) { return !isBlank(text); }

// At most limit characters of a field's text.
std::string bounded(std::string_view text, std::size_t limit);

// The text between double quotes, or between apostrophes when it holds a
// double quote itself.
std::string quoted(std::string_view text);
void appendQuoted(CommandText& line, std::string_view text);

// Adds prefix and name to out, the name quoted as above when quote is set.
// Without keepText out is cleared first. A blank name adds nothing and
// gives 0; otherwise 1.
int quoteFileName(std::string_view name, std::string_view prefix, bool quote, bool keepText, CommandText& out);

}  // namespace kvs::data
