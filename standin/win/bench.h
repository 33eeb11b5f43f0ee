// KORVAN.exe --bench OUT.txt: times the real library against the floor of
// a plain list box in the same process, and keystrokes in a search box
// (see tools/wine/bench.sh).
#pragma once

#include <string>
#include <vector>

namespace kvs::standin {
// Times N = each of `counts` variables.
int runBenchmark(const std::string& outPath, const std::vector<int>& counts);
}
