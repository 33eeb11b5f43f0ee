// Real-window checks of the shared controls and the file filters, run under
// Wine by tests/win/run_wine_check.sh controls_check. Each returns its failures.
#pragma once

#include <string>
#include <vector>

std::vector<std::string> checkNumericFields();
std::vector<std::string> checkProgressWindow();
std::vector<std::string> checkFileFilters();
