// Scenarios that type a long text into every edit field of every dialog
// the library serves and of the option sub-dialogs they open, then press OK: the hostile-text check, run headless
// with a megabyte and on both backends with a text past every bound.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "headless/rc_template.h"

namespace kvs::headless {

struct FieldScenario {
    unsigned commandId = 0;
    std::string name;    // the command id, then the option button and code for a sub-dialog
    std::string source;  // vars, start, one typerepeat of length 'W's a field, ok
    int fields = 0;
};

// One scenario per served dialog with at least one edit field, and one per
// option sub-dialog with edit fields that an option button of a served
// dialog opens (from its menu, or at once).
std::vector<FieldScenario> everyFieldScenario(const ResourceSet& resources, std::size_t length);

}  // namespace kvs::headless
