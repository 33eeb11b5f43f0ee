// The defaults of every dialog's remembered settings, as one table that each
// dialog family extends with its own rows. ReinitDialogs applies it: option
// words and texts go back to their defaults, blocks are cleared (or released
// when memory is to be freed), index arrays are emptied (or released).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/remembered_memory.h"

namespace kvs {

class DefaultsTable {
public:
    // An option word and its default.
    void word(std::int32_t& target, std::int32_t value);
    // A small option text and its default.
    void text(std::string& target, std::string_view value);
    // A remembered block: cleared, or released when freeing.
    void block(OptionBlock& target);
    // An index array: count entries emptied, or released when freeing.
    void indexArray(IndexArray& target, std::int32_t count);
    // A family's own reset of state that is none of the above.
    void routine(void (*reset)(bool freeMemory));
    // A record of remembered settings: back to a value-initialised Record,
    // whose member initialisers are the defaults.
    template <typename Record>
    void record(Record& target) {
        rows_.push_back({Kind::Record, &target, 0, {}, nullptr,
                         [](void* record) { *static_cast<Record*>(record) = Record{}; }});
    }

    // Runs every row in the order the rows were added.
    void apply(bool freeMemory) const;
    std::size_t rows() const { return rows_.size(); }

private:
    enum class Kind { Word, Text, Block, IndexArray, Routine, Record };
    struct Row {
        Kind kind;
        void* target;
        std::int32_t value;
        std::string textValue;
        void (*reset)(bool);
        void (*resetRecord)(void*) = nullptr;
    };
    std::vector<Row> rows_;
};

// The whole table: every descriptor's extra words, then family by family the
// family's own rows and those of each of its dialogs.
const DefaultsTable& dialogDefaults();
// Builds the table anew from the installed families (at load).
void rebuildDialogDefaults();

}  // namespace kvs
