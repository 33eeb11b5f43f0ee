#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

#include "core/command_text.h"
#include "core/export_guard.h"
#include "core/file_filters.h"
#include "core/join_names.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "headless/headless_ui.h"

namespace {

using kvs::CommandText;

TEST(CommandText, TakesTextWholeOrNotAtAllAndNeverGrowsPastItsBound) {
    CommandText text("SORT ");
    text.append(std::string(20000, 'A'));
    EXPECT_EQ(text.str(), "SORT ") << "text that does not fit is left out, not cut";
    text.append(std::string(CommandText::kCapacity - 7, 'A'));
    EXPECT_EQ(text.size(), CommandText::kCapacity - 2);
    text.append(" / D").append('x');
    EXPECT_EQ(text.size(), CommandText::kCapacity - 1) << "the one character that fits still goes in";
    EXPECT_EQ(text.str().back(), 'x');
    EXPECT_FALSE(text.fits(1));
}

TEST(CommandText, APieceIsTakenBackWholeWhenAnyPartDoesNotFit) {
    CommandText line(std::string(CommandText::kGraphCapacity - 20, 'y'), CommandText::kGraphCapacity);
    {
        const CommandText::Piece piece(line);
        line.append(" XLABEL=").append('\'').append("Number of respondents").append('\'');
    }
    EXPECT_EQ(line.size(), CommandText::kGraphCapacity - 20) << "no keyword without its value";
    {
        const CommandText::Piece outer(line);
        line.append(" YMAX=");
        {
            const CommandText::Piece inner(line);
            line.append("1000");
        }
    }
    EXPECT_EQ(line.str().substr(line.size() - 10), " YMAX=1000");
    {
        const CommandText::Piece piece(line);
        line.append(" TICK=").append("123456789");
    }
    EXPECT_EQ(line.str().substr(line.size() - 10), " YMAX=1000") << "a later piece that does not fit is left out too";
}

TEST(CommandText, ASealedLineTakesNothingMoreAndFreeTextIsCut) {
    CommandText line("PLOT a b", CommandText::kGraphCapacity);
    line.seal();
    line.append(" /").append('*');
    line.dropLast();
    EXPECT_EQ(line.str(), "PLOT a b");
    CommandText typed;
    typed.appendCut(std::string(20000, 'B'));
    EXPECT_EQ(typed.size(), CommandText::kCapacity - 1);
}

class JoinNamesTest : public ::testing::Test {
protected:
    void SetUp() override { resources.load(kvs::headless::embeddedResources()); }
    kvs::headless::ResourceSet resources;
};

TEST_F(JoinNamesTest, SeparatesNamesAndDropsTheLastSeparator) {
    kvs::headless::HeadlessDialog dialog(*resources.dialog("Rank"));
    CommandText text("RANK ");
    EXPECT_EQ(kvs::joinNames(dialog, 10, text, ' '), 0);
    EXPECT_EQ(text.str(), "RANK ") << "an empty list adds nothing and drops nothing";
    for (const char* name : {"X", "Y", "Z"}) dialog.listAdd(10, name, kvs::ListInsert::Append);
    EXPECT_EQ(kvs::joinNames(dialog, 10, text, ' '), 3);
    EXPECT_EQ(text.str(), "RANK X Y Z");
}

TEST_F(JoinNamesTest, StopsOnceTheTextPassesTheLimitKeepingTheSeparator) {
    kvs::headless::HeadlessDialog dialog(*resources.dialog("Rank"));
    const std::string name(11, 'N');  // 12 characters with its separator
    for (int i = 0; i < 1000; ++i) dialog.listAdd(10, name, kvs::ListInsert::Append);
    CommandText text;
    const int added = kvs::joinNames(dialog, 10, text, '+');
    // 826 names make 9912 characters: the first length past 9900.
    EXPECT_EQ(added, 826);
    EXPECT_EQ(text.size(), 826u * 12u);
    EXPECT_EQ(text.str().back(), '+');
}

TEST(FileFilters, CombinedFiltersCarryTheirFragmentsInOrder) {
    kvs::prepareFileFilters();
    const kvs::FileFilters& f = kvs::fileFilters();
    EXPECT_EQ(f.output, "Output Files(*.dat)|*.txt|All Files (*.*)|*.*|");
    EXPECT_EQ(f.data, f.dataOnly);
    const std::string spreadsheet = "Lotus1 Files (*.wks)|*.wks|Lotus2 Files (*.wk1)|*.wk1|";
    const std::string otherData = "TRAX Data(TXT)(*.por)|*.por|TRAX Data(BIN)(*.sav)|*.sav|";
    const std::size_t lotus = f.allTypes.find(spreadsheet);
    ASSERT_NE(lotus, std::string::npos);
    EXPECT_EQ(f.allTypes.find(otherData), lotus + spreadsheet.size());
    EXPECT_NE(f.allTypes.find("VELM Files (*.sav)|*.sav|All Files (*.*)|*.*|"), std::string::npos);
    EXPECT_EQ(f.outputFirst.find(otherData), std::string::npos);
    EXPECT_NE(f.commandFirst.find(spreadsheet + "TRAX Classic (*.inp)|*.inp|Symphony 1.0"), std::string::npos);
    EXPECT_NE(f.import.find(otherData + "Symphony 1.0 (*.wrk)|*.wrk|Symphony 1.1 (*.wr1)|*.wr1|ASCII Data"),
              std::string::npos);
    EXPECT_EQ(f.import.find("Lotus1"), f.import.rfind("Lotus1")) << "import lists Lotus once";
    kvs::prepareFileFilters();
    EXPECT_EQ(kvs::fileFilters().allTypes.size(), f.allTypes.size()) << "preparing again does not append twice";
}

TEST(FileFilters, BarsBecomeNulsWithADoubleNulAtTheEnd) {
    const std::string list = kvs::nulSeparated("A (*.a)|*.a|");
    EXPECT_EQ(list, std::string("A (*.a)\0*.a\0\0", 13));
}

TEST(ChooserExtension, ABareNameGetsTheChosenFiltersExtension) {
    kvs::FileRequest request;
    request.filter = "Korvan Files (*.kvd,*.kvs)|*.kvd;*.kvs|All Files (*.*)|*.*|";
    request.defaultExtension = "KVD";
    EXPECT_EQ(kvs::headless::HeadlessUi::addedExtension(request), "kvd");
    request.filter = "All Files (*.*)|*.*|";
    EXPECT_EQ(kvs::headless::HeadlessUi::addedExtension(request), "KVD") << "a wildcard extension gives way";
    request.defaultExtension.clear();
    EXPECT_EQ(kvs::headless::HeadlessUi::addedExtension(request), "");

    using kvs::headless::HeadlessUi;
    EXPECT_EQ(HeadlessUi::withDefaultExtension("C:\\TEMP\\WIDE", "kvd"), "C:\\TEMP\\WIDE.kvd");
    EXPECT_EQ(HeadlessUi::withDefaultExtension("C:\\TEMP\\WIDE.DAT", "kvd"), "C:\\TEMP\\WIDE.DAT");
    EXPECT_EQ(HeadlessUi::withDefaultExtension("C:\\A.B\\WIDE", "kvd"), "C:\\A.B\\WIDE.kvd")
        << "a dot in a folder name is not an extension";
}

}  // namespace

// An export's body that throws gives the export's failure value, never an
// exception in the host.
TEST(ExportGuard, AThrowingBodyGivesTheFallback) {
    EXPECT_EQ(kvs::guardedExport(-1, []() -> int { throw std::bad_alloc(); }), -1);
    EXPECT_EQ(kvs::guardedExport(0, [] { return 7; }), 7);
    bool ran = false;
    kvs::guardedExport([&] {
        ran = true;
        throw std::runtime_error("lost");
    });
    EXPECT_TRUE(ran);
}
