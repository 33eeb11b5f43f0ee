// Basic and Enter Matrix: the keyword, then the typed text line by line.
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/library_state.h"
#include "data/composers.h"
#include "data/data_texts.h"

namespace kvs::data {

namespace {

class ProgramDialog : public DialogBehaviour {
public:
    explicit ProgramDialog(std::string_view keyword) : keyword_(keyword) {}

    int init(DialogContext& context) override {
        context.view.setText(IDC_PROGRAM_TEXT, remembered_);
        return 0;
    }

    // A refused text is not remembered.
    bool accept(DialogContext& context, int) override {
        std::string typed = bounded(context.view.text(IDC_PROGRAM_TEXT), kProgramTextLimit);
        const Composition composition = composeProgram(keyword_, typed);
        if (!composition.refused()) remembered_ = std::move(typed);
        if (!deliver(context.view.handle(), composition)) return false;
        library().dataCommand = 1;
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        return composeProgram(keyword_, bounded(context.view.text(IDC_PROGRAM_TEXT), kProgramTextLimit));
    }

    void addDefaults(DefaultsTable& table) override { table.record(remembered_); }

private:
    std::string_view keyword_;
    std::string remembered_;
};

// Text with nothing but blanks and line ends gives no line to run.
bool holdsNothing(std::string_view text) { return text.find_first_not_of(" \r\n") == std::string_view::npos; }

}  // namespace

Composition composeProgram(std::string_view keyword, std::string_view text) {
    if (holdsNothing(text)) return Composition::refuse(text::kMoreInput);
    Composition composition;
    composition.add(keyword);
    for (std::string_view piece : programLines(text)) composition.add(piece);
    return composition;
}

DialogBehaviour& basicBehaviour() {
    static ProgramDialog dialog(text::kBasic);
    return dialog;
}

DialogBehaviour& matrixBehaviour() {
    static ProgramDialog dialog(text::kMatrix);
    return dialog;
}

}  // namespace kvs::data
