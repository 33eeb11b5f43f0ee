/* Control ids of the nonparametric tests (Friedman, Kolmogorov-Smirnov,
 * Kruskal-Wallis, sign, runs, Wilcoxon): list 10 "Variable(s):", list 11
 * "Grouping variable:" where the test compares groups. */
#ifndef KVS_NPAR_IDS_H
#define KVS_NPAR_IDS_H

#include "common_ids.h"

/* Runs: the value that splits the cases in two. */
#define IDC_RUNS_CUT          30

/* One-sample Kolmogorov-Smirnov: the distribution and its parameters. */
#define IDC_KS_NORMAL         31
#define IDC_KS_UNIFORM        32
#define IDC_KS_EXPONENTIAL    33
#define IDC_KS_LILLIEFORS     34
#define IDC_KS_MEAN           35
#define IDC_KS_SD             36
#define IDC_KS_LOWER          37
#define IDC_KS_UPPER          38
#define IDC_KS_SCALE          39

#endif
