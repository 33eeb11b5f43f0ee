// Bindings between controls and a record: what a dialog shows, what OK reads,
// what a click keeps at once, and which field a choice enables.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "core/bindings.h"
#include "core/dialog_defaults.h"

namespace kvs {
namespace {

// Controls as plain state: enough of a dialog for bindings.
class MemoryView : public DialogView {
public:
    struct Control {
        std::string text;
        bool checked = false;
        bool enabled = true;
        int selection = -1;
        std::size_t limit = 0;
    };
    std::map<int, Control> controls;
    int focus = 0;

    WindowRef handle() const override { return 0; }
    bool has(int id) const override { return controls.count(id) != 0; }
    std::string text(int id) const override { return at(id).text; }
    void setText(int id, std::string_view text) override { controls[id].text = std::string(text); }
    bool isEnabled(int id) const override { return at(id).enabled; }
    void enable(int id, bool on) override { controls[id].enabled = on; }
    bool isChecked(int id) const override { return at(id).checked; }
    void setChecked(int id, bool on) override { controls[id].checked = on; }
    void setFocus(int id) override { focus = id; }
    void limitText(int id, std::size_t count) override { controls[id].limit = count; }
    int listCount(int) const override { return 0; }
    std::string listText(int, int) const override { return {}; }
    int listAdd(int, std::string_view, ListInsert) override { return 0; }
    int listInsertAt(int, int, std::string_view) override { return 0; }
    void listDelete(int, int) override {}
    void listClear(int) override {}
    std::vector<int> listSelection(int) const override { return {}; }
    void listSelect(int, int, bool) override {}
    void listSetCurrent(int, int) override {}
    void setRedraw(int, bool) override {}
    void comboAdd(int, std::string_view) override {}
    void comboClear(int) override {}
    int comboSelection(int id) const override { return at(id).selection; }
    void comboSelect(int id, int index) override { controls[id].selection = index; }
    void setCaption(std::string_view) override {}
    void centre() override {}
    void end(int) override {}

private:
    Control at(int id) const {
        auto it = controls.find(id);
        return it == controls.end() ? Control{} : it->second;
    }
};

enum : int { kBox = 1, kFirst = 2, kSecond = 3, kField = 4, kCombo = 5, kKept = 6, kOther = 7 };

struct Record {
    bool box = false;
    int choice = kFirst;
    std::string field = "abc";
    int position = 2;
    int kept = kFirst;
};

Bindings<Record> bindings() {
    return Bindings<Record>()
        .check(kBox, &Record::box)
        .radio({kFirst, kSecond}, &Record::choice)
        .text(kField, &Record::field, 5)
        .combo(kCombo, &Record::position)
        .enableWith(kField, kSecond);
}

TEST(Bindings, ShowPutsTheRecordIntoTheControlsWithLimitsAndEnabling) {
    MemoryView view;
    Record record;
    record.box = true;
    bindings().show(view, record);
    EXPECT_TRUE(view.isChecked(kBox));
    EXPECT_TRUE(view.isChecked(kFirst));
    EXPECT_FALSE(view.isChecked(kSecond));
    EXPECT_EQ(view.text(kField), "abc");
    EXPECT_EQ(view.controls[kField].limit, 5u);
    EXPECT_EQ(view.comboSelection(kCombo), 2);
    EXPECT_FALSE(view.isEnabled(kField));  // its choice is not made
}

TEST(Bindings, ReadTakesTheControlsCuttingTextsAtTheirLimit) {
    MemoryView view;
    Record record;
    bindings().show(view, record);
    view.setChecked(kBox, true);
    view.setChecked(kFirst, false);
    view.setChecked(kSecond, true);
    view.setText(kField, "1234567");
    view.comboSelect(kCombo, 0);
    bindings().read(view, record);
    EXPECT_TRUE(record.box);
    EXPECT_EQ(record.choice, kSecond);
    EXPECT_EQ(record.field, "12345");
    EXPECT_EQ(record.position, 0);

    // A group with no button checked leaves the choice as it was.
    view.setChecked(kSecond, false);
    bindings().read(view, record);
    EXPECT_EQ(record.choice, kSecond);
}

TEST(Bindings, AClickStoresOnlyWhatCommitsOnClickAndMovesEnablingAndFocus) {
    const Bindings<Record> b = bindings().radio({kKept, kOther}, &Record::kept, Commit::OnClick);
    MemoryView view;
    Record record;
    b.show(view, record);

    view.setChecked(kSecond, true);  // the button checks itself, as an auto radio does
    view.setChecked(kFirst, false);
    EXPECT_TRUE(b.clicked(view, kSecond, record));
    EXPECT_EQ(record.choice, kFirst);  // committed at OK only
    EXPECT_TRUE(view.isEnabled(kField));
    EXPECT_EQ(view.focus, kField);

    view.focus = 0;
    view.setChecked(kFirst, true);
    view.setChecked(kSecond, false);
    b.clicked(view, kFirst, record);
    EXPECT_FALSE(view.isEnabled(kField));
    EXPECT_EQ(view.focus, 0);

    EXPECT_TRUE(b.clicked(view, kOther, record));
    EXPECT_EQ(record.kept, kOther);
    EXPECT_TRUE(view.isChecked(kOther));
    EXPECT_FALSE(view.isChecked(kKept));
    EXPECT_FALSE(b.clicked(view, 99, record));
}

TEST(Bindings, ARecordInTheDefaultsTableGoesBackToItsInitialisers) {
    Record record;
    record.box = true;
    record.field = "changed";
    DefaultsTable table;
    table.record(record);
    table.apply(false);
    EXPECT_FALSE(record.box);
    EXPECT_EQ(record.field, "abc");
}

struct Numbers {
    std::string value;
};

TEST(Bindings, NumberFieldsAreCheckedAndKeptWithoutBlanks) {
    MemoryView view;
    const kvs::Bindings<Numbers> bindings = kvs::Bindings<Numbers>().number(kField, &Numbers::value, 15);
    Numbers record;
    view.setText(kField, " 0.5 ");
    bindings.read(view, record);
    EXPECT_EQ(record.value, "0.5");
    EXPECT_EQ(bindings.validate(record), "");
    view.setText(kField, "   ");
    bindings.read(view, record);
    EXPECT_EQ(bindings.validate(record), "") << "blanks are no value";
    record.value = "1,5";
    EXPECT_EQ(bindings.validate(record), "Entry is not a valid number.");
}

TEST(Bindings, EntriesOfAStoreByControlIdReadWhatTheDialogHas) {
    using Store = std::map<int, std::string>;
    MemoryView view;
    kvs::Bindings<Store> bindings;
    bindings.entry(kBox, kvs::Kept::Check).entry(kField, kvs::Kept::Number).entry(kCombo, kvs::Kept::Combo)
        .entry(kOther, kvs::Kept::Text);
    view.setChecked(kBox, true);
    view.setText(kField, "12");
    view.comboSelect(kCombo, -1);
    Store values;
    bindings.read(view, values);
    EXPECT_EQ(values, (Store{{kBox, "1"}, {kField, "12"}, {kCombo, "0"}})) << "a control the dialog lacks is not read";
    values[kField] = "x";
    EXPECT_EQ(bindings.validate(values), "Entry is not a valid number.");
    MemoryView shown;
    bindings.show(shown, {{kBox, "1"}, {kCombo, "3"}});
    EXPECT_TRUE(shown.isChecked(kBox));
    EXPECT_EQ(shown.comboSelection(kCombo), 3);
    EXPECT_EQ(shown.text(kField), "");
}

}  // namespace
}  // namespace kvs
