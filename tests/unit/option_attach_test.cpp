// The clauses the import/export options attach to a host's line, at the
// bound of the host's buffer.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "headless/embedded_resources.h"
#include "headless/headless_dialog.h"
#include "include/kvs_dlg.h"
#include "tests/unit/loaded_library.h"

namespace kvs {
namespace {

// Runs each modal dialog on an in-memory copy of its template and lets the
// test act on it before pressing OK.
class OptionsUi : public testing::FakeUi {
public:
    std::function<void(DialogView&, DialogHandler&)> act = [](DialogView&, DialogHandler&) {};

    int runModal(WindowRef, std::string_view name, DialogHandler& handler) override {
        static const headless::ResourceSet resources = [] {
            headless::ResourceSet set;
            set.load(headless::embeddedResources());
            return set;
        }();
        const headless::DialogTemplate* found = resources.dialog(name);
        if (!found) return -1;
        headless::HeadlessDialog dialog(*found);
        handler.onInit(dialog);
        act(dialog, handler);
        handler.onCommand(dialog, kIdOk, kButtonClicked);
        return dialog.ended() ? dialog.result() : kIdCancel;
    }
};

using OptionAttachTest = testing::LoadedLibraryTest<OptionsUi>;

TEST_F(OptionAttachTest, ClausesStopAtTheLineLimit) {
    ui.act = [](DialogView& view, DialogHandler&) {
        view.setChecked(31, false);
        view.setText(32, "1");
        view.setText(33, "100");
        view.setText(45, "A1..C10");
    };
    ASSERT_EQ(DoImpExpOptionsDlg(nullptr, 0, 0), 1);

    std::vector<char> line(10000, '\0');
    std::memset(line.data(), 'X', 9990);
    EXPECT_EQ(AttachImpExpOptions(line.data()), 1);
    EXPECT_EQ(std::strlen(line.data()), 9999u);  // the host's 10,000 bytes, the NUL included
    EXPECT_EQ(std::string(line.data() + 9990), " ROWS=1..");

    std::vector<char> full(10000, 'Y');
    full[9999] = '\0';
    AttachImpExpOptions(full.data());
    EXPECT_EQ(std::strlen(full.data()), 9999u);  // already past the bound: left as it is
}

// " / TYPE=RECT" is 12 characters: it goes on a line of 9,987, filling the
// host's 10,000 bytes to the last, and is left off a line of 9,988, whose
// buffer it would otherwise pass.
TEST_F(OptionAttachTest, TheSaveAsClauseGoesOnWholeOrNotAtAll) {
    std::vector<char> fits(10000, '\0');
    std::memset(fits.data(), 'X', 9987);
    EXPECT_EQ(AttachSaveAsOptions(fits.data()), 1);
    EXPECT_EQ(std::strlen(fits.data()), 9999u);
    EXPECT_EQ(std::string(fits.data() + 9987), " / TYPE=RECT");

    std::vector<char> tooLong(10000, '\0');
    std::memset(tooLong.data(), 'X', 9988);
    EXPECT_EQ(AttachSaveAsOptions(tooLong.data()), 1);
    EXPECT_EQ(std::strlen(tooLong.data()), 9988u);

    std::vector<char> unterminated(10000, 'Z');  // no NUL within the bound: nothing is read past it
    EXPECT_EQ(AttachSaveAsOptions(unterminated.data()), 1);
    EXPECT_EQ(unterminated[9999], 'Z');
    EXPECT_EQ(AttachSaveAsOptions(nullptr), 1);
}

TEST_F(OptionAttachTest, ReinitialisingKeepsTheChoices) {
    ui.act = [](DialogView& view, DialogHandler&) {
        view.setChecked(31, false);
        view.setChecked(32, false);
        view.setText(32, "5");
        view.setText(33, "9");
    };
    ASSERT_EQ(DoImpExpOptionsDlg(nullptr, 1, 0), 1);
    ui.act = [](DialogView& view, DialogHandler& handler) { handler.onCommand(view, 34, kButtonClicked); };
    ASSERT_EQ(DoSaveDataOptionsDlg(nullptr), 1);
    ReinitDialogs(1);

    char line[64] = "X";
    AttachImpExpOptions(line);
    EXPECT_STREQ(line, "X ROWS=5..9");
    char save[64] = "S";
    AttachSaveAsOptions(save);
    EXPECT_STREQ(save, "S / TYPE=CORR");
}

}  // namespace
}  // namespace kvs
