// Note, Page Title and Print Format: settings of the output, not of the
// data, so they leave the data-command flag alone.
#include <charconv>

#include "core/bound_dialog.h"
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "data/composers.h"
#include "data/data_texts.h"
#include "data/text_pieces.h"

namespace kvs::data {

namespace {

struct PageTitleSettings {
    TextLines titles;
    bool off = false;
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
    for (std::size_t i = 0; i < lines.size(); ++i) lines[i] = bounded(view.text(IDC_TEXT_LINE1 + static_cast<int>(i)), limit);
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

    // A blank first line queues nothing; the dialog still closes.
    bool accept(DialogContext& context, int) override {
        readLines(context.view, noteLines, kNoteFieldLimit);
        deliver(context.view.handle(), composition(noteLines));
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        auto lines = noteLines;
        readLines(context.view, lines, kNoteFieldLimit);
        return composition(lines);
    }

private:
    static Composition composition(const TextLines& lines) {
        CommandText line;
        return composeNote(lines, line) ? Composition().add(line) : Composition();
    }

public:

    void addDefaults(DefaultsTable& table) override { table.record(noteLines); }
};

class PageTitleDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        showLines(context.view, pageTitle.titles, kTitleFieldLimit);
        context.view.setChecked(IDC_TITLE_OFF, pageTitle.off);
        return 0;
    }

    bool accept(DialogContext& context, int) override {
        read(context.view, pageTitle);
        return deliver(context.view.handle(), composition(pageTitle));
    }

    std::optional<Composition> preview(DialogContext& context) override {
        auto settings = pageTitle;
        read(context.view, settings);
        return composition(settings);
    }

private:
    static void read(const DialogView& view, PageTitleSettings& settings) {
        readLines(view, settings.titles, kTitleFieldLimit);
        settings.off = view.isChecked(IDC_TITLE_OFF);
    }
    static Composition composition(const PageTitleSettings& settings) {
        CommandText line;
        composePageTitle(settings.titles, settings.off, line);
        return Composition().add(line);
    }

public:

    void addDefaults(DefaultsTable& table) override { table.record(pageTitle); }
};

class PrintFormatDialog : public BoundDialog<PrintSettings> {
public:
    PrintFormatDialog()
        : BoundDialog(print, Bindings<PrintSettings>()
                                 .radio({IDC_PRINT_PORTRAIT, IDC_PRINT_LANDSCAPE}, &PrintSettings::pages, Commit::OnClick)
                                 .radio({IDC_PRINT_SHORT, IDC_PRINT_LONG}, &PrintSettings::length, Commit::OnClick)
                                 .text(IDC_PRINT_DECIMALS, &PrintSettings::decimals, kDecimalsFieldLimit)
                                 .check(IDC_PRINT_UNDERFLOW, &PrintSettings::underflow)
                                 .check(IDC_PRINT_PAGE_NUMBERS, &PrintSettings::pageNumbers)) {}

private:
    bool prepare(DialogView&, PrintSettings& settings) override {
        settings.decimalsNumber = leadingNumber(settings.decimals);
        return true;
    }
    Composition compose(const PrintSettings& settings, const DialogView&) const override {
        return composePrintFormat(settings);
    }
    Composition previewOf(const DialogView& view, PrintSettings& settings) const override {
        settings.decimalsNumber = leadingNumber(settings.decimals);
        return compose(settings, view);
    }
};

}  // namespace

Composition composePrintFormat(const PrintSettings& s) {
    Composition composition;
    composition.add(CommandText(text::kPrint).append(s.length == IDC_PRINT_SHORT ? text::kPrintShort : text::kPrintLong));
    CommandText format(text::kFormat);
    if (hasText(s.decimals)) format.append(s.decimals);
    if (s.underflow) format.append(text::kUnderflow);
    return composition.add(format);
}

DialogBehaviour& noteBehaviour() { return soleInstance<NoteDialog>(); }
DialogBehaviour& pageTitleBehaviour() { return soleInstance<PageTitleDialog>(); }
DialogBehaviour& printFormatBehaviour() { return soleInstance<PrintFormatDialog>(); }

}  // namespace kvs::data
