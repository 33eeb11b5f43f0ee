// The statement of the companion package's program selector export.
#include "tools/scenario/call_statements.h"

namespace kvs::scenario {

// trax ID [VALUE ["HELPFILE"]]: TRAXCallDialog with the command id, the
// program to start from (-1 when not given) and the help file (none when
// not given).
void runTrax(CallContext& call) {
    const auto fn = call.exports().traxCallDialog;
    if (!call.has(reinterpret_cast<const void*>(fn), "TRAXCallDialog")) return;
    const auto id = call.number(0);
    if (!id) {
        call.fail("trax takes a command id and, optionally, a program and a help file");
        return;
    }
    const auto value = call.number(1).value_or(-1);
    const std::optional<std::string> helpFile = call.text(2);
    const std::int32_t result = fn(static_cast<std::uint32_t>(*id), static_cast<std::int32_t>(value),
                                   helpFile ? helpFile->c_str() : nullptr, 0, 0);
    call.emit("TRAXCallDialog " + std::to_string(*id) + " = " + std::to_string(result));
}

}  // namespace kvs::scenario
