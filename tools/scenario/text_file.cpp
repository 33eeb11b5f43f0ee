#include "tools/scenario/text_file.h"

#include <fstream>
#include <sstream>

namespace kvs::scenario {

std::optional<std::string> readTextFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream buffer;
    buffer << in.rdbuf();
    return buffer.str();
}

}  // namespace kvs::scenario
