#include "graph/control_values.h"

#include <algorithm>
#include <string>

#include "core/messages.h"

namespace kvs::graph {

void fillCombos(DialogView& view, std::span<const ComboEntries> combos) {
    for (const ComboEntries& combo : combos) {
        view.comboClear(combo.id);
        for (std::string_view entry : combo.entries) view.comboAdd(combo.id, entry);
    }
}

void showValues(DialogView& view, std::span<const FormField> fields, const ControlValues& values) {
    formBindings(fields).show(view, values);
}

void readValues(const DialogView& view, std::span<const FormField> fields, ControlValues& values) {
    formBindings(fields).read(view, values);
}

std::vector<int> numberIdsOf(std::span<const FormField> fields) { return formBindings(fields).numberIds(); }

std::vector<std::string> namesOf(std::string_view value) {
    std::vector<std::string> names;
    while (!value.empty()) {
        const std::size_t end = value.find('\n');
        names.emplace_back(value.substr(0, end));
        if (end == std::string_view::npos) break;
        value.remove_prefix(end + 1);
    }
    return names;
}

void showGraphMessage(WindowRef owner, std::string_view text) {
    ui().messageBeep(0);
    MessageRequest request;
    request.owner = owner;
    request.text = std::string(text);
    request.caption = std::string(text::kCaption);
    request.icon = MessageIcon::Exclamation;
    ui().messageBox(request);
}

}  // namespace kvs::graph
