// Dialog descriptors: the per-dialog records that outlive a dialog and keep
// its selection arrays, so a dialog reopens with the variables chosen last.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/dispatch_table.h"
#include "core/global_memory.h"

namespace kvs {

// Variable indices (0-based positions in the data file), -1 for an empty
// entry, used entries first.
struct SelectionArray {
    GlobalIndices entries;  // in global memory
    bool exists = false;

    // Entries before the first -1, at most capacity.
    std::int32_t used(std::int32_t capacity) const;
    void fill(std::int32_t count, std::int32_t value);
};

struct Descriptor {
    std::int32_t resetMarker = 0;
    SelectionArray first;
    std::int32_t firstCapacity = 0;
    SelectionArray second;
    std::int32_t secondCapacity = 0;
    std::int32_t defaultsMarker = 0;
    std::int32_t listFlag = 0;
    std::int32_t allocated = 0;
    std::int32_t switch1 = 0, switch2 = 0, switch3 = 0;
    std::array<std::int32_t, 4> extra{};

    // Graph launcher only.
    SelectionArray third;
    std::int32_t thirdCapacity = 0;
    SelectionArray fourth;
    std::int32_t fourthCapacity = 0;
    std::array<std::int32_t, 2> graphOptions{};

    // The first capacity as the table gives it: a non-zero one becomes the
    // file's number of variable positions whenever the arrays are allocated.
    std::int32_t tableFirstCapacity = 0;
};

// A row's descriptor as it is before its dialog was ever opened.
Descriptor freshDescriptor(const DispatchRow& row);

// The descriptor of a dispatch row that launches a variable dialog, or null.
Descriptor* descriptorFor(std::uint16_t id);

// Entries in use of the first and second arrays for a selection mode.
std::int32_t firstUsedCount(const Descriptor& descriptor, int mode);
std::int32_t secondUsedCount(const Descriptor& descriptor, int mode);

// Clears a descriptor's selection (markers set, arrays emptied); with
// freeArrays the arrays are released and the descriptor is unallocated.
void resetSelection(Descriptor& descriptor, bool freeArrays, int mode);
void resetAllSelections(bool freeArrays);

class DefaultsTable;
// Adds each descriptor's extra option words, with their first values, to the
// table of defaults.
void addDescriptorOptionDefaults(DefaultsTable& table);

// Every descriptor back to its never-opened state.
void resetDescriptorsForLoad();

}  // namespace kvs
