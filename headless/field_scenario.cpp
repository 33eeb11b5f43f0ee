#include "headless/field_scenario.h"

#include <algorithm>
#include <vector>

#include "headless/headless_backend.h"
#include "include/kvs_dlg.h"

namespace kvs::headless {

std::vector<FieldScenario> everyFieldScenario(const ResourceSet& resources, std::size_t length) {
    std::vector<FieldScenario> scenarios;
    // The library lists its dialogs once it has been loaded, as a host sees it.
    HeadlessRunner(resources).run("");
    std::vector<KvsDialogEntry> rows(static_cast<std::size_t>(std::max(GetDialogList(nullptr, 0), 0)));
    GetDialogList(rows.data(), static_cast<int32_t>(rows.size()));
    for (const KvsDialogEntry& row : rows) {
        const DialogTemplate* found = row.templateName ? resources.dialog(row.templateName) : nullptr;
        if (!found) continue;
        FieldScenario scenario{row.commandId, "vars AGE INCOME SEX$\nstart " + std::to_string(row.commandId) + "\n", 0};
        for (const ControlTemplate& control : found->controls) {
            if (control.kind != ControlKind::Edit) continue;
            scenario.source += "  typerepeat " + std::to_string(control.id) + " \"W\" " + std::to_string(length) + "\n";
            ++scenario.fields;
        }
        if (scenario.fields == 0) continue;
        scenario.source += "  ok\n";
        scenarios.push_back(std::move(scenario));
    }
    return scenarios;
}

}  // namespace kvs::headless
