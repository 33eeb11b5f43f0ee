// The one way the checks that cannot use GoogleTest record what failed: the
// check programs run under Wine (where GoogleTest is not installed) and the
// view checks that run natively under GoogleTest as well. A check adds a
// failure to a list; the program prints the list and exits with its size.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace kvs::check {

using Failures = std::vector<std::string>;

inline void expect(Failures& failures, bool ok, std::string_view what) {
    if (!ok) failures.emplace_back(what);
}

// Prints each failure, or okLine when there is none; the exit status of a
// check program is the number of failures.
inline int report(const Failures& failures, std::string_view okLine) {
    for (const std::string& failure : failures) std::printf("FAIL %s\n", failure.c_str());
    if (failures.empty()) std::printf("ok: %.*s\n", static_cast<int>(okLine.size()), okLine.data());
    std::fflush(stdout);
    return static_cast<int>(failures.size());
}

}  // namespace kvs::check

// Records the condition's text, with its file and line, when it is false.
#define KVS_EXPECT(failures, condition) \
    ::kvs::check::expect((failures), (condition), std::string(__FILE__ ":") + std::to_string(__LINE__) + ": " #condition)
