// Every export called with the null pointers and out-of-range values its
// contract lets a caller pass: nothing crashes, nothing is written past a
// bound, and the documented results come back.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <vector>

#include "include/kvs_dlg.h"
#include "tests/unit/loaded_library.h"

namespace kvs {
namespace {

using ExportContractTest = testing::LoadedLibraryTest<>;

TEST_F(ExportContractTest, StartDialogTakesAnyIdAndAnyHelpPath) {
    EXPECT_EQ(StartDialog(0xFFFFFFFFu, nullptr, nullptr), 1);
    EXPECT_EQ(StartDialog(0, nullptr, ""), 1);
    EXPECT_EQ(StartDialog(72, nullptr, nullptr), 1);
    const std::string longHelp(10000, 'H');
    EXPECT_EQ(StartDialog(72, nullptr, longHelp.c_str()), 1);
    EXPECT_EQ(StartDialog(0x10048u, nullptr, longHelp.c_str()), 1) << "the high half is ignored";
    EXPECT_EQ(ui.opened, (std::vector<std::string>{"Sort", "Sort", "Sort"}));
}

TEST_F(ExportContractTest, ListAndVersionStopAtTheirBounds) {
    const int32_t served = GetDialogList(nullptr, 0);
    ASSERT_GT(served, 0);
    EXPECT_EQ(GetDialogList(nullptr, -5), served);
    std::vector<KvsDialogEntry> entries(static_cast<std::size_t>(served) + 1, KvsDialogEntry{0xBEEF, 0, nullptr, nullptr});
    EXPECT_EQ(GetDialogList(entries.data(), 1), served);
    EXPECT_NE(entries[0].commandId, 0xBEEF);
    EXPECT_EQ(entries[1].commandId, 0xBEEF) << "one entry asked for, one written";

    char text[8];
    std::memset(text, 'X', sizeof text);
    const int32_t version = GetLibraryVersion(nullptr, 100);
    EXPECT_EQ(GetLibraryVersion(text, 0), version);
    EXPECT_EQ(text[0], 'X') << "no room: nothing written";
    EXPECT_EQ(GetLibraryVersion(text, 1), version);
    EXPECT_EQ(text[0], '\0');
    EXPECT_EQ(text[1], 'X');
    EXPECT_EQ(GetLibraryVersion(text, 3), version);
    EXPECT_EQ(std::strlen(text), 2u);
    EXPECT_EQ(GetLibraryVersion(text, -1), version);
}

TEST_F(ExportContractTest, SettingsTakeAnyValue) {
    EXPECT_EQ(ReinitDialogs(INT_MIN), 1);
    EXPECT_EQ(ReinitDialogs(INT_MAX), 1);
    SetDlgSortList(INT_MIN);
    SetDlgSortList(INT_MAX);
    EXPECT_EQ(StartDialog(72, nullptr, nullptr), 1);
}

TEST_F(ExportContractTest, CallsWithoutTheirStateOrWithNullsDoNothing) {
    EXPECT_EQ(AttachSaveAsOptions(nullptr), 1);
    EXPECT_EQ(AttachImpExpOptions(nullptr), 1);
    EXPECT_EQ(ColorPickerDialogEx(nullptr, nullptr), 0);
    EXPECT_EQ(LoadSymbolBitmapsEx(nullptr), 22) << "loads, and stores nothing";
    DeleteSymbolBitmapsEx();
    DeleteSymbolBitmapsEx();
    ClearSamplingDialog();
    ClearSamplingDialog();
    EXPECT_EQ(StartDialog(72, nullptr, nullptr), 1) << "the library is still usable";
}

}  // namespace
}  // namespace kvs
