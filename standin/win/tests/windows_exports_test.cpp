// The two exports only the Windows build has, called on the real DLL with the
// null window and the out-of-range values a host may pass: the scenario
// statement nullcalls covers the others on both backends.
#include <windows.h>

#include <climits>
#include <string>

#include "include/kvs_dlg.h"
#include "standin/win/library.h"
#include "standin/win/tests/check.h"

namespace {

KVS_TEST(windows_only_exports_take_a_null_window_and_any_values) {
    kvs::standin::Library library;
    std::string error;
    KVS_CHECK(library.load(error));
    const auto process = reinterpret_cast<decltype(&ProcessDlgProc)>(
        reinterpret_cast<void*>(GetProcAddress(library.module(), "ProcessDlgProc")));
    const auto trax = reinterpret_cast<decltype(&TRAXCallDialog)>(
        reinterpret_cast<void*>(GetProcAddress(library.module(), "TRAXCallDialog")));
    KVS_CHECK(process != nullptr);
    KVS_CHECK(trax != nullptr);
    if (!process || !trax) return;

    // No window of the library's: nothing is handled, except that a dialog
    // opening without its session lets the dialog manager set the focus.
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, 0, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_COMMAND, IDOK, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_CLOSE, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_MEASUREITEM, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_DRAWITEM, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, UINT_MAX, UINTPTR_MAX, INTPTR_MIN));
    KVS_CHECK_EQ(intptr_t{TRUE}, process(nullptr, WM_INITDIALOG, 0, 0));

    KVS_CHECK_EQ(0, trax(0, 0, nullptr, 0, 0));
    KVS_CHECK_EQ(0, trax(UINT_MAX, INT_MIN, nullptr, INT_MAX, INT_MIN));
    KVS_CHECK_EQ(0, trax(72, 1, "", -1, -1));

    KVS_CHECK_EQ(1, library.startDialog(0, nullptr, nullptr));  // the library is still usable
}

}  // namespace
