#include <gtest/gtest.h>

#include <string>

#include "data/composers.h"
#include "headless/embedded_resources.h"
#include "headless/headless_backend.h"

namespace {

using kvs::CommandText;
using kvs::data::TextLines;

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> out;
    for (std::string_view piece : kvs::data::programLines(text)) out.emplace_back(piece);
    return out;
}

TEST(ProgramLines, EndAtCarriageReturnsWithOrWithoutLineFeed) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(linesOf("A\r\nB\rC"), (Lines{"A", "B", "C"}));
    EXPECT_EQ(linesOf("\r\n\r\nA\r\n\r\n\r\rB\r\n"), (Lines{"A", "B"}));
    // A line feed not after a carriage return is part of the line.
    EXPECT_EQ(linesOf("A\nB\r\n\nC"), (Lines{"A\nB", "\nC"}));
    EXPECT_EQ(linesOf(" \r\n"), (Lines{" "}));
    EXPECT_TRUE(linesOf("").empty());
    EXPECT_TRUE(linesOf("\r\n\r").empty());
}

TEST(PageTitle, IsCutAfterTheLastFilledTitle) {
    const auto compose = [](TextLines titles, bool off = false) {
        CommandText line;
        kvs::data::composePageTitle(titles, off, line);
        return line.str();
    };
    EXPECT_EQ(compose({"", "", "THIRD", "", " "}), "PAGE TITLE= \"\", \"\",\"THIRD\"");
    EXPECT_EQ(compose({"A", "", "", "", "E"}), "PAGE TITLE=\"A\", \"\", \"\", \"\",\"E\"");
    EXPECT_EQ(compose({"Only", "  ", "", "", ""}), "PAGE TITLE=\"Only\"");
    EXPECT_EQ(compose({"  ", "", "", "", "   "}), "PAGE TITLE");
    EXPECT_EQ(compose({"A", "B", "", "", ""}, true), "PAGE TITLE");
    EXPECT_EQ(compose({"say \"x\"", "", "", "", ""}), "PAGE TITLE='say \"x\"'");
}

TEST(Note, NeedsAFirstLineAndSkipsBlankOnes) {
    CommandText line;
    EXPECT_FALSE(kvs::data::composeNote({" ", "B", "", "", ""}, line));
    EXPECT_TRUE(line.empty());
    EXPECT_TRUE(kvs::data::composeNote({"A", " ", "C \"q\"", "", "E"}, line));
    EXPECT_EQ(line.str(), "NOTE=\"A\",'C \"q\"',\"E\"");
}

// A pasted megabyte of program text: kept to the edit control's limit, then
// split into lines; nothing past the limit reaches the host.
TEST(ProgramText, AMegabyteIsKeptToTheEditLimit) {
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    kvs::headless::HeadlessRunner runner(resources);
    const std::string transcript = runner.run(
        "start 87\n typerepeat 31 \"LET X=1\\r\\n\" 116509\n ok\n"
        "start 87\n show 31\n cancel\n");
    std::size_t lets = 0, start = 0;
    std::string shown;
    while (start < transcript.size()) {
        const std::size_t end = transcript.find('\n', start);
        const std::string line = transcript.substr(start, end - start);
        if (line == "AddCmd \"LET X=1\" null") ++lets;
        if (line.rfind("text 31 ", 0) == 0) shown = line;
        start = end == std::string::npos ? transcript.size() : end + 1;
    }
    // 3,640 whole lines of 9 characters, then the 7 that fit of the next.
    EXPECT_EQ(lets, 3641u);
    const std::string unit = "LET X=1\\r\\n";  // as the transcript escapes it
    EXPECT_EQ(shown.size(), std::string("text 31 \"\"").size() + 3640 * unit.size() + 7);
    EXPECT_EQ(transcript.find("error"), std::string::npos);
}

}  // namespace

namespace {

// Every scenario file starts from a freshly loaded library: what one file
// did to the graph font or the progress window is gone in the next, so
// results do not depend on the order of the files.
TEST(HeadlessRunner, EachFileStartsFromAFreshLibrary) {
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    kvs::headless::HeadlessRunner runner(resources);
    const std::string fresh = runner.run("showfont\n");
    runner.run("deffont \"Arial\" 12 bold\nstart 153\nsamplingstart 7 100\nsamplingupdate 50 10\nsamplingclear\n");
    EXPECT_EQ(runner.run("showfont\n"), fresh);
    EXPECT_EQ(runner.run("samplingupdate 50 10\n"), "UpdateSamplingDialog 50 10 = 0\n");
}

}  // namespace
