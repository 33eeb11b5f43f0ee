// Real-window checks of the shared controls, run under Wine by
// tests/win/run_controls.sh. Each returns its failures.
#pragma once

#include <string>
#include <vector>

std::vector<std::string> checkNumericFields();
std::vector<std::string> checkProgressWindow();
