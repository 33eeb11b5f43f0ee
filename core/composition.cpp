#include "core/composition.h"

#include "core/command_queue.h"
#include "core/messages.h"

namespace kvs {

bool deliver(WindowRef owner, const Composition& composition) {
    if (composition.refused()) {
        showStop(owner, composition.refusal);
        return false;
    }
    for (const std::string& line : composition.lines) queue::push(line.c_str(), nullptr);
    return true;
}

}  // namespace kvs
