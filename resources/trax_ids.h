/* Control ids of the companion-package program selector. */
#ifndef KVS_TRAX_IDS_H
#define KVS_TRAX_IDS_H

#include "common_ids.h"

/* "Programs:", one entry a program with its description. */
#define IDC_TRAX_PROGRAMS   31

#endif
