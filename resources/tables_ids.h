/* Control ids of the table dialogs (one-way, two-way and multiway tables):
 * list 10 the table's variables (the rows of a two-way table), list 252
 * (IDC_TARGET3) the columns of a two-way table. */
#ifndef KVS_TABLES_IDS_H
#define KVS_TABLES_IDS_H

#include "common_ids.h"

/* What the tables print. */
#define IDC_XTAB_FREQ       31
#define IDC_XTAB_PERCENT    32
#define IDC_XTAB_ROWP       33
#define IDC_XTAB_COLP       34
#define IDC_XTAB_EXPECT     35
#define IDC_XTAB_DEVIATE    36
#define IDC_XTAB_STANDARD   37
#define IDC_XTAB_CHISQ      38
/* How they are laid out and counted. */
#define IDC_XTAB_LIST       40
#define IDC_XTAB_MISSING    41
/* Multiway tables: the Mantel-Haenszel test and its confidence. */
#define IDC_XTAB_MANTEL     42
#define IDC_XTAB_CONFIDENCE 43

#endif
