// The data family's part of dispatch: which behaviour serves which id, the
// descriptor switches, and the defaults of the remembered options.
#include "core/dialog_defaults.h"
#include "core/families.h"
#include "data/case_selection.h"
#include "data/condition_rows.h"
#include "data/conditional_assignment.h"
#include "data/append_merge.h"
#include "data/key_selection.h"
#include "data/sort_rank_transpose.h"

namespace kvs::data {

DescriptorSettings descriptorSettings(std::uint16_t commandId) {
    DescriptorSettings settings;
    switch (commandId) {
    case 70:  // Standardize, Rank and Transpose work on numbers only
    case 71:
    case 75: settings.switch1 = 1; break;
    default: break;
    }
    return settings;
}

DialogBehaviour* behaviour(std::uint16_t commandId) {
    switch (commandId) {
    case 46: return &selectBehaviour();
    case 67: return &letBehaviour();
    case 69: return &ifThenLetBehaviour();
    case 71: return &rankBehaviour();
    case 72: return &sortBehaviour();
    case 73: return &appendBehaviour();
    case 74: return &mergeBehaviour();
    case 75: return &transposeBehaviour();
    case kKeySelectionId: return &keySelectionBehaviour();
    default: return nullptr;
    }
}

void addDefaults(DefaultsTable& table) {
    addSortDefaults(table);
    table.routine([](bool) { resetConditionDefaults(); });
    table.routine([](bool) { resetAppendMergeDefaults(); });
    table.routine([](bool) { resetKeySelection(); });
}

}  // namespace kvs::data
