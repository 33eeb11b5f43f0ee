// A hypothesis dialog: a multi-line text of constraints that becomes
// "HYPOTHESIS", the "CONSTRAIN " lines and "TEST" (hypothesisLines) after
// the procedure line of Procedure. Logit (290), GLM (261) and ANOVA (262)
// each have one, with settings of their own.
#pragma once

#include <string>
#include <string_view>

#include "core/blank_text.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_composers.h"

namespace kvs::stats {

struct HypothesisSettings {
    std::string text;
};

template <const std::string_view& Procedure>
class HypothesisDialog : public ProcedureDialog<HypothesisSettings> {
public:
    HypothesisDialog()
        : ProcedureDialog(settings(), Bindings<HypothesisSettings>().text(IDC_HYPOTHESIS_TEXT,
                                                                          &HypothesisSettings::text, kLimit)) {}

    // An empty text is forgotten and the dialog stays open, without a word.
    bool accept(DialogContext& context, int button) override {
        if (isBlankText(context.view.text(IDC_HYPOTHESIS_TEXT))) {
            stored_ = HypothesisSettings{};
            return false;
        }
        return ProcedureDialog::accept(context, button);
    }

    // Nothing typed: OK stays open without a word, and the preview is empty.
    std::optional<Composition> preview(DialogContext& context) override {
        if (isBlankText(context.view.text(IDC_HYPOTHESIS_TEXT))) return Composition{};
        return ProcedureDialog::preview(context);
    }

private:
    static constexpr std::size_t kLimit = 30000;

    static HypothesisSettings& settings() {
        static HypothesisSettings remembered;
        return remembered;
    }

    ProcedureBlock compose(const HypothesisSettings& s, const DialogView&) const override {
        return {Procedure, {}, {}, hypothesisLines(s.text)};
    }
};

}  // namespace kvs::stats
