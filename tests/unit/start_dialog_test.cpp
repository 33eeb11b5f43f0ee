#include <gtest/gtest.h>

#include <new>

#include <functional>
#include <string>
#include <vector>

#include "core/descriptor.h"
#include "core/generic_dialog.h"
#include "core/help_requests.h"
#include "core/library_state.h"
#include "families/library.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "include/kvs_dlg.h"
#include "tests/unit/loaded_library.h"
#include "standin/host_state.h"
#include "standin/kernel_state.h"

namespace {

using kvs::library;
using kvs::standin::HostState;
using kvs::standin::KernelState;

class StartDialogTest : public kvs::testing::LoadedLibraryTest<> {
protected:
    void SetUp() override {
        LoadedLibraryTest::SetUp();
        KernelState::instance().setVariables({"A", "B", "C", "D", "E"});
    }
    void expectIdle() {
        EXPECT_EQ(library().currentCommandId, kvs::kNoCommand);
        for (std::int32_t slot : library().optionSlots) EXPECT_EQ(slot, -1);
    }
};

TEST_F(StartDialogTest, OptionSlotsHoldTheExtraWordsAndComeBackOnlyOnOk) {
    kvs::Descriptor* hilo = kvs::descriptorFor(107);  // slots 2 to 5
    ASSERT_NE(hilo, nullptr);
    hilo->extra = {11, 12, 13, 14};
    std::array<std::int32_t, 5> seen{};
    ui.dialog = [&](std::string_view) {
        seen = library().optionSlots;
        EXPECT_EQ(library().currentCommandId, 107);
        library().optionSlots = {-1, 21, 22, 23, 24};
        return 2;  // Cancel
    };
    EXPECT_EQ(StartDialog(107, nullptr, "H.HLP"), 1);
    EXPECT_EQ(seen, (std::array<std::int32_t, 5>{-1, 11, 12, 13, 14}));
    EXPECT_EQ(hilo->extra, (std::array<std::int32_t, 4>{11, 12, 13, 14})) << "Cancel keeps the words";
    expectIdle();

    ui.dialog = [&](std::string_view) {
        library().optionSlots = {-1, 21, 22, 23, 24};
        return 1;  // OK
    };
    StartDialog(107, nullptr, "H.HLP");
    EXPECT_EQ(hilo->extra, (std::array<std::int32_t, 4>{21, 22, 23, 24}));
    expectIdle();
    EXPECT_EQ(library().helpPath, "H.HLP");
}

TEST_F(StartDialogTest, FirstUseAllocatesArraysSizedByTheFile) {
    kvs::Descriptor* sort = kvs::descriptorFor(72);
    ASSERT_EQ(sort->allocated, 0);
    StartDialog(72, nullptr, "");
    ASSERT_EQ(sort->allocated, 1);
    EXPECT_EQ(sort->firstCapacity, 5) << "the table's 10 becomes the file's count";
    EXPECT_EQ(sort->first.entries, (kvs::GlobalIndices{-1, -1, -1, -1, -1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(sort->second.entries, (kvs::GlobalIndices{-1})) << "mode 1: one entry";

    kvs::Descriptor* post = kvs::descriptorFor(260);  // mode 0
    StartDialog(260, nullptr, "");
    EXPECT_EQ(post->first.entries, (kvs::GlobalIndices{-1, 0}));
    EXPECT_EQ(post->second.entries.size(), 256u);

    // A later, larger file counts only after a reinitialisation frees the arrays.
    KernelState::instance().setVariables({"A", "B", "C", "D", "E", "F", "G"});
    StartDialog(72, nullptr, "");
    EXPECT_EQ(sort->firstCapacity, 5);
    ReinitDialogs(1);
    EXPECT_EQ(sort->allocated, 0);
    StartDialog(72, nullptr, "");
    EXPECT_EQ(sort->firstCapacity, 7);
}

TEST_F(StartDialogTest, AnEmptyFileDoesNotLeaveADialogWithoutRoom) {
    KernelState::instance().setVariables({});
    StartDialog(72, nullptr, "");
    ReinitDialogs(1);
    KernelState::instance().setVariables({"A", "B"});
    StartDialog(72, nullptr, "");
    EXPECT_EQ(kvs::descriptorFor(72)->firstCapacity, 2);
}

TEST_F(StartDialogTest, ReinitDuringAProtectedDialogOnlyResetsTheSlots) {
    kvs::Descriptor* glm = kvs::descriptorFor(219);
    ui.dialog = [&](std::string_view) {
        glm->first.entries[0] = 3;
        library().optionSlots[0] = 9;
        ReinitDialogs(1);
        EXPECT_EQ(library().optionSlots[0], -1);
        EXPECT_EQ(glm->allocated, 1);
        EXPECT_EQ(glm->first.entries[0], 3);
        return 2;
    };
    StartDialog(219, nullptr, "");
    ui.dialog = [&](std::string_view) {
        glm->first.entries[0] = 3;
        ReinitDialogs(0);
        EXPECT_EQ(glm->first.entries[0], -1) << "Sort is not protected";
        return 2;
    };
    // The same reinitialisation from another dialog clears the GLM record.
    StartDialog(72, nullptr, "");
    EXPECT_EQ(glm->allocated, 1);
}

TEST_F(StartDialogTest, MissingTemplateAndNoDialogIds) {
    ui.dialog = [](std::string_view) { return -1; };
    StartDialog(221, nullptr, "");
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0], "Couldn't create the dialog box.  You are very low on free memory.");
    for (std::uint32_t id : {41u, 42u, 93u, 100u, 201u, 9999u}) EXPECT_EQ(StartDialog(id, nullptr, ""), 1);
    EXPECT_EQ(ui.opened.size(), 1u);
    EXPECT_TRUE(host.empty());
    expectIdle();
}

TEST_F(StartDialogTest, SortListFlagIsReturned) {
    EXPECT_EQ(SetDlgSortList(7), 7);
    EXPECT_EQ(library().sortList, 7);
    EXPECT_EQ(SetDlgSortList(0), 0);
}

TEST_F(StartDialogTest, ResetAllEmptiesTargetsAndRestoresTheFirstState) {
    kvs::headless::ResourceSet resources;
    resources.load(kvs::headless::embeddedResources());
    kvs::Descriptor* sort = kvs::descriptorFor(72);
    ui.dialog = [&](std::string_view name) {
        kvs::headless::HeadlessDialog view(*resources.dialog(name));
        kvs::GenericDialog dialog(*kvs::findDispatchRow(72), *sort);
        dialog.onInit(view);
        view.listAdd(10, "A", kvs::ListInsert::Append);
        view.click(32);
        dialog.onCommand(view, 32, kvs::kButtonClicked);
        view.click(99);
        dialog.onCommand(view, 13, kvs::kButtonClicked);
        EXPECT_EQ(view.listCount(10), 0);
        EXPECT_TRUE(view.isChecked(31));
        EXPECT_FALSE(view.isChecked(32));
        EXPECT_FALSE(view.isChecked(99));
        return 2;
    };
    StartDialog(72, nullptr, "");
}

}  // namespace

namespace {

// A dialog that fails with an exception: StartDialog still answers 1, and
// the library is idle again, so the next StartDialog hands its lines over.
TEST_F(StartDialogTest, AFailedDialogLeavesTheLibraryIdle) {
    ui.dialog = [](std::string_view) -> int { throw std::bad_alloc(); };
    EXPECT_EQ(StartDialog(72, nullptr, ""), 1);
    EXPECT_EQ(library().currentCommandId, kvs::kNoCommand);
    ui.dialog = [](std::string_view) { return kvs::kIdCancel; };
    host.clear();
    EXPECT_EQ(StartDialog(245, nullptr, ""), 1);  // queues lines without a dialog
    EXPECT_FALSE(host.empty()) << "the next StartDialog is not taken for a nested one";
}

}  // namespace

// The .chm opened in place of a .hlp: same folder and name, the extension's
// case kept; anything that is not a .hlp has none.
TEST(HtmlHelpBeside, SwapsTheExtensionOfAHelpFileOnly) {
    EXPECT_EQ(kvs::htmlHelpBeside("C:\\KORVAN\\KORVAN.HLP"), "C:\\KORVAN\\KORVAN.CHM");
    EXPECT_EQ(kvs::htmlHelpBeside("d:\\help\\stats.hlp"), "d:\\help\\stats.chm");
    EXPECT_EQ(kvs::htmlHelpBeside("C:\\A.Hlp"), "C:\\A.Chm");
    EXPECT_EQ(kvs::htmlHelpBeside(".hlp"), "");
    EXPECT_EQ(kvs::htmlHelpBeside("C:\\KORVAN\\KORVAN.CHM"), "");
    EXPECT_EQ(kvs::htmlHelpBeside(""), "");
}
