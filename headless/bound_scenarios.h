// Scenarios that take graph commands to the bounds of their buffer: lists
// of names past the 9,900-character bound, option texts that no longer fit
// the 9,999 characters. Generated rather than committed (each is 10 to 25
// KB); the unit test checks their lines headless, tools/wine/test.sh runs
// them on both backends.
#pragma once

#include <string>
#include <vector>

namespace kvs::headless {

struct BoundScenario {
    std::string name;
    std::string source;
    // What the one line handed to the host must end with and must not hold;
    // a refusal instead when refusal is not empty.
    std::string ending;
    std::vector<std::string> absent;
    std::string refusal;
};

std::vector<BoundScenario> everyBoundScenario();

}  // namespace kvs::headless
