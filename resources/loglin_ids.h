/* Control ids of the log-linear model dialogs: list 10 "Table factors:". */
#ifndef KVS_LOGLIN_IDS_H
#define KVS_LOGLIN_IDS_H

#include "common_ids.h"

/* LogLinear Model: the model's terms, what it prints, its estimation
 * values and what the saved file holds. */
#define IDC_LOGLIN_TERMS       30
#define IDC_LOGLIN_OBSERVED    31
#define IDC_LOGLIN_EXPECTED    32
#define IDC_LOGLIN_STANDARD    33
#define IDC_LOGLIN_LAMBDA      34
#define IDC_LOGLIN_CHISQ       35
#define IDC_LOGLIN_CONV        36
#define IDC_LOGLIN_LCONV       37
#define IDC_LOGLIN_TOL         38
#define IDC_LOGLIN_ITER        39
#define IDC_LOGLIN_HALF        40
#define IDC_LOGLIN_DELTA       41
#define IDC_LOGLIN_ESTIMATES   42
#define IDC_LOGLIN_LAMBDAS     43

#endif
