#include <cstring>
#include <string>
#include <string_view>

#include "core/help_requests.h"
#include "core/option_dialog.h"
#include "data/data_texts.h"
#include "data/option_dialogs.h"
#include "resources/options_ids.h"

namespace kvs::data {

namespace {

struct SaveAsKind {
    int id;
    std::string_view keyword;
};

constexpr SaveAsKind kKinds[] = {
    {IDC_SAVEAS_RECT, "RECT"}, {IDC_SAVEAS_SSCP, "SSCP"}, {IDC_SAVEAS_COV, "COV"},
    {IDC_SAVEAS_CORR, "CORR"}, {IDC_SAVEAS_DISS, "DISS"}, {IDC_SAVEAS_SIM, "SIM"},
};

constexpr std::uint32_t kHelpTopic = 32;

// The kind in force; the dialog works on a copy until OK.
struct SaveAsSettings {
    int kind = IDC_SAVEAS_RECT;
};

SaveAsSettings saveAs;

const Bindings<SaveAsSettings>& saveAsBindings() {
    static const Bindings<SaveAsSettings> bindings = Bindings<SaveAsSettings>().radio(
        {IDC_SAVEAS_RECT, IDC_SAVEAS_SSCP, IDC_SAVEAS_COV, IDC_SAVEAS_CORR, IDC_SAVEAS_DISS, IDC_SAVEAS_SIM},
        &SaveAsSettings::kind, Commit::OnClick);
    return bindings;
}

}  // namespace

int runSaveAsOptions(WindowRef owner) {
    OptionDialog<SaveAsSettings> dialog(saveAs, saveAsBindings(), kHelpTopic);
    return runModalWithTopic(owner, text::kSaveAsOptionsTemplate, dialog, kHelpTopic) == 1 ? 1 : 0;
}

void attachSaveAsOptions(char* line) {
    if (!line) return;
    std::string clause(text::kSaveAsType);
    for (const SaveAsKind& kind : kKinds)
        if (kind.id == saveAs.kind) clause.append(kind.keyword);
    // The host's line buffer holds 10,000 bytes; a clause that does not fit
    // whole is left off rather than cut.
    const auto* end = static_cast<const char*>(std::memchr(line, '\0', kSaveAsLineLimit + 1));
    if (!end) return;
    const auto length = static_cast<std::size_t>(end - line);
    if (length + clause.size() > kSaveAsLineLimit) return;
    std::memcpy(line + length, clause.c_str(), clause.size() + 1);
}

void resetSaveAsOptions() { saveAs = SaveAsSettings{}; }

}  // namespace kvs::data
