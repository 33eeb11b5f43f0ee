// Headless throughput of the scenario suite in one process: every file run
// over and over for a few seconds on one thread, reported as dialogs opened,
// driven and closed per second (each `dialog` line of a transcript is one).
//
//   kvs_suite_bench [--keep-memory] tests/scenarios/*.scn tests/scenarios/headless/*.scn
//
// --keep-memory keeps what the process frees instead of handing large blocks
// back to the system: the scenarios of 100,000 variables otherwise spend
// half their time having the kernel fault in and zero fresh pages.
#if defined(__linux__)
#include <malloc.h>
#endif

#include <chrono>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "headless/embedded_resources.h"
#include "headless/headless_backend.h"
#include "tools/scenario/text_file.h"

namespace {

std::size_t dialogLines(const std::string& transcript) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < transcript.size();) {
        if (transcript.compare(at, 8, "dialog \"") == 0) ++count;
        const std::size_t end = transcript.find('\n', at);
        at = end == std::string::npos ? transcript.size() : end + 1;
    }
    return count;
}

void keepFreedMemory() {
#if defined(M_MMAP_THRESHOLD) && defined(M_TRIM_THRESHOLD)
    mallopt(M_MMAP_THRESHOLD, 256 << 20);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
#endif
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> sources;
    int first = 1;
    const bool keepMemory = argc > 1 && std::string(argv[1]) == "--keep-memory";
    if (keepMemory) {
        keepFreedMemory();
        first = 2;
    }
    for (int i = first; i < argc; ++i) {
        std::optional<std::string> source = kvs::scenario::readTextFile(argv[i]);
        if (!source) {
            std::fprintf(stderr, "suite_bench: cannot read %s\n", argv[i]);
            return 2;
        }
        sources.push_back(std::move(*source));
    }
    if (sources.empty()) {
        std::fprintf(stderr, "usage: kvs_suite_bench [--keep-memory] FILE.scn...\n");
        return 2;
    }
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    kvs::headless::HeadlessRunner runner(resources);

    std::size_t perPass = 0;
    for (const std::string& source : sources) perPass += dialogLines(runner.run(source));  // warm-up

    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    std::size_t passes = 0, dialogs = 0;
    double seconds = 0;
    while (seconds < 3.0) {
        for (const std::string& source : sources) dialogs += dialogLines(runner.run(source));
        ++passes;
        seconds = std::chrono::duration<double>(Clock::now() - start).count();
    }
    std::printf("%zu files, %zu dialogs per pass, %zu passes in %.2f s: %.0f dialog runs per second%s\n",
                sources.size(), perPass, passes, seconds, static_cast<double>(dialogs) / seconds,
                keepMemory ? " (freed memory kept)" : "");
    return 0;
}
