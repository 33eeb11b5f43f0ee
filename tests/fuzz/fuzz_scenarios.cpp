// Scenarios made up by the fuzzer, run headlessly: whatever the statements,
// the library and the runner must neither crash nor trip a sanitizer.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "headless/embedded_resources.h"
#include "headless/headless_backend.h"

namespace {

// Statements whose cost grows with a number in them (variables made up,
// texts repeated) are kept small, so a run measures the library, not a
// hundred million names.
bool tooCostly(std::string_view source) {
    for (std::string_view word : {"manyvars", "typerepeat"}) {
        for (std::size_t at = source.find(word); at != std::string_view::npos; at = source.find(word, at + 1)) {
            const std::size_t end = source.find('\n', at);
            const std::string_view line = source.substr(at, end == std::string_view::npos ? source.size() - at : end - at);
            for (std::size_t i = 0; i < line.size();) {
                if (line[i] < '0' || line[i] > '9') {
                    ++i;
                    continue;
                }
                std::size_t digits = 0;
                while (i < line.size() && line[i] >= '0' && line[i] <= '9') ++digits, ++i;
                if (digits > 4) return true;
            }
        }
    }
    return false;
}

kvs::headless::HeadlessRunner& runner() {
    static kvs::headless::ResourceSet resources = [] {
        kvs::headless::ResourceSet set;
        set.load(kvs::headless::embeddedResources());
        return set;
    }();
    static kvs::headless::HeadlessRunner instance(resources);
    return instance;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 8192) return -1;
    const std::string_view source(reinterpret_cast<const char*>(data), size);
    if (tooCostly(source)) return -1;
    runner().run(source);
    return 0;
}
