/* Control ids of the linear-model dialogs: ANOVA, GLM, Regression and
 * Discriminant Analysis, their options, repeated measures and statistics. */
#ifndef KVS_MODELS_IDS_H
#define KVS_MODELS_IDS_H

#include "common_ids.h"

/* The estimate-model dialogs. List 240 "Dependent:", 10 "Independent(s):"
 * (ANOVA: "Factor(s):"). */
#define IDC_MODEL_CONSTANT   31
#define IDC_MODEL_CASES      32  /* Regression: number of cases of a matrix file */
#define IDC_MODEL_CASES_LABEL 33
#define IDC_MODEL_EXIT       34  /* leave the module when done */
#define IDC_MODEL_MISSING    35  /* ANOVA: missing values as a category */
#define IDC_MODEL_QUADRATIC  36  /* Discriminant: quadratic */
/* ANOVA: list 11 "Covariate(s):". */
#define IDC_MODEL_OPTIONS    50
#define IDC_MODEL_REPEATED   56
#define IDC_MODEL_STATISTICS 57

/* Estimation options (GLMOPTIONS, REGRESSIONOPTIONS, DISCRIMOPTIONS). The
 * pair of the criterion not shown belongs to the fields 40 and 41, which no
 * template has. */
#define IDC_EST_TOLERANCE    31
#define IDC_EST_COMPLETE     32
#define IDC_EST_STEPWISE     33
#define IDC_EST_MIXTURE      34
#define IDC_EST_FORWARD      35
#define IDC_EST_BACKWARD     36
#define IDC_EST_ENTER        37
#define IDC_EST_REMOVE       38
#define IDC_EST_FORCE        39
#define IDC_EST_MAXSTEP      42
#define IDC_EST_AUTO         50
#define IDC_EST_INTERACT     51
#define IDC_EST_PROBABILITY  52
#define IDC_EST_FSTATISTIC   53
#define IDC_EST_ENTER_LABEL  60
#define IDC_EST_REMOVE_LABEL 61
#define IDC_EST_FORCE_LABEL  62
#define IDC_EST_MAXSTEP_LABEL 63
/* The discriminant dialog's own ids for three of the radio buttons. */
#define IDC_DEST_INTERACT    1451
#define IDC_DEST_PROBABILITY 1452
#define IDC_DEST_FSTATISTIC  1453

/* Repeated Measures: the switch, then name, levels and metric a factor. */
#define IDC_RM_PERFORM       31
#define IDC_RM_NAME1         32
#define IDC_RM_NAME2         33
#define IDC_RM_NAME3         34
#define IDC_RM_NAME4         35
#define IDC_RM_LEVELS1       36
#define IDC_RM_LEVELS2       37
#define IDC_RM_LEVELS3       38
#define IDC_RM_LEVELS4       39
#define IDC_RM_METRIC1       40
#define IDC_RM_METRIC2       41
#define IDC_RM_METRIC3       42
#define IDC_RM_METRIC4       43

/* Discriminant Analysis: Statistics: 21 check boxes from 31, in the order
 * of the PRINT keywords. */
#define IDC_DSTAT_FIRST      31
#define IDC_DSTAT_FMATRIX    31
#define IDC_DSTAT_CSCORE     51

#endif
