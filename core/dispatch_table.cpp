#include "core/dispatch_table.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace kvs {

namespace {

struct Registry {
    std::vector<FamilyTable> families;
    std::vector<DispatchRow> all;
    std::vector<DispatchRow> menu;
};

Registry& registry() {
    static Registry r;
    return r;
}

const DispatchRow* findIn(std::span<const DispatchRow> rows, std::uint16_t id) {
    auto it = std::lower_bound(rows.begin(), rows.end(), id,
                               [](const DispatchRow& row, std::uint16_t key) { return row.id < key; });
    return it != rows.end() && it->id == id ? &*it : nullptr;
}

}  // namespace

void installFamilies(std::span<const FamilyTable> families) {
    Registry fresh;
    fresh.families.assign(families.begin(), families.end());
    for (const FamilyTable& family : families) fresh.all.insert(fresh.all.end(), family.rows.begin(), family.rows.end());
    std::sort(fresh.all.begin(), fresh.all.end(), [](const DispatchRow& a, const DispatchRow& b) { return a.id < b.id; });
    if (std::adjacent_find(fresh.all.begin(), fresh.all.end(),
                           [](const DispatchRow& a, const DispatchRow& b) { return a.id == b.id; }) != fresh.all.end())
        throw std::logic_error("two dialog rows share an id");
    std::copy_if(fresh.all.begin(), fresh.all.end(), std::back_inserter(fresh.menu),
                 [](const DispatchRow& row) { return row.has(kMenuEntry); });
    registry() = std::move(fresh);
}

std::span<const FamilyTable> installedFamilies() { return registry().families; }
std::span<const DispatchRow> dialogRows() { return registry().all; }
const DispatchRow* findDialogRow(std::uint16_t id) { return findIn(registry().all, id); }
std::span<const DispatchRow> dispatchTable() { return registry().menu; }
const DispatchRow* findDispatchRow(std::uint16_t id) { return findIn(registry().menu, id); }

bool familyOf(std::uint16_t id, Family& family) {
    if (id >= 41 && id <= 93) family = Family::Data;
    else if ((id >= 100 && id <= 153) || id == 1124) family = Family::Graph;
    else if ((id >= 201 && id <= 304) || id == 483) family = Family::Statistics;
    else return false;
    return true;
}

}  // namespace kvs
