// The builders of Basic Statistics, Cronbach, Stem, Correlations, the
// clustering dialogs, Factor Analysis and Multidimensional Scaling as pure
// functions: a dialog's settings and the names in its lists give its block
// (the lines after the procedure and SAVE lines) or the refusal.
#pragma once

#include <cstdint>
#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/multivariate_ids.h"

namespace kvs::stats {

// The print lengths of the "Print:" boxes, by position.
enum PrintLength { kPrintShort = 0, kPrintMedium = 1, kPrintLong = 2 };

// Basic Statistics (248). Without a grouping variable the chosen statistics
// of the variables; with one, the one-way comparison of the groups.
struct BasicStatsSettings {
    // A bit a statistic of the list, in its order; Mean, Minimum, Maximum,
    // Std. deviation and N of cases are the procedure's own choice.
    std::uint32_t statistics = kDefaultStatistics;
    bool cim = false;
    std::string confidence = ".95";
    bool tukey = false;
    int print = kPrintMedium;
    int saveKind = 0;  // combo box 49: 0 statistics, 1 aggregated by groups

    static constexpr std::uint32_t kDefaultStatistics = 0x1u | 0x2u | 0x4u | 0x8u | 0x4000u;
};
ProcedureBlock composeBasicStats(const BasicStatsSettings& settings, const Names& variables, const Names& grouping);

// Cronbach (250) and Stem (251).
ProcedureBlock composeCronbach(const Names& variables);
struct StemSettings {
    std::string lines;
};
ProcedureBlock composeStem(const StemSettings& settings, const Names& variables);

// Correlations (204): a measure of the variables, or of them against the
// "With variable(s):" list.
struct CorrSettings {
    int measure = 0;  // position in the measure box
    int missing = IDC_CORR_LISTWISE;  // or IDC_CORR_PAIRWISE
};
ProcedureBlock composeCorrelations(const CorrSettings& settings, const Names& variables, const Names& with);

// Hierarchical Clustering (202). saving: "Save file" is checked, so the
// number of clusters to save is needed.
struct JoinSettings {
    int clustering = IDC_JOIN_ROWS;  // or IDC_JOIN_COLUMNS, IDC_JOIN_MATRIX
    int distance = 0;
    std::string power;  // Minkowski only
    int linkage = 0;
    bool polar = false;
    std::string saveNumber;
};
ProcedureBlock composeJoin(const JoinSettings& settings, const Names& variables, bool saving);

// K-means (203).
struct KmeansSettings {
    std::string groups;
    std::string iterations;
    int distance = 0;
};
ProcedureBlock composeKmeans(const KmeansSettings& settings, const Names& variables);

// Additive Trees (254): the tree's display and the matrices printed.
struct AddtreeSettings {
    bool height = false;
    bool minvar = false;
    bool numbers = true;
    bool subtract = true;
    bool tree = true;
    bool data = false;
    bool transformed = false;
    bool additive = false;
    bool residuals = false;
};
ProcedureBlock composeAddtree(const AddtreeSettings& settings, const Names& variables);

// Factor Analysis (215).
struct FactorSettings {
    int method = 0;
    int missing = IDC_FACTOR_LISTWISE;  // or IDC_FACTOR_PAIRWISE
    int matrix = IDC_FACTOR_CORR;       // or IDC_FACTOR_COV
    std::string number;
    std::string eigen;
    std::string iterations;
    std::string convergence = ".001";
    bool sort = false;
    int print = kPrintMedium;
    int saveMode = 0;  // 0 "None"
    bool exit = false;
};
ProcedureBlock composeFactor(const FactorSettings& settings, const Names& variables);
// Whether the block saves a file although "Save file" is unchecked.
bool factorSavesByMode(const FactorSettings& settings);

// Multidimensional Scaling (216).
struct MdsSettings {
    int shape = IDC_MDS_SQUARE;  // or IDC_MDS_RECT
    std::string rows;            // rectangular only
    std::string dimensions;
    std::string iterations;
    std::string convergence = "0.005";
    int loss = IDC_MDS_KRUSKAL;  // or IDC_MDS_GUTTMAN, IDC_MDS_YOUNG
    int regression = 0;          // Kruskal only
    bool weight = false;
    int split = 0;
    int saveKind = 0;  // combo box 45: configuration, distances, residuals
};
ProcedureBlock composeMds(const MdsSettings& settings, const Names& variables);

}  // namespace kvs::stats
