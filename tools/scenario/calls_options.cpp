// Statements of the save-as and import/export option exports.
#include <vector>

#include "tools/scenario/call_statements.h"
#include "tools/scenario/transcript.h"

namespace kvs::scenario {

namespace {

// Room the host gives a command line that options are attached to.
constexpr std::size_t kLineBuffer = 10000;

using AttachFn = std::int32_t(KVS_CALL*)(char*);

void attach(CallContext& call, AttachFn fn, const char* name) {
    if (!call.has(reinterpret_cast<const void*>(fn), name)) return;
    const std::string line = call.text(0).value_or("");
    std::vector<char> buffer(kLineBuffer, '\0');
    line.copy(buffer.data(), kLineBuffer - 1);
    const std::int32_t result = fn(buffer.data());
    call.emit(std::string(name) + " " + quote(buffer.data()) + " = " + std::to_string(result));
}

}  // namespace

void runSaveOptions(CallContext& call) {
    const auto fn = call.exports().doSaveDataOptionsDlg;
    if (!call.has(reinterpret_cast<const void*>(fn), "DoSaveDataOptionsDlg")) return;
    call.emit("DoSaveDataOptionsDlg = " + std::to_string(fn(call.backend.ownerWindow())));
}

void runAttachSaveAs(CallContext& call) { attach(call, call.exports().attachSaveAsOptions, "AttachSaveAsOptions"); }

void runImpExpOptions(CallContext& call) {
    const auto fn = call.exports().doImpExpOptionsDlg;
    if (!call.has(reinterpret_cast<const void*>(fn), "DoImpExpOptionsDlg")) return;
    const auto exportFlag = call.number(0);
    if (!exportFlag) {
        call.fail("impexpoptions takes the export flag and, optionally, a value");
        return;
    }
    const auto value = call.number(1).value_or(0);
    const std::int32_t result =
        fn(call.backend.ownerWindow(), static_cast<std::int32_t>(*exportFlag), static_cast<std::int32_t>(value));
    call.emit("DoImpExpOptionsDlg " + std::to_string(*exportFlag) + " = " + std::to_string(result));
}

void runAttachImpExp(CallContext& call) { attach(call, call.exports().attachImpExpOptions, "AttachImpExpOptions"); }

}  // namespace kvs::scenario
