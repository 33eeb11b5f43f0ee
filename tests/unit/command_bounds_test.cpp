// Graph commands at the bounds of their buffer, run headless: lists past the
// 9,900-character bound end the command after the name that passed it, and
// option pieces that do not fit are left out whole. tools/wine/test.sh runs
// the same generated scenarios against the real DLL.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/command_text.h"
#include "headless/bound_scenarios.h"
#include "headless/embedded_resources.h"
#include "headless/headless_backend.h"
#include "tools/scenario/line_checks.h"

namespace kvs {
namespace {

// The commands of the AddCmd lines of a transcript, unescaped.
std::vector<std::string> commandsOf(const std::string& transcript) {
    std::vector<std::string> commands;
    const std::string start = "AddCmd \"";
    for (std::size_t at = transcript.find(start); at != std::string::npos; at = transcript.find(start, at)) {
        std::string command;
        std::size_t i = at + start.size();
        for (; i < transcript.size() && transcript[i] != '"'; ++i) {
            if (transcript[i] == '\\' && i + 1 < transcript.size()) ++i;
            command += transcript[i];
        }
        commands.push_back(command);
        at = i;
    }
    return commands;
}

TEST(CommandBounds, GraphLinesEndWholeAtTheirBounds) {
    headless::ResourceSet resources;
    resources.load(headless::embeddedResources());
    headless::HeadlessRunner runner(resources);
    for (const headless::BoundScenario& scenario : headless::everyBoundScenario()) {
        SCOPED_TRACE(scenario.name);
        const std::string transcript = runner.run(scenario.source);
        EXPECT_EQ(transcript.find("error "), std::string::npos) << transcript.substr(0, 600);
        const std::vector<std::string> commands = commandsOf(transcript);
        if (!scenario.refusal.empty()) {
            EXPECT_NE(transcript.find(scenario.refusal), std::string::npos);
            EXPECT_TRUE(commands.empty());
            continue;
        }
        ASSERT_EQ(commands.size(), 1u) << transcript.substr(0, 600);
        const std::string& line = commands.front();
        EXPECT_EQ(scenario::commandLineFault(line, CommandText::kGraphCapacity), "");
        EXPECT_TRUE(line.ends_with(scenario.ending)) << "ends: " << line.substr(line.size() - 40);
        for (const std::string& word : scenario.absent)
            EXPECT_EQ(line.find(word), std::string::npos) << word << " in ..." << line.substr(line.size() - 60);
    }
}

TEST(CommandBounds, LineFaultsAreNamed) {
    EXPECT_EQ(scenario::commandLineFault("PLOT y*x ", 10000), "");
    EXPECT_EQ(scenario::commandLineFault("PLOT y*x / XLABEL='Men''s'", 10000), "");
    EXPECT_EQ(scenario::commandLineFault("PLOT y*x / XLABEL=\"Men's\"", 10000), "");
    EXPECT_NE(scenario::commandLineFault("BAR y / DUAL=", 10000), "");
    EXPECT_NE(scenario::commandLineFault("PLOT W1 W2 ** / TRI", 10000), "");
    EXPECT_NE(scenario::commandLineFault("BAR y / YLABEL='Number of resp", 10000), "");
    EXPECT_NE(scenario::commandLineFault(std::string(10000, 'A'), 10000), "");
}

}  // namespace
}  // namespace kvs
