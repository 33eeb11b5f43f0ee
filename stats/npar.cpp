// The nonparametric tests (226 to 231, 268): one NPAR line each, from the
// variables of list 10, the grouping variable of list 11 where the test
// compares groups, and the test's own options. One behaviour serves them all.
#include <initializer_list>

#include "core/blank_text.h"
#include "core/messages.h"
#include "stats/npar_composers.h"
#include "stats/procedure_dialog.h"
#include "stats/stats_dialogs_list.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

std::string_view verbOf(std::uint16_t commandId) {
    switch (commandId) {
    case 226: return text::kFriedman;
    case 228: return text::kKruskal;
    case 229: return text::kSign;
    case 230: return text::kRuns;
    case 231: return text::kWilcoxon;
    default: return text::kKolmogorov;  // 227, 268
    }
}

// A test of related variables compares two or more of them.
bool comparesVariables(std::uint16_t commandId) { return commandId == 226 || commandId == 229 || commandId == 231; }

// The distribution keyword alone while every parameter is its default,
// else with "=" and the parameters separated by commas.
void appendDistribution(CommandText& line, std::string_view keyword,
                        std::initializer_list<std::pair<std::string_view, std::string_view>> parameters) {
    const CommandText::Piece piece(line);
    line.append(keyword);
    bool defaults = true;
    for (const auto& [value, standard] : parameters) defaults = defaults && value == standard;
    if (defaults) return;
    std::string_view separator = text::kParameters;
    for (const auto& [value, standard] : parameters) {
        line.append(separator).append(value);
        separator = text::kParameterSeparator;
    }
}

// The parameters the chosen distribution needs are all given.
bool parametersGiven(const NparSettings& s) {
    switch (s.distribution) {
    case IDC_KS_UNIFORM: return !isBlankText(s.lower) && !isBlankText(s.upper);
    case IDC_KS_EXPONENTIAL: return !isBlankText(s.scale);
    case IDC_KS_LILLIEFORS: return true;
    default: return !isBlankText(s.mean) && !isBlankText(s.sd);
    }
}

void appendDistribution(CommandText& line, const NparSettings& s) {
    switch (s.distribution) {
    case IDC_KS_UNIFORM:
        appendDistribution(line, text::kUniform, {{s.lower, text::kDefaultLower}, {s.upper, text::kDefaultUpper}});
        break;
    case IDC_KS_EXPONENTIAL: appendDistribution(line, text::kExponential, {{s.scale, text::kDefaultScale}}); break;
    case IDC_KS_LILLIEFORS: line.append(text::kLilliefors); break;
    default: appendDistribution(line, text::kNormal, {{s.mean, text::kDefaultMean}, {s.sd, text::kDefaultSd}});
    }
}

}  // namespace

ProcedureBlock composeNpar(std::uint16_t commandId, const NparSettings& s, const Names& variables,
                           const Names& grouping) {
    if (variables.empty()) return ProcedureBlock::refuse(text::kNpar, kvs::text::kSelectVariables);
    if (commandId == 228 && grouping.empty()) return ProcedureBlock::refuse(text::kNpar, text::kSelectFactors);
    const bool oneVariable = variables.size() < 2;
    if (oneVariable && (comparesVariables(commandId) || (commandId == 227 && grouping.empty())))
        return ProcedureBlock::refuse(text::kNpar, kvs::text::kProvideMoreInput);
    if (commandId == 268 && !parametersGiven(s)) return ProcedureBlock::refuse(text::kNpar, kvs::text::kProvideMoreInput);

    CommandText line(verbOf(commandId));
    joinNames(variables, line, ' ');
    if (!grouping.empty() && (commandId == 227 || commandId == 228 || commandId == 268)) {
        const CommandText::Piece piece(line);
        line.append(text::kGroupedBy).append(grouping.front());
    }
    if (commandId == 230) appendOption(line, text::kCut, s.cut);
    if (commandId == 268) appendDistribution(line, s);
    return {text::kNpar, text::kNparFile, {}, Composition().add(line)};
}

namespace {

template <std::uint16_t Id>
class NparDialog : public ProcedureDialog<NparSettings> {
public:
    NparDialog() : ProcedureDialog(settings(), bindings()) {}

private:
    static constexpr bool kGrouped = Id == 227 || Id == 228 || Id == 268;

    static NparSettings& settings() {
        static NparSettings remembered;
        return remembered;
    }
    static Bindings<NparSettings> bindings() {
        Bindings<NparSettings> b;
        if (Id == 230) b.number(IDC_RUNS_CUT, &NparSettings::cut, kStoredValueLimit);
        if (Id == 268) {
            b.radio({IDC_KS_NORMAL, IDC_KS_UNIFORM, IDC_KS_EXPONENTIAL, IDC_KS_LILLIEFORS},
                    &NparSettings::distribution)
                .number(IDC_KS_MEAN, &NparSettings::mean, kStoredValueLimit)
                .number(IDC_KS_SD, &NparSettings::sd, kStoredValueLimit)
                .number(IDC_KS_LOWER, &NparSettings::lower, kStoredValueLimit)
                .number(IDC_KS_UPPER, &NparSettings::upper, kStoredValueLimit)
                .number(IDC_KS_SCALE, &NparSettings::scale, kStoredValueLimit)
                .enableWith(IDC_KS_MEAN, IDC_KS_NORMAL)
                .enableWith(IDC_KS_SD, IDC_KS_NORMAL)
                .enableWith(IDC_KS_LOWER, IDC_KS_UNIFORM)
                .enableWith(IDC_KS_UPPER, IDC_KS_UNIFORM)
                .enableWith(IDC_KS_SCALE, IDC_KS_EXPONENTIAL);
        }
        return b;
    }

    ProcedureBlock compose(const NparSettings& s, const DialogView& view) const override {
        static const Names none;
        return composeNpar(Id, s, listNames(view, IDC_TARGET1), kGrouped ? listNames(view, IDC_TARGET2) : none);
    }
};

}  // namespace

DialogBehaviour& friedmanBehaviour() { return soleInstance<NparDialog<226>>(); }
DialogBehaviour& twoSampleKsBehaviour() { return soleInstance<NparDialog<227>>(); }
DialogBehaviour& kruskalWallisBehaviour() { return soleInstance<NparDialog<228>>(); }
DialogBehaviour& signTestBehaviour() { return soleInstance<NparDialog<229>>(); }
DialogBehaviour& runsTestBehaviour() { return soleInstance<NparDialog<230>>(); }
DialogBehaviour& wilcoxonBehaviour() { return soleInstance<NparDialog<231>>(); }
DialogBehaviour& oneSampleKsBehaviour() { return soleInstance<NparDialog<268>>(); }

}  // namespace kvs::stats
