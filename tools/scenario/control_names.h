// The names of the control ids in resources/*_ids.h, so a scenario can say
// `click IDC_SORT_DESCENDING` wherever it can give a control id.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace kvs::scenario {

struct ControlName {
    const char* name;
    int id;
};

// Generated at build time from the id headers.
extern const ControlName kControlNames[];
extern const std::size_t kControlNameCount;

// The id a name stands for, or nothing when no header defines it.
std::optional<int> controlIdNamed(std::string_view name);

}  // namespace kvs::scenario
