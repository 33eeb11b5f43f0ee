#include "tools/scenario/call_statements.h"

#include "tools/scenario/transcript.h"

namespace kvs::scenario {

namespace {

constexpr CallStatement kCalls[] = {
    {"saveoptions", runSaveOptions},
    {"attachsaveas", runAttachSaveAs},
    {"impexpoptions", runImpExpOptions},
    {"attachimpexp", runAttachImpExp},
    {"colorpicker", runColourPicker},
    {"symbols", runSymbols},
    {"showfont", runShowFont},
    {"deffont", runDefaultFont},
    {"samplingstart", runSamplingStart},
    {"samplingupdate", runSamplingUpdate},
    {"samplingclear", runSamplingClear},
    {"samplingbar", runSamplingBar},
    {"trax", runTrax},
    {"nullcalls", runNullCalls},
};

}  // namespace

const CallStatement* findCallStatement(std::string_view keyword) {
    for (const CallStatement& call : kCalls)
        if (call.keyword == keyword) return &call;
    return nullptr;
}

bool CallContext::has(const void* entry, std::string_view name) const {
    if (!entry) fail("the library does not export " + std::string(name));
    return entry != nullptr;
}

std::optional<long long> CallContext::number(std::size_t i) const {
    return statement.args.size() > i ? toNumber(statement.args[i].text) : std::nullopt;
}

std::optional<std::string> CallContext::text(std::size_t i) const {
    if (statement.args.size() <= i) return std::nullopt;
    return statement.args[i].text;
}

}  // namespace kvs::scenario
