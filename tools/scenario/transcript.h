// Transcript lines: how scenario runs report what the host and the user see.
#pragma once

#include <string>
#include <string_view>

namespace kvs::scenario {

// "text" with \" \\ \r \n \t escapes (other control bytes as \xHH), so
// trailing blanks stay visible.
std::string quote(std::string_view text);
// quote(text), or null for a null pointer.
std::string quoteOrNull(const char* text);

}  // namespace kvs::scenario
