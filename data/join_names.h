// Names of a list box joined into command text.
#pragma once

#include "core/command_text.h"
#include "core/seam.h"

namespace kvs::data {

inline constexpr std::size_t kJoinLimit = 9900;

// Appends the items of list listId in order, each followed by separator,
// then drops the last separator. Stops once the text is longer than 9,900
// characters (the separator after the last name then stays). Returns the
// number of names added.
int joinNames(const DialogView& view, int listId, CommandText& text, char separator);

}  // namespace kvs::data
