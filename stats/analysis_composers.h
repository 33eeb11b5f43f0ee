// The builders of Spatial Statistics (217), POSAC (286), Conjoint Analysis
// (287), Correspondence Analysis (283), Set and Canonical Correlations
// (284), Perceptual Mapping (285), Trees (288), Signal Detection (296), Test
// Item Analysis (295, 297) and RAMONA (269) as pure functions: settings and
// the names in the lists give the block's lines or its refusal.
#pragma once

#include <string>

#include "core/join_names.h"
#include "core/procedure_block.h"
#include "resources/analysis_ids.h"

namespace kvs::stats {

// "MODEL a b = c+d", or "MODEL a b" without names on the right.
CommandText variablesModel(const Names& left, const Names& right);

// Spatial Statistics: one analysis a run, each with its own output file and
// options; an empty option leaves the analysis its own default.
struct SpatialSettings {
    int analysis = IDC_SPATIAL_VARIO;  // or IDC_SPATIAL_KRIG, IDC_SPATIAL_SIMULATE, IDC_SPATIAL_POINT
    std::string lags, lagWidth;        // variogram
    std::string points, radius;        // kriging's search neighbourhood
    std::string realizations, seed;    // simulation
};
// "MODEL z = x+y" ("MODEL x y" for points without a variable), then
// "VARIO / NLAGS=10 WIDTH=2", "KRIG / POINTS=8 RADIUS=50", "SIMULATE /
// NREAL=100 SEED=7" (without options "VARIO", "KRIG", "SIMULATE") or "POINT".
ProcedureBlock composeSpatial(const SpatialSettings& settings, const Names& variable, const Names& coordinates);

// POSAC: "MODEL a b c", "ESTIMATE / ITERATIONS=n CONVERGENCE=c".
struct PosacSettings {
    std::string iterations;
    std::string convergence = "0.00001";
};
ProcedureBlock composePosac(const PosacSettings& settings, const Names& variables);

// Conjoint Analysis: the polarity and the regression are always written.
struct ConjointSettings {
    std::string iterations;
    std::string convergence = "0.00001";
    int polarity = IDC_CONJOINT_POSITIVE;     // or IDC_CONJOINT_NEGATIVE
    int regression = IDC_CONJOINT_MONOTONIC;  // or IDC_CONJOINT_LINEAR, IDC_CONJOINT_POWER
    bool stress = false;
};
ProcedureBlock composeConjoint(const ConjointSettings& settings, const Names& dependents, const Names& attributes);

// Correspondence Analysis: simple ("MODEL a = b") or multiple ("MODEL a b c").
struct CoranSettings {
    bool pairwise = false;
};
ProcedureBlock composeCoran(const CoranSettings& settings, const Names& dependents, const Names& independents);

// Set and Canonical Correlations: "MODEL y1 y2 = x1+x2", "ERROR g1 g2"
// when an error set is given, "ESTIMATE".
ProcedureBlock composeSetcor(const Names& dependents, const Names& independents, const Names& errorSet);

// Perceptual Mapping: the method by its entry in the method box.
struct PermapSettings {
    int method = 0;
    bool negative = false;
    std::string dimension;
    bool standardize = false;
};
ProcedureBlock composePermap(const PermapSettings& settings, const Names& dependents, const Names& independents);

// Trees: "MODEL y = a+b", "ESTIMATE" or "ESTIMATE / EXPAND".
struct TreesSettings {
    bool expand = false;
};
ProcedureBlock composeTrees(const TreesSettings& settings, const Names& dependent, const Names& independents);

// Signal Detection: "MODEL r = s", "ESTIMATE / ..." with the values given.
struct SignalSettings {
    std::string iterations;
    std::string converge = "0.001";
    std::string m0 = "1.814";
    std::string mean;
    std::string df;
    bool start = false;
};
ProcedureBlock composeSignal(const SignalSettings& settings, const Names& dependent, const Names& independents);

// Test Item Analysis: 295 classical, 297 logistic.
struct TestatSettings {
    std::string key;  // the answer key, "KEY ..." when given
    bool half = false;  // classical: split-half reliabilities
    int model = IDC_TESTAT_LOG1;  // logistic: one or two parameters
    std::string steps;
    std::string iterations;
    std::string converge = "0.005";
    std::string lconverge;
};
ProcedureBlock composeTestat(std::uint16_t commandId, const TestatSettings& settings, const Names& items);

// RAMONA: the manifest variables, the latent names, the paths (one a line).
struct RamonaSettings {
    std::string latent;
    std::string paths;
    int dispersion = IDC_RAMONA_COVA;  // or IDC_RAMONA_CORR
    int start = IDC_RAMONA_ROUGH;      // or IDC_RAMONA_CLOSE
    int method = IDC_RAMONA_ML;        // or IDC_RAMONA_ADFG, IDC_RAMONA_ADFU
    std::string cases;
    std::string iterations;
    std::string convergence = "0.0001";
    std::string confidence;
};
// "MANIFEST a b c", ["LATENT f1 f2"], "MODEL path, path",
// "ESTIMATE / DISP=COVA START=ROUGH ...".
ProcedureBlock composeRamona(const RamonaSettings& settings, const Names& manifest);

}  // namespace kvs::stats
