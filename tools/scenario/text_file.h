// Reading a whole file as bytes, for scenario files and resource scripts.
#pragma once

#include <optional>
#include <string>

namespace kvs::scenario {

// The file's bytes, or nothing when it cannot be read.
std::optional<std::string> readTextFile(const std::string& path);

}  // namespace kvs::scenario
