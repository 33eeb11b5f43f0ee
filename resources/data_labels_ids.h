/* Control ids of the value-labels dialog. */
#ifndef KVS_DATA_LABELS_IDS_H
#define KVS_DATA_LABELS_IDS_H

#include "common_ids.h"

#define IDC_LABEL_VALUE     31
#define IDC_LABEL_TEXT      32
#define IDC_LABEL_ADD       33
#define IDC_LABEL_REMOVE    34
#define IDC_LABEL_LIST      35

#endif
