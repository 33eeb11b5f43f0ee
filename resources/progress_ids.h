/* The progress dialog of sampling jobs ("ProcessBox"). */
#ifndef KVS_PROGRESS_IDS_H
#define KVS_PROGRESS_IDS_H

#define IDC_PROGRESS_DONE       2150
#define IDC_PROGRESS_TOTAL      2152
#define IDC_PROGRESS_ELAPSED    2154
#define IDC_PROGRESS_REMAINING  2156
#define IDC_PROGRESS_BAR        2158
#define IDC_PROGRESS_FRAME      2159

/* wParam codes of the WM_USER requests the dialog answers. */
#define PROGRESS_RESET_BAR      2
#define PROGRESS_SET_BAR        3
#define PROGRESS_DESTROY        4
#define PROGRESS_SET_CAPTION    6

/* Bar positions run from 0 to this. */
#define PROGRESS_BAR_FULL       32767

#endif
