// The picture sets and the font chooser over a fake user interface: which
// bitmaps are asked for and where they land, and what the font dialog is
// opened with and what becomes of its answer.
#include <gtest/gtest.h>

#include <string_view>

#include <cstring>
#include <string>
#include <vector>

#include "families/library.h"
#include "graph/font_chooser.h"
#include "graph/picture_sets.h"
#include "include/kvs_dlg.h"
#include "tests/unit/fake_ui.h"

namespace kvs {
namespace {

class GraphResourcesTest : public ::testing::Test {
protected:
    void SetUp() override {
        setUi(&ui_);
        loadLibrary();
        lfKvgFont = {};
        lfDefKvgFont = {};
    }
    void TearDown() override {
        unloadLibrary();
        setUi(nullptr);
        lfKvgFont = {};
        lfDefKvgFont = {};
    }

    static KvsLogFont font(const char* face, int height, int weight, bool italic) {
        KvsLogFont f{};
        f.height = height;
        f.width = 7;
        f.weight = weight;
        f.italic = italic ? 255 : 0;
        f.charSet = 1;
        std::string_view(face).copy(f.faceName, sizeof f.faceName - 1);
        return f;
    }

    testing::FakeUi ui_;
};

TEST_F(GraphResourcesTest, SymbolsAreLoadedByNameAndHandedOverInOneTable) {
    ui_.missingBitmaps = {"symbol5"};
    void* table = nullptr;
    EXPECT_EQ(LoadSymbolBitmapsEx(&table), 22);
    ASSERT_EQ(ui_.bitmapNames.size(), 22u);
    EXPECT_EQ(ui_.bitmapNames.front(), "symbol1");
    EXPECT_EQ(ui_.bitmapNames.back(), "symbol22");
    ASSERT_EQ(table, graph::symbolPictures().data());
    const auto* handles = static_cast<const BitmapRef*>(table);
    EXPECT_EQ(handles[0], 1u);
    EXPECT_EQ(handles[4], 0u);  // the missing picture leaves its slot empty
    EXPECT_EQ(handles[21], 21u);

    DeleteSymbolBitmapsEx();
    EXPECT_EQ(ui_.deletedBitmaps.size(), 21u);  // the empty slot is not deleted
    for (int i = 0; i < graph::kSymbolPictures; ++i) EXPECT_EQ(handles[i], 0u);
}

TEST_F(GraphResourcesTest, LoadingAgainReleasesTheEarlierBitmapsAndANullTableIsAllowed) {
    EXPECT_EQ(LoadSymbolBitmapsEx(nullptr), 22);
    EXPECT_EQ(LoadSymbolBitmapsEx(nullptr), 22);
    EXPECT_EQ(ui_.deletedBitmaps.size(), 22u);
    DeleteSymbolBitmapsEx();
    DeleteSymbolBitmapsEx();
    EXPECT_EQ(ui_.deletedBitmaps.size(), 44u);
}

TEST_F(GraphResourcesTest, AxisSetsAreIndexedFromOneAfterTheListColoursAreRead) {
    graph::loadAxisPictures();
    ASSERT_GE(ui_.calls.size(), 3u);
    EXPECT_EQ(ui_.calls[0], "colour text");
    EXPECT_EQ(ui_.calls[1], "colour highlight text");
    EXPECT_EQ(ui_.calls[2], "bitmap axes2d1");
    EXPECT_EQ(ui_.bitmapNames.size(), 20u);
    EXPECT_EQ(ui_.bitmapNames[11], "axes2d12");
    EXPECT_EQ(ui_.bitmapNames[12], "axes3d1");
    EXPECT_EQ(ui_.bitmapNames[19], "axes3d8");

    EXPECT_EQ(graph::axes2dPictures()[0], 0u);
    EXPECT_EQ(graph::axes2dPictures()[1], 1u);
    EXPECT_EQ(graph::axes2dPictures()[12], 12u);
    EXPECT_EQ(graph::axes3dPictures()[0], 0u);
    EXPECT_EQ(graph::axes3dPictures()[8], 20u);
    EXPECT_EQ(graph::axisListColours().text, 1u);
    EXPECT_EQ(graph::axisListColours().highlightText, 2u);

    graph::deleteAxisPictures();
    EXPECT_EQ(ui_.deletedBitmaps.size(), 20u);
    EXPECT_EQ(graph::axes2dPictures()[1], 0u);
}

TEST_F(GraphResourcesTest, DashesFillElevenSlotsFromZero) {
    graph::loadDashPictures();
    EXPECT_EQ(ui_.bitmapNames.front(), "dash1");
    EXPECT_EQ(ui_.bitmapNames.back(), "dash11");
    EXPECT_EQ(graph::dashPictures()[0], 1u);
    EXPECT_EQ(graph::dashPictures()[10], 11u);
    graph::deleteDashPictures();
    EXPECT_EQ(graph::dashPictures()[0], 0u);
}

TEST_F(GraphResourcesTest, ChooserOpensAtArialTwelvePointWithTheLastChoiceOtherwise) {
    ui_.pixelsPerInch = 120;
    ui_.fontAnswer = font("Times New Roman", -27, 700, true);
    ASSERT_TRUE(graph::chooseGraphFont(5));
    ASSERT_EQ(ui_.fontRequests.size(), 1u);
    const FontRequest& first = ui_.fontRequests[0];
    EXPECT_EQ(first.owner, 5u);
    EXPECT_EQ(first.initial.height, -20);  // 120 / 6
    EXPECT_STREQ(first.initial.faceName, "Arial");
    EXPECT_EQ(first.okText, "Continue");

    graph::chooseGraphFont(5);
    const FontRequest& second = ui_.fontRequests[1];
    EXPECT_STREQ(second.initial.faceName, "Arial");
    EXPECT_EQ(second.initial.height, -20);
    EXPECT_EQ(second.initial.weight, 700);  // kept from the first choice
    EXPECT_EQ(second.initial.italic, 255);
}

TEST_F(GraphResourcesTest, ChoiceTakesTheDefaultFontsHeightAndNoWidth) {
    lfDefKvgFont = font("Courier New", -13, 400, false);
    ui_.fontAnswer = font("Times New Roman", -27, 700, true);
    ASSERT_TRUE(graph::chooseGraphFont(0));
    const KvsLogFont& chosen = graph::chosenFont();
    EXPECT_STREQ(chosen.faceName, "Times New Roman");
    EXPECT_EQ(chosen.height, -13);
    EXPECT_EQ(chosen.width, 0);
    EXPECT_EQ(chosen.weight, 700);
    EXPECT_EQ(chosen.charSet, 1);
}

TEST_F(GraphResourcesTest, CancelledChooserChangesNothing) {
    ui_.fontAnswer = font("Times New Roman", -27, 700, true);
    graph::chooseGraphFont(0);
    ui_.fontAnswer.reset();
    EXPECT_FALSE(graph::chooseGraphFont(0));
    EXPECT_STREQ(graph::chosenFont().faceName, "Times New Roman");
}

TEST_F(GraphResourcesTest, GraphFontCommandStoresTheChoiceOnlyOnOk) {
    ui_.fontAnswer.reset();
    StartDialog(150, nullptr, "");
    EXPECT_EQ(lfKvgFont.faceName[0], '\0');
    ui_.fontAnswer = font("Georgia", -16, 400, false);
    StartDialog(150, nullptr, "");
    EXPECT_STREQ(lfKvgFont.faceName, "Georgia");
    EXPECT_EQ(lfKvgFont.width, 0);
}

TEST_F(GraphResourcesTest, DefaultFontCommandPutsTheDefaultBackWithoutAWindow) {
    ui_.fontAnswer = font("Georgia", -16, 700, false);
    StartDialog(150, nullptr, "");
    lfDefKvgFont = font("Courier New", -13, 400, false);
    StartDialog(153, nullptr, "");
    EXPECT_EQ(ui_.fontRequests.size(), 1u);
    EXPECT_EQ(std::memcmp(&lfKvgFont, &lfDefKvgFont, sizeof lfKvgFont), 0);
    EXPECT_STREQ(graph::chosenFont().faceName, "Courier New");
}

TEST_F(GraphResourcesTest, ALoadForgetsThePicturesAndTheChoice) {
    ui_.fontAnswer = font("Georgia", -16, 700, false);
    graph::chooseGraphFont(0);
    LoadSymbolBitmapsEx(nullptr);
    unloadLibrary();
    loadLibrary();
    EXPECT_EQ(graph::symbolPictures()[0], 0u);
    EXPECT_EQ(graph::chosenFont().faceName[0], '\0');
}

}  // namespace
}  // namespace kvs
