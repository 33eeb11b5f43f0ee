// Real-window checks of the shared controls and the file filters, run under
// Wine by tests/win/run_wine_check.sh controls_check. Each returns its failures.
#pragma once

#include "tests/check/failures.h"

kvs::check::Failures checkNumericFields();
kvs::check::Failures checkProgressWindow();
kvs::check::Failures checkFileFilters();
