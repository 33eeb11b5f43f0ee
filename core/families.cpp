#include "core/families.h"

#include "core/library_state.h"
#include "core/series_commands.h"
#include "data/editor_extract.h"
#include "data/value_labels.h"
#include "graph/font_chooser.h"
#include "graph/picture_sets.h"

namespace kvs {

DescriptorSettings descriptorSettings(std::uint16_t commandId) {
    if (commandId >= 41 && commandId <= 93) return data::descriptorSettings(commandId);
    return {};
}

DialogBehaviour* familyBehaviour(std::uint16_t commandId) {
    if (commandId >= 42 && commandId <= 92) return data::behaviour(commandId);
    return nullptr;
}

void addFamilyDefaults(DefaultsTable& table) { data::addDefaults(table); }

void resetFamiliesForLoad() {
    data::resetOptionDialogs();
    graph::forgetPictures();
    graph::resetFontChooser();
}

bool runSpecialCommand(std::uint16_t commandId) {
    switch (commandId) {
    case 76: data::runEditorExtract(); return true;
    case 78: data::runValueLabels(); return true;
    case 242:
    case 245:
    case 246: runSeriesCommand(commandId); return true;
    case 150:
    case 153: graph::runFontCommand(commandId, library().hostWindow); return true;
    default: return false;
    }
}

}  // namespace kvs
