// Append (two files end to end) and Merge (two files side by side): their
// behaviours, the lines they compose and the file names they remember.
#pragma once

#include <string>
#include <string_view>

#include "core/command_text.h"
#include "core/dialog_behaviour.h"

namespace kvs::data {

// Longest file name a name block keeps.
inline constexpr std::size_t kFileNameLength = 255;

// "APPEND file1 file2 / OPTION" (option 31, 32 or 33; anything else leaves
// the line ending in " / "). Returns how many of the two names were blank.
int composeAppendLine(std::string_view file1, std::string_view file2, int option, CommandText& line);

// "MERGE file1(names1) file2(names2) / keys". False, with the line
// incomplete, when file 1 is blank. An empty file 2 and its names are left
// out; the keys are added only when the key flag is set and they are not
// empty.
bool composeMergeLine(std::string_view file1, std::string_view names1, std::string_view file2,
                      std::string_view names2, int keyFlag, std::string_view keys, CommandText& line);

}  // namespace kvs::data
