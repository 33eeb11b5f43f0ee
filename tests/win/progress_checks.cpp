// The progress window on real windows: the sampling exports with stand-in
// host and kernel calls, a thread timer answering the confirmation.
#include <windows.h>

#include <deque>
#include <string>
#include <vector>

#include "core/progress.h"
#include "include/kvs_dlg.h"
#include "include/kvs_imports.h"
#include "resources/progress_ids.h"
#include "tests/check/failures.h"
#include "tests/win/controls_checks.h"

namespace {

kvs::check::Failures failures;
std::vector<std::string> calls;      // host and kernel calls, as transcript lines
std::vector<std::string> questions;  // "caption|text" of each message box answered
std::deque<int> answers;


HWND progressWindow() { return FindWindowA("#32770", "Processing..."); }

std::string itemText(HWND dialog, int id) {
    char buffer[64] = "";
    GetDlgItemTextA(dialog, id, buffer, static_cast<int>(sizeof buffer));
    return buffer;
}

std::string textOf(HWND window) {
    char buffer[128] = "";
    GetWindowTextA(window, buffer, static_cast<int>(sizeof buffer));
    return buffer;
}

BOOL CALLBACK findQuestion(HWND window, LPARAM found) {
    char name[16] = "";
    GetClassNameA(window, name, static_cast<int>(sizeof name));
    if (IsWindowVisible(window) && lstrcmpA(name, "#32770") == 0 && GetDlgItem(window, 0xFFFF) && GetDlgItem(window, IDYES)) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

void CALLBACK answer(HWND, UINT, UINT_PTR, DWORD) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), findQuestion, reinterpret_cast<LPARAM>(&box));
    if (!box) return;
    questions.push_back(textOf(box) + "|" + textOf(GetDlgItem(box, 0xFFFF)));
    const int id = answers.empty() ? IDNO : answers.front();
    if (!answers.empty()) answers.pop_front();
    SendMessageA(GetDlgItem(box, id), BM_CLICK, 0, 0);
}

bool barPainted(HWND dialog, bool expectFilled) {
    const HWND bar = GetDlgItem(dialog, IDC_PROGRESS_BAR);
    RECT r{};
    GetClientRect(bar, &r);
    HDC dc = GetDC(bar);
    const COLORREF left = GetPixel(dc, 1, r.bottom / 2);
    ReleaseDC(bar, dc);
    return (left == RGB(0, 255, 255)) == expectFilled;
}

}  // namespace

extern "C" {
int32_t KVS_CALL DoWindowEnable(int32_t enable) {
    calls.push_back("DoWindowEnable " + std::to_string(enable));
    return 1;
}
void KVS_CALL CancelSampling(int32_t job) { calls.push_back("CancelSampling " + std::to_string(job)); }
}

kvs::check::Failures checkProgressWindow() {
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, answer);

    StartSamplingDialog(7, 100);
    HWND dialog = progressWindow();
    kvs::check::expect(failures, dialog && IsWindowVisible(dialog), "the progress window is up after the start");
    kvs::check::expect(failures, calls == std::vector<std::string>{"DoWindowEnable 0"}, "the start disables the host");
    kvs::check::expect(failures, GetWindowLongPtrA(dialog, GWLP_USERDATA) == 0, "the start resets the bar");
    kvs::check::expect(failures, GetFocus() == GetDlgItem(dialog, IDCANCEL), "Cancel has the focus");
    kvs::check::expect(failures, barPainted(dialog, false), "the bar starts empty");

    kvs::check::expect(failures, UpdateSamplingDialog(99, 3725) == 0, "an update answers 0");
    kvs::check::expect(failures, itemText(dialog, IDC_PROGRESS_DONE) == "2" && itemText(dialog, IDC_PROGRESS_TOTAL) == "100",
           "the first update counts sample 2 of 100");
    kvs::check::expect(failures, itemText(dialog, IDC_PROGRESS_ELAPSED) == "1:02:05", "3725 s read 1:02:05");
    kvs::check::expect(failures, itemText(dialog, IDC_PROGRESS_REMAINING) == "50:42:05", "the remaining time is estimated");
    kvs::check::expect(failures, GetWindowLongPtrA(dialog, GWLP_USERDATA) == 2 * 32767 / 101, "the user word holds the bar drawn");
    UpdateSamplingDialog(30, 4000);
    kvs::check::expect(failures, barPainted(dialog, true), "the bar is painted in cyan from the left");

    // A Cancel posted to the window is found by the update's pump; No keeps
    // the job and puts the focus back on Cancel.
    SetFocus(dialog);
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    answers = {IDNO};
    kvs::check::expect(failures, UpdateSamplingDialog(20, 4100) == 0, "No answers 0");
    kvs::check::expect(failures, questions.size() == 1 && questions[0] == "Cancel| Are you sure you want to Cancel this process?",
           "a cancel asks for confirmation");
    kvs::check::expect(failures, GetFocus() == GetDlgItem(dialog, IDCANCEL), "after No the focus is on Cancel");
    kvs::check::expect(failures, calls.size() == 1, "after No the job goes on");

    SendMessageA(GetDlgItem(dialog, IDCANCEL), BM_CLICK, 0, 0);
    answers = {IDYES};
    kvs::check::expect(failures, UpdateSamplingDialog(10, 4200) == 1, "Yes answers 1");
    kvs::check::expect(failures, calls.back() == "CancelSampling 7", "Yes cancels the job");
    kvs::check::expect(failures, IsWindow(dialog), "cancelling leaves the window to the host's clear");

    SendMessageA(dialog, WM_USER, PROGRESS_SET_CAPTION, reinterpret_cast<LPARAM>("Sampling"));
    kvs::check::expect(failures, textOf(dialog) == "Sampling", "request 6 sets the caption");

    // The cancelled job is not asked about, nor handed to the kernel, again.
    const std::size_t told = calls.size();
    kvs::check::expect(failures, UpdateSamplingDialog(8, 4250) == 1 && questions.size() == 2 && calls.size() == told,
                       "a cancelled job stays cancelled without asking again");
    ClearSamplingDialog();

    // Closing from the system menu destroys the window; the next update
    // still asks.
    StartSamplingDialog(9, 100);
    dialog = progressWindow();
    SendMessageA(dialog, WM_CLOSE, 0, 0);
    kvs::check::expect(failures, !IsWindow(dialog), "WM_CLOSE destroys the window");
    answers = {IDNO};
    UpdateSamplingDialog(5, 4300);
    kvs::check::expect(failures, questions.size() == 3, "an update after a close still asks");
    ClearSamplingDialog();
    kvs::check::expect(failures, calls.back() == "DoWindowEnable 1", "the clear enables the host");

    StartSamplingDialog(8, 10);
    dialog = progressWindow();
    SendMessageA(dialog, WM_USER, PROGRESS_DESTROY, 0);
    kvs::check::expect(failures, !IsWindow(dialog), "request 4 destroys the window");
    UpdateSamplingDialog(5, 10);
    ClearSamplingDialog();
    kvs::check::expect(failures, !progressWindow(), "nothing is left open");

    KillTimer(nullptr, timer);
    return failures;
}
