// Checks that a DialogView behaves as the Win32 controls do, run on the
// headless twin natively and on the real window view under Wine, over the
// dialog of view_parity.rc. Each returns the failed expectations.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/list_reorder.h"
#include "core/seam.h"
#include "tests/check/failures.h"

namespace kvs::viewcheck {

inline constexpr int kSortedList = 101, kMultiList = 102, kEditCombo = 103, kDropList = 104, kEdit = 105,
                     kCheck = 106, kPush = 107, kRadio1 = 108, kRadio2 = 109, kMissing = 999;

using Failures = check::Failures;

inline std::vector<std::string> items(const DialogView& view, int id) {
    std::vector<std::string> out;
    for (int i = 0; i < view.listCount(id); ++i) out.push_back(view.listText(id, i));
    return out;
}

using Strings = std::vector<std::string>;
using Indices = std::vector<int>;

inline void missingAndWrongKind(DialogView& view, Failures& failures) {
    KVS_EXPECT(failures, view.has(kEdit));
    KVS_EXPECT(failures, !view.has(kMissing));
    KVS_EXPECT(failures, view.text(kMissing).empty());
    KVS_EXPECT(failures, !view.isEnabled(kMissing));
    KVS_EXPECT(failures, view.listCount(kMissing) == 0);
    KVS_EXPECT(failures, view.listAdd(kMissing, "X", ListInsert::Append) == kListError);
    KVS_EXPECT(failures, view.listAdd(kEdit, "X", ListInsert::Append) == kListError);
    KVS_EXPECT(failures, view.listSelection(kEdit).empty());
    KVS_EXPECT(failures, view.comboSelection(kSortedList) == -1);
}

inline void listInsertion(DialogView& view, Failures& failures) {
    KVS_EXPECT(failures, view.listAdd(kSortedList, "b", ListInsert::Sorted) == 0);
    KVS_EXPECT(failures, view.listAdd(kSortedList, "A", ListInsert::Sorted) == 0);
    KVS_EXPECT(failures, view.listAdd(kSortedList, "1", ListInsert::Sorted) == 0);
    KVS_EXPECT(failures, view.listAdd(kSortedList, "c", ListInsert::Append) == 3);
    KVS_EXPECT(failures, view.listAdd(kSortedList, std::string_view("d\0e", 3), ListInsert::Append) == 4);
    KVS_EXPECT(failures, (items(view, kSortedList) == Strings{"1", "A", "b", "c", "d"}));
    // Without LBS_SORT the sorted insertion appends.
    KVS_EXPECT(failures, view.listAdd(kMultiList, "z", ListInsert::Sorted) == 0);
    KVS_EXPECT(failures, view.listAdd(kMultiList, "a", ListInsert::Sorted) == 1);
    KVS_EXPECT(failures, view.listText(kSortedList, 99).empty());
    KVS_EXPECT(failures, view.listText(kSortedList, -1).empty());
    view.listDelete(kSortedList, 99);
    view.listDelete(kSortedList, 0);
    KVS_EXPECT(failures, (items(view, kSortedList) == Strings{"A", "b", "c", "d"}));
    view.listClear(kMultiList);
    KVS_EXPECT(failures, view.listCount(kMultiList) == 0);
}

inline void singleSelection(DialogView& view, Failures& failures) {
    view.listClear(kSortedList);
    for (const char* name : {"a", "b", "c"}) view.listAdd(kSortedList, name, ListInsert::Sorted);
    view.listSelect(kSortedList, 1, true);
    KVS_EXPECT(failures, (view.listSelection(kSortedList) == Indices{1}));
    view.listSelect(kSortedList, 0, true);
    KVS_EXPECT(failures, (view.listSelection(kSortedList) == Indices{0}));
    view.listSelect(kSortedList, 1, false);  // not the selected one: no change
    KVS_EXPECT(failures, (view.listSelection(kSortedList) == Indices{0}));
    view.listSelect(kSortedList, 9, true);
    KVS_EXPECT(failures, (view.listSelection(kSortedList) == Indices{0}));
    view.listSelect(kSortedList, 0, false);
    KVS_EXPECT(failures, view.listSelection(kSortedList).empty());
    view.listSetCurrent(kSortedList, 2);
    KVS_EXPECT(failures, (view.listSelection(kSortedList) == Indices{2}));
    view.listSetCurrent(kSortedList, 7);
    KVS_EXPECT(failures, (view.listSelection(kSortedList) == Indices{2}));
    view.listSetCurrent(kSortedList, -1);
    KVS_EXPECT(failures, view.listSelection(kSortedList).empty());
}

inline void multiSelection(DialogView& view, Failures& failures) {
    view.listClear(kMultiList);
    for (const char* name : {"z", "a", "m"}) view.listAdd(kMultiList, name, ListInsert::Append);
    view.listSelect(kMultiList, -1, true);
    KVS_EXPECT(failures, (view.listSelection(kMultiList) == Indices{0, 1, 2}));
    view.listSelect(kMultiList, 1, false);
    KVS_EXPECT(failures, (view.listSelection(kMultiList) == Indices{0, 2}));
    view.listSetCurrent(kMultiList, 1);  // ignored by multi-select lists
    KVS_EXPECT(failures, (view.listSelection(kMultiList) == Indices{0, 2}));
    view.listDelete(kMultiList, 0);
    KVS_EXPECT(failures, (view.listSelection(kMultiList) == Indices{1}));
    view.listSelect(kMultiList, -1, false);
    KVS_EXPECT(failures, view.listSelection(kMultiList).empty());
}

// Every change of a list's items counts, an emptying also apart; a change
// refused, a selection and another list's changes do not.
inline void listChangeCounts(DialogView& view, Failures& failures) {
    view.listClear(kMultiList);
    const DialogView::ListChanges cleared = view.listChanges(kMultiList);
    const DialogView::ListChanges other = view.listChanges(kSortedList);
    view.listAdd(kMultiList, "a", ListInsert::Append);
    const DialogView::ListChanges added = view.listChanges(kMultiList);
    KVS_EXPECT(failures, added.all > cleared.all && added.clears == cleared.clears);
    view.listDelete(kMultiList, 5);
    view.listSelect(kMultiList, 0, true);
    KVS_EXPECT(failures, view.listChanges(kMultiList) == added);
    view.listInsertAt(kMultiList, 0, "b");
    const DialogView::ListChanges inserted = view.listChanges(kMultiList);
    KVS_EXPECT(failures, inserted.all > added.all);
    view.listAddAll(kMultiList, 2, [](std::size_t i) { return i == 0 ? "c" : "d"; }, ListInsert::Append);
    const DialogView::ListChanges filled = view.listChanges(kMultiList);
    KVS_EXPECT(failures, filled.all > inserted.all);
    view.listDelete(kMultiList, 0);
    KVS_EXPECT(failures, view.listChanges(kMultiList).all > filled.all);
    view.listClear(kMultiList);
    KVS_EXPECT(failures, view.listChanges(kMultiList).clears == cleared.clears + 1);
    KVS_EXPECT(failures, view.listChanges(kSortedList) == other);
}

inline void comboBoxes(DialogView& view, Failures& failures) {
    view.comboAdd(kEditCombo, "beta");
    view.comboAdd(kEditCombo, "alpha");
    view.comboSelect(kEditCombo, 0);
    KVS_EXPECT(failures, view.comboSelection(kEditCombo) == 0);
    KVS_EXPECT(failures, view.text(kEditCombo) == "alpha");
    view.comboSelect(kEditCombo, 5);
    KVS_EXPECT(failures, view.comboSelection(kEditCombo) == -1);
    KVS_EXPECT(failures, view.text(kEditCombo).empty());
    view.setText(kEditCombo, "free");
    KVS_EXPECT(failures, view.text(kEditCombo) == "free");
    view.comboClear(kEditCombo);
    KVS_EXPECT(failures, view.text(kEditCombo).empty());
    KVS_EXPECT(failures, view.comboSelection(kEditCombo) == -1);

    view.comboAdd(kDropList, "one");
    view.comboAdd(kDropList, "two");
    view.setText(kDropList, "two");  // a drop-down list has no edit field
    KVS_EXPECT(failures, view.comboSelection(kDropList) == -1);
    KVS_EXPECT(failures, view.text(kDropList).empty());
    view.comboSelect(kDropList, 1);
    KVS_EXPECT(failures, view.text(kDropList) == "two");
    view.setText(kDropList, "one");
    KVS_EXPECT(failures, view.text(kDropList) == "two");
}

inline void textAndButtons(DialogView& view, Failures& failures) {
    view.setText(kEdit, std::string_view("ab\0c", 4));
    KVS_EXPECT(failures, view.text(kEdit) == "ab");
    KVS_EXPECT(failures, view.text(kCheck) == "Check");
    view.setChecked(kCheck, true);
    KVS_EXPECT(failures, view.isChecked(kCheck));
    view.setChecked(kCheck, false);
    KVS_EXPECT(failures, !view.isChecked(kCheck));
    view.setChecked(kPush, true);
    KVS_EXPECT(failures, !view.isChecked(kPush));
    // Setting a radio button leaves the others of its group alone.
    view.setChecked(kRadio1, true);
    view.setChecked(kRadio2, true);
    KVS_EXPECT(failures, view.isChecked(kRadio1) && view.isChecked(kRadio2));
    KVS_EXPECT(failures, !view.isEnabled(kPush));
    view.enable(kPush, true);
    KVS_EXPECT(failures, view.isEnabled(kPush));
}

// The caret goes to 0 with a new text; a selection is clamped and ordered.
inline void editSelection(DialogView& view, Failures& failures) {
    view.setText(kEdit, "abcdef");
    KVS_EXPECT(failures, view.editSelection(kEdit) == std::make_pair(0, 0));
    view.setEditSelection(kEdit, 2, 4);
    KVS_EXPECT(failures, view.editSelection(kEdit) == std::make_pair(2, 4));
    view.setEditSelection(kEdit, 5, 1);
    KVS_EXPECT(failures, view.editSelection(kEdit) == std::make_pair(1, 5));
    view.setEditSelection(kEdit, 3, 99);
    KVS_EXPECT(failures, view.editSelection(kEdit) == std::make_pair(3, 6));
    view.setEditSelection(kEdit, 6, -1);
    KVS_EXPECT(failures, view.editSelection(kEdit) == std::make_pair(6, 6));
    KVS_EXPECT(failures, view.editSelection(kCheck) == std::make_pair(0, 0));  // not an edit
    view.setText(kEdit, "");
}

// focused: the id of the control that has the focus, 0 for none.
inline void focus(DialogView& view, const std::function<int()>& focused, Failures& failures) {
    view.setFocus(kEdit);
    KVS_EXPECT(failures, focused() == kEdit);
    view.enable(kPush, false);
    view.setFocus(kPush);  // a disabled control does not take the focus
    KVS_EXPECT(failures, focused() == kEdit);
    view.enable(kEdit, false);  // disabling the focused control leaves none
    KVS_EXPECT(failures, focused() == 0);
    view.enable(kEdit, true);
}

// The label just before a control, and a reordering put into real entries
// with their selection.
inline void labelsAndReordering(DialogView& view, Failures& failures) {
    KVS_EXPECT(failures, view.labelOf(kMultiList) == "&Names:");
    KVS_EXPECT(failures, view.labelOf(kSortedList).empty());
    KVS_EXPECT(failures, view.labelOf(kEditCombo).empty());
    KVS_EXPECT(failures, view.labelOf(kMissing).empty());
    view.listClear(kMultiList);
    for (const char* name : {"a", "b", "c", "d"}) view.listAdd(kMultiList, name, ListInsert::Append);
    applyReordering(view, kMultiList, moveSelectionTo(4, {0, 2}, 4));
    KVS_EXPECT(failures, (items(view, kMultiList) == Strings{"b", "d", "a", "c"}));
    KVS_EXPECT(failures, (view.listSelection(kMultiList) == Indices{2, 3}));
    applyReordering(view, kMultiList, moveSelectionBy(4, {2, 3}, -1));
    KVS_EXPECT(failures, (items(view, kMultiList) == Strings{"b", "a", "c", "d"}));
    KVS_EXPECT(failures, (view.listSelection(kMultiList) == Indices{1, 2}));
    view.listClear(kSortedList);
    for (const char* name : {"a", "b", "c"}) view.listAdd(kSortedList, name, ListInsert::Sorted);
    applyReordering(view, kSortedList, moveSelectionBy(3, {2}, -1));
    KVS_EXPECT(failures, (items(view, kSortedList) == Strings{"a", "c", "b"}));
    KVS_EXPECT(failures, (view.listSelection(kSortedList) == Indices{1}));
    view.listClear(kSortedList);
    view.listClear(kMultiList);
}

inline Failures runAll(DialogView& view, const std::function<int()>& focused) {
    Failures failures;
    missingAndWrongKind(view, failures);
    listInsertion(view, failures);
    singleSelection(view, failures);
    multiSelection(view, failures);
    listChangeCounts(view, failures);
    comboBoxes(view, failures);
    textAndButtons(view, failures);
    editSelection(view, failures);
    focus(view, focused, failures);
    labelsAndReordering(view, failures);
    return failures;
}

#undef KVS_VIEW_EXPECT

}  // namespace kvs::viewcheck
