#include "core/descriptor.h"

#include <algorithm>
#include <map>

#include "core/dialog_defaults.h"

namespace kvs {

Descriptor freshDescriptor(const DispatchRow& row) {
    Descriptor d;
    d.resetMarker = row.has(kMarkerStartsUnset) ? -1 : 0;
    d.firstCapacity = d.tableFirstCapacity = row.firstCapacity;
    d.secondCapacity = row.secondCapacity;
    // A dialog with a second list keeps it across Cancel like the first.
    d.listFlag = row.secondCapacity > 0 ? 1 : 0;
    if (row.launch == Launch::Graph) d.thirdCapacity = d.fourthCapacity = 256;
    d.switch1 = row.switch1;
    d.switch2 = row.switch2;
    d.switch3 = row.switch3;
    d.extra = row.extra;
    return d;
}

namespace {

// One descriptor for every row that runs a variable dialog, made when the
// rows are installed.
std::map<std::uint16_t, Descriptor>& descriptors() {
    static std::map<std::uint16_t, Descriptor> all;
    return all;
}

void release(SelectionArray& array) {
    array.entries.clear();
    array.entries.shrink_to_fit();
    array.exists = false;
}

}  // namespace

std::int32_t SelectionArray::used(std::int32_t capacity) const {
    const auto limit = std::min<std::size_t>(entries.size(), static_cast<std::size_t>(std::max(capacity, 0)));
    std::int32_t n = 0;
    while (static_cast<std::size_t>(n) < limit && entries[static_cast<std::size_t>(n)] != -1) ++n;
    return n;
}

void SelectionArray::fill(std::int32_t count, std::int32_t value) {
    const auto n = std::min<std::size_t>(entries.size(), static_cast<std::size_t>(std::max(count, 0)));
    std::fill_n(entries.begin(), n, value);
}

Descriptor* descriptorFor(std::uint16_t id) {
    auto& all = descriptors();
    auto it = all.find(id);
    return it == all.end() ? nullptr : &it->second;
}

std::int32_t firstUsedCount(const Descriptor& d, int mode) { return mode == 0 ? 1 : d.firstCapacity; }
std::int32_t secondUsedCount(const Descriptor& d, int mode) { return mode == 1 ? 1 : d.secondCapacity; }

void resetSelection(Descriptor& d, bool freeArrays, int mode) {
    if (!d.allocated) return;
    d.defaultsMarker = 1;
    d.resetMarker = 0;
    d.first.fill(firstUsedCount(d, mode), -1);
    d.second.fill(secondUsedCount(d, mode), -1);
    d.third.fill(d.thirdCapacity, -1);
    d.fourth.fill(d.fourthCapacity, -1);
    if (freeArrays) {
        release(d.first);
        release(d.second);
        release(d.third);
        release(d.fourth);
        d.allocated = 0;
    }
}

void addDescriptorOptionDefaults(DefaultsTable& table) {
    for (auto& [id, descriptor] : descriptors()) {
        const DispatchRow* row = findDialogRow(id);
        if (!row) continue;
        for (std::size_t i = 0; i < descriptor.extra.size(); ++i) table.word(descriptor.extra[i], row->extra[i]);
    }
}

void resetAllSelections(bool freeArrays) {
    for (const DispatchRow& row : dialogRows()) {
        if (Descriptor* d = descriptorFor(row.id))
            resetSelection(*d, freeArrays, row.has(kClearsAsOneList) ? 1 : row.mode);
    }
}

void resetDescriptorsForLoad() {
    auto& all = descriptors();
    all.clear();
    for (const DispatchRow& row : dialogRows())
        if (row.launch != Launch::Special) all.emplace(row.id, freshDescriptor(row));
}

}  // namespace kvs
