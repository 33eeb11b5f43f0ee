#include "stats/multivariate_composers.h"

#include <span>

#include "core/blank_text.h"
#include "core/messages.h"
#include "stats/line_endings.h"
#include "stats/stats_texts.h"
#include "stats/stored_options.h"

namespace kvs::stats {

namespace {

// The keyword of a choice box's position; the first entry's for a position
// out of range (nothing chosen).
std::string_view keywordAt(std::span<const text::Choice> choices, int position) {
    if (position < 0 || static_cast<std::size_t>(position) >= choices.size()) position = 0;
    return choices[static_cast<std::size_t>(position)].keyword;
}

// A keyword with the choice of a box, written unless the box shows its first
// entry, the procedure's own default.
void appendChoiceUnlessFirst(CommandText& line, std::string_view keyword, std::span<const text::Choice> choices,
                             int position) {
    if (position <= 0 || static_cast<std::size_t>(position) >= choices.size()) return;
    const CommandText::Piece piece(line);
    line.append(keyword).append(choices[static_cast<std::size_t>(position)].keyword);
}

// "PRINT SHORT" or "PRINT LONG"; nothing for the medium length.
void addPrintLine(Composition& lines, int print) {
    if (print == kPrintShort) lines.add(text::kPrintShort);
    if (print == kPrintLong) lines.add(text::kPrintLong);
}

// The verb and the names of list 10, or the refusal.
bool startLine(std::string_view verb, const Names& variables, CommandText& line, std::string& refusal) {
    const Composition named = namesLine(std::string(verb) + ' ', variables);
    if (named.refused()) {
        refusal = named.refusal;
        return false;
    }
    line = CommandText(named.lines.front());
    return true;
}

// "MODEL " and the names: the first line of Factor Analysis and MDS.
bool modelOf(const Names& variables, CommandText& line, std::string& refusal) {
    if (variables.empty()) {
        refusal = std::string(kvs::text::kSelectVariables);
        return false;
    }
    line = CommandText(text::kModel);
    joinNames(variables, line, ' ');
    return true;
}

}  // namespace

ProcedureBlock composeBasicStats(const BasicStatsSettings& s, const Names& variables, const Names& grouping) {
    const bool oneway = !grouping.empty();
    CommandText line;
    std::string refusal;
    if (!startLine(oneway ? text::kOneway : text::kStatistics, variables, line, refusal))
        return ProcedureBlock::refuse(text::kStats, refusal);
    if (oneway) {
        {
            const CommandText::Piece piece(line);
            line.append(text::kWith).append(grouping.front());
        }
        if (s.tukey) line.append(text::kTukey);
    } else if (s.statistics != BasicStatsSettings::kDefaultStatistics || s.cim) {
        // The statistics are listed when they differ from the procedure's
        // own choice, and with the confidence interval, which would else
        // stand alone.
        line.append(text::kStatisticsSlash);
        for (std::size_t i = 0; i < std::size(text::kStatisticsList); ++i)
            if (s.statistics & (1u << i)) line.append(text::kStatisticsList[i].keyword);
        if (s.cim) {
            const CommandText::Piece piece(line);
            line.append(text::kCim);
            appendOptionUnlessDefault(line, text::kCimValue, s.confidence, text::kDefaultCim);
        }
        closeOptions(line);
    }
    Composition lines;
    addPrintLine(lines, s.print);
    lines.add(line);
    std::string qualifier;
    if (s.saveKind >= 1) qualifier = std::string(text::kSaveAggregated);
    return {text::kStats, oneway ? text::kOnewayFile : text::kStatsFile, qualifier, lines};
}

ProcedureBlock composeCronbach(const Names& variables) {
    const Composition named = namesLine(text::kCronbach, variables);
    if (named.refused()) return ProcedureBlock::refuse(text::kStats, named.refusal);
    return {text::kStats, text::kCronbachFile, {}, named};
}

ProcedureBlock composeStem(const StemSettings& s, const Names& variables) {
    const Composition named = namesLine(text::kStem, variables);
    if (named.refused()) return ProcedureBlock::refuse(text::kStats, named.refusal);
    CommandText line(named.lines.front());
    appendOption(line, text::kStemLines, s.lines);
    return {text::kStats, {}, {}, Composition().add(line)};
}

ProcedureBlock composeCorrelations(const CorrSettings& s, const Names& variables, const Names& with) {
    CommandText line;
    std::string refusal;
    if (!startLine(keywordAt(text::kCorrMeasures, s.measure), variables, line, refusal))
        return ProcedureBlock::refuse(text::kCorr, refusal);
    if (!with.empty()) {
        line.append(text::kWith);
        joinNames(with, line, ' ');
    }
    if (s.missing == IDC_CORR_PAIRWISE) line.append(text::kCorrPairwise);
    return {text::kCorr, text::kCorrFile, {}, Composition().add(line)};
}

ProcedureBlock composeJoin(const JoinSettings& s, const Names& variables, bool saving) {
    CommandText line;
    std::string refusal;
    if (!startLine(text::kJoin, variables, line, refusal)) return ProcedureBlock::refuse(text::kCluster, refusal);
    if (saving && isBlankText(s.saveNumber)) return ProcedureBlock::refuse(text::kCluster, kvs::text::kProvideMoreInput);
    line.append(text::kClusterSlash);
    line.append(s.clustering == IDC_JOIN_COLUMNS  ? text::kColumns
                : s.clustering == IDC_JOIN_MATRIX ? text::kMatrix
                                                  : text::kRows);
    appendChoiceUnlessFirst(line, text::kDistance, text::kDistances, s.distance);
    if (s.distance == text::kMinkowski) appendOption(line, text::kPower, s.power);
    appendChoiceUnlessFirst(line, text::kLinkage, text::kLinkages, s.linkage);
    if (s.polar) line.append(text::kPolar);
    std::string qualifier;
    if (saving) qualifier = std::string(text::kNumber) + std::string(withoutBlanks(s.saveNumber));
    return {text::kCluster, text::kJoinFile, qualifier, Composition().add(line)};
}

ProcedureBlock composeKmeans(const KmeansSettings& s, const Names& variables) {
    CommandText line;
    std::string refusal;
    if (!startLine(text::kKmeans, variables, line, refusal)) return ProcedureBlock::refuse(text::kCluster, refusal);
    line.append(text::kClusterSlash);
    appendOption(line, text::kNumber, s.groups);
    appendOption(line, text::kIter, s.iterations);
    appendChoiceUnlessFirst(line, text::kDistance, text::kDistances, s.distance);
    closeOptions(line);
    return {text::kCluster, text::kKmeansFile, {}, Composition().add(line)};
}

ProcedureBlock composeAddtree(const AddtreeSettings& s, const Names& variables) {
    CommandText line;
    std::string refusal;
    if (!startLine(text::kAddtree, variables, line, refusal)) return ProcedureBlock::refuse(text::kCluster, refusal);
    line.append(text::kClusterSlash);
    if (s.height) line.append(text::kHeight);
    if (s.minvar) line.append(text::kMinvar);
    if (!s.numbers) line.append(text::kNoNumbers);
    if (!s.subtract) line.append(text::kNoSubtract);
    if (!s.tree) line.append(text::kNoTree);
    if (s.data) line.append(text::kData);
    if (s.transformed) line.append(text::kTransformed);
    if (s.additive) line.append(text::kAdditiveMatrix);
    if (s.residuals) line.append(text::kResiduals);
    closeOptions(line);
    return {text::kCluster, text::kAddtreeFile, {}, Composition().add(line)};
}

bool factorSavesByMode(const FactorSettings& s) { return s.saveMode > 0; }

ProcedureBlock composeFactor(const FactorSettings& s, const Names& variables) {
    CommandText model;
    std::string refusal;
    if (!modelOf(variables, model, refusal)) return ProcedureBlock::refuse(text::kFactor, refusal);
    CommandText estimate(text::kEstimate);
    estimate.dropLast();  // "ESTIMATE " and the method's own slash
    estimate.append(text::kFactorMethod).append(keywordAt(text::kFactorMethods, s.method));
    estimate.append(s.missing == IDC_FACTOR_PAIRWISE ? text::kPairwiseDeletion : text::kListwise);
    estimate.append(s.matrix == IDC_FACTOR_COV ? text::kCovMatrix : text::kCorrMatrix);
    if (s.sort) estimate.append(text::kSort);
    appendOption(estimate, text::kNumber, s.number);
    appendOption(estimate, text::kEigen, s.eigen);
    appendOption(estimate, text::kIter, s.iterations);
    appendOptionUnlessDefault(estimate, text::kConv, s.convergence, text::kDefaultFactorConv);
    Composition lines;
    lines.add(model);
    if (s.print != kPrintMedium) {
        CommandText print(text::kPrint);
        print.append(s.print == kPrintLong ? text::kLong : text::kShort);
        lines.add(print);
    }
    lines.add(estimate);
    if (s.exit) lines.add(text::kExit);
    // A saving mode other than "None" saves even with "Save file" unticked.
    return {text::kFactor, text::kFactorFile, {}, lines, factorSavesByMode(s)};
}

ProcedureBlock composeMds(const MdsSettings& s, const Names& variables) {
    CommandText model;
    std::string refusal;
    if (!modelOf(variables, model, refusal)) return ProcedureBlock::refuse(text::kMds, refusal);
    if (s.shape == IDC_MDS_RECT) {
        model.append(text::kShapeRect);
        appendOption(model, text::kMdsRows, s.rows);
    } else {
        model.append(text::kShapeSquare);
    }
    CommandText estimate(text::kEstimate);
    appendOption(estimate, text::kDim, s.dimensions);
    appendOption(estimate, text::kIter, s.iterations);
    appendOptionUnlessDefault(estimate, text::kMdsConverge, s.convergence, text::kDefaultMdsConverge);
    {
        const CommandText::Piece piece(estimate);
        estimate.append(text::kMdsLoss);
        if (s.loss == IDC_MDS_GUTTMAN) estimate.append(text::kGuttman);
        else if (s.loss == IDC_MDS_YOUNG) estimate.append(text::kYoung);
        else estimate.append(text::kKruskalRegression).append(keywordAt(text::kMdsRegressions, s.regression));
    }
    if (s.weight) estimate.append(text::kWeight);
    appendChoiceUnlessFirst(estimate, text::kSplit, text::kMdsSplits, s.split);
    std::string qualifier(text::kMdsSaveQualifier);
    qualifier += keywordAt(text::kMdsSaveKinds, s.saveKind);
    return {text::kMds, text::kMdsFile, qualifier, Composition().add(model).add(estimate)};
}

}  // namespace kvs::stats
