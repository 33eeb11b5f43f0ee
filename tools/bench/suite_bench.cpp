// Headless throughput of the scenario suite in one process: every file run
// over and over for a few seconds on one thread, reported as dialogs opened,
// driven and closed per second (each `dialog` line of a transcript is one).
//
//   kvs_suite_bench tests/scenarios/*.scn tests/scenarios/headless/*.scn
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

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> sources;
    for (int i = 1; i < argc; ++i) {
        std::optional<std::string> source = kvs::scenario::readTextFile(argv[i]);
        if (!source) {
            std::fprintf(stderr, "suite_bench: cannot read %s\n", argv[i]);
            return 2;
        }
        sources.push_back(std::move(*source));
    }
    if (sources.empty()) {
        std::fprintf(stderr, "usage: kvs_suite_bench FILE.scn...\n");
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
    std::printf("%zu files, %zu dialogs per pass, %zu passes in %.2f s: %.0f dialog runs per second\n",
                sources.size(), perPass, passes, seconds, static_cast<double>(dialogs) / seconds);
    return 0;
}
