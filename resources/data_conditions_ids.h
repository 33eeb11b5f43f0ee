/* Control ids of the Select, Let and If...Then...Let templates. */
#ifndef KVS_DATA_CONDITIONS_IDS_H
#define KVS_DATA_CONDITIONS_IDS_H

#include "common_ids.h"

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

#endif
