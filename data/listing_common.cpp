// Helpers shared by the listing dialogs, and their one defaults routine.
#include "core/command_queue.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "data/listing_dialogs.h"

namespace kvs::data {

namespace listing {

int refuse(const DialogView& view, std::string_view message) {
    showStop(view.handle(), message);
    return 0;
}

void queueLine(const CommandText& line, bool dataCommand) {
    queue::push(line.c_str(), nullptr);
    if (dataCommand) library().dataCommand = 1;
}

std::string fieldText(const DialogView& view, int id, std::size_t limit) {
    std::string text = view.text(id);
    if (text.size() > limit) text.resize(limit);
    return text;
}

void showChoice(DialogView& view, int first, int second, int chosen) {
    view.setChecked(first, chosen == first);
    view.setChecked(second, chosen == second);
}

}  // namespace listing

void resetListingDefaults() {
    listing::resetVariableDialogs();
    listing::resetOneVariableDialogs();
    listing::resetOutputDialogs();
    listing::resetProgramDialogs();
}

}  // namespace kvs::data
