// Numeric fields on real windows: a small dialog through the library's
// runModal with an integer field that notifies (paired with a "Tmicroscroll"
// up/down control) and a real field that does not. A thread timer plays the
// user, answers the message boxes and checks what each action left behind.
#include "tests/check/failures.h"
#include "tests/win/controls_checks.h"

#include <windows.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/numeric_field.h"
#include "win32/microscroll.h"
#include "win32/win32_ui.h"

namespace {

constexpr int kInteger = 101;
constexpr int kReal = 102;
constexpr int kApply = 103;
constexpr UINT kTickMilliseconds = 20;
constexpr UINT kRepeatMilliseconds = 40;
constexpr int kTickLimit = 1500;  // 30 s: a stuck check gives up

kvs::check::Failures failures;  // of this file's checks
std::vector<std::string> messages;  // texts of the message boxes answered
std::vector<std::pair<int, double>> notified;
HWND dialog = nullptr;
bool okClicked = false;
bool applyClicked = false;
kvs::NumericField integerField;
kvs::NumericField realField;


void onNotify(int id, double value) { notified.emplace_back(id, value); }

HWND item(int id) { return GetDlgItem(dialog, id); }

std::string textOf(HWND window) {
    char buffer[256] = "";
    GetWindowTextA(window, buffer, static_cast<int>(sizeof buffer));
    return buffer;
}

std::pair<DWORD, DWORD> selection(HWND edit) {
    DWORD start = 0, end = 0;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {start, end};
}

HWND upDown() { return FindWindowExA(dialog, nullptr, kvs::win32::kMicroscrollClass, nullptr); }

LPARAM upDownPoint(bool upper) {
    RECT r{};
    GetClientRect(upDown(), &r);
    return MAKELPARAM(r.right / 2, upper ? 1 : r.bottom - 2);
}

BOOL CALLBACK findMessageBox(HWND window, LPARAM found) {
    char name[16] = "";
    GetClassNameA(window, name, static_cast<int>(sizeof name));
    if (window != dialog && IsWindowVisible(window) && lstrcmpA(name, "#32770") == 0 && GetDlgItem(window, 0xFFFF)) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

class FieldDialog : public kvs::DialogHandler {
public:
    int onInit(kvs::DialogView& view) override {
        dialog = reinterpret_cast<HWND>(view.handle());
        integerField.controlId = kInteger;
        integerField.width = 8;
        integerField.minimum = 1;
        integerField.maximum = 10;
        integerField.step = 1;
        integerField.value = 5;
        integerField.notify = 1;
        integerField.callback = onNotify;
        view.setText(kInteger, "5");
        realField.controlId = kReal;
        realField.width = 8;
        realField.realAllowed = 1;
        realField.minimum = 0;
        realField.maximum = 1;
        realField.step = 0.1;
        realField.value = 0.5;
        view.setText(kReal, "0.5");
        kvs::ui().attachNumericField(view, integerField, kRepeatMilliseconds);
        kvs::ui().attachNumericField(view, realField, 0);
        return 0;
    }
    void onCommand(kvs::DialogView& view, int id, int code) override {
        if (id == IDOK && code == BN_CLICKED) okClicked = true;
        if (id == kApply && code == BN_CLICKED) applyClicked = true;
        if (id == IDCANCEL && code == BN_CLICKED) view.end(IDCANCEL);
    }
    void onSysCommand(kvs::DialogView&, int) override {}
};

// One user action or check; true when done, false to be asked again on the
// next tick (waiting).
using Step = std::function<bool()>;
std::vector<Step> steps;
std::size_t nextStep = 0;
int ticks = 0;
int waited = 0;
bool stepping = false;

// True after n ticks of waiting.
bool waitTicks(int n) {
    if (++waited < n) return false;
    waited = 0;
    return true;
}

std::string messageList() {
    std::string list;
    for (const std::string& text : messages) list += " [" + text + "]";
    return list;
}

void buildSteps() {
    // The X server activates a new window a little later; a focus that moves
    // away meanwhile would check the field being typed into.
    steps.push_back([] {
        static int steady = 0;
        steady = GetForegroundWindow() == dialog && GetActiveWindow() == dialog ? steady + 1 : 0;
        return steady >= 10 || waitTicks(200);
    });
    // 12.5 in the integer field, then Tab: one message, the text kept and
    // selected, the focus kept, the value the last valid one.
    steps.push_back([] {
        SetFocus(item(kInteger));
        SetWindowTextA(item(kInteger), "12.5");
        PostMessageA(item(kInteger), WM_KEYDOWN, VK_TAB, 0);
        return true;
    });
    steps.push_back([] { return waitTicks(5); });
    steps.push_back([] {
        kvs::check::expect(failures, messages == std::vector<std::string>{"String in control is not a integer."},
               "Tab on 12.5 in an integer field shows one \"not a integer\" message");
        kvs::check::expect(failures, GetFocus() == item(kInteger), "the focus stays in the invalid field");
        kvs::check::expect(failures, textOf(item(kInteger)) == "12.5", "the invalid text is kept");
        kvs::check::expect(failures, selection(item(kInteger)) == std::make_pair(DWORD{0}, DWORD{4}), "the invalid text is selected");
        kvs::check::expect(failures, integerField.value == 5, "the stored value stays the last valid one");
        // Enter is the field's own: it checks and does not press OK.
        SetWindowTextA(item(kInteger), "0");
        PostMessageA(item(kInteger), WM_KEYDOWN, VK_RETURN, 0);
        return true;
    });
    steps.push_back([] { return waitTicks(5); });
    steps.push_back([] {
        kvs::check::expect(failures, messages.size() == 2 && messages.back() == "Out of range error.", "Enter on 0 reports the range");
        kvs::check::expect(failures, !okClicked && GetFocus() == item(kInteger), "Enter in a field does not reach the default button");
        messages.pop_back();
        // A good value, then on to the real field: the change is notified.
        SetWindowTextA(item(kInteger), "9");
        SetFocus(item(kReal));
        return true;
    });
    steps.push_back([] {
        kvs::check::expect(failures, integerField.value == 9, "leaving a valid field stores its value");
        kvs::check::expect(failures, notified == std::vector<std::pair<int, double>>{{kInteger, 9.0}}, "a changed value is notified once");
        // Tab from an invalid field to Cancel: giving up, no message.
        SetWindowTextA(item(kReal), "abc");
        PostMessageA(item(kReal), WM_KEYDOWN, VK_TAB, 0);
        return true;
    });
    steps.push_back([] { return waitTicks(5); });
    steps.push_back([] {
        kvs::check::expect(failures, GetFocus() == item(IDCANCEL), "Tab moves from the real field to Cancel");
        kvs::check::expect(failures, messages.size() == 1, "leaving an invalid field for Cancel shows no message");
        // Leaving it for OK is not reported either: OK checks every field
        // itself.
        SetFocus(item(kReal));
        SetFocus(item(IDOK));
        return true;
    });
    steps.push_back([] { return waitTicks(5); });
    steps.push_back([] {
        kvs::check::expect(failures, messages.size() == 1, "leaving an invalid field for OK shows no message:" + messageList());
        // Leaving it for another button reports later, once, and takes the
        // focus back without clicking that button.
        SetFocus(item(kReal));
        SetFocus(item(kApply));
        return true;
    });
    steps.push_back([] { return waitTicks(5); });
    steps.push_back([] {
        kvs::check::expect(failures, messages.size() == 2 && messages.back() == "String in control is not a number.",
               "leaving \"abc\" for another button reports \"not a number\" once:" + messageList());
        kvs::check::expect(failures, GetFocus() == item(kReal), "the deferred report gives the focus back to the field");
        kvs::check::expect(failures, selection(item(kReal)) == std::make_pair(DWORD{0}, DWORD{3}), "the field's text is selected again");
        kvs::check::expect(failures, !applyClicked && !okClicked, "the button that took the focus is not clicked");
        SetWindowTextA(item(kReal), "0.25");
        SetFocus(item(kInteger));
        return true;
    });
    // The up arrow past the maximum stops at it.
    steps.push_back([] {
        kvs::check::expect(failures, realField.value == 0.25, "a real value is stored when the field is left");
        SendMessageA(upDown(), WM_LBUTTONDOWN, MK_LBUTTON, upDownPoint(true));
        SendMessageA(upDown(), WM_LBUTTONUP, 0, upDownPoint(true));
        SendMessageA(upDown(), WM_LBUTTONDOWN, MK_LBUTTON, upDownPoint(true));
        SendMessageA(upDown(), WM_LBUTTONUP, 0, upDownPoint(true));
        kvs::check::expect(failures, textOf(item(kInteger)) == "10" && integerField.value == 10, "the up arrow stops at the maximum");
        kvs::check::expect(failures, textOf(upDown()) == "1,10,10", "the up/down text names the position");
        kvs::check::expect(failures, messages.size() == 2, "stepping shows no message:" + messageList());
        // Held down, the down arrow repeats.
        SendMessageA(upDown(), WM_LBUTTONDOWN, MK_LBUTTON, upDownPoint(false));
        kvs::check::expect(failures, GetCapture() == upDown(), "a pressed arrow holds the mouse");
        return true;
    });
    steps.push_back([] { return waitTicks(8); });
    steps.push_back([] {
        SendMessageA(upDown(), WM_LBUTTONUP, 0, upDownPoint(false));
        kvs::check::expect(failures, integerField.value <= 7 && integerField.value >= 1, "a held arrow steps again and again");
        kvs::check::expect(failures, GetCapture() != upDown(), "releasing the arrow lets the mouse go");
        return true;
    });
    steps.push_back([] {
        static double released = 0;
        if (waited == 0) released = integerField.value;
        if (!waitTicks(6)) return false;
        kvs::check::expect(failures, integerField.value == released, "a released arrow stops stepping");
        kvs::check::expect(failures, textOf(item(kInteger)) == kvs::formatFieldValue(integerField), "the field shows the stepped value");
        return true;
    });
}

void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
    if (++ticks > kTickLimit) {
        failures.emplace_back("stuck at step " + std::to_string(nextStep));
        if (dialog) EndDialog(dialog, IDCANCEL);
        return;
    }
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), findMessageBox, reinterpret_cast<LPARAM>(&box));
    if (box) {
        messages.push_back(textOf(GetDlgItem(box, 0xFFFF)));
        kvs::check::expect(failures, textOf(box) == "KFW", "a field message has the caption KFW");
        SendMessageA(GetDlgItem(box, IDOK), BM_CLICK, 0, 0);
        return;
    }
    if (stepping || !dialog) return;
    if (nextStep >= steps.size()) {
        PostMessageA(dialog, WM_CLOSE, 0, 0);
        return;
    }
    stepping = true;
    if (steps[nextStep]()) ++nextStep;
    stepping = false;
}

}  // namespace

kvs::check::Failures checkNumericFields() {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    kvs::check::expect(failures, kvs::win32::registerMicroscroll(instance), "the up/down class registers");
    kvs::check::expect(failures, !kvs::win32::registerMicroscroll(instance), "a second registration is refused");
    WNDCLASSA registered{};
    kvs::check::expect(failures, GetClassInfoA(instance, kvs::win32::kMicroscrollClass, &registered) &&
               registered.cbWndExtra == static_cast<int>(sizeof(void*)) &&
               registered.style == (CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS),
           "the up/down class keeps a pointer and redraws on resizing");

    buildSteps();
    const UINT_PTR timer = SetTimer(nullptr, 0, kTickMilliseconds, tick);
    FieldDialog handler;
    kvs::win32::win32Ui().runModal(0, "NUMERICFIELDS", handler);
    KillTimer(nullptr, timer);
    kvs::check::expect(failures, nextStep == steps.size(), "every step ran");
    return failures;
}
