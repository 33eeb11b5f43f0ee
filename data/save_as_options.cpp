#include <cstring>
#include <string_view>

#include "core/help_requests.h"
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

// The kind in force, and the one shown while the dialog is open.
std::int32_t committedKind = IDC_SAVEAS_RECT;
std::int32_t workingKind = IDC_SAVEAS_RECT;

bool isKind(int id) { return id >= IDC_SAVEAS_RECT && id <= IDC_SAVEAS_SIM; }

class SaveAsOptionsDialog : public DialogHandler {
public:
    int onInit(DialogView& view) override {
        view.centre();
        workingKind = committedKind;
        show(view);
        return 0;
    }

    void onCommand(DialogView& view, int controlId, int notifyCode) override {
        if (notifyCode != kButtonClicked) return;
        if (isKind(controlId)) {
            workingKind = controlId;
            show(view);
        } else if (controlId == kIdOk) {
            committedKind = workingKind;
            view.end(1);
        } else if (controlId == kIdCancel) {
            view.end(0);
        } else if (controlId == IDC_HELPBUTTON) {
            openHelpTopic(view.handle(), kHelpTopic);
        }
    }

    void onSysCommand(DialogView&, int code) override { answerHelpCommand(code); }

private:
    static void show(DialogView& view) {
        for (const SaveAsKind& kind : kKinds) view.setChecked(kind.id, kind.id == workingKind);
    }
};

}  // namespace

int runSaveAsOptions(WindowRef owner) {
    SaveAsOptionsDialog dialog;
    return runModalWithTopic(owner, text::kSaveAsOptionsTemplate, dialog, kHelpTopic) == 1 ? 1 : 0;
}

void attachSaveAsOptions(char* line) {
    if (!line) return;
    std::string_view clause = text::kSaveAsType;
    std::size_t length = std::strlen(line);
    std::memcpy(line + length, clause.data(), clause.size());
    length += clause.size();
    for (const SaveAsKind& kind : kKinds) {
        if (kind.id != committedKind) continue;
        std::memcpy(line + length, kind.keyword.data(), kind.keyword.size());
        length += kind.keyword.size();
    }
    line[length] = '\0';
}

void resetSaveAsOptions() { committedKind = workingKind = IDC_SAVEAS_RECT; }

}  // namespace kvs::data
