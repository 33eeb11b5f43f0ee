// Survival: Estimate Model (292): the time, covariates, censoring, lower
// time and strata variables, a life table, and the time-dependent
// covariates: named sets edited by the set editor and shown as "*" entries
// at the top of the source list, so they can be chosen as covariates.
#include <algorithm>

#include "core/blank_text.h"
#include "core/descriptor.h"
#include "core/messages.h"
#include "stats/estimate_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/set_editor.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

bool isSetEntry(const std::string& name) { return !name.empty() && name.front() == '*'; }

const NamedSet* setNamed(const ChoiceSets& sets, std::string_view name) {
    const auto found = std::find_if(sets.sets.begin(), sets.sets.end(),
                                    [&](const NamedSet& set) { return set.name == name; });
    return found == sets.sets.end() ? nullptr : &*found;
}

// Appends keyword and the first name of a one-variable list, after " / "
// for the first option and ", " between them.
void appendListOption(CommandText& line, bool& first, std::string_view keyword, const Names& list) {
    if (list.empty()) return;
    line.append(first ? text::kSurvivalOptions : text::kOptionComma).append(keyword).append(list.front());
    first = false;
}

}  // namespace

ProcedureBlock composeSurvival(const SurvivalSettings& s, const SurvivalLists& lists) {
    const auto refuse = [](std::string_view message) { return ProcedureBlock::refuse(text::kSurvival, message); };
    if (lists.time.empty()) return refuse(kvs::text::kSelectVariables);
    if (lists.covariates.empty() && !s.lifeTable) return refuse(text::kSelectIndependents);
    // Each "*" covariate must still be a set, and a set with its values.
    std::vector<const NamedSet*> used;
    for (const std::string& covariate : lists.covariates) {
        if (!isSetEntry(covariate)) continue;
        const NamedSet* set = setNamed(s.covariates, std::string_view(covariate).substr(1));
        if (!set) return refuse(text::kSelectCovariates);
        if (set->variables.empty()) return refuse(text::kSpecifyCovariates);
        used.push_back(set);
    }
    const std::string& maximumTime = s.covariates.categories;
    if (!used.empty() && isBlankText(maximumTime)) return refuse(text::kMaximumTimeMissing);

    Composition body;
    for (const NamedSet& set : s.covariates.sets) {
        if (std::find(used.begin(), used.end(), &set) == used.end()) continue;
        CommandText line(text::kSet);
        line.append(set.name).append(text::kSetEquals);
        for (const std::string& variable : set.variables) line.append(variable).append(' ');
        body.add(line);
    }
    CommandText model(text::kModel);
    model.append(lists.time.front());
    if (!lists.covariates.empty()) {
        Names names;
        for (const std::string& covariate : lists.covariates)
            names.push_back(isSetEntry(covariate) ? covariate.substr(1) : covariate);
        model.append(text::kEquals);
        joinNames(names, model, '+');
    }
    bool first = true;
    appendListOption(model, first, text::kCensor, lists.censor);
    appendListOption(model, first, text::kLower, lists.lower);
    appendListOption(model, first, text::kStrata, lists.strata);
    if (!used.empty()) appendListOption(model, first, text::kMaximumTime, {std::string(withoutBlanks(maximumTime))});
    body.add(model);
    if (!lists.covariates.empty()) body.add(text::kEstimatePlain);
    if (s.lifeTable) body.add(text::kLifeTable);
    return {text::kSurvival, text::kSurvivalFile, {}, std::move(body)};
}

namespace {

constexpr std::uint32_t kCovariatesHelp = 1292;
SurvivalSettings survivalSettings;

class SurvivalDialog : public ProcedureDialog<SurvivalSettings> {
public:
    SurvivalDialog()
        : ProcedureDialog(survivalSettings,
                          Bindings<SurvivalSettings>().check(IDC_SURV_LIFE_TABLE, &SurvivalSettings::lifeTable)) {}

    std::vector<OwnList> ownLists() override {
        return {{IDC_DEPENDENT, &time_, 1}, {IDC_TARGET3, &lower_, 1}, {IDC_TARGET4, &strata_, 1}};
    }

    void addDefaults(DefaultsTable& table) override {
        ProcedureDialog::addDefaults(table);
        table.record(time_);
        table.record(lower_);
        table.record(strata_);
    }

private:
    // The sets are offered in the source list whenever there are any.
    void shown(DialogView& view) override { showSetsInSource(view, IDC_SOURCE, working_.covariates.sets); }

    void changed(DialogContext& context, const Notification& n) override {
        if (!n.clicked(IDC_SURV_TDC)) return;
        DialogView& view = context.view;
        SetEditor sets(working_.covariates, 292, kCovariatesHelp);
        ui().runModal(view.handle(), "SurvivalTdc", sets);
        if (sets.continued()) showSetsInSource(view, IDC_SOURCE, working_.covariates.sets);
    }

    ProcedureBlock compose(const SurvivalSettings& s, const DialogView& view) const override {
        SurvivalLists lists;
        lists.time = listNames(view, IDC_DEPENDENT);
        lists.covariates = listNames(view, IDC_TARGET1);
        lists.censor = listNames(view, IDC_TARGET2);
        lists.lower = listNames(view, IDC_TARGET3);
        lists.strata = listNames(view, IDC_TARGET4);
        return composeSurvival(s, lists);
    }

    SelectionArray time_{};
    SelectionArray lower_{};
    SelectionArray strata_{};
};

}  // namespace

DialogBehaviour& survivalBehaviour() { return soleInstance<SurvivalDialog>(); }

}  // namespace kvs::stats
