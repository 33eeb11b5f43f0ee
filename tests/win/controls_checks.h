// Real-window checks of the shared controls, the file filters and the font
// dialog's name list, run under Wine by tests/win/run_wine_check.sh
// controls_check. Each returns its failures.
#pragma once

#include "tests/check/failures.h"

kvs::check::Failures checkNumericFields();
kvs::check::Failures checkProgressWindow();
kvs::check::Failures checkFileFilters();
kvs::check::Failures checkFontNames();
