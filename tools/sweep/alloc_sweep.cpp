// The allocation-failure sweep: every scenario run again once for each
// allocation it makes (the kernel's and the library's global memory, one
// countdown), with that allocation failing. A run must end without a crash
// or a sanitizer report, release all the library's global memory when the
// library unloads, and leave no kernel block behind but the queue's own
// pair block, except where a failed growth of the queue abandons its pairs
// (kept, as the queue's rules say). A failed global allocation must show
// the out-of-memory message.
//
//   kvs_alloc_sweep [--every=K] FILE.scn...   (K: try every K-th allocation only)
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "headless/embedded_resources.h"
#include "headless/headless_backend.h"
#include "standin/kernel_state.h"
#include "tools/scenario/text_file.h"

namespace {

using kvs::standin::KernelState;

constexpr const char* kNoMemoryLine = "\"Doh! Not enough memory!\"";

}  // namespace

int main(int argc, char** argv) {
    int every = 1;
    std::vector<std::string> files;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.rfind("--every=", 0) == 0) every = std::max(1, std::atoi(argument.c_str() + 8));
        else files.push_back(argument);
    }
    if (files.empty()) {
        std::fprintf(stderr, "usage: kvs_alloc_sweep [--every=K] FILE.scn...\n");
        return 2;
    }
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    kvs::headless::HeadlessRunner runner(resources);

    long runs = 0, failures = 0;
    for (const std::string& file : files) {
        const std::optional<std::string> read = kvs::scenario::readTextFile(file);
        if (!read) {
            std::printf("FAIL %s: cannot read\n", file.c_str());
            ++failures;
            continue;
        }
        const std::string& source = *read;
        const long globalBefore = kvs::headless::HeadlessRunner::liveGlobalBlocks();
        runner.run(source);
        if (kvs::headless::HeadlessRunner::liveGlobalBlocks() != globalBefore) {
            std::printf("FAIL %s: global memory outlives the library without any failure\n", file.c_str());
            ++failures;
        }
        const int allocations = KernelState::instance().allocations();
        for (int nth = 1; nth <= allocations; nth += every) {
            const long globalBefore = kvs::headless::HeadlessRunner::liveGlobalBlocks();
            const std::string transcript = runner.run("failalloc " + std::to_string(nth) + "\n" + source);
            const long globalKept = kvs::headless::HeadlessRunner::liveGlobalBlocks() - globalBefore;
            ++runs;
            const std::int32_t failed = KernelState::instance().failedElementSize();
            const auto live = static_cast<long>(KernelState::instance().liveBlocks());
            std::string problem;
            if (globalKept != 0)
                problem = std::to_string(globalKept) + " blocks of global memory outlive the library";
            else if (live > 1 && failed <= 1)  // a growth of the pair block abandons its pairs
                problem = std::to_string(live) + " kernel blocks live after the run";
            else if (failed == 0 && transcript.find(kNoMemoryLine) == std::string::npos)
                problem = "a failed global allocation without the out-of-memory message";
            if (!problem.empty()) {
                std::printf("FAIL %s, allocation %d of %d: %s\n", file.c_str(), nth, allocations, problem.c_str());
                ++failures;
            }
        }
    }
    std::printf("alloc sweep: %ld runs, %ld failed\n", runs, failures);
    return failures == 0 ? 0 : 1;
}
