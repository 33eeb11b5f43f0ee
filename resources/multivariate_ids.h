/* Control ids of Basic Statistics, Cronbach, Stem, Correlations, the
 * clustering dialogs, Factor Analysis and Multidimensional Scaling. List 10
 * is "Variable(s):" in each; the one-variable list 245 is Basic Statistics'
 * "Grouping variable:", list 11 Correlations' "With variable(s):". */
#ifndef KVS_MULTIVARIATE_IDS_H
#define KVS_MULTIVARIATE_IDS_H

#include "common_ids.h"

/* Basic Statistics. */
#define IDC_BSTATS_LIST        60
#define IDC_BSTATS_CIM         61
#define IDC_BSTATS_CONFIDENCE  62
#define IDC_BSTATS_TUKEY       63
#define IDC_BSTATS_PRINT       64
#define IDC_BSTATS_SAVE_KIND   49  /* entry 1 or later saves aggregated */

/* Stem. */
#define IDC_STEM_LINES         60

/* Correlations. */
#define IDC_CORR_MEASURE       60
#define IDC_CORR_LISTWISE      61
#define IDC_CORR_PAIRWISE      62

/* Hierarchical Clustering. */
#define IDC_JOIN_ROWS          60
#define IDC_JOIN_COLUMNS       61
#define IDC_JOIN_MATRIX        62
#define IDC_JOIN_DISTANCE      63
#define IDC_JOIN_POWER         64
#define IDC_JOIN_LINKAGE       65
#define IDC_JOIN_POLAR         66
#define IDC_JOIN_SAVE_NUMBER   67

/* K-means. */
#define IDC_KMEANS_GROUPS      60
#define IDC_KMEANS_ITERATIONS  61
#define IDC_KMEANS_DISTANCE    62

/* Additive Trees. */
#define IDC_ADDTREE_HEIGHT      60
#define IDC_ADDTREE_MINVAR      61
#define IDC_ADDTREE_NUMBERS     62
#define IDC_ADDTREE_SUBTRACT    63
#define IDC_ADDTREE_TREE        64
#define IDC_ADDTREE_DATA        65
#define IDC_ADDTREE_TRANSFORMED 66
#define IDC_ADDTREE_ADDITIVE    67
#define IDC_ADDTREE_RESIDUALS   68

/* Factor Analysis. */
#define IDC_FACTOR_METHOD      60
#define IDC_FACTOR_LISTWISE    61
#define IDC_FACTOR_PAIRWISE    62
#define IDC_FACTOR_CORR        63
#define IDC_FACTOR_COV         64
#define IDC_FACTOR_NUMBER      65
#define IDC_FACTOR_EIGEN       66
#define IDC_FACTOR_ITERATIONS  67
#define IDC_FACTOR_CONVERGENCE 68
#define IDC_FACTOR_SORT        69
#define IDC_FACTOR_PRINT       70
#define IDC_FACTOR_SAVE_MODE   71
#define IDC_FACTOR_EXIT        72

/* Multidimensional Scaling. */
#define IDC_MDS_SQUARE         60
#define IDC_MDS_RECT           61
#define IDC_MDS_ROWS           62
#define IDC_MDS_DIMENSIONS     63
#define IDC_MDS_ITERATIONS     64
#define IDC_MDS_CONVERGENCE    65
#define IDC_MDS_KRUSKAL        66
#define IDC_MDS_GUTTMAN        67
#define IDC_MDS_YOUNG          68
#define IDC_MDS_REGRESSION     69
#define IDC_MDS_WEIGHT         70
#define IDC_MDS_SPLIT          71
#define IDC_MDS_SAVE_KIND      45  /* configuration, distances, residuals */

#endif
