#include "standin/standin_backend.h"

#include <set>

#include "standin/host_state.h"

namespace kvs::standin {

void StandinBackend::setFile(const std::string& path, const std::vector<std::string>& names) {
    HostState::instance().setFile(path, names);
}

void StandinBackend::setActiveModules(const std::vector<std::string>& modules) {
    HostState::instance().setActiveModules(std::set<std::string>(modules.begin(), modules.end()));
}

void StandinBackend::setMatrix(bool matrix) { HostState::instance().matrix = matrix; }

}  // namespace kvs::standin
