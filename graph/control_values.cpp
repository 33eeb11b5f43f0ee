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
    for (const FormField& field : fields) {
        switch (field.store) {
        case Store::Check:
        case Store::RadioFirst: view.setChecked(field.id, isChecked(values, field.id)); break;
        case Store::Text:
        case Store::Number: view.setText(field.id, valueOf(values, field.id)); break;
        case Store::Combo: view.comboSelect(field.id, positionOf(values, field.id)); break;
        case Store::Names:
            view.listClear(field.id);
            for (const std::string& name : namesOf(valueOf(values, field.id)))
                view.listAdd(field.id, name, ListInsert::Append);
            break;
        }
    }
}

void readValues(const DialogView& view, std::span<const FormField> fields, ControlValues& values) {
    for (const FormField& field : fields) {
        if (!view.has(field.id)) continue;
        std::string value;
        switch (field.store) {
        case Store::Check:
        case Store::RadioFirst:
            if (view.isChecked(field.id)) value.assign(1, '1');
            break;
        case Store::Text:
        case Store::Number: value = view.text(field.id); break;
        case Store::Combo: value = std::to_string(std::max(view.comboSelection(field.id), 0)); break;
        case Store::Names:
            for (int i = 0, n = view.listCount(field.id); i < n; ++i) {
                if (i) value += '\n';
                value += view.listText(field.id, i);
            }
            break;
        }
        values[field.id] = std::move(value);
    }
}

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
