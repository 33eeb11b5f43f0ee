// The data family's part of dispatch: which behaviour serves which id, the
// descriptor switches, and the defaults of the remembered options.
#include "core/families.h"
#include "data/listing_dialogs.h"
#include "data/sort_rank_transpose.h"
#include "resources/data_listing_ids.h"

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
    case 47: return &weightBehaviour();
    case 51: return &noteBehaviour();
    case 52: return &pageTitleBehaviour();
    case 53: return &printFormatBehaviour();
    case 70: return &standardizeBehaviour();
    case 71: return &rankBehaviour();
    case 72: return &sortBehaviour();
    case 75: return &transposeBehaviour();
    case 77: return &idVariableBehaviour();
    case 83: return &orderBehaviour();
    case 84: return &categoryBehaviour();
    case 85: return &frequencyBehaviour();
    case 87: return &basicBehaviour();
    case 88: return &matrixBehaviour();
    case 92: return &reshapeBehaviour();
    default: return nullptr;
    }
}

void resetDefaults() {
    resetSortDefaults();
    resetListingDefaults();
}

}  // namespace kvs::data
