#include "standin/host_state.h"

#include <cctype>

namespace kvs::standin {

namespace {
std::string folded(const std::string& text) {
    std::string out = text;
    for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}
}  // namespace

HostState& HostState::instance() {
    static HostState state;
    return state;
}

void HostState::record(const std::string& line) const {
    if (sink_) sink_(line);
}

void HostState::setFile(const std::string& path, std::vector<std::string> names) {
    files_[folded(path)] = std::move(names);
}

const std::vector<std::string>* HostState::file(const std::string& path) const {
    auto it = files_.find(folded(path));
    return it == files_.end() ? nullptr : &it->second;
}

void HostState::reset() {
    files_.clear();
    active_.clear();
    matrix = false;
    mnType = 0;
    mglhActive = false;
}

}  // namespace kvs::standin
