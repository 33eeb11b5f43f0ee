/* Control ids of the statistics dialog templates. */
#ifndef KVS_STATS_IDS_H
#define KVS_STATS_IDS_H

#include "common_ids.h"

/* t-tests: list 10 "Variable(s):", list 11 "Grouping variable:". */
#define IDC_TTEST_BONFERRONI 31
#define IDC_TTEST_DUNN       32
#define IDC_TTEST_CONFIDENCE 33
#define IDC_TTEST_MEAN       34

/* Logit: Estimate Model. List 10 "Independent(s):", 240 "Dependent:",
 * 252 "Conditional(s):" (IDC_TARGET3). */
#define IDC_LOGIT_CONSTANT   31
#define IDC_LOGIT_PREDICT    35
#define IDC_LOGIT_QML        36
#define IDC_LOGIT_DEPENDENT  IDC_DEPENDENT
#define IDC_LOGIT_OPTIONS    50

/* The Logit Options button's menu: its items. */
#define IDM_LOGIT_CATEGORY   1217  /* the categories sub-dialog */
#define IDM_LOGIT_CHOICE     1218
#define IDM_LOGIT_ESTIMATION 1215

/* Logit: Options (LOGITOPTS). */
#define IDC_LOGITOPT_CONVERGE  31
#define IDC_LOGITOPT_TOLERANCE 32
#define IDC_LOGITOPT_COMPLETE  33
#define IDC_LOGITOPT_STEPWISE  34
#define IDC_LOGITOPT_FORWARD   35
#define IDC_LOGITOPT_BACKWARD  36
#define IDC_LOGITOPT_AUTO      37
#define IDC_LOGITOPT_INTERACT  38
#define IDC_LOGITOPT_ENTER     39
#define IDC_LOGITOPT_REMOVE    40
#define IDC_LOGITOPT_FORCE     41
#define IDC_LOGITOPT_MAXSTEP   42
#define IDC_LOGITOPT_START     43

/* Logit: Deciles of Risk. */
#define IDC_DC_VALUE         31
#define IDC_DC_SMART         32

/* Logit: Quantiles and Simulation: the variable list 245 and its buttons,
 * the values list 33 with its field and buttons. */
#define IDC_VALUES_LIST      33
#define IDC_VALUE_FIELD      34
#define IDC_ADD_VALUE        35
#define IDC_REMOVE_VALUE     36

/* The set editor (Logit: Discrete Choice): set names 31, the set's
 * variables in list 10, the alternatives variable in list 245. */
#define IDC_SET_NAME         31
#define IDC_SET_NEW          32
#define IDC_SET_CATEGORIES   34

/* Logit: Categories: the categorical variables in list 10. */
#define IDC_CATEGORY_EFFECT  31
#define IDC_CATEGORY_DUMMY   32

/* Hypothesis text (Logit: Hypothesis). */
#define IDC_HYPOTHESIS_TEXT  31

#endif
