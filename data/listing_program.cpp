// Basic and Enter Matrix: the keyword, then the typed text line by line.
#include "data/listing_compose.h"
#include "data/listing_dialogs.h"
#include "data/data_texts.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

std::string basicText;
std::string matrixText;

// Text with nothing but blanks and line ends gives no line to run.
bool holdsNothing(std::string_view text) { return text.find_first_not_of(" \r\n") == std::string_view::npos; }

class ProgramDialog : public DialogBehaviour {
public:
    ProgramDialog(std::string_view keyword, std::string& remembered) : keyword_(keyword), remembered_(remembered) {}

    int init(DialogContext& context) override {
        context.view.setText(IDC_PROGRAM_TEXT, remembered_);
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        std::string typed = listing::fieldText(context.view, IDC_PROGRAM_TEXT, kProgramTextLimit);
        if (holdsNothing(typed)) return listing::refuse(context.view, text::kMoreInput);
        remembered_ = std::move(typed);
        listing::queueLine(CommandText(keyword_), true);
        for (std::string_view piece : programLines(remembered_)) listing::queueLine(CommandText(piece), true);
        return 1;
    }

private:
    std::string_view keyword_;
    std::string& remembered_;
};

}  // namespace

DialogBehaviour& basicBehaviour() {
    static ProgramDialog dialog(text::kBasic, basicText);
    return dialog;
}

DialogBehaviour& matrixBehaviour() {
    static ProgramDialog dialog(text::kMatrix, matrixText);
    return dialog;
}

void listing::resetProgramDialogs() {
    basicText.clear();
    matrixText.clear();
}

}  // namespace kvs::data
