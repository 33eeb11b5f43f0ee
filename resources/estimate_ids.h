/* Control ids of Probit, Two Stage Least Squares, the GLM pairwise
 * comparisons and hypothesis tests, Nonlinear Model, Loss and Survival. */
#ifndef KVS_ESTIMATE_IDS_H
#define KVS_ESTIMATE_IDS_H

#include "common_ids.h"

/* Probit and TSLS: list 240 "Dependent:", 10 "Independent(s):", TSLS's
 * instruments in list 252. */
#define IDC_EST_MODEL_CONSTANT 31
#define IDC_TSLS_HC            35

/* GLM: Pairwise Comparisons: the factor in list 10, one test. */
#define IDC_POST_BONFERRONI    31
#define IDC_POST_TUKEY         32
#define IDC_POST_LSD           33
#define IDC_POST_SCHEFFE       34

/* The equation fields of Nonlinear Model and Loss, with the functions and
 * operators they offer and a button that inserts the chosen variable. */
#define IDC_EQUATION           30
#define IDC_EQ_FUNCTIONS       35
#define IDC_EQ_INSERT_FUNCTION 36
#define IDC_EQ_OPERATORS       37
#define IDC_EQ_INSERT_OPERATOR 38
#define IDC_EQ_INSERT_VARIABLE 39

/* Nonlinear Model: what the saved file holds, the value its choice needs,
 * the confidence of a confidence region, the estimation method. */
#define IDC_NONLIN_SAVE        41
#define IDC_NONLIN_SAVE_VALUE  42
#define IDC_NONLIN_CONFIDENCE  43
#define IDC_NONLIN_GAUSS       44
#define IDC_NONLIN_SIMPLEX     45
#define IDC_NONLIN_QUASI       46
#define IDC_NONLIN_VALUE_LABEL 47
#define IDC_NONLIN_CONFI_LABEL 48

/* Loss: least squares or the loss function typed in the equation field. */
#define IDC_LOSS_LEAST_SQUARES 31
#define IDC_LOSS_FUNCTION      32

/* Survival: list 240 "Time:", 10 "Covariate(s):", 11 "Censor:", 252
 * "Lower time:", 253 "Strata:". */
#define IDC_SURV_LIFE_TABLE    35
#define IDC_SURV_TDC           50
/* Time-dependent covariates: the set editor's name box (31) and New Set (32),
 * the set's variables in list 33 with their Add and Remove, the maximum time. */
#define IDC_TDC_VARIABLES      33
#define IDC_TDC_MAXIMUM        34
#define IDC_TDC_ADD            254
#define IDC_TDC_REMOVE         255

#endif
