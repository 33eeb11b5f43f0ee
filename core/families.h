// What each dialog family contributes to the core: descriptor switches, the
// per-dialog behaviour behind the generic dialog procedure, and the defaults
// of its remembered options.
#pragma once

#include <array>
#include <cstdint>

namespace kvs {

class DialogBehaviour;

struct DescriptorSettings {
    std::int32_t switch1 = 0;  // 1: numeric variables only
    std::int32_t switch2 = 0;
    std::int32_t switch3 = 0;
    std::array<std::int32_t, 4> extra{};
};

DescriptorSettings descriptorSettings(std::uint16_t commandId);

// The behaviour that serves a command id inside the generic dialog
// procedure, or null when the id has none (OK is then refused).
DialogBehaviour* familyBehaviour(std::uint16_t commandId);

class DefaultsTable;

// Adds every family's rows to the table of remembered settings' defaults,
// family by family in a fixed order.
void addFamilyDefaults(DefaultsTable& table);

// What lasts from load to unload whatever ReinitDialogs does, back to its
// state at load.
void resetFamiliesForLoad();

// Routines behind the ids that show no variable dialog; false when the id
// has none yet.
bool runSpecialCommand(std::uint16_t commandId);

namespace data {
DescriptorSettings descriptorSettings(std::uint16_t commandId);
DialogBehaviour* behaviour(std::uint16_t commandId);
void addDefaults(DefaultsTable& table);
void resetOptionDialogs();
}  // namespace data

}  // namespace kvs
