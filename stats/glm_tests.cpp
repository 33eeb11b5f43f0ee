// The tests after a GLM or ANOVA estimation: GLM: Pairwise Comparisons
// (260) over one factor, for every dependent or those named, and the
// hypothesis dialogs of GLM (261) and ANOVA (262), which share Logit's
// hypothesis lines.
#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/estimate_composers.h"
#include "stats/hypothesis_dialog.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"

namespace kvs::stats {

ProcedureBlock composePairwise(const PairwiseSettings& s, const Names& factor, const Names& dependents) {
    if (factor.empty()) return ProcedureBlock::refuse(text::kGlm, text::kSelectFactors);
    const int test = s.test - IDC_POST_BONFERRONI;
    const bool known = test >= 0 && test < static_cast<int>(std::size(text::kPostTests));
    CommandText post(text::kPost);
    post.append(factor.front()).append(text::kPostTests[known ? test : 0]);
    Composition body;
    body.add(text::kHypothesis);
    body.add(post);
    if (!dependents.empty()) {
        CommandText depend(text::kDepend);
        joinNames(dependents, depend, ' ');
        body.add(depend);
    }
    body.add(text::kTestLine);
    return {text::kGlm, {}, {}, std::move(body)};
}

namespace {

PairwiseSettings pairwiseSettings;

class PairwiseDialog : public ProcedureDialog<PairwiseSettings> {
public:
    PairwiseDialog()
        : ProcedureDialog(pairwiseSettings,
                          Bindings<PairwiseSettings>().radio(
                              {IDC_POST_BONFERRONI, IDC_POST_TUKEY, IDC_POST_LSD, IDC_POST_SCHEFFE},
                              &PairwiseSettings::test)) {}

private:
    ProcedureBlock compose(const PairwiseSettings& s, const DialogView& view) const override {
        return composePairwise(s, listNames(view, IDC_TARGET1), listNames(view, IDC_TARGET2));
    }
};

}  // namespace

DialogBehaviour& glmPairwiseBehaviour() { return soleInstance<PairwiseDialog>(); }
DialogBehaviour& glmHypothesisBehaviour() { return soleInstance<HypothesisDialog<text::kGlm>>(); }
DialogBehaviour& anovaHypothesisBehaviour() { return soleInstance<HypothesisDialog<text::kAnova>>(); }

}  // namespace kvs::stats
