/* Control ids of the listing and output-format dialogs: List Cases, By
 * Groups, Weight, ID Variable, Category, Frequency, Reshape, Standardize,
 * Order, Basic, Enter Matrix, Note, Page Title and Print Format. */
#ifndef KVS_DATA_LISTING_IDS_H
#define KVS_DATA_LISTING_IDS_H

#include "common_ids.h"

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

#endif
