// Statements of the sampling exports: the progress window a host shows while
// the kernel samples. The window is modeless, so the statements after
// samplingstart act on it while the "job" goes on.
#include "tools/scenario/call_statements.h"

namespace kvs::scenario {

namespace {

std::string numberText(long value) { return std::to_string(value); }

}  // namespace

void runSamplingStart(CallContext& call) {
    const auto fn = call.exports().startSamplingDialog;
    if (!call.has(reinterpret_cast<const void*>(fn), "StartSamplingDialog")) return;
    const auto job = call.number(0);
    const auto total = call.number(1);
    if (!job || !total) {
        call.fail("samplingstart takes a job handle and a total");
        return;
    }
    fn(static_cast<std::int32_t>(*job), static_cast<std::int32_t>(*total));
    call.emit("StartSamplingDialog " + numberText(*job) + " " + numberText(*total));
}

void runSamplingUpdate(CallContext& call) {
    const auto fn = call.exports().updateSamplingDialog;
    if (!call.has(reinterpret_cast<const void*>(fn), "UpdateSamplingDialog")) return;
    const auto remaining = call.number(0);
    const auto elapsed = call.number(1);
    if (!remaining || !elapsed) {
        call.fail("samplingupdate takes the samples remaining and the seconds elapsed");
        return;
    }
    const std::int32_t result = fn(static_cast<std::int32_t>(*remaining), static_cast<std::int32_t>(*elapsed));
    call.emit("UpdateSamplingDialog " + numberText(*remaining) + " " + numberText(*elapsed) + " = " +
              std::to_string(result));
}

void runSamplingClear(CallContext& call) {
    const auto fn = call.exports().clearSamplingDialog;
    if (!call.has(reinterpret_cast<const void*>(fn), "ClearSamplingDialog")) return;
    fn();
    call.emit("ClearSamplingDialog");
}

void runSamplingBar(CallContext& call) {
    const auto word = call.backend.userWord();
    if (!word) call.fail("no dialog is open for samplingbar");
    else call.emit("bar " + std::to_string(*word));
}

}  // namespace kvs::scenario
