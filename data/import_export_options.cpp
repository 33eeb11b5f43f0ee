#include <array>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "core/help_requests.h"
#include "core/command_text.h"
#include "core/messages.h"
#include "data/data_texts.h"
#include "data/option_dialogs.h"
#include "data/text_pieces.h"
#include "resources/options_ids.h"

namespace kvs::data {

namespace {

constexpr std::uint32_t kImportHelpTopic = 17;
constexpr std::uint32_t kExportHelpTopic = 18;
// Each stored text holds at most this many characters.
constexpr std::size_t kTextCapacity = 32;

enum Field { FirstCase, LastCase, FirstColumn, LastColumn, Range, FieldCount };
constexpr std::array<int, FieldCount> kFieldIds = {IDC_IMPEXP_FIRSTCASE, IDC_IMPEXP_LASTCASE, IDC_IMPEXP_FIRSTCOLUMN,
                                                   IDC_IMPEXP_LASTCOLUMN, IDC_IMPEXP_RANGE};
constexpr int kCaseControls[] = {IDC_IMPEXP_FIRSTCASE, IDC_IMPEXP_LASTCASE, IDC_IMPEXP_FIRSTCASE_LABEL,
                                 IDC_IMPEXP_LASTCASE_LABEL};
// The "Column" group box goes with its fields; the "Case" group box stays
// enabled throughout.
constexpr int kColumnControls[] = {IDC_IMPEXP_FIRSTCOLUMN, IDC_IMPEXP_LASTCOLUMN, IDC_IMPEXP_FIRSTCOLUMN_LABEL,
                                   IDC_IMPEXP_LASTCOLUMN_LABEL, IDC_IMPEXP_COLUMNGROUP};

struct ImportExportState {
    std::int32_t allCases = 1;
    std::int32_t allColumns = 1;
    // Absent until the dialog is first shown.
    std::array<std::optional<std::string>, FieldCount> texts;
    std::int32_t optionsSet = 0;
    // The running call: export flag (-1 between calls), owner and value.
    std::int32_t exportFlag = -1;
    WindowRef owner = 0;
    std::int32_t value = 0;
};

ImportExportState state;

void applyEnabling(DialogView& view) {
    const bool cases = !view.isChecked(IDC_IMPEXP_ALLCASES);
    const bool columns = !view.isChecked(IDC_IMPEXP_ALLCOLUMNS);
    for (int id : kCaseControls) view.enable(id, cases);
    for (int id : kColumnControls) view.enable(id, columns);
}

class ImportExportDialog : public DialogHandler {
public:
    int onInit(DialogView& view) override {
        view.centre();
        view.setChecked(IDC_IMPEXP_ALLCASES, state.allCases != 0);
        view.setChecked(IDC_IMPEXP_ALLCOLUMNS, state.allColumns != 0);
        for (std::size_t i = 0; i < FieldCount; ++i) {
            view.limitText(kFieldIds[i], kTextCapacity);
            if (!state.texts[i]) state.texts[i].emplace();
            else view.setText(kFieldIds[i], *state.texts[i]);
        }
        if (state.exportFlag != 0) view.setCaption(text::kExportOptionsCaption);
        applyEnabling(view);
        return 0;
    }

    void onCommand(DialogView& view, int controlId, int notifyCode) override {
        if (notifyCode != kButtonClicked) return;
        switch (controlId) {
        case IDC_IMPEXP_ALLCASES:
        case IDC_IMPEXP_ALLCOLUMNS: applyEnabling(view); break;
        case kIdOk: accept(view); break;
        case kIdCancel: view.end(0); break;
        case IDC_HELPBUTTON: openHelpTopic(view.handle(), helpTopic()); break;
        default: break;
        }
    }

    void onSysCommand(DialogView&, int code) override { answerHelpCommand(code); }

    static std::uint32_t helpTopic() { return state.exportFlag != 0 ? kExportHelpTopic : kImportHelpTopic; }

private:
    // The check boxes count from the moment OK is pressed, even when OK is
    // then refused for a missing first or last value.
    static void accept(DialogView& view) {
        state.allCases = view.isChecked(IDC_IMPEXP_ALLCASES) ? 1 : 0;
        state.allColumns = view.isChecked(IDC_IMPEXP_ALLCOLUMNS) ? 1 : 0;
        const bool casesMissing =
            !state.allCases && (isBlank(view.text(IDC_IMPEXP_FIRSTCASE)) || isBlank(view.text(IDC_IMPEXP_LASTCASE)));
        const bool columnsMissing = !state.allColumns && (isBlank(view.text(IDC_IMPEXP_FIRSTCOLUMN)) ||
                                                          isBlank(view.text(IDC_IMPEXP_LASTCOLUMN)));
        if (casesMissing || columnsMissing) {
            showStop(ui().focusWindow(), kvs::text::kProvideMoreInput);
            return;
        }
        for (std::size_t i = 0; i < FieldCount; ++i)
            state.texts[i] = view.text(kFieldIds[i]).substr(0, kTextCapacity);
        state.optionsSet = 1;
        view.end(1);
    }
};

// Appends prefix and text when the text is neither absent nor blank.
void appendPiece(CommandText& line, std::string_view prefix, const std::optional<std::string>& text) {
    if (text) quoteFileName(*text, prefix, false, true, line);
}

}  // namespace

int runImportExportOptions(WindowRef owner, std::int32_t exportFlag, std::int32_t value) {
    state.exportFlag = exportFlag;
    state.owner = owner;
    state.value = value;
    ImportExportDialog dialog;
    const int result = runModalWithTopic(owner, text::kImportExportTemplate, dialog, ImportExportDialog::helpTopic());
    state.exportFlag = -1;
    state.owner = 0;
    state.value = 0;
    return result == 1 ? 1 : 0;
}

void attachImportExportOptions(char* line) {
    if (!line) return;
    const auto* end = static_cast<const char*>(std::memchr(line, '\0', kImportExportLineLimit + 1));
    if (!end) return;
    const auto length = static_cast<std::size_t>(end - line);
    if (length >= kImportExportLineLimit) return;
    CommandText text(std::string_view(line, length), CommandText::kHostLineCapacity);
    if (!state.allCases) {
        appendPiece(text, text::kRowsClause, state.texts[FirstCase]);
        appendPiece(text, text::kRangeSeparator, state.texts[LastCase]);
    }
    if (!state.allColumns) {
        appendPiece(text, text::kColumnsClause, state.texts[FirstColumn]);
        appendPiece(text, text::kRangeSeparator, state.texts[LastColumn]);
    }
    appendPiece(text, text::kRangeClause, state.texts[Range]);
    std::memcpy(line + length, text.c_str() + length, text.size() - length + 1);
}

void resetImportExportOptions() { state = ImportExportState{}; }

}  // namespace kvs::data
