// The file choosers by purpose code, the USE line, the combined filters, and
// the lines Append and Merge compose from file names.
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "core/command_queue.h"
#include "core/file_choosers.h"
#include "core/file_filters.h"
#include "core/library_state.h"
#include "families/library.h"
#include "data/composers.h"
#include "data/text_pieces.h"
#include "headless/headless_dialog.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"
#include "tests/unit/loaded_library.h"

namespace {

using kvs::CommandText;
using kvs::FileRequest;
using kvs::library;
using kvs::standin::HostState;
using kvs::standin::KernelState;

class ChooserUi : public kvs::testing::FakeUi {
public:
    std::vector<FileRequest> requests;
    std::vector<bool> dialogUpMeanwhile;
    std::deque<std::optional<std::string>> answers;

    std::optional<std::string> chooseFile(const FileRequest& request) override {
        requests.push_back(request);
        dialogUpMeanwhile.push_back(library().dialogUp);
        if (answers.empty()) return std::nullopt;
        std::optional<std::string> answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

const kvs::headless::DialogTemplate& ownerTemplate() {
    static const kvs::headless::ResourceSet set = [] {
        kvs::headless::ResourceSet s;
        s.load({{"owner.rc", "T DIALOGEX 0, 0, 100, 50\nCAPTION \"Time\"\nBEGIN\n"
                             "    EDITTEXT 635, 0, 0, 10, 10\nEND\n"}});
        return s;
    }();
    return *set.dialog("T");
}

class FileChooserTest : public kvs::testing::LoadedLibraryTest<ChooserUi> {
protected:
    std::vector<std::string> flushed() {
        host.clear();
        kvs::queue::flush();
        return host;
    }

    kvs::headless::HeadlessDialog owner{ownerTemplate()};
};

TEST_F(FileChooserTest, EachPurposeOpensWithItsFilterAndExtensionWhileNoDialogMayStart) {
    const kvs::FileFilters& f = kvs::fileFilters();
    struct Case {
        int code;
        const std::string* filter;
        const char* extension;
    };
    const Case cases[] = {{30, &f.outputFirst, "DAT"}, {279, &f.dataOnly, "KVD"}, {721, &f.allTypes, "KVD"},
                          {722, &f.graphFirst, "KVG"}, {723, &f.allTypes, "KVD"}, {728, &f.commandFirst, "KVC"}};
    for (const Case& c : cases) {
        ui.requests.clear();
        ui.dialogUpMeanwhile.clear();
        EXPECT_EQ(kvs::openAFile(owner, c.code), 1);
        ASSERT_EQ(ui.requests.size(), 1u);
        const FileRequest& r = ui.requests[0];
        EXPECT_FALSE(r.save);
        EXPECT_EQ(r.title, "Open a File");
        EXPECT_EQ(r.flags, 4100u);
        EXPECT_EQ(r.capacity, 256u);
        EXPECT_EQ(r.filter, *c.filter) << c.code;
        EXPECT_EQ(r.defaultExtension, c.extension) << c.code;
        EXPECT_TRUE(ui.dialogUpMeanwhile[0]);
        EXPECT_FALSE(library().dialogUp);
    }
    // A code of no row keeps what the last open used.
    kvs::openAFile(owner, 722);
    kvs::openAFile(owner, 5);
    EXPECT_EQ(ui.requests.back().filter, f.graphFirst);
    EXPECT_EQ(ui.requests.back().defaultExtension, "KVG");
}

TEST_F(FileChooserTest, UseIsQueuedForAnAcceptedDataFileWrittenAsChosen) {
    HostState::instance().setFile("C:\\DATA\\O'NEIL.KVD", {"A", "B"});
    ui.answers = {std::string("C:\\DATA\\O'NEIL.KVD")};
    kvs::openAFile(owner, 721);
    EXPECT_EQ(flushed(), std::vector<std::string>{"AddCmd \"USE 'C:\\\\DATA\\\\O'NEIL.KVD'\" null"});
    EXPECT_EQ(library().commandsQueued, 1);
    EXPECT_EQ(kvs::fileRecord(721)->state, 1);
    EXPECT_EQ(ui.requests.back().initialName, "");

    // Reopening starts from the record; cancelling keeps it and queues nothing.
    kvs::openAFile(owner, 721);
    EXPECT_EQ(ui.requests.back().initialName, "C:\\DATA\\O'NEIL.KVD");
    EXPECT_TRUE(flushed().empty());
    EXPECT_EQ(kvs::fileRecord(721)->path, "C:\\DATA\\O'NEIL.KVD");
    EXPECT_TRUE(kvs::queueUse(721));
    EXPECT_EQ(flushed().size(), 1u);
}

TEST_F(FileChooserTest, NoUseWithoutAnAcceptedDataFile) {
    EXPECT_FALSE(kvs::queueUse(721)) << "record never filled";
    ui.answers = {std::string("C:\\OUT\\RESULT.DAT"), std::string("C:\\X\\ANY.KVD")};
    kvs::openAFile(owner, 30);   // the host lists no variables for an output file
    kvs::openAFile(owner, 723);  // no record of its own: nothing is kept
    EXPECT_TRUE(flushed().empty());
    EXPECT_EQ(kvs::fileRecord(30)->state, 1);
    EXPECT_EQ(kvs::fileRecord(723), nullptr);
    EXPECT_FALSE(kvs::isDataFile("   "));
}

TEST_F(FileChooserTest, TheTimeDialogsFileGoesToItsFieldAndQueuesNothing) {
    HostState::instance().setFile("C:\\SERIES\\SALES.KVD", {"Y"});
    ui.answers = {std::string("C:\\SERIES\\SALES.KVD")};
    kvs::openAFile(owner, 279);
    EXPECT_EQ(owner.text(635), "C:\\SERIES\\SALES.KVD");
    EXPECT_TRUE(flushed().empty());
}

TEST_F(FileChooserTest, BrowseStartsFromTheRememberedNameAndFillsTheField) {
    std::string result = "stale";
    EXPECT_FALSE(kvs::browseForAFile(owner, result, 256, "C:\\A.KVD", 635));
    EXPECT_EQ(result, "");
    EXPECT_EQ(ui.requests.back().title, "Browse for a File");
    EXPECT_EQ(ui.requests.back().initialName, "C:\\A.KVD");
    EXPECT_EQ(ui.requests.back().filter, kvs::fileFilters().data);
    ui.answers = {std::string(300, 'N')};
    EXPECT_TRUE(kvs::browseForAFile(owner, result, 256, "", 635));
    EXPECT_EQ(result, std::string(255, 'N'));
    EXPECT_EQ(owner.text(635), result);
}

TEST(FileFilters, TheFiveCombinedFiltersInFull) {
    kvs::prepareFileFilters();
    const kvs::FileFilters& f = kvs::fileFilters();
    const std::string lotus = "Lotus1 Files (*.wks)|*.wks|Lotus2 Files (*.wk1)|*.wk1|";
    const std::string trax = "TRAX Data(TXT)(*.por)|*.por|TRAX Data(BIN)(*.sav)|*.sav|";
    const std::string tailA = "Symphony 1.0 (*.wrk)|*.wrk|Symphony 1.1 (*.wr1)|*.wr1|ASCII Text (*.txt)|*.txt|"
                              "VELM Files (*.sav)|*.sav|All Files (*.*)|*.*|";
    const std::string tailB = "Symphony 1.0 (*.wrk)|*.wrk|Symphony 1.1 (*.wr1)|*.wr1|ASCII Data (*.txt)|*.txt|"
                              "All Files (*.*)|*.*|";
    const std::string common = "Excel Files (*.xls)|*.xls|DIF Files (*.dif)|*.dif|DBase Files (*.dbf)|*.dbf|";
    EXPECT_EQ(f.allTypes, "Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|Korvan Output (*.dat)|*.dat|"
                          "Korgraph Files (*.kvg)|*.kvg|Command (*.kvc,*.cmd)|*.kvc;*.cmd|" +
                              common + lotus + trax + tailA);
    EXPECT_EQ(f.outputFirst, "Korvan Output (*.dat)|*.dat|Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|"
                             "Korgraph Files (*.kvg)|*.kvg|Command (*.kvc,*.cmd)|*.kvc;*.cmd|" +
                                 common + lotus + tailA);
    EXPECT_EQ(f.graphFirst, "Korgraph Files (*.kvg)|*.kvg|Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|"
                            "Korvan Output(*.txt)|*.txt|Command (*.kvc,*.cmd)|*.kvc;*.cmd|" +
                                common + lotus + tailA);
    EXPECT_EQ(f.commandFirst, "Command (*.kvc,*.cmd)|*.kvc;*.cmd|Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|"
                              "Korvan Output(*.dat)|*.dat|Korgraph Files (*.kvg)|*.kvg|" +
                                  common + lotus + "TRAX Classic (*.inp)|*.inp|" + tailA);
    EXPECT_EQ(f.import, "Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|" + common + lotus + trax + tailB);
    EXPECT_EQ(f.picture, "Bitmaps(*.bmp)|*.bmp|Metafiles(*.wmf)|*.wmf|All Files(*.*)|*.*|");
    EXPECT_EQ(f.command, "Command (*.kvc,*.cmd)|*.kvc;*.cmd|TRAX Classic (*.inp)|*.inp|All Files (*.*)|*.*|");
}

TEST(QuoteFileName, QuotesChosenByTheNameAndBlankNamesAddNothing) {
    CommandText out("X ");
    EXPECT_EQ(kvs::data::quoteFileName("C:\\A B.KVD", "", true, true, out), 1);
    EXPECT_EQ(out.str(), "X \"C:\\A B.KVD\"");
    out.clear();
    EXPECT_EQ(kvs::data::quoteFileName("SAY\"HI\".KVD", "", true, true, out), 1);
    EXPECT_EQ(out.str(), "'SAY\"HI\".KVD'");
    out = CommandText("kept");
    EXPECT_EQ(kvs::data::quoteFileName("   ", "P=", true, true, out), 0);
    EXPECT_EQ(kvs::data::quoteFileName("", "P=", true, true, out), 0);
    EXPECT_EQ(out.str(), "kept");
    EXPECT_EQ(kvs::data::quoteFileName("F", "P=", false, false, out), 1);
    EXPECT_EQ(out.str(), "P=F");
}

TEST(AppendLine, OptionsAndMissingNames) {
    CommandText line;
    EXPECT_EQ(kvs::data::composeAppendLine("A", "B", 33, line), 0);
    EXPECT_EQ(line.str(), "APPEND \"A\" \"B\" / INTERSECT");
    line.clear();
    EXPECT_EQ(kvs::data::composeAppendLine(" ", "", 0, line), 2);
    EXPECT_EQ(line.str(), "APPEND   / ");
}

TEST(MergeLine, NamesKeysAndTheBlankAfterFileOne) {
    CommandText line;
    EXPECT_TRUE(kvs::data::composeMergeLine("A", "X Y", "B", "Z", 1, "ID", line));
    EXPECT_EQ(line.str(), "MERGE \"A\"(X Y) \"B\"(Z) / ID");
    line.clear();
    // No file 2: its names are left out; a set key flag with no keys adds nothing.
    EXPECT_TRUE(kvs::data::composeMergeLine("A", "", "  ", "Z", 1, "", line));
    EXPECT_EQ(line.str(), "MERGE \"A\" ");
    line.clear();
    EXPECT_TRUE(kvs::data::composeMergeLine("A", "", "B", "", 0, "ID", line));
    EXPECT_EQ(line.str(), "MERGE \"A\" \"B\"");
    line.clear();
    EXPECT_FALSE(kvs::data::composeMergeLine("   ", "X", "B", "", 1, "ID", line));
}

}  // namespace
