#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/seam.h"
#include "core/variable_list.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "tests/unit/fake_ui.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"

namespace {

using kvs::headless::HeadlessDialog;
using kvs::standin::KernelState;

class VariableFillTest : public ::testing::Test {
protected:
    void SetUp() override {
        resources.load(kvs::headless::embeddedResources());
        kvs::setUi(&ui);
        KernelState::instance().reset();
    }
    void TearDown() override {
        kvs::setUi(nullptr);
        KernelState::instance().reset();
    }
    std::vector<std::string> items(const HeadlessDialog& dialog, int id) {
        std::vector<std::string> out;
        for (int i = 0; i < dialog.listCount(id); ++i) out.push_back(dialog.listText(id, i));
        return out;
    }
    kvs::headless::ResourceSet resources;
    kvs::testing::FakeUi ui;
    kvs::VariableCatalogue catalogue;
};

TEST_F(VariableFillTest, AFullListStopsWithTheCountAddedSoFar) {
    KernelState::instance().setVariables({"A", "B", "C", "D"});
    HeadlessDialog dialog(*resources.dialog("Sort"));
    dialog.setListCapacity(2);
    kvs::fillVariableList(dialog, 4, kvs::ListInsert::Append, 4, false, 72, catalogue);
    EXPECT_EQ(items(dialog, 4), (std::vector<std::string>{"A", "B"}));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0], "Too many variables to list! Only the first\r2 names will be used.");
    EXPECT_EQ(ui.waits, 0u) << "the wait cursor is given back";
    EXPECT_EQ(catalogue.indexOf("B"), 1);
    EXPECT_EQ(catalogue.indexOf("C"), -1);
}

TEST_F(VariableFillTest, NumericOnlyDialogsSkipStringVariablesButKeepTheirIndices) {
    KernelState::instance().setVariables({"AGE", "NAME$", "INCOME"});
    HeadlessDialog dialog(*resources.dialog("Rank"));
    kvs::fillVariableList(dialog, 4, kvs::ListInsert::Append, 3, true, 71, catalogue);
    EXPECT_EQ(items(dialog, 4), (std::vector<std::string>{"AGE", "INCOME"}));
    EXPECT_EQ(catalogue.indexOf("INCOME"), 2) << "indices stay file positions";
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(VariableFillTest, TheSelectDialogListsCaseFirst) {
    KernelState::instance().setVariables({"B", "A"});
    HeadlessDialog dialog(*resources.dialog("Sort"));
    kvs::fillVariableList(dialog, 4, kvs::ListInsert::Sorted, 2, false, 46, catalogue);
    EXPECT_EQ(items(dialog, 4), (std::vector<std::string>{"A", "B", "Case"}))
        << "sorted with the rest when the sort preference is on";
    dialog.listClear(4);
    kvs::fillVariableList(dialog, 4, kvs::ListInsert::Append, 2, false, 46, catalogue);
    EXPECT_EQ(items(dialog, 4), (std::vector<std::string>{"Case", "B", "A"}));
}

TEST_F(VariableFillTest, TargetListsRoundTripThroughSelectionArrays) {
    KernelState::instance().setVariables({"X", "Y", "Z"});
    HeadlessDialog dialog(*resources.dialog("Sort"));
    kvs::fillVariableList(dialog, 4, kvs::ListInsert::Sorted, 3, false, 72, catalogue);
    dialog.listAdd(10, "Z", kvs::ListInsert::Append);
    dialog.listAdd(10, "NOSUCH", kvs::ListInsert::Append);
    dialog.listAdd(10, "X", kvs::ListInsert::Append);
    kvs::GlobalIndices entries(6, 0);
    kvs::storeSelection(dialog, 10, 3, catalogue, entries);
    EXPECT_EQ(entries, (kvs::GlobalIndices{2, 0, -1, 0, 0, 0})) << "unknown names are passed over";

    dialog.listClear(10);
    kvs::restoreSelection(dialog, entries, 3, 10, catalogue);
    EXPECT_EQ(items(dialog, 10), (std::vector<std::string>{"Z", "X"}));
}

}  // namespace

namespace {

TEST_F(VariableFillTest, AnotherFilesVariablesReplaceTheList) {
    kvs::standin::HostState::instance().setFile("C:\\DATA\\B.KVD", {"K1", "NAME$", "ABCDEFGHIJKL"});
    HeadlessDialog dialog(*resources.dialog("Sort"));
    dialog.listAdd(4, "OLD", kvs::ListInsert::Append);
    kvs::fillListFromFile(dialog, "c:\\data\\b.kvd", 4, kvs::ListInsert::Append, &catalogue);
    EXPECT_EQ(items(dialog, 4), (std::vector<std::string>{"K1", "NAME$", "ABCDEFGHIJKL"}));
    EXPECT_EQ(catalogue.indexOf("NAME$"), 1);
    EXPECT_EQ(KernelState::instance().liveBlocks(), 0u) << "the host's block is freed";

    kvs::fillListFromFile(dialog, "", 4, kvs::ListInsert::Append, &catalogue);
    EXPECT_EQ(dialog.listCount(4), 3) << "an empty name does nothing";
    kvs::fillListFromFile(dialog, "C:\\NONE.KVD", 4, kvs::ListInsert::Append, &catalogue);
    EXPECT_EQ(dialog.listCount(4), 0) << "a file without variables leaves the list empty";
    kvs::standin::HostState::instance().reset();
}

}  // namespace
