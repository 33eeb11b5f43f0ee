/* Control ids of the colour picker. */
#ifndef KVS_COLOUR_PICKER_IDS_H
#define KVS_COLOUR_PICKER_IDS_H

#include "common_ids.h"

#define IDC_COLOUR_GRID         101
#define IDC_COLOUR_VALUE_LABEL  102
#define IDC_COLOUR_VALUE        103

#endif
