/* Control ids of the data-management dialog templates. */
#ifndef KVS_DATA_IDS_H
#define KVS_DATA_IDS_H

#include "common_ids.h"

#define IDC_SORT_ASCENDING  31
#define IDC_SORT_DESCENDING 32

#endif
