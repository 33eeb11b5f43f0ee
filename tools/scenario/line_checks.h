// Checks on a command line the host is handed, for the tests and the fuzz
// targets: the faults a cut at the buffer's end or a list past its bound
// would leave.
#pragma once

#include <string>
#include <string_view>

namespace kvs::scenario {

// Why the line is malformed, or empty when it is not: longer than the
// buffer holds (capacity with its NUL), a keyword left without its value
// (the line ends in "="), "**" (a separator with nothing between), or a
// quoted text left open. Lines whose own names or values hold quotes or
// stars are the caller's to leave out.
std::string commandLineFault(std::string_view line, std::size_t capacity);

}  // namespace kvs::scenario
