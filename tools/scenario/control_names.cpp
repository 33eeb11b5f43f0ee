#include "tools/scenario/control_names.h"

#include <string>
#include <unordered_map>

namespace kvs::scenario {

std::optional<int> controlIdNamed(std::string_view name) {
    static const std::unordered_map<std::string, int> byName = [] {
        std::unordered_map<std::string, int> made;
        for (std::size_t i = 0; i < kControlNameCount; ++i) made.emplace(kControlNames[i].name, kControlNames[i].id);
        return made;
    }();
    const auto it = byName.find(std::string(name));
    return it == byName.end() ? std::nullopt : std::optional<int>(it->second);
}

}  // namespace kvs::scenario
