// The export only the Windows build has, called on the real DLL with the
// null window and the out-of-range values a host may pass: the scenario
// statement nullcalls covers the others on both backends, and trax the
// program selector's.
#include <windows.h>

#include <climits>
#include <string>

#include "include/kvs_dlg.h"
#include "standin/win/library.h"
#include "standin/win/tests/check.h"

namespace {

KVS_TEST(the_windows_only_export_takes_a_null_window_and_any_values) {
    kvs::standin::Library library;
    std::string error;
    KVS_CHECK(library.load(error));
    const auto process = reinterpret_cast<decltype(&ProcessDlgProc)>(
        reinterpret_cast<void*>(GetProcAddress(library.module(), "ProcessDlgProc")));
    KVS_CHECK(process != nullptr);
    if (!process) return;

    // No window of the library's: nothing is handled, except that a dialog
    // opening without its session lets the dialog manager set the focus.
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, 0, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_COMMAND, IDOK, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_CLOSE, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_MEASUREITEM, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, WM_DRAWITEM, 0, 0));
    KVS_CHECK_EQ(intptr_t{0}, process(nullptr, UINT_MAX, UINTPTR_MAX, INTPTR_MIN));
    KVS_CHECK_EQ(intptr_t{TRUE}, process(nullptr, WM_INITDIALOG, 0, 0));

    KVS_CHECK_EQ(1, library.startDialog(0, nullptr, nullptr));  // the library is still usable
}

}  // namespace
