#include "standin/win/tests/check.h"

#include <cstdio>
#include <vector>

namespace kvs::standin::test {

namespace {

std::vector<Case>& cases() {
    static std::vector<Case> all;
    return all;
}

}  // namespace

Register::Register(const char* name, void (*run)()) { cases().push_back(Case{name, run}); }

check::Failures& currentFailures() {
    static check::Failures failures;
    return failures;
}

void fail(const char* file, int line, const std::string& what) {
    check::expect(currentFailures(), false, std::string(file) + ":" + std::to_string(line) + ": " + what);
}

}  // namespace kvs::standin::test

int main() {
    using namespace kvs::standin::test;
    int passed = 0, failed = 0;
    for (const Case& c : cases()) {
        currentFailures().clear();
        c.run();
        if (currentFailures().empty()) {
            ++passed;
        } else {
            ++failed;
            for (const std::string& failure : currentFailures()) std::printf("  %s\n", failure.c_str());
            std::printf("FAIL %s\n", c.name);
        }
    }
    std::printf("%d passed, %d failed\n", passed, failed);
    std::fflush(stdout);
    return failed == 0 ? 0 : 1;
}
