// Reordering a list's selection, the accessible names of the Add and Remove
// buttons, and where the templates put Move Up and Move Down.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/dialog_behaviour.h"
#include "core/dispatch_table.h"
#include "core/list_reorder.h"
#include "core/list_transfer.h"
#include "core/transfer_names.h"
#include "families/library.h"
#include "fake_ui.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "headless/rc_template.h"
#include "resources/list_transfer.h"
#include "tests/unit/library_resources.h"

namespace {

using kvs::moveSelectionBy;
using kvs::moveSelectionTo;

std::vector<int> order(const kvs::Reordering& r) { return r.order; }
std::vector<int> moved(const kvs::Reordering& r) { return r.moved; }

TEST(ListReorder, MoveToKeepsTheSelectionTogetherInItsOrder) {
    // Entries 0..5; 1 and 4 go before entry 0, before 3, and to the end.
    EXPECT_EQ(order(moveSelectionTo(6, {1, 4}, 0)), (std::vector<int>{1, 4, 0, 2, 3, 5}));
    EXPECT_EQ(order(moveSelectionTo(6, {1, 4}, 3)), (std::vector<int>{0, 2, 1, 4, 3, 5}));
    EXPECT_EQ(order(moveSelectionTo(6, {1, 4}, 6)), (std::vector<int>{0, 2, 3, 5, 1, 4}));
    EXPECT_EQ(moved(moveSelectionTo(6, {1, 4}, 3)), (std::vector<int>{2, 3}));
    // Past the end is the end; a drop onto a selected entry lands before the
    // first unselected entry after it.
    EXPECT_EQ(order(moveSelectionTo(3, {0}, 99)), (std::vector<int>{1, 2, 0}));
    EXPECT_EQ(order(moveSelectionTo(5, {1, 2}, 2)), (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(order(moveSelectionTo(4, {}, 0)), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_TRUE(moved(moveSelectionTo(4, {}, 0)).empty());
}

TEST(ListReorder, MoveByOnePlaceStopsAtTheEnds) {
    EXPECT_EQ(order(moveSelectionBy(5, {2}, -1)), (std::vector<int>{0, 2, 1, 3, 4}));
    EXPECT_EQ(order(moveSelectionBy(5, {2}, 1)), (std::vector<int>{0, 1, 3, 2, 4}));
    // Separate entries each move; a run moves as one.
    EXPECT_EQ(order(moveSelectionBy(5, {1, 3}, -1)), (std::vector<int>{1, 0, 3, 2, 4}));
    EXPECT_EQ(order(moveSelectionBy(5, {2, 3}, 1)), (std::vector<int>{0, 1, 4, 2, 3}));
    EXPECT_EQ(moved(moveSelectionBy(5, {2, 3}, 1)), (std::vector<int>{3, 4}));
    // A run at the top stays; the entry below it still moves up to it.
    EXPECT_EQ(order(moveSelectionBy(5, {0, 1, 3}, -1)), (std::vector<int>{0, 1, 3, 2, 4}));
    EXPECT_EQ(order(moveSelectionBy(5, {1, 4}, 1)), (std::vector<int>{0, 2, 1, 3, 4}));
}

TEST(ListReorder, CanMoveOnlyWhenAnEntryHasRoomThatWay) {
    EXPECT_FALSE(kvs::canMoveSelectionBy(4, {}, -1));
    EXPECT_FALSE(kvs::canMoveSelectionBy(4, {0}, -1));
    EXPECT_TRUE(kvs::canMoveSelectionBy(4, {0}, 1));
    EXPECT_FALSE(kvs::canMoveSelectionBy(4, {0, 1, 2, 3}, 1));
    EXPECT_FALSE(kvs::canMoveSelectionBy(4, {2, 3}, 1));
    EXPECT_TRUE(kvs::canMoveSelectionBy(4, {0, 1, 3}, -1));
    EXPECT_FALSE(kvs::canMoveSelectionBy(1, {0}, 1));
}

TEST(TransferNames, LabelWordsLoseMnemonicsColonAndBlanks) {
    EXPECT_EQ(kvs::labelWords("Var&iable(s):"), "Variable(s)");
    EXPECT_EQ(kvs::labelWords("  &Y - variable(s):  "), "Y - variable(s)");
    EXPECT_EQ(kvs::labelWords("Row-variable(&s):"), "Row-variable(s)");
    EXPECT_EQ(kvs::labelWords("Salt && &Pepper:"), "Salt & Pepper");
    EXPECT_EQ(kvs::labelWords("&Dependent"), "Dependent");
    EXPECT_EQ(kvs::labelWords(" : "), "");
    EXPECT_EQ(kvs::addButtonName("&Dependent:"), "Add to Dependent");
    EXPECT_EQ(kvs::removeButtonName("&Independent(s):"), "Remove from Independent(s)");
    EXPECT_EQ(kvs::addButtonName(""), "");
    EXPECT_EQ(kvs::moveButtonName(true, "&Y - variable(s):"), "Move up in Y - variable(s)");
    EXPECT_EQ(kvs::moveButtonName(false, "Var&iable(s):"), "Move down in Variable(s)");
    EXPECT_EQ(kvs::moveButtonName(false, ""), "");
}

TEST(TransferNames, EveryUsedRowNamesBothButtonsFromItsTargetsLabel) {
    const kvs::ListTransferRow rows[] = {
        {6, 7, 10, {4, 4}},
        {8, 9, 11, {5, 4}},
        {51, 52, 53, {4, 4}},
    };
    const auto used = [](const kvs::ListTransferRow& row) { return row.targetList != 53; };
    const auto labelOf = [](int list) -> std::string { return list == 10 ? "&X - variable:" : ""; };
    const auto names = kvs::transferButtonNames(rows, used, labelOf);
    // List 11 has no label, list 53 is not in use: only the first row is named.
    ASSERT_EQ(names.size(), 2u);
    EXPECT_EQ(names[0], (std::pair<int, std::string>{6, "Add to X - variable"}));
    EXPECT_EQ(names[1], (std::pair<int, std::string>{7, "Remove from X - variable"}));
}

const kvs::headless::ResourceSet& resources() { return kvs::testing::libraryResources(); }

bool overlap(const kvs::headless::ControlTemplate& a, const kvs::headless::ControlTemplate& b) {
    // A combo box's height is its drop-down's; closed it is one line.
    const auto height = [](const kvs::headless::ControlTemplate& c) {
        return c.kind == kvs::headless::ControlKind::ComboBox ? 12 : c.h;
    };
    return a.x < b.x + b.w && b.x < a.x + a.w && a.y < b.y + height(b) && b.y < a.y + height(a);
}

// Move Up and Move Down come in pairs, one after the other in tab order
// (where in it the reading order decides: tab_order_test.cpp), in a dialog
// that has the list they reorder, inside the dialog and on no other control.
TEST(MoveButtons, FollowTheirListAndOverlapNothing) {
    kvs::installLibraryFamilies();
    int dialogs = 0;
    for (const kvs::DispatchRow& row : kvs::dialogRows()) {
        if (!row.behaviour || !row.templateName) continue;
        const kvs::headless::DialogTemplate* dialog = resources().dialog(row.templateName);
        if (!dialog) continue;
        const auto& controls = dialog->controls;
        const auto indexOf = [&](int id) {
            for (std::size_t i = 0; i < controls.size(); ++i)
                if (controls[i].id == id) return static_cast<int>(i);
            return -1;
        };
        const int up = indexOf(IDC_MOVE_UP), down = indexOf(IDC_MOVE_DOWN);
        if (up < 0 && down < 0) continue;
        ++dialogs;
        const std::string where = row.templateName;
        ASSERT_TRUE(up >= 0 && down >= 0) << where << " has one of the pair";
        const int list = indexOf(row.behaviour().orderedList());
        ASSERT_GE(list, 0) << where << " lacks the list the buttons move in";
        EXPECT_EQ(down, up + 1) << where;
        for (int button : {up, down}) {
            const auto& b = controls[static_cast<std::size_t>(button)];
            EXPECT_TRUE(b.disabled()) << where << ": nothing can move while the list is empty";
            EXPECT_TRUE(b.x >= 0 && b.y >= 0 && b.x + b.w <= dialog->w && b.y + b.h <= dialog->h) << where;
            for (std::size_t i = 0; i < controls.size(); ++i) {
                if (static_cast<int>(i) == button) continue;
                EXPECT_FALSE(overlap(b, controls[i])) << where << ": \"" << b.text << "\" on \"" << controls[i].text << "\"";
            }
        }
    }
    // Sort, Order and the thirteen graph dialogs with a Y list.
    EXPECT_EQ(dialogs, 15);
}

// Counts the beeps of a full list.
class BeepingUi : public kvs::testing::FakeUi {
public:
    int beeps = 0;
    void beep() override { ++beeps; }
};

std::vector<std::string> namesIn(const kvs::DialogView& view, int list) {
    std::vector<std::string> names;
    for (int i = 0; i < view.listCount(list); ++i) names.push_back(view.listText(list, i));
    return names;
}

// A drop goes through Add's own routine: the target's capacity holds, and a
// drop is refused where the button that does the same is disabled.
TEST(ListDrop, KeepsTheCapacityAndTheButtonsRules) {
    BeepingUi fake;
    kvs::setUi(&fake);
    kvs::headless::HeadlessDialog sort(*resources().dialog("SORT"));
    const auto capacity = [](int list) { return list == IDC_TARGET1 ? 3 : 0; };
    for (const char* name : {"a", "b", "c", "d", "e"}) sort.listAdd(IDC_SOURCE, name, kvs::ListInsert::Append);
    sort.listAdd(IDC_TARGET1, "c", kvs::ListInsert::Append);
    for (int i : {1, 2, 3, 4}) sort.listSelect(IDC_SOURCE, i, true);
    kvs::updateTransferButtons(sort, capacity);
    EXPECT_EQ(kvs::listDropOf(sort, IDC_SOURCE, IDC_TARGET1, capacity), kvs::ListDrop::Add);
    EXPECT_EQ(kvs::listDropOf(sort, IDC_SOURCE, IDC_SOURCE, capacity), kvs::ListDrop::None);
    // b and d fill the list (c is there); e finds no room.
    EXPECT_TRUE(kvs::handleListDrop(sort, IDC_SOURCE, IDC_TARGET1, 0, capacity, kvs::ListInsert::Append));
    EXPECT_EQ(namesIn(sort, IDC_TARGET1), (std::vector<std::string>{"b", "d", "c"}));
    EXPECT_EQ(fake.beeps, 1);
    EXPECT_TRUE(sort.listSelection(IDC_SOURCE).empty());

    sort.listSelect(IDC_TARGET1, 2, true);
    kvs::updateTransferButtons(sort, capacity);
    EXPECT_EQ(kvs::listDropOf(sort, IDC_TARGET1, IDC_SOURCE, capacity), kvs::ListDrop::Remove);
    sort.enable(IDC_REMOVE1, false);
    EXPECT_FALSE(kvs::handleListDrop(sort, IDC_TARGET1, IDC_SOURCE, 0, capacity, kvs::ListInsert::Append));
    EXPECT_EQ(namesIn(sort, IDC_TARGET1).size(), 3u);
    EXPECT_FALSE(kvs::handleListDelete(sort, IDC_TARGET1, capacity));
    // Within the list the drop moves c first.
    EXPECT_TRUE(kvs::handleListDrop(sort, IDC_TARGET1, IDC_TARGET1, 0, capacity, kvs::ListInsert::Append));
    EXPECT_EQ(namesIn(sort, IDC_TARGET1), (std::vector<std::string>{"c", "b", "d"}));
    // A list the dialog does not use takes no drop.
    EXPECT_EQ(kvs::listDropOf(sort, IDC_TARGET1, IDC_TARGET1, [](int) { return 0; }), kvs::ListDrop::None);
    kvs::setUi(nullptr);
}

// Each list an Add button serves has a label just before it, which names
// the button for a screen reader (and the list for the scenario drivers).
TEST(TransferNames, EveryTargetListOfAVariableDialogHasItsLabel) {
    kvs::installLibraryFamilies();
    int named = 0;
    for (const kvs::DispatchRow& row : kvs::dialogRows()) {
        if (!row.behaviour || !row.templateName) continue;
        const kvs::headless::DialogTemplate* dialog = resources().dialog(row.templateName);
        if (!dialog) continue;
        const auto& controls = dialog->controls;
        const auto has = [&](int id) {
            return std::any_of(controls.begin(), controls.end(), [&](const auto& c) { return c.id == id; });
        };
        for (const kvs::ListTransferRow& transfer : kvs::kListTransfers) {
            if (!has(transfer.addButton)) continue;
            for (std::size_t i = 0; i < controls.size(); ++i) {
                if (controls[i].id != transfer.targetList) continue;
                const bool labelled = i > 0 && controls[i - 1].kind == kvs::headless::ControlKind::Static &&
                                      !kvs::labelWords(controls[i - 1].text).empty();
                EXPECT_TRUE(labelled) << row.templateName << ": list " << transfer.targetList;
                named += labelled ? 1 : 0;
            }
        }
    }
    EXPECT_GT(named, 100);
}

}  // namespace
