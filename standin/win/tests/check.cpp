#include "standin/win/tests/check.h"

#include <cstdio>
#include <vector>

namespace kvs::standin::test {

namespace {

std::vector<Case>& cases() {
    static std::vector<Case> all;
    return all;
}

int failures = 0;

}  // namespace

Register::Register(const char* name, void (*run)()) { cases().push_back(Case{name, run}); }

void fail(const char* file, int line, const std::string& what) {
    ++failures;
    std::printf("  %s:%d: %s\n", file, line, what.c_str());
}

}  // namespace kvs::standin::test

int main() {
    using namespace kvs::standin::test;
    int passed = 0, failed = 0;
    for (const Case& c : cases()) {
        const int before = failures;
        c.run();
        if (failures == before) {
            ++passed;
        } else {
            ++failed;
            std::printf("FAIL %s\n", c.name);
        }
    }
    std::printf("%d passed, %d failed\n", passed, failed);
    std::fflush(stdout);
    return failed == 0 ? 0 : 1;
}
