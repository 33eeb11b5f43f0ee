// A scenario that types a long text into every edit field of every dialog
// the library serves, then presses OK: the hostile-text check, run headless
// with a megabyte and on both backends with a text past every bound.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "headless/rc_template.h"

namespace kvs::headless {

struct FieldScenario {
    unsigned commandId = 0;
    std::string source;  // vars, start, one typerepeat of length 'W's a field, ok
    int fields = 0;
};

// One scenario per served dialog with at least one edit field.
std::vector<FieldScenario> everyFieldScenario(const ResourceSet& resources, std::size_t length);

}  // namespace kvs::headless
