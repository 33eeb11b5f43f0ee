/* Control ids of the Append, Merge and key-selection templates. */
#ifndef KVS_DATA_FILES_IDS_H
#define KVS_DATA_FILES_IDS_H

#include "common_ids.h"

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

#endif
