// The data family's part of dispatch: which behaviour serves which id, the
// descriptor switches, and the defaults of the remembered options.
#include "core/dialog_defaults.h"
#include "core/families.h"
#include "data/case_selection.h"
#include "data/condition_rows.h"
#include "data/conditional_assignment.h"
#include "data/append_merge.h"
#include "data/key_selection.h"
#include "data/listing_dialogs.h"
#include "data/sort_rank_transpose.h"
#include "data/value_labels.h"
#include "resources/data_ids.h"

namespace kvs::data {

DescriptorSettings descriptorSettings(std::uint16_t commandId) {
    DescriptorSettings settings;
    switch (commandId) {
    // Standardize, Rank and Transpose work on numbers only; Standardize
    // keeps its method in its extra word.
    case 70:
        settings.switch1 = 1;
        settings.extra[0] = IDC_STANDARDIZE_SD;
        break;
    case 71:
    case 75: settings.switch1 = 1; break;
    default: break;
    }
    return settings;
}

DialogBehaviour* behaviour(std::uint16_t commandId) {
    switch (commandId) {
    case 43: return &listCasesBehaviour();
    case 45: return &byGroupsBehaviour();
    case 46: return &selectBehaviour();
    case 47: return &weightBehaviour();
    case 51: return &noteBehaviour();
    case 52: return &pageTitleBehaviour();
    case 53: return &printFormatBehaviour();
    case 67: return &letBehaviour();
    case 69: return &ifThenLetBehaviour();
    case 70: return &standardizeBehaviour();
    case 71: return &rankBehaviour();
    case 72: return &sortBehaviour();
    case 73: return &appendBehaviour();
    case 74: return &mergeBehaviour();
    case 75: return &transposeBehaviour();
    case 77: return &idVariableBehaviour();
    case 78: return &valueLabelsBehaviour();
    case 83: return &orderBehaviour();
    case 84: return &categoryBehaviour();
    case 85: return &frequencyBehaviour();
    case 87: return &basicBehaviour();
    case 88: return &matrixBehaviour();
    case kKeySelectionId: return &keySelectionBehaviour();
    case 92: return &reshapeBehaviour();
    default: return nullptr;
    }
}

void addDefaults(DefaultsTable& table) {
    addSortDefaults(table);
    table.routine([](bool) { resetConditionDefaults(); });
    table.routine([](bool) { resetAppendMergeDefaults(); });
    table.routine([](bool) { resetKeySelection(); });
    table.routine([](bool) { resetListingDefaults(); });
    addValueLabelDefaults(table);
}

}  // namespace kvs::data
