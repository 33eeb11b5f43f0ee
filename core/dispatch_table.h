// The registry of every dialog the library has: one row per menu command id
// (and per dialog reached only from another dialog) saying everything about
// it: template, caption, family, launcher, selection mode, capacities,
// option slots, descriptor switches, behaviour and row-level quirks. Each
// family keeps its rows in one table; the library installs them at load.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "core/seam.h"

namespace kvs {

class DialogBehaviour;
class DefaultsTable;

enum class Family { Data, Graph, Statistics };

enum class Launch {
    Standard,  // standard launcher, two selection arrays
    Graph,     // graph launcher, four selection arrays
    Special,   // no variable dialog: a routine of its own
};

// Row-level facts that only some dialogs have.
enum RowFlag : unsigned {
    kMenuEntry = 1u << 0,           // StartDialog reaches it (otherwise only a launcher of its own does)
    kKeepsStateThroughReinit = 1u << 1,  // ReinitDialogs leaves everything alone while it runs
    kMarkerStartsUnset = 1u << 2,   // its descriptor's reset marker starts at -1
    kClearsAsOneList = 1u << 3,     // ReinitDialogs clears it as a selection-mode-1 record
    kNoFirstListRestore = 1u << 4,  // list 10 opens empty whatever was chosen last
};

struct DispatchRow {
    std::uint16_t id = 0;
    const char* templateName = nullptr;  // null for Special rows
    const char* caption = nullptr;
    Family family = Family::Data;
    Launch launch = Launch::Standard;
    int mode = 1;                         // 0, 1 or 2: which selection arrays are lists
    std::int32_t firstCapacity = 0;
    std::int32_t secondCapacity = 0;
    int firstSlot = 0;                    // option slots 1..5 filled from extra words; 0: none
    int lastSlot = 0;
    std::int32_t switch1 = 0;             // 1: numeric variables only
    std::int32_t switch2 = 0;
    std::int32_t switch3 = 0;
    std::array<std::int32_t, 4> extra{};  // first values of the extra option words
    // The dialog's own part inside the generic dialog procedure; null: OK is refused.
    DialogBehaviour& (*behaviour)() = nullptr;
    // Launch::Special: what the id does instead of a variable dialog.
    void (*special)(std::uint16_t id, WindowRef owner) = nullptr;
    unsigned flags = kMenuEntry;

    bool has(RowFlag flag) const { return (flags & flag) != 0; }

    // Copies with one more fact, so a table row reads as one expression.
    constexpr DispatchRow behaving(DialogBehaviour& (*accessor)()) const {
        DispatchRow row = *this;
        row.behaviour = accessor;
        return row;
    }
    constexpr DispatchRow numericOnly() const {
        DispatchRow row = *this;
        row.switch1 = 1;
        return row;
    }
    constexpr DispatchRow firstExtraWord(std::int32_t value) const {
        DispatchRow row = *this;
        row.extra[0] = value;
        return row;
    }
    constexpr DispatchRow flagged(unsigned more) const {
        DispatchRow row = *this;
        row.flags |= more;
        return row;
    }
    constexpr DispatchRow offMenu() const {
        DispatchRow row = *this;
        row.flags &= ~static_cast<unsigned>(kMenuEntry);
        return row;
    }
};

// A variable dialog's row: its template, caption, launcher, selection mode,
// capacities of the first two arrays and the option slots its extra words fill.
constexpr DispatchRow dialogRow(Family family, std::uint16_t id, const char* templateName, const char* caption,
                                Launch launch, int mode, std::int32_t firstCapacity, std::int32_t secondCapacity,
                                int firstSlot = 0, int lastSlot = 0) {
    DispatchRow row;
    row.id = id;
    row.templateName = templateName;
    row.caption = caption;
    row.family = family;
    row.launch = launch;
    row.mode = mode;
    row.firstCapacity = firstCapacity;
    row.secondCapacity = secondCapacity;
    row.firstSlot = firstSlot;
    row.lastSlot = lastSlot;
    return row;
}

// An id that shows no variable dialog and runs a routine instead.
constexpr DispatchRow specialRow(Family family, std::uint16_t id, void (*routine)(std::uint16_t, WindowRef)) {
    DispatchRow row;
    row.id = id;
    row.family = family;
    row.launch = Launch::Special;
    row.mode = 0;
    row.special = routine;
    return row;
}

// One family's contribution: its rows and the routines for remembered state
// that belongs to the family rather than to one row.
struct FamilyTable {
    std::span<const DispatchRow> rows;
    // Adds the family's remembered settings to the defaults table.
    void (*addDefaults)(DefaultsTable&) = nullptr;
    // What lasts from load to unload whatever ReinitDialogs does, back to its state at load.
    void (*resetForLoad)() = nullptr;
};

// Installs the families; a second call replaces the first. Rows must have
// distinct ids.
void installFamilies(std::span<const FamilyTable> families);
std::span<const FamilyTable> installedFamilies();

// Every row, sorted by id.
std::span<const DispatchRow> dialogRows();
// The row of any dialog, or null.
const DispatchRow* findDialogRow(std::uint16_t id);
// The rows StartDialog reaches, sorted by id.
std::span<const DispatchRow> dispatchTable();
// The row StartDialog runs for an id, or null when the id has no case.
const DispatchRow* findDispatchRow(std::uint16_t id);

// The family whose id range holds id, or nothing for ids outside every range.
bool familyOf(std::uint16_t id, Family& family);

}  // namespace kvs
