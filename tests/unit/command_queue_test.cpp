#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/command_queue.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"

namespace {

// "L7": built by appending, which GCC's -Wrestrict does not misread at -O3
// as it does "L" + std::to_string(7).
std::string numbered(std::string_view prefix, int i) { return std::string(prefix).append(std::to_string(i)); }


using kvs::standin::HostState;
using kvs::standin::KernelState;

class CommandQueueTest : public ::testing::Test {
protected:
    void SetUp() override {
        kvs::queue::resetForLoad();
        KernelState::instance().reset();
        HostState::instance().setSink([this](const std::string& line) { received.push_back(line); });
    }
    void TearDown() override {
        kvs::queue::resetForLoad();
        HostState::instance().setSink(nullptr);
        KernelState::instance().reset();
    }
    std::vector<std::string> received;
};

TEST_F(CommandQueueTest, GrowsByDoublingFrom32AndFlushesInPushOrder) {
    EXPECT_EQ(kvs::queue::capacity(), -1);
    for (int i = 0; i < 32; ++i) EXPECT_EQ(kvs::queue::push(numbered("L", i).c_str(), nullptr), i + 1);
    EXPECT_EQ(kvs::queue::capacity(), 32);
    EXPECT_EQ(kvs::queue::push("L32", nullptr), 33);
    EXPECT_EQ(kvs::queue::capacity(), 64);
    for (int i = 33; i < 65; ++i) kvs::queue::push(numbered("L", i).c_str(), nullptr);
    EXPECT_EQ(kvs::queue::capacity(), 128);

    kvs::queue::flush();
    ASSERT_EQ(received.size(), 65u);
    for (int i = 0; i < 65; ++i) EXPECT_EQ(received[static_cast<std::size_t>(i)], numbered("AddCmd \"L", i).append("\" null"));
    EXPECT_EQ(kvs::queue::count(), 0);
    EXPECT_EQ(kvs::queue::capacity(), 128) << "the block is kept for the next dialog";
    EXPECT_EQ(KernelState::instance().liveBlocks(), 1u) << "only the pair block survives a flush";
}

TEST_F(CommandQueueTest, NullCommandIsQueuedButNeverHandedOver) {
    EXPECT_EQ(kvs::queue::push(nullptr, nullptr), 1);
    EXPECT_EQ(kvs::queue::push(nullptr, "x"), 2);
    EXPECT_EQ(kvs::queue::push("SERIES", "KORVAN - Data"), 3);
    kvs::queue::flush();
    ASSERT_EQ(received.size(), 1u);
    EXPECT_EQ(received[0], "AddCmd \"SERIES\" \"KORVAN - Data\"");
    EXPECT_EQ(KernelState::instance().liveBlocks(), 1u) << "the argument of a null command is freed too";
}

TEST_F(CommandQueueTest, StringsAreCopiedAtPushTime) {
    std::string line = "SORT A ";
    kvs::queue::push(line.c_str(), nullptr);
    line[5] = 'Z';
    kvs::queue::flush();
    ASSERT_EQ(received.size(), 1u);
    EXPECT_EQ(received[0], "AddCmd \"SORT A \" null");
}

TEST_F(CommandQueueTest, FailedGrowthAbandonsThePairsAndStartsAgainAt32) {
    kvs::queue::push("FIRST", nullptr);
    EXPECT_EQ(kvs::queue::capacity(), 32);
    for (int i = 1; i < 32; ++i) kvs::queue::push("X", nullptr);
    KernelState::instance().failAllocation(1);
    EXPECT_EQ(kvs::queue::push("OVERFLOW", nullptr), -1);
    EXPECT_EQ(kvs::queue::count(), 0);
    EXPECT_EQ(kvs::queue::capacity(), -1);

    EXPECT_EQ(kvs::queue::push("AGAIN", nullptr), 1);
    EXPECT_EQ(kvs::queue::capacity(), 32);
    kvs::queue::flush();
    ASSERT_EQ(received.size(), 1u);
    EXPECT_EQ(received[0], "AddCmd \"AGAIN\" null");
}

TEST_F(CommandQueueTest, FailedStringCopyLeavesANullInThePair) {
    kvs::queue::push("FIRST", nullptr);      // the block and one string exist now
    KernelState::instance().failAllocation(1);
    EXPECT_EQ(kvs::queue::push("LOST", "ARG"), 2);
    kvs::queue::flush();
    ASSERT_EQ(received.size(), 1u) << "the pair whose command copy failed is skipped";
    EXPECT_EQ(received[0], "AddCmd \"FIRST\" null");
}

TEST_F(CommandQueueTest, EmptyFlushCallsNothing) {
    kvs::queue::flush();
    EXPECT_TRUE(received.empty());
    EXPECT_EQ(KernelState::instance().allocations(), 0);
}

}  // namespace
