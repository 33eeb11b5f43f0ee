/* Control ids of Spatial Statistics, POSAC, Conjoint Analysis,
 * Correspondence Analysis, Set and Canonical Correlations, Perceptual
 * Mapping, Trees, Signal Detection, Test Item Analysis and RAMONA. */
#ifndef KVS_ANALYSIS_IDS_H
#define KVS_ANALYSIS_IDS_H

#include "common_ids.h"

/* Spatial Statistics: list 11 "Variable:", 10 "Coordinates:", the analysis. */
#define IDC_SPATIAL_VARIO      31
#define IDC_SPATIAL_KRIG       32
#define IDC_SPATIAL_SIMULATE   33
#define IDC_SPATIAL_POINT      34
/* The options of the analyses: variogram lags and lag width, kriging's
 * search points and radius, simulation's realisations and seed. */
#define IDC_SPATIAL_LAGS       73
#define IDC_SPATIAL_WIDTH      74
#define IDC_SPATIAL_POINTS     75
#define IDC_SPATIAL_RADIUS     76
#define IDC_SPATIAL_REALIZE    77
#define IDC_SPATIAL_SEED       78
#define IDC_SPATIAL_LAGS_LABEL 79
#define IDC_SPATIAL_WIDTH_LABEL 80
#define IDC_SPATIAL_POINTS_LABEL 81
#define IDC_SPATIAL_RADIUS_LABEL 82
#define IDC_SPATIAL_REALIZE_LABEL 83
#define IDC_SPATIAL_SEED_LABEL 84

/* Iterations and convergence of POSAC, Conjoint Analysis, Signal
 * Detection, the logistic item analysis and RAMONA. */
#define IDC_MV_ITERATIONS      35
#define IDC_MV_CONVERGENCE     36

/* Conjoint Analysis: list 240 "Dependent(s):", 10 "Attributes:". */
#define IDC_CONJOINT_POSITIVE  37
#define IDC_CONJOINT_NEGATIVE  38
#define IDC_CONJOINT_MONOTONIC 39
#define IDC_CONJOINT_LINEAR    40
#define IDC_CONJOINT_POWER     41
#define IDC_CONJOINT_STRESS    42

/* Correspondence Analysis: list 240 "Dependent(s):", 10 "Independent(s):". */
#define IDC_CORAN_PAIRWISE     43

/* Set and Canonical Correlations: list 10 "Dependent set:", 11
 * "Independent set:", 53 "Error set:". */

/* Perceptual Mapping: list 240 "Dependent(s):", 10 "Independent(s):". */
#define IDC_PERMAP_METHOD      44
#define IDC_PERMAP_NEGATIVE    45
#define IDC_PERMAP_DIMENSION   46
#define IDC_PERMAP_STANDARDIZE 47

/* Trees: list 11 "Dependent:", 10 "Independent(s):". */
#define IDC_TREES_EXPAND       48

/* Signal Detection: list 11 "Dependent:", 10 "Independent(s):". */
#define IDC_SIGNAL_M0          49
#define IDC_SIGNAL_MEAN        50
#define IDC_SIGNAL_DF          54
#define IDC_SIGNAL_START       55

/* Test Item Analysis: list 10 "Items:", the answer key; classical: split
 * half; logistic: the model, steps and the likelihood's convergence. */
#define IDC_TESTAT_KEY         56
#define IDC_TESTAT_HALF        57
#define IDC_TESTAT_LOG1        58
#define IDC_TESTAT_LOG2        59
#define IDC_TESTAT_STEPS       60
#define IDC_TESTAT_LCONVERGE   61

/* RAMONA: list 10 "Manifest variables:", the latent names, the paths. */
#define IDC_RAMONA_LATENT      62
#define IDC_RAMONA_MODEL       63
#define IDC_RAMONA_COVA        64
#define IDC_RAMONA_CORR        65
#define IDC_RAMONA_ROUGH       66
#define IDC_RAMONA_CLOSE       67
#define IDC_RAMONA_ML          68
#define IDC_RAMONA_ADFG        69
#define IDC_RAMONA_ADFU        70
#define IDC_RAMONA_CASES       71
#define IDC_RAMONA_CONFI       72

#endif
