// Runs the numeric field, progress window, file filter and font name checks on real windows. Prints
// each failure; the exit status is their number.
#include <windows.h>

#include <cstdio>

#include "core/seam.h"
#include "tests/check/failures.h"
#include "tests/win/controls_checks.h"
#include "win32/module_instance.h"
#include "win32/win32_ui.h"

int main() {
    kvs::win32::setModuleInstance(GetModuleHandleA(nullptr));
    kvs::setUi(&kvs::win32::win32Ui());
    kvs::check::Failures failures = checkNumericFields();
    const kvs::check::Failures progress = checkProgressWindow();
    failures.insert(failures.end(), progress.begin(), progress.end());
    const kvs::check::Failures filters = checkFileFilters();
    failures.insert(failures.end(), filters.begin(), filters.end());
    const kvs::check::Failures fonts = checkFontNames();
    failures.insert(failures.end(), fonts.begin(), fonts.end());
    return kvs::check::report(failures, "numeric fields, the up/down control, the progress window, the file filters and the font names on real windows");
}
