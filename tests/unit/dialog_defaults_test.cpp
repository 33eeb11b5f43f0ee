// The table ReinitDialogs applies: what each kind of row does with and
// without the free flag.
#include "core/dialog_defaults.h"

#include <gtest/gtest.h>

namespace kvs {
namespace {

int routineCalls = 0;
bool routineFreed = false;

TEST(DialogDefaults, RowsGoBackToTheirDefaultsInOrder) {
    std::int32_t word = 5;
    std::string confidence = "0.5";
    DefaultsTable table;
    table.word(word, 31);
    table.word(word, -1);  // a later row wins
    table.text(confidence, "0.95");
    table.routine([](bool freeMemory) {
        ++routineCalls;
        routineFreed = freeMemory;
    });
    table.apply(false);
    EXPECT_EQ(word, -1);
    EXPECT_EQ(confidence, "0.95");
    EXPECT_EQ(routineCalls, 1);
    EXPECT_FALSE(routineFreed);
    table.apply(true);
    EXPECT_TRUE(routineFreed);
    EXPECT_EQ(table.rows(), 4u);
}

TEST(DialogDefaults, BlocksAreClearedOrReleasedButAnUnusableOneIsNeverTouched) {
    OptionBlock text, unusable, absent;
    text.setText("MODEL Y = X", 64);
    unusable.markUnusable();
    DefaultsTable table;
    table.block(text);
    table.block(unusable);
    table.block(absent);

    table.apply(false);
    EXPECT_TRUE(text.present());
    EXPECT_EQ(text.size(), 64u);
    EXPECT_EQ(text.text(), "");
    EXPECT_EQ(unusable.state(), OptionBlock::State::Unusable);
    EXPECT_EQ(absent.state(), OptionBlock::State::Absent);

    table.apply(true);
    EXPECT_EQ(text.state(), OptionBlock::State::Absent);
    EXPECT_EQ(unusable.state(), OptionBlock::State::Unusable);
    EXPECT_EQ(absent.state(), OptionBlock::State::Absent);
}

TEST(DialogDefaults, IndexArraysEmptyTheirCountOrAreReleased) {
    IndexArray array;
    array.create(4);
    array.entries() = {7, 8, 9, 10};
    DefaultsTable table;
    table.indexArray(array, 2);
    table.apply(false);
    EXPECT_EQ(array.entries(), (std::vector<std::int32_t>{-1, -1, 9, 10}));
    table.apply(true);
    EXPECT_FALSE(array.present());
    EXPECT_TRUE(array.entries().empty());
}

TEST(OptionBlockText, TextIsCutToLeaveRoomForTheTerminator) {
    OptionBlock block;
    EXPECT_EQ(block.text(), "");
    block.setText(std::string(300, 'A'), 256);
    EXPECT_EQ(block.size(), 256u);
    EXPECT_EQ(block.text().size(), 255u);
    block.setText("B", 256);
    EXPECT_EQ(block.text(), "B");
}

}  // namespace
}  // namespace kvs
