// Design of Experiments (281): one line that generates a design, after the
// DESIGN procedure line.
#include <algorithm>
#include <iterator>

#include "core/blank_text.h"
#include "core/messages.h"
#include "stats/design_composers.h"
#include "stats/line_endings.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

int designOf(const DesignSettings& s) {
    return s.design >= IDC_DOE_FULL && s.design <= IDC_DOE_TAGUCHI ? s.design : IDC_DOE_FULL;
}

}  // namespace

bool designTakesFactors(int design) {
    return design == IDC_DOE_FULL || design == IDC_DOE_FRACTIONAL || design == IDC_DOE_PLACKETT ||
           design == IDC_DOE_BOX;
}
bool designTakesLevels(int design) {
    return design == IDC_DOE_FULL || design == IDC_DOE_FRACTIONAL || design == IDC_DOE_LATIN;
}
bool designTakesRuns(int design) { return design == IDC_DOE_FRACTIONAL || design == IDC_DOE_PLACKETT; }

ProcedureBlock composeDesign(const DesignSettings& s) {
    const int design = designOf(s);
    const bool factorial = design == IDC_DOE_FULL || design == IDC_DOE_FRACTIONAL;
    // The sizes each design cannot do without; Plackett-Burman's factors
    // follow from its runs when not given.
    const bool needsFactors = designTakesFactors(design) && design != IDC_DOE_PLACKETT;
    const bool missing = (needsFactors && isBlankText(s.factors)) ||
                         (design == IDC_DOE_LATIN && isBlankText(s.levels)) ||
                         (designTakesRuns(design) && isBlankText(s.runs));
    if (missing) return ProcedureBlock::refuse(text::kDesign, kvs::text::kProvideMoreInput);

    CommandText line(text::kDesignVerbs[design - IDC_DOE_FULL]);
    line.append(text::kOptionsSlash);
    if (designTakesFactors(design)) appendOption(line, text::kFactors, s.factors);
    if (factorial) appendOptionUnlessDefault(line, text::kLevels, s.levels, text::kDefaultLevels);
    if (design == IDC_DOE_LATIN) appendOption(line, text::kLevels, s.levels);
    if (designTakesRuns(design)) appendOption(line, text::kRunCount, s.runs);
    if (design == IDC_DOE_LATIN && s.squares) line.append(text::kSquares);
    if (design == IDC_DOE_TAGUCHI) {
        const std::size_t last = std::size(text::kTaguchiArrays) - 1;
        const std::size_t array = s.array < 0 ? 0 : std::min(static_cast<std::size_t>(s.array), last);
        appendOption(line, text::kDesignType, text::kTaguchiArrays[array]);
    }
    appendOptionUnlessDefault(line, text::kReplications, s.replications, text::kDefaultReplications);
    if (s.randomize) line.append(text::kRandomize);
    if (s.letters) line.append(text::kLetters);
    if (s.blocks) line.append(text::kBlock);
    closeOptions(line);
    return {text::kDesign, text::kDesignFile, {}, Composition().add(line)};
}

namespace {

Bindings<DesignSettings> designBindings() {
    Bindings<DesignSettings> b;
    b.radio({IDC_DOE_FULL, IDC_DOE_FRACTIONAL, IDC_DOE_LATIN, IDC_DOE_PLACKETT, IDC_DOE_BOX, IDC_DOE_TAGUCHI},
            &DesignSettings::design)
        .number(IDC_DOE_FACTORS, &DesignSettings::factors, kStoredValueLimit)
        .number(IDC_DOE_LEVELS, &DesignSettings::levels, kStoredValueLimit)
        .number(IDC_DOE_RUNS, &DesignSettings::runs, kStoredValueLimit)
        .number(IDC_DOE_REPS, &DesignSettings::replications, kStoredValueLimit)
        .combo(IDC_DOE_ARRAY, &DesignSettings::array)
        .check(IDC_DOE_RANDOM, &DesignSettings::randomize)
        .check(IDC_DOE_LETTERS, &DesignSettings::letters)
        .check(IDC_DOE_BLOCK, &DesignSettings::blocks)
        .check(IDC_DOE_SQUARES, &DesignSettings::squares);
    return b;
}

class DesignDialog : public ProcedureDialog<DesignSettings> {
public:
    DesignDialog() : ProcedureDialog(settings(), designBindings()) {}

    int init(DialogContext& context) override {
        context.view.comboClear(IDC_DOE_ARRAY);
        for (std::string_view array : text::kTaguchiArrays) context.view.comboAdd(IDC_DOE_ARRAY, array);
        return ProcedureDialog::init(context);
    }

private:
    static DesignSettings& settings() {
        static DesignSettings remembered;
        return remembered;
    }
    int chosen(const DialogView& view) const {
        for (int id = IDC_DOE_FULL; id <= IDC_DOE_TAGUCHI; ++id)
            if (view.isChecked(id)) return id;
        return IDC_DOE_FULL;
    }
    // The fields of the chosen design are enabled.
    void shown(DialogView& view) override {
        const int design = chosen(view);
        view.enable(IDC_DOE_FACTORS, designTakesFactors(design));
        view.enable(IDC_DOE_LEVELS, designTakesLevels(design));
        view.enable(IDC_DOE_RUNS, designTakesRuns(design));
        view.enable(IDC_DOE_ARRAY, design == IDC_DOE_TAGUCHI);
        view.enable(IDC_DOE_SQUARES, design == IDC_DOE_LATIN);
    }
    void changed(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked && n.controlId >= IDC_DOE_FULL && n.controlId <= IDC_DOE_TAGUCHI)
            shown(context.view);
    }
    ProcedureBlock compose(const DesignSettings& s, const DialogView&) const override { return composeDesign(s); }
};

}  // namespace

DialogBehaviour& designBehaviour() { return soleInstance<DesignDialog>(); }

}  // namespace kvs::stats
