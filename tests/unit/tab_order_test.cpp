// Tab order of every dialog template: the keyboard visits the controls in
// the order a reader takes them in, and a label's mnemonic lands on the
// control the label names.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "headless/embedded_resources.h"
#include "headless/rc_template.h"
#include "tests/unit/library_resources.h"

namespace {

using kvs::testing::listed;

using kvs::headless::ControlKind;
using kvs::headless::ControlTemplate;

const kvs::headless::ResourceSet& resources() { return kvs::testing::libraryResources(); }

// Where a control shows on the dialog.
struct Box {
    int left, top, right, bottom;
};

Box boxOf(const ControlTemplate& c) { return {c.x, c.y, c.x + c.w, c.y + kvs::testing::shownHeight(c)}; }

Box around(const Box& a, const Box& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

bool sharesColumn(const Box& a, const Box& b) { return a.left < b.right && b.left < a.right; }
bool sharesRow(const Box& a, const Box& b) { return a.top < b.bottom && b.top < a.bottom; }

// Whether `b` lies wholly below `a` in a column they share, or wholly right
// of it on a row they share: where a reader goes on from `a`.
bool belowOrRightOf(const Box& b, const Box& a) {
    return (b.top >= a.bottom && sharesColumn(a, b)) || (b.left >= a.right && sharesRow(a, b));
}

std::string describe(const ControlTemplate& c) {
    return std::to_string(c.id) + " \"" + c.text + "\" at (" + std::to_string(c.x) + ", " + std::to_string(c.y) + ")";
}

// One stop of the Tab key: a visible tab stop, or a radio group, which Tab
// enters once (at its checked button) and whose buttons the arrow keys walk
// in template order. A control disabled at the start counts: the dialog
// enables it as the user works.
struct Stop {
    std::vector<const ControlTemplate*> controls;  // one, or a group's buttons
    Box box;
};

std::vector<Stop> stopsOf(const std::vector<ControlTemplate>& controls) {
    std::vector<Stop> stops;
    const ControlTemplate* previous = nullptr;
    for (const ControlTemplate& c : controls) {
        const bool radio = c.visible() && c.isRadio();
        const bool joinsGroup = radio && !c.group() && previous && previous->isRadio() && !stops.empty() &&
                                stops.back().controls.back() == previous;
        if (joinsGroup) {
            stops.back().controls.push_back(&c);
            stops.back().box = around(stops.back().box, boxOf(c));
        } else if (radio || (c.visible() && c.tabStop() && c.kind != ControlKind::Static && !c.isGroupBox())) {
            stops.push_back({{&c}, boxOf(c)});
        }
        previous = &c;
    }
    return stops;
}

// The rule, for Tab and for the arrow keys in a radio group alike: nothing
// comes after a control (a radio group counting as one control spanning its
// buttons) that it lies wholly above in a column they share or wholly left
// of on a row they share. Controls that share neither a column nor a row
// are not compared, so a layout of columns (source list, arrow buttons,
// target lists, the button column) may be read column by column, and a
// button column with controls running on beneath it comes before them.
std::vector<std::string> readingOrderFaults(const std::string& name, const std::vector<ControlTemplate>& controls) {
    std::vector<std::string> faults;
    const auto check = [&](const Box& earlier, const ControlTemplate& a, const Box& later, const ControlTemplate& b) {
        if (belowOrRightOf(earlier, later)) faults.push_back(name + ": " + describe(b) + " comes after " + describe(a));
    };
    const std::vector<Stop> stops = stopsOf(controls);
    for (std::size_t i = 0; i < stops.size(); ++i) {
        const std::vector<const ControlTemplate*>& group = stops[i].controls;
        for (std::size_t k = 0; k + 1 < group.size(); ++k)
            for (std::size_t m = k + 1; m < group.size(); ++m)
                check(boxOf(*group[k]), *group[k], boxOf(*group[m]), *group[m]);
        for (std::size_t j = i + 1; j < stops.size(); ++j)
            check(stops[i].box, *group.front(), stops[j].box, *stops[j].controls.front());
    }
    return faults;
}

std::vector<std::string> faultsOfScript(const std::string& controls) {
    kvs::headless::ResourceSet set;
    set.load({{"t.rc", "D DIALOGEX 0, 0, 200, 200\nBEGIN\n" + controls + "END\n"}});
    return readingOrderFaults("D", set.dialog("D")->controls);
}

TEST(TabOrder, FollowsReadingOrderInEveryTemplate) {
    const std::vector<std::string> names = resources().dialogNames();
    ASSERT_GE(names.size(), 100u);
    std::vector<std::string> faults;
    for (const std::string& name : names) {
        const std::vector<std::string> found = readingOrderFaults(name, resources().dialog(name)->controls);
        faults.insert(faults.end(), found.begin(), found.end());
    }
    EXPECT_TRUE(faults.empty()) << listed(faults);
}

// What the rule lets through and what it stops, on small layouts.
TEST(TabOrder, RuleReadsColumnsAndRadioGroupsAndStopsGoingBack) {
    const std::string list = "LISTBOX 10, 10, 10, 60, 60, 0x00010000\n";
    const std::string arrows = "PUSHBUTTON \"-->\", 11, 75, 20, 20, 14\nPUSHBUTTON \"<--\", 12, 75, 40, 20, 14\n";
    const std::string target = "LISTBOX 13, 100, 10, 60, 50, 0x00010000\n";
    const std::string okColumn = "PUSHBUTTON \"OK\", 1, 165, 10, 30, 14\nPUSHBUTTON \"Cancel\", 2, 165, 28, 30, 14\n";
    const std::string below = "AUTOCHECKBOX \"Wide\", 14, 100, 80, 95, 10\n";
    EXPECT_EQ(faultsOfScript(list + arrows + target + okColumn).size(), 0u) << "column by column";
    EXPECT_EQ(faultsOfScript(list + target + arrows + okColumn).size(), 2u) << "the arrows left of the target";
    EXPECT_EQ(faultsOfScript(list + arrows + target + okColumn + below).size(), 0u) << "beneath the column, after it";
    EXPECT_EQ(faultsOfScript(list + arrows + target + below + okColumn).size(), 2u)
        << "the column above what runs beneath it";
    EXPECT_EQ(faultsOfScript(list + "COMBOBOX 15, 100, 75, 60, 90, 0x00010003\n"
                                    "AUTOCHECKBOX \"Low\", 16, 10, 120, 40, 10\n")
                  .size(),
              0u)
        << "a drop-down list counts closed";

    // A choice with its values beside it and a wide last choice beneath them:
    // Tab enters the group once, then goes on to the values.
    const std::string group = "AUTORADIOBUTTON \"a\", 21, 10, 10, 40, 10, 0x00030000\n"
                              "AUTORADIOBUTTON \"b\", 22, 10, 30, 150, 10, 0x00000000\n";
    const std::string value = "EDITTEXT 23, 60, 10, 30, 12, 0x00030000\n";
    EXPECT_EQ(faultsOfScript(group + value).size(), 0u);
    EXPECT_EQ(faultsOfScript(value + "AUTORADIOBUTTON \"a\", 21, 10, 10, 40, 10, 0x00030000\n"
                                     "AUTORADIOBUTTON \"b\", 22, 10, 30, 40, 10, 0x00000000\n")
                  .size(),
              1u)
        << "the group left of the values it comes after";
    EXPECT_EQ(faultsOfScript("AUTORADIOBUTTON \"b\", 22, 10, 30, 40, 10, 0x00030000\n"
                             "AUTORADIOBUTTON \"a\", 21, 10, 10, 40, 10, 0x00000000\n")
                  .size(),
              1u)
        << "the arrow keys go back up the group";
}

bool hasMnemonic(const std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] != '&') return true;
        ++i;
    }
    return false;
}

// A label's mnemonic gives the focus to the first tab stop after the label in
// template order, so that tab stop (enabled at the start or not) must be the
// control the label names: one below it in its column or right of it on its
// row. A label followed by nothing, or by another label's control, sends its
// key elsewhere.
std::vector<std::string> labelFaults(const std::string& name, const std::vector<ControlTemplate>& controls) {
    std::vector<std::string> faults;
    for (auto label = controls.begin(); label != controls.end(); ++label) {
        if (label->kind != ControlKind::Static || !hasMnemonic(label->text)) continue;
        const auto target = std::find_if(label + 1, controls.end(), [](const ControlTemplate& c) {
            return c.visible() && c.tabStop() && c.kind != ControlKind::Static;
        });
        if (target == controls.end())
            faults.push_back(name + ": " + describe(*label) + " has no tab stop after it");
        else if (!belowOrRightOf(boxOf(*target), boxOf(*label)))
            faults.push_back(name + ": " + describe(*label) + " reaches " + describe(*target));
    }
    return faults;
}

TEST(TabOrder, LabelMnemonicReachesTheControlItNames) {
    std::vector<std::string> faults;
    for (const std::string& name : resources().dialogNames()) {
        const std::vector<std::string> found = labelFaults(name, resources().dialog(name)->controls);
        faults.insert(faults.end(), found.begin(), found.end());
    }
    EXPECT_TRUE(faults.empty()) << listed(faults);
}

// Two column headings over a row: each must come right before its own field.
// A row label and a heading may share one field.
TEST(TabOrder, LabelRuleFollowsTheMnemonicToTheNextTabStop) {
    const auto faultsOf = [](const std::string& controls) {
        kvs::headless::ResourceSet set;
        set.load({{"t.rc", "D DIALOGEX 0, 0, 200, 100\nBEGIN\n" + controls + "END\n"}});
        return labelFaults("D", set.dialog("D")->controls);
    };
    const std::string name = "LTEXT \"&Name\", -1, 50, 10, 40, 8\n";
    const std::string value = "LTEXT \"&Value\", -1, 100, 10, 40, 8\n";
    const std::string nameField = "EDITTEXT 1, 50, 20, 40, 12\n";
    const std::string valueField = "EDITTEXT 2, 100, 20, 40, 12\n";
    EXPECT_EQ(faultsOf(name + nameField + value + valueField).size(), 0u);
    EXPECT_EQ(faultsOf(name + value + nameField + valueField).size(), 1u) << "Value reaches the name field";
    EXPECT_EQ(faultsOf(name + "LTEXT \"&Row:\", -1, 10, 22, 30, 8\n" + nameField + value + valueField).size(), 0u);
    EXPECT_EQ(faultsOf(nameField + "LTEXT \"&Note\", -1, 10, 40, 30, 8\n").size(), 1u) << "nothing after it";
    EXPECT_EQ(faultsOf("LTEXT \"&&Co\", -1, 10, 40, 30, 8\n").size(), 0u) << "a doubled & marks no key";
}

}  // namespace
