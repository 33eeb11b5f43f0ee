// The search box under a source list, over the real templates: after every
// keystroke the list shows exactly the entries that hold the text, in the
// list's own order, whichever way the filter changed the list, and a list
// someone else changes meanwhile loses and doubles nothing.
#include "core/source_filter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "core/variable_list.h"
#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "headless/rc_template.h"
#include "resources/common_ids.h"

namespace kvs {
namespace {

using Names = std::vector<std::string>;

const headless::DialogTemplate& dialogTemplate(const char* name) {
    static const headless::ResourceSet set = [] {
        headless::ResourceSet s;
        s.load(headless::embeddedResources());
        return s;
    }();
    return *set.dialog(name);
}

// A dialog's first source list holding entries, of which the variables are
// in the catalogue, with its search box.
struct Box {
    headless::HeadlessDialog dialog;
    VariableCatalogue variables;
    SourceFilter filter{IDC_SOURCE, IDC_SOURCE_FILTER, IDC_SOURCE_FILTER_LABEL};

    Box(const char* templateName, const Names& entries) : dialog(dialogTemplate(templateName)) {
        for (const std::string& entry : entries) {
            dialog.listAdd(IDC_SOURCE, entry, ListInsert::Append);
            if (entry.front() != '*') variables.add(entry, true);
        }
        EXPECT_TRUE(filter.install(dialog, &variables));
    }
    bool type(std::string_view text) {
        dialog.setText(IDC_SOURCE_FILTER, text);
        return filter.apply(dialog);
    }
    Names shown() const {
        Names names;
        for (int i = 0; i < dialog.listCount(IDC_SOURCE); ++i) names.push_back(dialog.listText(IDC_SOURCE, i));
        return names;
    }
    Names selected() const {
        Names names;
        for (int i : dialog.listSelection(IDC_SOURCE)) names.push_back(dialog.listText(IDC_SOURCE, i));
        return names;
    }
};

// What the list should show: the sets, and the entries that hold the key.
Names naive(const Names& entries, std::string_view typed) {
    const std::string key = filterKey(typed);
    Names out;
    for (const std::string& entry : entries) {
        std::string folded = entry;
        for (char& c : folded) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (entry.front() == '*' || folded.find(key) != std::string::npos) out.push_back(entry);
    }
    return out;
}

TEST(SourceFilter, TheBoxTakesTheBottomOfTheListsRoomAndFollowsItInTabOrder) {
    Box box("SORT", {"AGE"});
    const DialogRect room{7, 18, 90, 107};  // the list in the template
    const DialogRect list = box.dialog.controlRect(IDC_SOURCE);
    const DialogRect label = box.dialog.controlRect(IDC_SOURCE_FILTER_LABEL);
    const DialogRect edit = box.dialog.controlRect(IDC_SOURCE_FILTER);
    EXPECT_EQ(list.y, room.y);
    EXPECT_EQ(list.width, room.width);
    EXPECT_LT(list.bottom(), std::min(label.y, edit.y));
    EXPECT_LE(label.right(), edit.x);
    EXPECT_EQ(edit.right(), room.right());
    EXPECT_EQ(edit.bottom(), room.bottom()) << "a list of whole rows keeps its bottom";
    EXPECT_EQ(edit.y, list.bottom() + 4);
    EXPECT_EQ(box.dialog.findByLabel("Available variables:"), IDC_SOURCE);
    EXPECT_EQ(box.dialog.findByLabel("Quick find:"), IDC_SOURCE_FILTER);
    EXPECT_EQ(filterKey("  AgE\t"), "age");
}

TEST(SourceFilter, TypingShowsTheEntriesHoldingTheTextAndClearingShowsAllInTheirOrder) {
    const Names entries = {"*CHOICE", "WAGE", "AGE", "INCOME", "SEX$", "Stage2"};
    Box box("SORT", entries);
    box.type("ag");
    EXPECT_EQ(box.shown(), (Names{"*CHOICE", "WAGE", "AGE", "Stage2"})) << "sets stay in view";
    box.type(" AGE ");
    EXPECT_EQ(box.shown(), (Names{"*CHOICE", "WAGE", "AGE", "Stage2"}));
    box.type("zz");
    EXPECT_EQ(box.shown(), (Names{"*CHOICE"}));
    box.type("");
    EXPECT_EQ(box.shown(), entries);
}

// Random typing, backspaces, jumps and clearing over a short and a long
// list (which the filter changes in place and by refilling), with names
// selected before each keystroke.
TEST(SourceFilter, RandomTypingAlwaysShowsWhatANaiveFilterWouldAndKeepsTheSelection) {
    const Names stems = {"AGE", "INCOME", "WEIGHT", "HEIGHT", "Q", "SCORE", "TEMP", "x_"};
    for (const int count : {40, 3000}) {
        Names entries = {"*SET1", "*SET2"};
        for (int i = 0; i < count; ++i) entries.push_back(stems[static_cast<std::size_t>(i) % stems.size()] + std::to_string(i));
        Box box("SORT", entries);
        std::mt19937 random(static_cast<unsigned>(count));
        const std::string letters = "aeghioq1234_ ";
        std::string typed;
        for (int step = 0; step < 300; ++step) {
            const unsigned what = random() % 10;
            if (what < 5) typed += letters[random() % letters.size()];
            else if (what < 7 && !typed.empty()) typed.pop_back();
            else if (what < 8) typed.clear();
            else typed = entries[random() % entries.size()].substr(random() % 3, 1 + random() % 4);

            const Names before = box.shown();
            box.dialog.listSelect(IDC_SOURCE, -1, false);
            for (int k = 0; k < 3 && !before.empty(); ++k)
                box.dialog.listSelect(IDC_SOURCE, static_cast<int>(random() % before.size()), true);
            const Names selected = box.selected();
            const bool lost = box.type(typed);

            const Names shown = box.shown();
            ASSERT_EQ(shown, naive(entries, typed)) << count << " entries, step " << step << " \"" << typed << "\"";
            Names kept;
            for (const std::string& name : selected)
                if (std::find(shown.begin(), shown.end(), name) != shown.end()) kept.push_back(name);
            ASSERT_EQ(box.selected(), kept) << "step " << step;
            ASSERT_EQ(lost, kept.size() != selected.size()) << "step " << step;
        }
        box.type("");
        EXPECT_EQ(box.shown(), entries);
    }
}

TEST(SourceFilter, SelectionInASingleSelectionListSurvivesOnlyWhileShown) {
    Box box("LET", {"AGE", "INCOME", "WAGE"});
    box.dialog.listSelect(IDC_SOURCE, 2, true);
    EXPECT_FALSE(box.type("ag"));
    EXPECT_EQ(box.selected(), Names{"WAGE"});
    EXPECT_TRUE(box.type("inc"));
    EXPECT_TRUE(box.selected().empty());
}

// Merge refills the list from another file: the new names are copied and
// the box's text applied to them; none of the old names comes back.
TEST(SourceFilter, AListRefilledWhileFilteredIsCopiedAfresh) {
    Box box("SORT", {"AGE", "INCOME", "WAGE"});
    box.type("ag");
    box.dialog.listClear(IDC_SOURCE);
    box.variables.clear();
    for (const char* name : {"ID", "AGENT", "HEIGHT", "STAGE"}) {
        box.dialog.listAdd(IDC_SOURCE, name, ListInsert::Append);
        box.variables.add(name, true);
    }
    box.filter.follow(box.dialog);
    EXPECT_EQ(box.shown(), (Names{"AGENT", "STAGE"}));
    box.type("");
    EXPECT_EQ(box.shown(), (Names{"ID", "AGENT", "HEIGHT", "STAGE"}));
}

// A dialog puts its sets at the top of the filtered list, replaces one and
// takes them away, as the set editor does: the whole list follows.
TEST(SourceFilter, EntriesInsertedAndDeletedWhileFilteredAreNeitherLostNorDoubled) {
    Box box("SORT", {"*A", "AGE", "INCOME", "WAGE", "X1"});
    box.type("inc");
    EXPECT_EQ(box.shown(), (Names{"*A", "INCOME"}));
    box.dialog.listInsertAt(IDC_SOURCE, 1, "*B");
    box.dialog.listDelete(IDC_SOURCE, 0);
    box.filter.follow(box.dialog);
    box.type("");
    EXPECT_EQ(box.shown(), (Names{"*B", "AGE", "INCOME", "WAGE", "X1"}));

    // A name put between two shown ones that does not hold the text goes out
    // of view at once, and comes back after the entry it followed.
    box.type("a");
    EXPECT_EQ(box.shown(), (Names{"*B", "AGE", "WAGE"}));
    box.variables.add("NEW", true);
    box.dialog.listInsertAt(IDC_SOURCE, 2, "NEW");
    box.filter.follow(box.dialog);
    EXPECT_EQ(box.shown(), (Names{"*B", "AGE", "WAGE"}));
    box.type("");
    EXPECT_EQ(box.shown(), (Names{"*B", "AGE", "NEW", "INCOME", "WAGE", "X1"}));
}

// Changed while nothing was filtered, the list is copied again at the next
// keystroke, whether or not the dialog said so.
TEST(SourceFilter, AListChangedWhileUnfilteredIsCopiedAgainAtTheNextKeystroke) {
    Box box("SORT", {"AGE", "INCOME"});
    box.filter.prepare(box.dialog);
    box.variables.add("STAGE", true);
    box.dialog.listAdd(IDC_SOURCE, "STAGE", ListInsert::Append);
    box.type("ag");
    EXPECT_EQ(box.shown(), (Names{"AGE", "STAGE"}));
    box.type("");
    box.dialog.listDelete(IDC_SOURCE, 0);
    box.filter.follow(box.dialog);
    box.type("ag");
    EXPECT_EQ(box.shown(), (Names{"STAGE"}));
    box.type("");
    EXPECT_EQ(box.shown(), (Names{"INCOME", "STAGE"}));
}

}  // namespace
}  // namespace kvs
