// Names of a list joined into command text.
#pragma once

#include <string>
#include <vector>

#include "core/command_text.h"
#include "core/seam.h"

namespace kvs {

inline constexpr std::size_t kJoinLimit = 9900;

// The names of a list box, in list order; held by the view until that list
// changes or is read again.
using Names = std::vector<std::string>;
const Names& listNames(const DialogView& view, int listId);

// Appends the names in order, each followed by separator, then drops the
// last separator. Stops once the text is longer than 9,900 characters (the
// separator after the last name then stays). Returns the number of names
// added.
int joinNames(const Names& names, CommandText& text, char separator);
// The same over the items of list listId.
int joinNames(const DialogView& view, int listId, CommandText& text, char separator);

}  // namespace kvs
