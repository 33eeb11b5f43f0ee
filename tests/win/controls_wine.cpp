// Runs the numeric field, progress window and file filter checks on real windows. Prints
// each failure; the exit status is their number.
#include <windows.h>

#include <cstdio>

#include "core/seam.h"
#include "tests/win/controls_checks.h"
#include "win32/module_instance.h"
#include "win32/win32_ui.h"

int main() {
    kvs::win32::setModuleInstance(GetModuleHandleA(nullptr));
    kvs::setUi(&kvs::win32::win32Ui());
    std::vector<std::string> failures = checkNumericFields();
    const std::vector<std::string> progress = checkProgressWindow();
    failures.insert(failures.end(), progress.begin(), progress.end());
    const std::vector<std::string> filters = checkFileFilters();
    failures.insert(failures.end(), filters.begin(), filters.end());
    for (const std::string& failure : failures) std::printf("FAIL %s\n", failure.c_str());
    if (failures.empty()) std::printf("ok: numeric fields, the up/down control, the progress window and the file filters on real windows\n");
    return static_cast<int>(failures.size());
}
