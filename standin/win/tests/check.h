// The registry of the stand-in's check cases, which run under Wine where no
// test framework is installed. A case's checks record their failures in the
// shared list of tests/check/failures.h; the program prints them per case
// and closes with "N passed, N failed".
#pragma once

#include <functional>
#include <string>

#include "tests/check/failures.h"

namespace kvs::standin::test {

struct Case {
    const char* name;
    void (*run)();
};

// Registers a case at start-up.
struct Register {
    Register(const char* name, void (*run)());
};

// The failures of the running case.
check::Failures& currentFailures();
void fail(const char* file, int line, const std::string& what);

#define KVS_TEST(name)                                              \
    static void name();                                             \
    static const ::kvs::standin::test::Register name##_registered(#name, name); \
    static void name()

#define KVS_CHECK(condition) \
    ((condition) ? (void)0 : ::kvs::standin::test::fail(__FILE__, __LINE__, #condition))

#define KVS_CHECK_EQ(expected, actual)                                                                      \
    do {                                                                                                    \
        const auto& kvsExpected = (expected);                                                               \
        const auto& kvsActual = (actual);                                                                   \
        if (!(kvsExpected == kvsActual))                                                                    \
            ::kvs::standin::test::fail(__FILE__, __LINE__,                                                  \
                                       std::string(#actual) + ": expected [" + ::kvs::standin::test::show(kvsExpected) + \
                                           "] got [" + ::kvs::standin::test::show(kvsActual) + "]");        \
    } while (false)

inline std::string show(const std::string& text) { return text; }
inline std::string show(const char* text) { return text ? text : "(null)"; }
template <typename T>
std::string show(const T& value) {
    return std::to_string(value);
}

}  // namespace kvs::standin::test
