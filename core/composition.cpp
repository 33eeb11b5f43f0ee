#include "core/composition.h"

#include "core/command_queue.h"
#include "core/join_names.h"
#include "core/messages.h"

namespace kvs {

Composition namesLine(std::string_view keyword, const std::vector<std::string>& names) {
    CommandText line(keyword);
    if (joinNames(names, line, ' ') == 0) return Composition::refuse(text::kSelectVariables);
    return Composition().add(line);
}

bool deliver(WindowRef owner, const Composition& composition) {
    if (composition.refused()) {
        showStop(owner, composition.refusal);
        return false;
    }
    for (const std::string& line : composition.lines) queue::push(line.c_str(), nullptr);
    return true;
}

}  // namespace kvs
