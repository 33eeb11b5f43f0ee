#include "headless/field_scenario.h"

#include <algorithm>
#include <vector>

#include "graph/option_buttons.h"
#include "graph/option_codes.h"
#include "headless/headless_backend.h"
#include "include/kvs_dlg.h"

namespace kvs::headless {

namespace {

constexpr const char* kVariables = "vars AGE INCOME SEX$\n";

// The typerepeat lines for every edit field of a template; empty when it has none.
std::string typeIntoEveryField(const DialogTemplate& dialog, std::size_t length, int& fields) {
    std::string lines;
    for (const ControlTemplate& control : dialog.controls) {
        if (control.kind != ControlKind::Edit) continue;
        lines += "  typerepeat " + std::to_string(control.id) + " \"W\" " + std::to_string(length) + "\n";
        ++fields;
    }
    return lines;
}

void collectCodes(const std::vector<MenuItem>& items, std::vector<int>& codes) {
    for (const MenuItem& item : items) {
        if (item.popup) collectCodes(item.children, codes);
        else if (!item.separator && item.id != 0) codes.push_back(item.id);
    }
}

// The codes an option button offers with the file's variables: its direct
// code, or its menu's items that are not greyed.
std::vector<int> offeredCodes(const ResourceSet& resources, int buttonId, int dialogId) {
    if (const int code = graph::directCodeOf(buttonId, dialogId)) return {code};
    const std::string_view menuName = graph::popupMenuOf(buttonId, dialogId);
    const MenuTemplate* menu = menuName.empty() ? nullptr : resources.menu(menuName);
    if (!menu) return {};
    std::vector<int> codes;
    collectCodes(menu->items, codes);
    graph::MenuFacts facts;
    facts.dialogId = dialogId;
    facts.characterVariable = [] { return true; };  // SEX$
    for (const PopupItemState& state : graph::menuItemStates(buttonId, facts))
        if (state.greyed) std::erase(codes, state.commandId);
    return codes;
}

// One scenario per option sub-dialog with edit fields that a button of the
// dialog opens: the button pressed, the code picked, the fields typed into,
// OK, and the dialog cancelled.
void addSubDialogs(const ResourceSet& resources, const KvsDialogEntry& row, const DialogTemplate& dialog,
                   std::size_t length, std::vector<FieldScenario>& scenarios) {
    const int dialogId = static_cast<int>(row.commandId);
    for (const ControlTemplate& button : dialog.controls) {
        if (button.id < graph::kFirstOptionButton || button.id > graph::kLastOptionButton) continue;
        const bool direct = graph::directCodeOf(button.id, dialogId) != 0;
        for (const int code : offeredCodes(resources, button.id, dialogId)) {
            const graph::SubDialog sub = graph::subDialogFor(code, dialogId);
            const DialogTemplate* form = sub.kind == graph::OptionKind::None ? nullptr : resources.dialog(sub.templateName);
            if (!form) continue;
            FieldScenario scenario;
            scenario.commandId = row.commandId;
            const std::string typing = typeIntoEveryField(*form, length, scenario.fields);
            if (scenario.fields == 0) continue;
            scenario.name = std::to_string(row.commandId) + "_" + std::to_string(button.id) + "_" + std::to_string(code);
            scenario.source = std::string(kVariables) + "start " + std::to_string(row.commandId) + "\n  click " +
                              std::to_string(button.id) + "\n" + (direct ? "" : "  menu " + std::to_string(code) + "\n") +
                              typing + "  ok\n  cancel\n";
            scenarios.push_back(std::move(scenario));
        }
    }
}

}  // namespace

std::vector<FieldScenario> everyFieldScenario(const ResourceSet& resources, std::size_t length) {
    std::vector<FieldScenario> scenarios;
    // The library lists its dialogs once it has been loaded, as a host sees it.
    HeadlessRunner(resources).run("");
    std::vector<KvsDialogEntry> rows(static_cast<std::size_t>(std::max(GetDialogList(nullptr, 0), 0)));
    GetDialogList(rows.data(), static_cast<int32_t>(rows.size()));
    for (const KvsDialogEntry& row : rows) {
        const DialogTemplate* found = row.templateName ? resources.dialog(row.templateName) : nullptr;
        if (!found) continue;
        FieldScenario scenario;
        scenario.commandId = row.commandId;
        scenario.name = std::to_string(row.commandId);
        const std::string typing = typeIntoEveryField(*found, length, scenario.fields);
        if (scenario.fields > 0) {
            scenario.source = std::string(kVariables) + "start " + std::to_string(row.commandId) + "\n" + typing + "  ok\n";
            scenarios.push_back(std::move(scenario));
        }
        addSubDialogs(resources, row, *found, length, scenarios);
    }
    return scenarios;
}

}  // namespace kvs::headless
