// Note, Page Title and Print Format: settings of the output, not of the
// data, so they leave the data-command flag alone.
#include <charconv>

#include "data/listing_compose.h"
#include "data/listing_dialogs.h"
#include "data/data_texts.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

struct PageTitleSettings {
    TextLines titles;
    bool off = false;
};

struct PrintSettings {
    int pages = IDC_PRINT_PORTRAIT;   // 32/33, stored at each click
    int length = IDC_PRINT_LONG;      // 34/35, stored at each click
    std::string decimals{text::kDefaultDecimals};
    int decimalsNumber = 3;
    bool underflow = false;
    bool pageNumbers = false;
};

TextLines noteLines;
PageTitleSettings pageTitle;
PrintSettings print;

void showLines(DialogView& view, const TextLines& lines, std::size_t limit) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        view.limitText(IDC_TEXT_LINE1 + static_cast<int>(i), limit);
        view.setText(IDC_TEXT_LINE1 + static_cast<int>(i), lines[i]);
    }
}

void readLines(const DialogView& view, TextLines& lines, std::size_t limit) {
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i] = listing::fieldText(view, IDC_TEXT_LINE1 + static_cast<int>(i), limit);
}

// The leading number of a text, 0 when there is none.
int leadingNumber(std::string_view text) {
    const std::size_t start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) return 0;
    int value = 0;
    std::from_chars(text.data() + start, text.data() + text.size(), value);
    return value;
}

class NoteDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        showLines(context.view, noteLines, kNoteFieldLimit);
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        readLines(context.view, noteLines, kNoteFieldLimit);
        CommandText line;
        // A blank first line queues nothing; the dialog still closes.
        if (composeNote(noteLines, line)) listing::queueLine(line, false);
        return 1;
    }
};

class PageTitleDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        showLines(context.view, pageTitle.titles, kTitleFieldLimit);
        context.view.setChecked(IDC_TITLE_OFF, pageTitle.off);
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        readLines(context.view, pageTitle.titles, kTitleFieldLimit);
        pageTitle.off = context.view.isChecked(IDC_TITLE_OFF);
        CommandText line;
        composePageTitle(pageTitle.titles, pageTitle.off, line);
        listing::queueLine(line, false);
        return 1;
    }
};

class PrintFormatDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        DialogView& view = context.view;
        listing::showChoice(view, IDC_PRINT_PORTRAIT, IDC_PRINT_LANDSCAPE, print.pages);
        listing::showChoice(view, IDC_PRINT_SHORT, IDC_PRINT_LONG, print.length);
        view.limitText(IDC_PRINT_DECIMALS, kDecimalsFieldLimit);
        view.setText(IDC_PRINT_DECIMALS, print.decimals);
        view.setChecked(IDC_PRINT_UNDERFLOW, print.underflow);
        view.setChecked(IDC_PRINT_PAGE_NUMBERS, print.pageNumbers);
        return 0;
    }

    int command(DialogContext& context, int controlId, int notifyCode) override {
        DialogView& view = context.view;
        if (notifyCode == kButtonClicked) {
            if (controlId == IDC_PRINT_PORTRAIT || controlId == IDC_PRINT_LANDSCAPE) print.pages = controlId;
            if (controlId == IDC_PRINT_SHORT || controlId == IDC_PRINT_LONG) print.length = controlId;
        }
        if (controlId != kIdOk) return 0;
        print.decimals = listing::fieldText(view, IDC_PRINT_DECIMALS, kDecimalsFieldLimit);
        print.decimalsNumber = leadingNumber(print.decimals);
        print.underflow = view.isChecked(IDC_PRINT_UNDERFLOW);
        print.pageNumbers = view.isChecked(IDC_PRINT_PAGE_NUMBERS);

        CommandText line(text::kPrint);
        line.append(print.length == IDC_PRINT_SHORT ? text::kPrintShort : text::kPrintLong);
        listing::queueLine(line, false);
        line.clear();
        line.append(text::kFormat).append(print.decimals);
        if (print.underflow) line.append(text::kUnderflow);
        listing::queueLine(line, false);
        return 1;
    }
};

}  // namespace

DialogBehaviour& noteBehaviour() { return soleInstance<NoteDialog>(); }
DialogBehaviour& pageTitleBehaviour() { return soleInstance<PageTitleDialog>(); }
DialogBehaviour& printFormatBehaviour() { return soleInstance<PrintFormatDialog>(); }

void listing::resetOutputDialogs() {
    noteLines = {};
    pageTitle = {};
    print = {};
}

}  // namespace kvs::data
