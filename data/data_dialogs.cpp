// The data family: one row per dialog, saying everything the core needs to
// know about it. A dialog's behaviour lives in a file of its own and is
// named here by its accessor.
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "data/data_family.h"
#include "resources/data_ids.h"

namespace kvs::data {

// The behaviours, each defined in its dialog's file.
DialogBehaviour& listCasesBehaviour();
DialogBehaviour& byGroupsBehaviour();
DialogBehaviour& selectBehaviour();
DialogBehaviour& weightBehaviour();
DialogBehaviour& noteBehaviour();
DialogBehaviour& pageTitleBehaviour();
DialogBehaviour& printFormatBehaviour();
DialogBehaviour& letBehaviour();
DialogBehaviour& ifThenLetBehaviour();
DialogBehaviour& standardizeBehaviour();
DialogBehaviour& rankBehaviour();
DialogBehaviour& sortBehaviour();
DialogBehaviour& appendBehaviour();
DialogBehaviour& mergeBehaviour();
DialogBehaviour& transposeBehaviour();
DialogBehaviour& idVariableBehaviour();
DialogBehaviour& valueLabelsBehaviour();
DialogBehaviour& orderBehaviour();
DialogBehaviour& categoryBehaviour();
DialogBehaviour& frequencyBehaviour();
DialogBehaviour& basicBehaviour();
DialogBehaviour& matrixBehaviour();
DialogBehaviour& keySelectionBehaviour();
DialogBehaviour& reshapeBehaviour();

// Routines of the ids without a variable dialog, and family-wide state.
void runEditorExtract(std::uint16_t id, WindowRef owner);
void addConditionDefaults(DefaultsTable& table);
void resetOptionDialogs();

namespace {

constexpr DispatchRow row(std::uint16_t id, const char* templateName, const char* caption, int mode,
                          std::int32_t firstCapacity, std::int32_t secondCapacity, int firstSlot = 0,
                          int lastSlot = 0) {
    return dialogRow(Family::Data, id, templateName, caption, Launch::Standard, mode, firstCapacity, secondCapacity,
                     firstSlot, lastSlot);
}

constexpr DispatchRow kRows[] = {
    row(43, "ListDlgBox", "List Cases", 1, 256, 0).behaving(listCasesBehaviour),
    row(45, "By", "By Groups", 1, 256, 0).behaving(byGroupsBehaviour),
    row(46, "Edselect", "Select", 2, 256, 256).behaving(selectBehaviour),
    row(47, "WTDLG", "Weight", 1, 1, 0).behaving(weightBehaviour),
    // Settings of the output: no menu case, a launcher of the host's own.
    row(51, "Note", "Note", 1, 0, 0).behaving(noteBehaviour).offMenu(),
    row(52, "PageTitle", "Page Title", 1, 0, 0).behaving(pageTitleBehaviour).offMenu(),
    row(53, "PrintFormat", "Print Format", 1, 0, 0).behaving(printFormatBehaviour).offMenu(),
    row(67, "Let", "Let", 2, 256, 256).behaving(letBehaviour).flagged(kClearsAsOneList),
    row(69, "IfThenLet", "If...Then...Let", 2, 256, 256).behaving(ifThenLetBehaviour),
    row(70, "STANDARDIZE", "Standardize", 1, 256, 0)
        .behaving(standardizeBehaviour)
        .numericOnly()
        .firstExtraWord(IDC_STANDARDIZE_SD)  // the method
        .flagged(kClearsAsOneList),
    row(71, "Rank", "Rank", 1, 256, 0).behaving(rankBehaviour).numericOnly(),
    row(72, "Sort", "Sort", 1, 10, 0).behaving(sortBehaviour),
    row(73, "Append", "Append", 1, 256, 0).behaving(appendBehaviour),
    row(74, "Merge", "Merge", 2, 256, 256).behaving(mergeBehaviour),
    row(75, "Transpose", "Transpose", 1, 256, 0).behaving(transposeBehaviour).numericOnly(),
    // The editor's extract: a save-file chooser that queues "EXTRACT '...'".
    specialRow(Family::Data, 76, runEditorExtract),
    row(77, "IDVAR", "ID Variable", 1, 256, 0).behaving(idVariableBehaviour),
    row(78, "Labels", "Labels", 1, 1, 0).behaving(valueLabelsBehaviour),
    row(83, "Order", "Order", 1, 256, 0).behaving(orderBehaviour),
    row(84, "Category", "Category", 1, 256, 0).behaving(categoryBehaviour),
    row(85, "Frequency", "Frequency", 1, 256, 0, 1, 1).behaving(frequencyBehaviour),
    row(87, "Basic", "Basic", 1, 1, 0).behaving(basicBehaviour).flagged(kMarkerStartsUnset),
    row(88, "Matrix", "Enter Matrix", 1, 1, 0).behaving(matrixBehaviour).flagged(kMarkerStartsUnset),
    // Merge's key selection: StartDialog(91) shows nothing; only Merge opens it.
    row(kKeySelectionId, "KeyVars", "Key Selection", 1, 256, 0).behaving(keySelectionBehaviour).offMenu(),
    row(92, "Wrap", "Reshape", 1, 256, 0).behaving(reshapeBehaviour),
};

void resetForLoad() { resetOptionDialogs(); }

}  // namespace

FamilyTable family() { return {kRows, addConditionDefaults, resetForLoad}; }

}  // namespace kvs::data
