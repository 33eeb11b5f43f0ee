#include "core/dialog_defaults.h"

#include "core/descriptor.h"
#include "core/dialog_behaviour.h"
#include "core/dispatch_table.h"
#include "core/resizable_layout.h"

namespace kvs {

void DefaultsTable::word(std::int32_t& target, std::int32_t value) {
    rows_.push_back({Kind::Word, &target, value, {}, nullptr});
}

void DefaultsTable::text(std::string& target, std::string_view value) {
    rows_.push_back({Kind::Text, &target, 0, std::string(value), nullptr});
}

void DefaultsTable::block(OptionBlock& target) { rows_.push_back({Kind::Block, &target, 0, {}, nullptr}); }

void DefaultsTable::indexArray(IndexArray& target, std::int32_t count) {
    rows_.push_back({Kind::IndexArray, &target, count, {}, nullptr});
}

void DefaultsTable::routine(void (*reset)(bool)) { rows_.push_back({Kind::Routine, nullptr, 0, {}, reset}); }

void DefaultsTable::apply(bool freeMemory) const {
    for (const Row& row : rows_) {
        switch (row.kind) {
        case Kind::Word: *static_cast<std::int32_t*>(row.target) = row.value; break;
        case Kind::Text: *static_cast<std::string*>(row.target) = row.textValue; break;
        case Kind::Block: {
            // An absent or unusable block is left alone.
            auto& block = *static_cast<OptionBlock*>(row.target);
            if (freeMemory) block.release();
            else block.clear();
            break;
        }
        case Kind::IndexArray: {
            auto& array = *static_cast<IndexArray*>(row.target);
            if (freeMemory) array.release();
            else array.clear(row.value);
            break;
        }
        case Kind::Routine: row.reset(freeMemory); break;
        case Kind::Record: row.resetRecord(row.target); break;
        }
    }
}

namespace {

DefaultsTable& defaults() {
    static DefaultsTable table;
    return table;
}

}  // namespace

void rebuildDialogDefaults() {
    DefaultsTable t;
    addDescriptorOptionDefaults(t);
    t.routine(forgetDialogSizes);  // the sizes users gave the dialogs
    for (const FamilyTable& family : installedFamilies()) {
        if (family.addDefaults) family.addDefaults(t);
        for (const DispatchRow& row : family.rows)
            if (row.behaviour) row.behaviour().addDefaults(t);
    }
    defaults() = std::move(t);
}

const DefaultsTable& dialogDefaults() { return defaults(); }

}  // namespace kvs
