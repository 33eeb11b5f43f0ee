// Every menu command id the library serves: its template, caption, family,
// launcher, selection mode, capacities and extra option slots.
#pragma once

#include <cstdint>
#include <span>

namespace kvs {

enum class Family { Data, Graph, Statistics };

enum class Launch {
    Standard,  // standard launcher, two selection arrays
    Graph,     // graph launcher, four selection arrays
    Special,   // no variable dialog: a routine of its own
};

struct DispatchRow {
    std::uint16_t id;
    const char* templateName;  // null for Special rows
    const char* caption;
    Family family;
    Launch launch;
    int mode;                  // 0, 1 or 2: which selection arrays are lists
    std::int32_t firstCapacity;
    std::int32_t secondCapacity;
    int firstSlot;             // option slots 1..5 filled from extra words; 0: none
    int lastSlot;
};

std::span<const DispatchRow> dispatchTable();
// The row of an id, or null when the id has no case.
const DispatchRow* findDispatchRow(std::uint16_t id);

// The family whose id range holds id, or nothing for ids outside every range.
bool familyOf(std::uint16_t id, Family& family);

}  // namespace kvs
