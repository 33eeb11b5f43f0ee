#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>
#include <stdexcept>

#include "core/descriptor.h"
#include "core/dispatch_table.h"
#include "families/library.h"
#include "include/kvs_dlg.h"

namespace {

using kvs::DispatchRow;
using kvs::Family;
using kvs::Launch;

// Every test here sees the rows the library installs at load.
class RowsInstalled : public ::testing::Environment {
public:
    void SetUp() override { kvs::installLibraryFamilies(); }
};
const auto* const installed = ::testing::AddGlobalTestEnvironment(new RowsInstalled);

TEST(DispatchTable, EveryRowLiesInTheRangeOfItsFamily) {
    ASSERT_FALSE(kvs::dialogRows().empty());
    for (const DispatchRow& row : kvs::dialogRows()) {
        Family family{};
        ASSERT_TRUE(kvs::familyOf(row.id, family)) << row.id;
        EXPECT_EQ(family, row.family) << row.id;
        if (row.launch != Launch::Special) {
            EXPECT_NE(row.templateName, nullptr) << row.id;
            EXPECT_NE(row.caption, nullptr) << row.id;
            EXPECT_TRUE(row.mode >= 0 && row.mode <= 2) << row.id;
        }
    }
}

TEST(DispatchTable, RangesIncludeTheOutliers) {
    Family family{};
    EXPECT_TRUE(kvs::familyOf(1124, family));
    EXPECT_EQ(family, Family::Graph);
    EXPECT_TRUE(kvs::familyOf(483, family));
    EXPECT_EQ(family, Family::Statistics);
    EXPECT_TRUE(kvs::familyOf(41, family));
    EXPECT_EQ(family, Family::Data);
    EXPECT_TRUE(kvs::familyOf(93, family));
    EXPECT_TRUE(kvs::familyOf(153, family));
    EXPECT_TRUE(kvs::familyOf(304, family));
    for (std::uint16_t outside : {0, 40, 94, 99, 154, 200, 305, 482, 484, 1123, 1125, 9999, 65535})
        EXPECT_FALSE(kvs::familyOf(outside, family)) << outside;
}

TEST(DispatchTable, IdsWithoutACaseHaveNoRow) {
    for (std::uint16_t id : {41, 42, 44, 48, 66, 68, 79, 82, 86, 89, 91, 93, 100, 104, 105, 110, 112, 115, 117,
                             122, 127, 130, 145, 148, 149, 151, 152, 201, 205, 214, 220, 225, 247, 249, 255, 259,
                             263, 265, 293, 301, 304})
        EXPECT_EQ(kvs::findDispatchRow(id), nullptr) << id;
}

TEST(DispatchTable, TelltaleRows) {
    const DispatchRow* sort = kvs::findDispatchRow(72);
    ASSERT_NE(sort, nullptr);
    EXPECT_STREQ(sort->templateName, "Sort");
    EXPECT_STREQ(sort->caption, "Sort");
    EXPECT_EQ(sort->mode, 1);
    EXPECT_EQ(sort->firstCapacity, 10);
    EXPECT_EQ(sort->secondCapacity, 0);

    const DispatchRow* hilo = kvs::findDispatchRow(107);
    ASSERT_NE(hilo, nullptr);
    EXPECT_EQ(hilo->launch, Launch::Standard);
    EXPECT_EQ(hilo->firstSlot, 2);
    EXPECT_EQ(hilo->lastSlot, 5);

    const DispatchRow* correlations = kvs::findDispatchRow(204);
    ASSERT_NE(correlations, nullptr);
    EXPECT_EQ(correlations->family, Family::Statistics);
    EXPECT_EQ(correlations->launch, Launch::Graph);

    const DispatchRow* loglin = kvs::findDispatchRow(252);
    ASSERT_NE(loglin, nullptr);
    EXPECT_EQ(loglin->firstCapacity, 1);
    EXPECT_EQ(loglin->secondCapacity, 256);

    for (std::uint16_t special : {76, 150, 153, 242, 245, 246}) {
        const DispatchRow* row = kvs::findDispatchRow(special);
        ASSERT_NE(row, nullptr) << special;
        EXPECT_EQ(row->launch, Launch::Special) << special;
        EXPECT_NE(row->special, nullptr) << special;
    }
    EXPECT_EQ(kvs::dispatchTable().size(), 123u);
}

// Dialogs with a row but no menu case: StartDialog does nothing for them,
// their own launchers find them.
TEST(DispatchTable, RowsOffTheMenuAreFoundOnlyAsDialogs) {
    for (std::uint16_t id : {51, 52, 53, 91}) {
        EXPECT_EQ(kvs::findDispatchRow(id), nullptr) << id;
        const DispatchRow* row = kvs::findDialogRow(id);
        ASSERT_NE(row, nullptr) << id;
        EXPECT_NE(row->behaviour, nullptr) << id;
    }
    EXPECT_EQ(kvs::dialogRows().size(), kvs::dispatchTable().size() + 4);
}

// The facts that used to be lists of ids beside the table.
TEST(DispatchTable, RowFlagsNameTheDialogsWithQuirks) {
    std::set<std::uint16_t> keep, oneList, noRestore, numeric;
    for (const DispatchRow& row : kvs::dialogRows()) {
        if (row.has(kvs::kKeepsStateThroughReinit)) keep.insert(row.id);
        if (row.has(kvs::kClearsAsOneList)) oneList.insert(row.id);
        if (row.has(kvs::kNoFirstListRestore)) noRestore.insert(row.id);
        if (row.switch1 == 1) numeric.insert(row.id);
    }
    EXPECT_EQ(keep, (std::set<std::uint16_t>{218, 219, 221, 232, 260, 261, 262, 289}));
    EXPECT_EQ(oneList, (std::set<std::uint16_t>{67, 70}));
    EXPECT_EQ(noRestore, (std::set<std::uint16_t>{289}));
    EXPECT_EQ(numeric, (std::set<std::uint16_t>{70, 71, 75}));
}

TEST(DispatchTable, TwoRowsWithOneIdAreRefused) {
    const DispatchRow rows[] = {kvs::dialogRow(Family::Data, 72, "Sort", "Sort", Launch::Standard, 1, 10, 0),
                                kvs::dialogRow(Family::Data, 72, "Sort", "Sort", Launch::Standard, 1, 10, 0)};
    const kvs::FamilyTable family{rows, nullptr, nullptr};
    EXPECT_THROW(kvs::installFamilies({&family, 1}), std::logic_error);
    EXPECT_NE(kvs::findDispatchRow(43), nullptr);  // the installed rows stay
}

TEST(Descriptors, NineDialogsStartWithAnUnsetResetMarker) {
    kvs::resetDescriptorsForLoad();
    std::set<std::uint16_t> unset;
    for (const DispatchRow& row : kvs::dialogRows())
        if (const kvs::Descriptor* d = kvs::descriptorFor(row.id); d && d->resetMarker == -1) unset.insert(row.id);
    EXPECT_EQ(unset, (std::set<std::uint16_t>{87, 88, 252, 269, 271, 272, 281, 290, 298}));
}

TEST(Descriptors, SelectionResetFillsTheUsedPartAndCanFree) {
    kvs::resetDescriptorsForLoad();
    kvs::Descriptor* d = kvs::descriptorFor(74);
    ASSERT_NE(d, nullptr);
    kvs::resetSelection(*d, true, 2);  // never allocated: nothing happens
    EXPECT_EQ(d->defaultsMarker, 0);

    d->allocated = 1;
    d->firstCapacity = 3;
    d->first.entries = {4, 5, 6, 0, 0, 0};
    d->first.exists = true;
    d->secondCapacity = 2;
    d->second.entries = {7, 8};
    d->second.exists = true;
    d->resetMarker = 5;
    kvs::resetSelection(*d, false, 2);
    EXPECT_EQ(d->first.entries, (kvs::GlobalIndices{-1, -1, -1, 0, 0, 0}));
    EXPECT_EQ(d->second.entries, (kvs::GlobalIndices{-1, -1}));
    EXPECT_EQ(d->defaultsMarker, 1);
    EXPECT_EQ(d->resetMarker, 0);
    EXPECT_EQ(d->allocated, 1);

    kvs::resetSelection(*d, true, 2);
    EXPECT_EQ(d->allocated, 0);
    EXPECT_FALSE(d->first.exists);
    EXPECT_TRUE(d->second.entries.empty());
    kvs::resetDescriptorsForLoad();
}

TEST(Descriptors, UsedCountStopsAtTheFirstEmptyEntryOrTheCapacity) {
    kvs::SelectionArray array;
    array.entries = {3, 1, -1, 9};
    EXPECT_EQ(array.used(4), 2);
    EXPECT_EQ(array.used(1), 1);
    array.entries = {3, 1};
    EXPECT_EQ(array.used(10), 2);
}

}  // namespace

namespace {

// The host reads what the library serves and which version it is.
TEST(LibraryExports, DialogListAndVersion) {
    KvsDialogEntry entries[4] = {};
    const int32_t served = GetDialogList(nullptr, 0);
    // Every row with a dialog or a routine of its own, counted from the rows
    // so that a new dialog needs no change here.
    int written = 0;
    for (const kvs::DispatchRow& row : kvs::dispatchTable()) written += (row.behaviour || row.special) ? 1 : 0;
    EXPECT_EQ(served, written);
    EXPECT_GT(served, 0);
    EXPECT_EQ(GetDialogList(entries, 4), served);
    EXPECT_EQ(entries[0].commandId, 43);
    EXPECT_STREQ(entries[0].caption, "List Cases");
    EXPECT_STREQ(entries[0].templateName, "ListDlgBox");
    EXPECT_EQ(entries[0].family, 0);

    char text[16] = "xxxxxxxxxxxxxxx";
    const int32_t version = GetLibraryVersion(text, sizeof text);
    EXPECT_EQ(version >> 16, std::atoi(text));
    EXPECT_EQ(std::to_string(version >> 16) + "." + std::to_string((version >> 8) & 0xFF) + "." +
                  std::to_string(version & 0xFF),
              text);
    char small[2] = "x";
    GetLibraryVersion(small, 2);
    EXPECT_EQ(small[1], '\0');
    EXPECT_EQ(GetLibraryVersion(nullptr, 0), version);
}

}  // namespace
