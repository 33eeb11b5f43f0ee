/* Control ids of the data-management dialog templates. */
#ifndef KVS_DATA_IDS_H
#define KVS_DATA_IDS_H

#include "common_ids.h"

#define IDC_SORT_ASCENDING  31
#define IDC_SORT_DESCENDING 32

/* Select, Let and If...Then...Let. */
#define IDC_SELECT_COMPLETE 70
#define IDC_SELECT_OFF      71

#define IDC_FUNCTIONS       151
#define IDC_FUNCTION_TYPE   152
#define IDC_ADD_FUNCTION    153

/* Condition rows 1 to 4: variable fields, value fields, operator drop-downs
 * and the connector drop-downs of rows 2 to 4. */
#define IDC_ROW_VARIABLE1   154
#define IDC_ROW_VARIABLE2   155
#define IDC_ROW_VARIABLE3   156
#define IDC_ROW_VARIABLE4   157
#define IDC_ROW_VALUE1      158
#define IDC_ROW_VALUE2      159
#define IDC_ROW_VALUE3      160
#define IDC_ROW_VALUE4      161
#define IDC_ROW_OPERATOR1   162
#define IDC_ROW_OPERATOR2   163
#define IDC_ROW_OPERATOR3   164
#define IDC_ROW_OPERATOR4   165
#define IDC_ROW_CONNECTOR2  167
#define IDC_ROW_CONNECTOR3  168
#define IDC_ROW_CONNECTOR4  169

/* If...Then...Let: the IF / IF NOT drop-down of row 1, the fixed "=" of the
 * assignment row (in place of its operator) and that row's "Then let". */
#define IDC_IF_CHOICE       166
#define IDC_THEN_EQUALS     165
#define IDC_THEN_LABEL      170

/* Append, Merge and the key selection. */
/* Append */
#define IDC_APPEND_MATCH      31
#define IDC_APPEND_UNION      32
#define IDC_APPEND_INTERSECT  33
#define IDC_APPEND_FILE1      34
#define IDC_APPEND_FILE2      35
#define IDC_APPEND_BROWSE1    36
#define IDC_APPEND_BROWSE2    37

/* Merge */
#define IDC_MERGE_KEYS        31
#define IDC_MERGE_FILE1       32
#define IDC_MERGE_FILE2       33
#define IDC_MERGE_BROWSE1     34
#define IDC_MERGE_BROWSE2     35

/* Listing, grouping, weighting and output format. */
/* List Cases */
#define IDC_LIST_CHARACTERS     31
#define IDC_LIST_DECIMALS       32
#define IDC_LIST_ALL_CASES      33
#define IDC_LIST_SOME_CASES     34
#define IDC_LIST_LAST_CASE      35
#define IDC_LIST_LABELS         36

/* By Groups */
#define IDC_BY_EXCLUDE_MISSING  31
#define IDC_BY_NEW_PAGE         32
#define IDC_BY_OFF              33

/* Weight, ID Variable, Frequency: the "Turn ... off" boxes */
#define IDC_WEIGHT_OFF          32
#define IDC_IDVAR_OFF           31
#define IDC_FREQUENCY_OFF       31

/* Category */
#define IDC_CATEGORY_MISSING    31
#define IDC_CATEGORY_OFF        32

/* Reshape */
#define IDC_RESHAPE_WRAP        31
#define IDC_RESHAPE_UNWRAP      32
#define IDC_RESHAPE_UNWRAP_BY   34

/* Standardize */
#define IDC_STANDARDIZE_SD      31
#define IDC_STANDARDIZE_RANGE   32

/* Basic and Enter Matrix: the program text */
#define IDC_PROGRAM_TEXT        31

/* Note and Page Title: five text lines; the title's off box */
#define IDC_TEXT_LINE1          31
#define IDC_TEXT_LINE5          35
#define IDC_TITLE_OFF           36

/* Print Format */
#define IDC_PRINT_DECIMALS      31
#define IDC_PRINT_PORTRAIT      32
#define IDC_PRINT_LANDSCAPE     33
#define IDC_PRINT_SHORT         34
#define IDC_PRINT_LONG          35
#define IDC_PRINT_UNDERFLOW     36
#define IDC_PRINT_PAGE_NUMBERS  37

/* Value labels. */
#define IDC_LABEL_VALUE     31
#define IDC_LABEL_TEXT      32
#define IDC_LABEL_ADD       33
#define IDC_LABEL_REMOVE    34
#define IDC_LABEL_LIST      35

#endif
