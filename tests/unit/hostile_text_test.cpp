// A megabyte typed into every edit field of every dialog and option
// sub-dialog, then OK: no crash, and every line the host is handed stays
// within the composition buffer. tools/wine/test.sh runs the same scenarios
// on both backends (40,000 characters unless KVS_FIELD_LENGTH says more).
#include <gtest/gtest.h>

#include <string>

#include "headless/embedded_resources.h"
#include "headless/field_scenario.h"
#include "headless/headless_backend.h"

namespace kvs {
namespace {

constexpr int kMegabyte = 1 << 20;

TEST(HostileTextTest, AMegabyteInEveryFieldKeepsEveryLineWithinItsBound) {
    headless::ResourceSet resources;
    resources.load(headless::embeddedResources());
    headless::HeadlessRunner runner(resources);
    int fields = 0;
    for (const headless::FieldScenario& scenario : headless::everyFieldScenario(resources, kMegabyte)) {
        fields += scenario.fields;
        const std::string transcript = runner.run(scenario.source);
        std::size_t at = 0;
        while ((at = transcript.find("AddCmd \"", at)) != std::string::npos) {
            const std::size_t end = transcript.find('\n', at);
            const std::size_t length = (end == std::string::npos ? transcript.size() : end) - at;
            // The line's text, quoted with its escapes, and the argument.
            EXPECT_LT(length, 2 * 9999u + 300) << "scenario " << scenario.name;
            at = end;
        }
    }
    EXPECT_GE(fields, 30) << "the edit fields of the dialogs were found";
}

}  // namespace
}  // namespace kvs
