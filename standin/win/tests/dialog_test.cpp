// A dialog as the driver sees and drives it: announced before its own
// initialisation, controls found by label in template order, and every
// action giving the notifications a user's action gives, once.
#include <windows.h>

#include <string>
#include <vector>

#include "standin/win/control_probe.h"
#include "standin/win/library.h"
#include "standin/win/tests/check.h"
#include "standin/win/tests/test_dialog_ids.h"
#include "standin/win/tests/watch_fixture.h"
#include "standin/win/window_backend.h"
#include "standin/win/window_roles.h"

namespace {

using kvs::scenario::ControlKind;
using kvs::scenario::WindowKind;
using kvs::standin::test::WatchFixture;

struct Run {
    std::vector<std::string>* lines = nullptr;
    std::vector<std::string> notifications;  // "id code" of each WM_COMMAND
    bool ignoreCancel = false;
};

Run* run = nullptr;

// The notifications a scenario action stands for; focus changes and
// EN_UPDATE come with them on real windows and are left out.
bool recorded(int id, int code) {
    switch (id) {
    case ID_SOURCE:
    case ID_SINGLE: return code == LBN_SELCHANGE || code == LBN_DBLCLK;
    case ID_TITLE:
    case ID_NOTES: return code == EN_CHANGE;
    case ID_METHOD: return code == CBN_SELCHANGE || code == CBN_EDITCHANGE;
    default: return code == BN_CLICKED;
    }
}

INT_PTR CALLBACK testProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        run->lines->push_back("init");
        for (const char* name : {"AGE", "INCOME", "SEX$"})
            SendDlgItemMessageA(dialog, ID_SOURCE, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        for (const char* name : {"A", "B"})
            SendDlgItemMessageA(dialog, ID_SINGLE, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        for (const char* name : {"Fast", "Exact"})
            SendDlgItemMessageA(dialog, ID_METHOD, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        CheckDlgButton(dialog, ID_ASCENDING, BST_CHECKED);
        return TRUE;
    }
    if (message == WM_COMMAND) {
        const int id = LOWORD(wParam);
        if (recorded(id, HIWORD(wParam)))
            run->notifications.push_back(std::to_string(id) + " " + std::to_string(HIWORD(wParam)));
        if (id == IDOK || (id == IDCANCEL && !run->ignoreCancel)) EndDialog(dialog, id);
        return TRUE;
    }
    return FALSE;
}

// Runs the test dialog; actions act on it through the backend.
struct DialogRun {
    WatchFixture fixture{GetModuleHandleA(nullptr)};
    kvs::standin::Library library;
    kvs::standin::WindowBackend backend{library, nullptr};
    Run state;
    INT_PTR result = 0;

    DialogRun() {
        library.watchModule(GetModuleHandleA(nullptr));
        state.lines = &fixture.lines;
    }
    void then(std::function<void(kvs::standin::WindowBackend&)> action) {
        fixture.then([this, action](HWND) { action(backend); });
    }
    void go() {
        then([](kvs::standin::WindowBackend& b) { b.dismissTop(); });
        run = &state;
        result = DialogBoxParamA(GetModuleHandleA(nullptr), "TESTDIALOG", nullptr, testProcedure, 0);
        run = nullptr;
    }
    // The notifications since the last call.
    std::vector<std::string> taken;
    std::vector<std::string> take() {
        std::vector<std::string> out(state.notifications.begin() + static_cast<std::ptrdiff_t>(taken.size()),
                                     state.notifications.end());
        taken = state.notifications;
        return out;
    }
};

std::string joined(const std::vector<std::string>& parts) {
    std::string out;
    for (const std::string& part : parts) out += (out.empty() ? "" : ", ") + part;
    return out;
}

std::string code(int id, int notification) { return std::to_string(id) + " " + std::to_string(notification); }

KVS_TEST(dialog_is_announced_before_its_own_initialisation) {
    DialogRun d;
    WindowKind kind = WindowKind::None;
    d.then([&](kvs::standin::WindowBackend& b) { kind = b.topKind(); });
    d.go();
    KVS_CHECK(kind == WindowKind::Dialog);
    KVS_CHECK_EQ(std::string("dialog \"Test Dialog\", init"), joined(d.fixture.lines));
    KVS_CHECK_EQ(IDCANCEL, static_cast<int>(d.result));
}

KVS_TEST(controls_are_found_by_label_in_template_order) {
    DialogRun d;
    std::vector<std::optional<int>> found;
    d.then([&](kvs::standin::WindowBackend& b) {
        for (const char* label : {"Available variables:", "Key:", "Title:", " Notes: ", "Method:", "Ascending",
                                  "Order", "Save file", "Variables", "Nothing"})
            found.push_back(b.controlByLabel(label));
    });
    d.go();
    const std::vector<std::optional<int>> expected = {ID_SOURCE, ID_SINGLE,    ID_TITLE,    ID_NOTES,     ID_METHOD,
                                                      ID_ASCENDING, ID_ORDERBUTTON, ID_SAVEFILE, std::nullopt, std::nullopt};
    KVS_CHECK(found == expected);
}

KVS_TEST(controls_read_as_a_user_sees_them) {
    DialogRun d;
    std::vector<kvs::scenario::ControlInfo> info;
    d.then([&](kvs::standin::WindowBackend& b) {
        for (int id : {ID_SOURCE, ID_METHOD, ID_ASCENDING, ID_SAVEFILE, ID_ORDERBUTTON, ID_TITLE})
            info.push_back(b.control(id).value_or(kvs::scenario::ControlInfo{}));
        KVS_CHECK(!b.control(999));
        KVS_CHECK(b.hasControl(ID_SOURCE) && !b.hasControl(999));
    });
    d.go();
    KVS_CHECK_EQ(std::size_t{6}, info.size());
    if (info.size() != 6) return;
    KVS_CHECK(info[0].kind == ControlKind::ListBox);
    KVS_CHECK_EQ(std::string("AGE, INCOME, SEX$"), joined(info[0].items));
    KVS_CHECK(info[1].kind == ControlKind::ComboBox);
    KVS_CHECK_EQ(std::string("Fast, Exact"), joined(info[1].items));  // no CBS_SORT: the order added
    KVS_CHECK(info[2].checkable && info[2].checked);
    KVS_CHECK(info[3].checkable && !info[3].checked);
    KVS_CHECK(!info[4].checkable && !info[4].enabled);
    KVS_CHECK(info[5].kind == ControlKind::Edit && info[5].enabled);
}

KVS_TEST(selections_notify_once_and_select_exactly_what_was_asked) {
    DialogRun d;
    std::vector<std::string> notes;
    int selected = 0, first = -1, second = -1, single = -1;
    d.then([&](kvs::standin::WindowBackend& b) {
        b.selectItems(ID_SOURCE, {0, 1});
        b.selectItems(ID_SOURCE, {2, 0});
        HWND list = GetDlgItem(kvs::standin::topDialogWindow(), ID_SOURCE);
        selected = static_cast<int>(SendMessageA(list, LB_GETSELCOUNT, 0, 0));
        first = static_cast<int>(SendMessageA(list, LB_GETSEL, 0, 0));
        second = static_cast<int>(SendMessageA(list, LB_GETSEL, 1, 0));
        b.selectItems(ID_SINGLE, {1});
        single = static_cast<int>(SendDlgItemMessageA(kvs::standin::topDialogWindow(), ID_SINGLE, LB_GETCURSEL, 0, 0));
        notes = d.take();
        b.doubleClick(ID_SINGLE, 0);
    });
    d.go();
    KVS_CHECK_EQ(2, selected);
    KVS_CHECK(first > 0 && second == 0);
    KVS_CHECK_EQ(1, single);
    KVS_CHECK_EQ(code(ID_SOURCE, LBN_SELCHANGE) + ", " + code(ID_SOURCE, LBN_SELCHANGE) + ", " +
                     code(ID_SINGLE, LBN_SELCHANGE),
                 joined(notes));
    const std::vector<std::string> after = d.take();
    KVS_CHECK(after.size() >= 2);
    if (after.size() >= 2)
        KVS_CHECK_EQ(code(ID_SINGLE, LBN_SELCHANGE) + ", " + code(ID_SINGLE, LBN_DBLCLK), after[0] + ", " + after[1]);
}

KVS_TEST(typing_notifies_each_kind_of_field_once) {
    DialogRun d;
    std::vector<std::string> title, notes, method;
    std::string titleText, methodText;
    d.then([&](kvs::standin::WindowBackend& b) {
        d.take();
        b.typeText(ID_TITLE, "Sorted  ");
        title = d.take();
        b.typeText(ID_NOTES, "two\r\nlines");
        notes = d.take();
        b.typeText(ID_METHOD, "Other");
        method = d.take();
        titleText = b.control(ID_TITLE)->text;
        methodText = b.control(ID_METHOD)->text;
    });
    d.go();
    KVS_CHECK_EQ(code(ID_TITLE, EN_CHANGE), joined(title));
    KVS_CHECK_EQ(code(ID_NOTES, EN_CHANGE), joined(notes));
    KVS_CHECK_EQ(code(ID_METHOD, CBN_EDITCHANGE), joined(method));
    KVS_CHECK_EQ(std::string("Sorted  "), titleText);
    KVS_CHECK_EQ(std::string("Other"), methodText);
}

KVS_TEST(clicks_and_choices_change_state_as_a_user_would) {
    DialogRun d;
    std::vector<std::string> notes;
    bool saveChecked = false, ascending = true, descending = false;
    int methodSelection = -1;
    std::string methodText;
    d.then([&](kvs::standin::WindowBackend& b) {
        d.take();
        b.click(ID_SAVEFILE);
        b.click(ID_DESCENDING);
        b.chooseEntry(ID_METHOD, 1);
        notes = d.take();
        saveChecked = b.control(ID_SAVEFILE)->checked;
        ascending = b.control(ID_ASCENDING)->checked;
        descending = b.control(ID_DESCENDING)->checked;
        methodSelection = b.control(ID_METHOD)->comboSelection;
        methodText = b.control(ID_METHOD)->text;
    });
    d.go();
    KVS_CHECK_EQ(code(ID_SAVEFILE, BN_CLICKED) + ", " + code(ID_DESCENDING, BN_CLICKED) + ", " +
                     code(ID_METHOD, CBN_SELCHANGE),
                 joined(notes));
    KVS_CHECK(saveChecked);
    KVS_CHECK(!ascending && descending);
    KVS_CHECK_EQ(1, methodSelection);
    KVS_CHECK_EQ(std::string("Exact"), methodText);
}

KVS_TEST(a_dialog_that_ignores_cancel_is_still_closed) {
    DialogRun d;
    d.state.ignoreCancel = true;
    d.go();
    KVS_CHECK_EQ(IDCANCEL, static_cast<int>(d.result));
    KVS_CHECK_EQ(code(IDCANCEL, BN_CLICKED), joined(d.take()));
}

KVS_TEST(ok_ends_the_dialog_from_inside_a_tick) {
    DialogRun d;
    d.then([](kvs::standin::WindowBackend& b) { b.click(IDOK); });
    d.go();
    KVS_CHECK_EQ(IDOK, static_cast<int>(d.result));
}

}  // namespace
