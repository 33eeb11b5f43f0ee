// Runs the view checks of view_checks.h on real windows, through the
// library's runModal and dialog procedure, and checks what the procedure
// adds: notifications of the program's own changes are held back while the
// user's reach the handler, help system commands, WM_CLOSE as Cancel, the
// active-dialog chain, and a throwing handler ending its dialog as cancelled.
// Prints each failure; the exit status is their number.
#include <windows.h>

#include <cstdio>
#include <stdexcept>
#include <utility>

#include "tests/win/view_checks.h"
#include "win32/dialog_procedure.h"
#include "win32/module_instance.h"
#include "win32/win32_ui.h"

namespace {

using kvs::DialogView;
using kvs::viewcheck::Failures;

constexpr int kRunChecks = 900;
constexpr int kEndResult = 77;


class CheckingHandler : public kvs::DialogHandler {
public:
    Failures failures;

    int onInit(DialogView& view) override {
        dialog_ = reinterpret_cast<HWND>(view.handle());
        kvs::check::expect(failures, kvs::win32::activeLibraryDialog() == dialog_, "the open dialog is the active one");
        // The checks run once the dialog is up and can hold the focus.
        PostMessageA(dialog_, WM_COMMAND, kRunChecks, 0);
        return 0;
    }

    void onCommand(DialogView& view, int id, int code) override {
        if (checking_) {
            failures.push_back("notification " + std::to_string(id) + "/" + std::to_string(code) +
                               " from a change the program made");
            return;
        }
        if (id == kRunChecks) {
            runChecks(view);
            return;
        }
        received_.emplace_back(id, code);
        if (id == IDCANCEL && code == BN_CLICKED) view.end(kEndResult);
    }

    void onSysCommand(DialogView&, int code) override { sysCommands_.push_back(code); }

private:
    void runChecks(DialogView& view) {
        checking_ = true;
        Failures viewFailures = kvs::viewcheck::runAll(view, [this] {
            HWND focus = GetFocus();
            return focus && GetParent(focus) == dialog_ ? GetDlgCtrlID(focus) : 0;
        });
        checking_ = false;
        failures.insert(failures.end(), viewFailures.begin(), viewFailures.end());

        SendMessageA(GetDlgItem(dialog_, kvs::viewcheck::kEdit), WM_CHAR, 'x', 0);
        bool typed = false;
        for (const auto& [id, code] : received_) typed = typed || (id == kvs::viewcheck::kEdit && code == EN_CHANGE);
        kvs::check::expect(failures, typed, "typing in an edit control reaches the handler as EN_CHANGE");

        SendMessageA(dialog_, WM_SYSCOMMAND, 804, 0);
        SendMessageA(dialog_, WM_SYSCOMMAND, 801, 0);
        SendMessageA(dialog_, WM_SYSCOMMAND, 805, 0);
        kvs::check::expect(failures, sysCommands_ == std::vector<int>{804, 801}, "system commands 801 to 804 go to the handler");
        char label[64] = "";
        GetMenuStringA(GetSystemMenu(dialog_, FALSE), 804, label, sizeof label, MF_BYCOMMAND);
        kvs::check::expect(failures, std::string(label) == "Help on this Dialog", "the system menu offers help on the dialog");

        PostMessageA(dialog_, WM_CLOSE, 0, 0);
    }

    HWND dialog_ = nullptr;
    bool checking_ = false;
    std::vector<std::pair<int, int>> received_;
    std::vector<int> sysCommands_;
};

class ThrowingHandler : public kvs::DialogHandler {
public:
    int onInit(DialogView&) override { throw std::runtime_error("refused"); }
    void onCommand(DialogView&, int, int) override {}
    void onSysCommand(DialogView&, int) override {}
};

}  // namespace

int main() {
    kvs::win32::setModuleInstance(GetModuleHandleA(nullptr));
    kvs::win32::Win32Ui& ui = kvs::win32::win32Ui();

    CheckingHandler checking;
    const int result = ui.runModal(0, "VIEWPARITY", checking);
    Failures failures = checking.failures;
    kvs::check::expect(failures, result == kEndResult, "WM_CLOSE reaches the handler as Cancel and end() sets the result");
    kvs::check::expect(failures, kvs::win32::activeLibraryDialog() == nullptr, "the active dialog is restored on close");

    ThrowingHandler throwing;
    kvs::check::expect(failures, ui.runModal(0, "VIEWPARITY", throwing) == IDCANCEL, "a throwing handler cancels its dialog");
    kvs::check::expect(failures, ui.runModal(0, "NOSUCHTEMPLATE", throwing) == -1, "a missing template gives -1");

    return kvs::check::report(failures, "the Win32 view and dialog procedure behave as the headless twin");
}
