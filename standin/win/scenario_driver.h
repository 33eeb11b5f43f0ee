// KORVAN.exe --scenario: runs scenario files against the real kvs_dlg.dll.
#pragma once

#include <string>
#include <vector>

namespace kvs::standin {

// Runs each file with a freshly loaded library and a reset host and kernel,
// and writes to outPath, for file number N (from 1), a line
// "#scenario N PATH" followed by its transcript; "#end" closes a complete
// run. Returns 0 when every file could be run, 1 otherwise, 3 when a run got
// stuck and was abandoned (the output then has no "#end").
int runScenarioFiles(const std::string& outPath, const std::vector<std::string>& files);

}  // namespace kvs::standin
