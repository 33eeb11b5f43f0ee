#include "headless/headless_dialog.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tools/scenario/text_file.h"

namespace kvs::headless {
namespace {

// The resource scripts as they are on disk.
ResourceFiles resourceDir() {
    ResourceFiles files;
    for (const auto& entry : std::filesystem::directory_iterator(KVS_RESOURCE_DIR))
        files[entry.path().filename().string()] = kvs::scenario::readTextFile(entry.path().string()).value_or("");
    return files;
}

const ResourceSet& realResources() {
    static const ResourceSet set = [] {
        ResourceSet s;
        s.load(resourceDir());
        return s;
    }();
    return set;
}

// Controls for the cases the real templates do not have yet.
const ResourceSet& testResources() {
    static const ResourceSet set = [] {
        ResourceFiles files = resourceDir();
        files["test.rc"] = R"(#include "windows_styles.h"
T DIALOGEX 0, 0, 200, 100
CAPTION "Test"
BEGIN
    LTEXT           "&Names:", -1, 0, 0, 10, 10
    LISTBOX         20, 0, 0, 10, 10, LBS_SORT | LBS_NOTIFY
    LTEXT           "Pick:", -1, 0, 0, 10, 10
    COMBOBOX        21, 0, 0, 10, 10, CBS_DROPDOWNLIST | CBS_SORT
    COMBOBOX        22, 0, 0, 10, 10, CBS_DROPDOWN
    AUTORADIOBUTTON "One", 30, 0, 0, 10, 10, WS_GROUP
    AUTORADIOBUTTON "Two", 31, 0, 0, 10, 10
    RADIOBUTTON     "Manual", 32, 0, 0, 10, 10
    AUTORADIOBUTTON "Three", 33, 0, 0, 10, 10, WS_GROUP
    AUTORADIOBUTTON "Four", 34, 0, 0, 10, 10
    AUTO3STATE      "Tri", 40, 0, 0, 10, 10
    PUSHBUTTON      "A && &B", 41, 0, 0, 10, 10
    EDITTEXT        42, 0, 0, 10, 10
END
)";
        ResourceSet s;
        s.load(files);
        return s;
    }();
    return set;
}

HeadlessDialog openSort() { return HeadlessDialog(*realResources().dialog("SORT")); }
HeadlessDialog openTest() { return HeadlessDialog(*testResources().dialog("T")); }

std::vector<std::string> listTexts(const HeadlessDialog& d, int id) {
    std::vector<std::string> texts;
    for (int i = 0; i < d.listCount(id); ++i) texts.push_back(d.listText(id, i));
    return texts;
}

// ---------------------------------------------------------------------------

TEST(HeadlessDialogList, SortedInsertionOrdersLikeAWindowsListBox) {
    HeadlessDialog d = openSort();
    const std::vector<std::string> names = {"b", "A", "a1", "_x", "X$", "x", "a", "$z", "9a", "A.B", "a_b"};
    for (const std::string& name : names) d.listAdd(4, name, ListInsert::Sorted);
    // Symbols before digits before letters; "A" and "a" keep the order they came in.
    EXPECT_EQ(listTexts(d, 4), (std::vector<std::string>{"$z", "_x", "9a", "A", "a", "A.B", "a_b", "a1", "b", "x",
                                                         "X$"}));
    EXPECT_EQ(d.listAdd(4, "AA", ListInsert::Sorted), 8);
    EXPECT_EQ(d.listAdd(4, "AA", ListInsert::Append), 12);  // Append ignores LBS_SORT
}

// Strict mode reports every touch of a control the template lacks, and
// nothing for asking whether it is there.
TEST(HeadlessDialogStrict, TouchingAMissingControlIsReported) {
    HeadlessDialog d = openTest();
    std::vector<int> missing;
    d.setOnMissingControl([&](int id) { missing.push_back(id); });
    EXPECT_FALSE(d.has(999));
    d.setText(42, "fine");
    d.setText(999, "x");
    d.enable(998, false);
    d.listAdd(997, "A", ListInsert::Append);
    (void)d.isChecked(996);
    (void)d.listAdd(42, "A", ListInsert::Append);  // there, but not a list: not reported
    EXPECT_EQ(missing, (std::vector<int>{999, 998, 997, 996}));
}

TEST(HeadlessDialogList, CompareListText) {
    EXPECT_EQ(compareListText("abc", "ABC"), 0);
    EXPECT_LT(compareListText("ab", "abc"), 0);
    EXPECT_LT(compareListText("Z9", "za"), 0);
    EXPECT_LT(compareListText("a$", "a0"), 0);
    EXPECT_GT(compareListText("_", "$"), 0);
    EXPECT_LT(compareListText("z", "\xe9"), 0);
}

TEST(HeadlessDialogList, SortedAddAppendsWithoutSortStyle) {
    HeadlessDialog d = openSort();
    for (const char* name : {"c", "a", "b"}) d.listAdd(10, name, ListInsert::Sorted);
    EXPECT_EQ(listTexts(d, 10), (std::vector<std::string>{"c", "a", "b"}));
}

TEST(HeadlessDialogList, CapacityAndBadIds) {
    HeadlessDialog d = openSort();
    d.setListCapacity(2);
    EXPECT_EQ(d.listAdd(4, "a", ListInsert::Sorted), 0);
    EXPECT_EQ(d.listAdd(4, "b", ListInsert::Sorted), 1);
    EXPECT_EQ(d.listAdd(4, "c", ListInsert::Sorted), kListNoSpace);
    EXPECT_EQ(d.listCount(4), 2);
    EXPECT_EQ(d.listAdd(6, "x", ListInsert::Append), kListError);  // a button
    EXPECT_EQ(d.listAdd(777, "x", ListInsert::Append), kListError);
    EXPECT_EQ(d.listText(4, 2), "");
    EXPECT_EQ(d.listText(4, -1), "");
    EXPECT_EQ(d.listCount(777), 0);
    d.listAdd(10, std::string_view("AB\0C", 4), ListInsert::Append);
    EXPECT_EQ(d.listText(10, 0), "AB");  // a C string ends at NUL
}

TEST(HeadlessDialogList, MultiSelectSelection) {
    HeadlessDialog d = openSort();
    for (const char* name : {"b", "d", "f"}) d.listAdd(4, name, ListInsert::Sorted);
    d.listSetCurrent(4, 1);  // LB_SETCURSEL does nothing here
    EXPECT_TRUE(d.listSelection(4).empty());
    d.listSelect(4, 0, true);
    d.listSelect(4, 2, true);
    EXPECT_EQ(d.listSelection(4), (std::vector<int>{0, 2}));
    d.listAdd(4, "a", ListInsert::Sorted);  // selections move with their items
    EXPECT_EQ(d.listSelection(4), (std::vector<int>{1, 3}));
    d.listDelete(4, 1);
    EXPECT_EQ(d.listSelection(4), (std::vector<int>{2}));
    d.listSelect(4, -1, true);
    EXPECT_EQ(d.listSelection(4), (std::vector<int>{0, 1, 2}));
    d.listSelect(4, 1, false);
    EXPECT_EQ(d.listSelection(4), (std::vector<int>{0, 2}));
    d.listClear(4);
    EXPECT_TRUE(d.listSelection(4).empty());
    EXPECT_EQ(d.listCount(4), 0);
}

TEST(HeadlessDialogList, SingleSelectSelection) {
    HeadlessDialog d = openTest();
    for (const char* name : {"b", "c", "e"}) d.listAdd(20, name, ListInsert::Sorted);
    d.listSetCurrent(20, 1);
    EXPECT_EQ(d.listSelection(20), (std::vector<int>{1}));
    d.listSelect(20, 2, true);
    EXPECT_EQ(d.listSelection(20), (std::vector<int>{2}));
    d.listSelect(20, 0, false);  // not the selected one
    EXPECT_EQ(d.listSelection(20), (std::vector<int>{2}));
    d.listSetCurrent(20, 9);  // out of range: unchanged
    EXPECT_EQ(d.listSelection(20), (std::vector<int>{2}));
    d.listAdd(20, "a", ListInsert::Sorted);
    EXPECT_EQ(d.listSelection(20), (std::vector<int>{3}));
    d.listDelete(20, 3);
    EXPECT_TRUE(d.listSelection(20).empty());
    d.listSetCurrent(20, 0);
    d.listSetCurrent(20, -1);
    EXPECT_TRUE(d.listSelection(20).empty());
}

// ---------------------------------------------------------------------------

TEST(HeadlessDialogCombo, DropDownListTextIsTheSelection) {
    HeadlessDialog d = openTest();
    for (const char* item : {"=>", "=", "<>"}) d.comboAdd(21, item);
    EXPECT_EQ(d.listCount(21), 0);  // list calls do not reach a combo box
    EXPECT_EQ(d.comboSelection(21), -1);
    EXPECT_EQ(d.text(21), "");
    d.comboSelect(21, 1);
    EXPECT_EQ(d.text(21), "=");  // CBS_SORT: "<>", "=", "=>"
    d.comboAdd(21, "<");
    EXPECT_EQ(d.comboSelection(21), 2);
    EXPECT_EQ(d.text(21), "=");
    d.setText(21, "typed");
    EXPECT_EQ(d.text(21), "=");
    d.comboSelect(21, 10);
    EXPECT_EQ(d.comboSelection(21), -1);
    EXPECT_EQ(d.text(21), "");
}

TEST(HeadlessDialogCombo, EditComboKeepsTypedText) {
    HeadlessDialog d = openTest();
    d.comboAdd(22, "b");
    d.comboAdd(22, "a");  // no CBS_SORT: appended
    d.comboSelect(22, 1);
    EXPECT_EQ(d.text(22), "a");
    d.setText(22, "free text");
    EXPECT_EQ(d.text(22), "free text");
    d.comboSelect(22, -1);
    EXPECT_EQ(d.text(22), "");
    d.setText(22, "again");
    d.comboClear(22);
    EXPECT_EQ(d.text(22), "");
    EXPECT_EQ(d.comboSelection(22), -1);
    EXPECT_EQ(d.comboSelection(777), -1);
}

// ---------------------------------------------------------------------------

TEST(HeadlessDialogButtons, RadioClicksStayInTheirGroup) {
    HeadlessDialog sort = openSort();
    EXPECT_TRUE(sort.click(31));
    EXPECT_TRUE(sort.isChecked(31));
    sort.click(32);
    EXPECT_FALSE(sort.isChecked(31));
    EXPECT_TRUE(sort.isChecked(32));
    EXPECT_FALSE(sort.isChecked(99));  // next group

    HeadlessDialog d = openTest();
    d.setChecked(32, true);
    d.click(33);
    d.click(30);
    d.click(31);
    EXPECT_FALSE(d.isChecked(30));
    EXPECT_TRUE(d.isChecked(31));
    EXPECT_TRUE(d.isChecked(32));  // not an auto radio button: untouched
    EXPECT_TRUE(d.isChecked(33));  // another group
    d.click(32);
    EXPECT_TRUE(d.isChecked(31));  // a plain radio button does not check itself
}

TEST(HeadlessDialogButtons, CheckBoxesAndSetChecked) {
    HeadlessDialog d = openSort();
    d.click(99);
    EXPECT_TRUE(d.isChecked(99));
    d.click(99);
    EXPECT_FALSE(d.isChecked(99));
    d.setChecked(31, true);
    d.setChecked(32, true);  // BM_SETCHECK leaves the other radio button alone
    EXPECT_TRUE(d.isChecked(31) && d.isChecked(32));
    d.setChecked(2, true);  // push button: no state
    EXPECT_FALSE(d.isChecked(2));
    EXPECT_FALSE(d.click(-1));  // a static
    EXPECT_FALSE(d.click(777));

    HeadlessDialog t = openTest();
    t.click(40);
    EXPECT_TRUE(t.isChecked(40));
    t.click(40);
    EXPECT_FALSE(t.isChecked(40));  // indeterminate
    EXPECT_EQ(t.control(40)->check, kIndeterminate);
    t.click(40);
    EXPECT_EQ(t.control(40)->check, kUnchecked);
}

TEST(HeadlessDialogButtons, EnableAndFocus) {
    HeadlessDialog d = openSort();
    EXPECT_FALSE(d.isEnabled(6));
    EXPECT_TRUE(d.isEnabled(7) == false && d.isEnabled(1));
    d.setFocus(6);
    EXPECT_EQ(d.focus(), 0);  // disabled controls take no focus
    d.enable(6, true);
    d.setFocus(6);
    EXPECT_EQ(d.focus(), 6);
    d.enable(6, false);
    EXPECT_EQ(d.focus(), 0);
    d.click(99);
    EXPECT_EQ(d.focus(), 99);
    EXPECT_FALSE(d.isEnabled(777));
}

// ---------------------------------------------------------------------------

TEST(HeadlessDialogLabels, FindByLabel) {
    const HeadlessDialog sort = openSort();
    EXPECT_EQ(sort.findByLabel("Add-->"), 6);
    EXPECT_EQ(sort.findByLabel("<--Remove"), 7);
    EXPECT_EQ(sort.findByLabel("Variable(s):"), 10);
    EXPECT_EQ(sort.findByLabel("Available variables:"), 4);
    EXPECT_EQ(sort.findByLabel("  Save file "), 99);
    EXPECT_EQ(sort.findByLabel("Order"), std::nullopt);  // a group box
    EXPECT_EQ(sort.findByLabel("Nothing"), std::nullopt);

    HeadlessDialog t = openTest();
    EXPECT_EQ(t.findByLabel("Names:"), 20);
    EXPECT_EQ(t.findByLabel("Pick:"), 21);  // 22 follows a combo box, not a label
    EXPECT_EQ(t.findByLabel("A & B"), 41);
    t.setText(41, "Renamed");
    EXPECT_EQ(t.findByLabel("Renamed"), 41);
}

TEST(HeadlessDialogState, TemplateStateTextAndEnd) {
    HeadlessDialog a = openSort();
    const HeadlessDialog b = openSort();
    EXPECT_NE(a.handle(), 0u);
    EXPECT_NE(a.handle(), b.handle());
    EXPECT_EQ(a.caption(), "Sort");
    EXPECT_EQ(a.controls().size(), 15u);
    EXPECT_EQ(a.text(6), " &Add-->");
    EXPECT_TRUE(a.has(-1));
    EXPECT_FALSE(a.has(777));
    EXPECT_EQ(a.kindOf(4), ControlKind::ListBox);
    EXPECT_EQ(a.kindOf(777), std::nullopt);
    a.setText(777, "x");
    EXPECT_EQ(a.text(777), "");
    a.setText(99, std::string_view("Keep\0this", 9));
    EXPECT_EQ(a.text(99), "Keep");
    EXPECT_FALSE(a.ended());
    a.end(7);
    EXPECT_TRUE(a.ended());
    EXPECT_EQ(a.result(), 7);
}

}  // namespace
}  // namespace kvs::headless
