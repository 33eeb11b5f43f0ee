// Splitting the Wine driver's output into per-file transcripts, and the
// Windows names given to Linux paths.
#include "tools/kvsdlg/wine_backend.h"

#include <gtest/gtest.h>

namespace {

using kvs::tools::splitScenarioOutput;

TEST(WineBackend, SplitsACompleteRunIntoOneTranscriptPerFile) {
    const std::string output =
        "#scenario 1 Z:\\a\\one.scn\n"
        "dialog \"Sort\"\n"
        "StartDialog 72 = 1\n"
        "#scenario 2 Z:\\a\\two.scn\n"
        "#scenario 3 Z:\\a\\three.scn\n"
        "AddCmd \"#scenario 9\" null\n"
        "#end\n";
    std::vector<std::string> transcripts;
    std::string error;
    ASSERT_TRUE(splitScenarioOutput(output, 3, transcripts, error)) << error;
    ASSERT_EQ(3u, transcripts.size());
    EXPECT_EQ("dialog \"Sort\"\nStartDialog 72 = 1\n", transcripts[0]);
    EXPECT_EQ("", transcripts[1]);
    EXPECT_EQ("AddCmd \"#scenario 9\" null\n", transcripts[2]);
}

TEST(WineBackend, ARunThatStoppedKeepsWhatRanAndSaysWhere) {
    std::vector<std::string> transcripts;
    std::string error;
    EXPECT_FALSE(splitScenarioOutput("#scenario 1 A\nStartDialog 72 = 1\n", 2, transcripts, error));
    EXPECT_EQ("StartDialog 72 = 1\n", transcripts[0]);
    EXPECT_EQ("", transcripts[1]);
    EXPECT_NE(std::string::npos, error.find("before scenario 2"));

    EXPECT_FALSE(splitScenarioOutput("#scenario 1 A\nerror \"stuck\"\n", 1, transcripts, error));
    EXPECT_EQ("error \"stuck\"\n", transcripts[0]);
    EXPECT_NE(std::string::npos, error.find("during the last scenario"));

    EXPECT_FALSE(splitScenarioOutput("", 1, transcripts, error));
}

TEST(WineBackend, RefusesSectionsOfFilesItDidNotAskFor) {
    std::vector<std::string> transcripts;
    std::string error;
    EXPECT_FALSE(splitScenarioOutput("#scenario 2 B\n#end\n", 1, transcripts, error));
    EXPECT_FALSE(splitScenarioOutput("#scenario 0 B\n#end\n", 1, transcripts, error));
    EXPECT_TRUE(splitScenarioOutput("#end\n", 0, transcripts, error));
}

TEST(WineBackend, LinuxPathsAreNamedOnDriveZ) {
    EXPECT_EQ("Z:\\src\\kvs_dlg\\tests\\scenarios\\sort.scn",
              kvs::tools::windowsPath("/src/kvs_dlg/tests/scenarios/sort.scn"));
    EXPECT_EQ("Z:\\tmp\\kvsdlg-wine-AbC123", kvs::tools::windowsPath("/tmp/kvsdlg-wine-AbC123"));
}

TEST(WineBackend, WithoutARunnerItFailsWithAReason) {
    setenv("KVS_WINE_SCRIPT", "/nonexistent/korvan.sh", 1);
    std::vector<std::string> transcripts;
    std::string error;
    EXPECT_NE(0, kvs::tools::runUnderWine({"a.scn"}, transcripts, error));
    EXPECT_EQ(1u, transcripts.size());
    EXPECT_FALSE(error.empty());
    unsetenv("KVS_WINE_SCRIPT");
}

}  // namespace

namespace kvs::tools {
namespace {

TEST(WineBackend, LongListsOfScenarioPathsRunInBatchesThatFitACommandLine) {
    const std::vector<std::string> paths(600, std::string(60, 'p'));
    const auto batches = commandLineBatches(paths, kScenarioPathRoom);
    ASSERT_EQ(batches.size(), 2u);
    EXPECT_EQ(batches.front().first, 0u);
    EXPECT_EQ(batches.back().second, 600u);
    EXPECT_EQ(batches[0].second, batches[1].first);
    for (const auto& [first, last] : batches) EXPECT_LE((last - first) * 63, kScenarioPathRoom);
    // A path longer than the room still runs, alone.
    const auto alone = commandLineBatches({"a", std::string(40000, 'b'), "c"}, kScenarioPathRoom);
    ASSERT_EQ(alone.size(), 3u);
    EXPECT_EQ(alone[1], std::make_pair(std::size_t{1}, std::size_t{2}));
    EXPECT_TRUE(commandLineBatches({}, kScenarioPathRoom).empty());
}

}  // namespace
}  // namespace kvs::tools
