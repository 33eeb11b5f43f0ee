// The t-tests (256 two-sample, 257 paired, 258 one-sample): one TEST line,
// its adjustments and confidence, after the TTEST procedure line.
#include "core/blank_text.h"
#include "core/messages.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_composers.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

Bindings<TtestSettings> ttestBindings(bool mean) {
    Bindings<TtestSettings> bindings;
    bindings.check(IDC_TTEST_BONFERRONI, &TtestSettings::bonferroni)
        .check(IDC_TTEST_DUNN, &TtestSettings::dunnSidak)
        .number(IDC_TTEST_CONFIDENCE, &TtestSettings::confidence, kStoredValueLimit);
    if (mean) bindings.number(IDC_TTEST_MEAN, &TtestSettings::mean, kStoredValueLimit);
    return bindings;
}

template <std::uint16_t Id>
class TtestDialog : public ProcedureDialog<TtestSettings> {
public:
    TtestDialog() : ProcedureDialog(settings(), ttestBindings(Id == 258)) {}

private:
    static TtestSettings& settings() {
        static TtestSettings remembered;
        return remembered;
    }
    ProcedureBlock compose(const TtestSettings& s, const DialogView& view) const override {
        static const Names none;
        return composeTtest(Id, s, listNames(view, IDC_TARGET1), Id == 256 ? listNames(view, IDC_TARGET2) : none);
    }
};

}  // namespace

ProcedureBlock composeTtest(std::uint16_t commandId, const TtestSettings& s, const Names& variables,
                            const Names& grouping) {
    const Composition named = namesLine(text::kTest, variables);
    if (named.refused()) return {text::kTtest, {}, {}, named};
    if (commandId == 258 && isBlankText(s.mean)) return ProcedureBlock::refuse(text::kTtest, text::kEnterMean);
    CommandText line(named.lines.front());
    if (commandId == 256 && !grouping.empty()) line.append(text::kGroupedBy).append(grouping.front());
    if (commandId == 258) appendOption(line, "=", s.mean);
    bool adjusted = false;
    if (s.bonferroni) {
        line.append(text::kBonferroni);
        adjusted = true;
    }
    if (s.dunnSidak) {
        if (!adjusted) line.append(text::kAdjustSlash);
        line.append(text::kDunn);
        adjusted = true;
    }
    if (!isBlankText(s.confidence) && s.confidence != text::kDefaultConfidence) {
        // Without an adjustment the slash runs on: "TEST X * G/  CONF=.99".
        const CommandText::Piece piece(line);
        if (!adjusted) line.append(text::kConfidenceSlash);
        appendOption(line, text::kConfidence, s.confidence);
    }
    line.stripTrailing('/');
    return {text::kTtest, {}, {}, Composition().add(line)};
}

DialogBehaviour& twoSampleTtestBehaviour() { return soleInstance<TtestDialog<256>>(); }
DialogBehaviour& pairedTtestBehaviour() { return soleInstance<TtestDialog<257>>(); }
DialogBehaviour& oneSampleTtestBehaviour() { return soleInstance<TtestDialog<258>>(); }

}  // namespace kvs::stats
