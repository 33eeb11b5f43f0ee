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

/* Time series. "Variable:" or "Variable(s):" is list 10; "Save file" 99. */
/* ARIMA. */
#define IDC_ARIMA_AR          31
#define IDC_ARIMA_AR_VALUE    32
#define IDC_ARIMA_SAR         33
#define IDC_ARIMA_SAR_VALUE   34
#define IDC_ARIMA_MA          35
#define IDC_ARIMA_MA_VALUE    36
#define IDC_ARIMA_SMA         37
#define IDC_ARIMA_SMA_VALUE   38
#define IDC_SERIES_PERIOD       39  /* ARIMA and Exponential Smoothing */
#define IDC_SERIES_PERIOD_VALUE 40
#define IDC_ARIMA_ITERATIONS  41
#define IDC_ARIMA_CONVERGENCE 42
#define IDC_ARIMA_BACKCAST    43
#define IDC_ARIMA_CONSTANT    50
/* The forecast of ARIMA and Exponential Smoothing. */
#define IDC_SERIES_FORECAST     44
#define IDC_SERIES_NUMBER       45
#define IDC_SERIES_NUMBER_VALUE 46
#define IDC_SERIES_FROM         47
#define IDC_SERIES_FROM_VALUE   48
#define IDC_SERIES_TO_VALUE     49
/* Exponential Smoothing. */
#define IDC_EXPO_TREND          31
#define IDC_EXPO_LINEAR         32
#define IDC_EXPO_LINEAR_VALUE   33
#define IDC_EXPO_PERCENT        34
#define IDC_EXPO_PERCENT_VALUE  35
#define IDC_EXPO_SEASONAL       36
#define IDC_EXPO_ADDITIVE       37
#define IDC_EXPO_ADDITIVE_VALUE 38
#define IDC_EXPO_MULTI          41
#define IDC_EXPO_MULTI_VALUE    42
#define IDC_EXPO_SMOOTH         43
/* Fourier, ACF, PACF and CCF: the lag. */
#define IDC_SERIES_LAG        31
/* LOWESS. */
#define IDC_LOWESS_TENSION    31
/* Seasonal Adjustment. */
#define IDC_SEASONAL_TERM     31
#define IDC_SEASONAL_ADDITIVE 32
#define IDC_SEASONAL_MULT     33
#define IDC_SEASONAL_SEASON   34
/* Smooth: a radio and its value each. */
#define IDC_SMOOTH_BY_WEIGHT  31
#define IDC_SMOOTH_WEIGHT     32
#define IDC_SMOOTH_BY_MEAN    33
#define IDC_SMOOTH_MEAN       34
#define IDC_SMOOTH_BY_MEDIAN  35
#define IDC_SMOOTH_MEDIAN     36
/* Time; the data file chosen is shown in 635. */
#define IDC_TIME_START        31
#define IDC_TIME_SECOND       32
#define IDC_TIME_THIRD        33
#define IDC_TIME_FORMAT       34
#define IDC_TIME_OPEN         35
#define IDC_TIME_FILE         635
/* Transformations: eight radios and the value some of them take. */
#define IDC_TRANSFORM_FIRST   31  /* 31 to 38 */
#define IDC_TRANSFORM_LOG     31
#define IDC_TRANSFORM_SQUARE  32
#define IDC_TRANSFORM_MEAN    33
#define IDC_TRANSFORM_TREND   34
#define IDC_TRANSFORM_DIFF    35
#define IDC_TRANSFORM_PCHANGE 36
#define IDC_TRANSFORM_LAG     37
#define IDC_TRANSFORM_POWER   38
#define IDC_TRANSFORM_VALUE   39

/* Quality control charts. "Y - variable:" (or "Variable(s):") is list 10,
 * "X - variable:" the one-variable list 245 with its buttons 243 and 244. */
#define IDC_QC_CHART          31
#define IDC_QC_PROBABILITY    32
#define IDC_QC_PRESET         33
#define IDC_QC_SIGMA_LIMITS   34
#define IDC_QC_UPPER          35
#define IDC_QC_LOWER          36
#define IDC_QC_CENTER         37
#define IDC_QC_SIGMA          38
#define IDC_QC_AVERAGE_SIZE   39
#define IDC_QC_AGGREGATE      40
#define IDC_QC_INDICATE_SIZE  41
#define IDC_QC_Z_UNITS        42
#define IDC_QC_SAMPLE_SIZE    43
#define IDC_QC_CUMULATIVE     44
#define IDC_QC_PERCENT        45
#define IDC_QC_SPAN           46
#define IDC_QC_CUSUM_K        47
#define IDC_QC_CUSUM_H        48
#define IDC_QC_START          49
#define IDC_QC_UPPER_SUM      54
#define IDC_QC_LOWER_SUM      55
#define IDC_QC_ZCL            56
#define IDC_QC_EXTERNAL       57
#define IDC_QC_COVARIANCE     58
#define IDC_QC_BROWSE         59
#define IDC_QC_USL            60
#define IDC_QC_LSL            61

#endif
