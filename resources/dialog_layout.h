/* What every library dialog template shares: its style, its font, and the
 * column of OK, Cancel and Help (with Reset All below them where a dialog
 * has it) at its right edge. A template that differs on purpose writes its
 * own lines. */
#ifndef KVS_DIALOG_LAYOUT_H
#define KVS_DIALOG_LAYOUT_H

#include "common_ids.h"

/* DS_SHELLFONT with "MS Shell Dlg" asks Windows for its current dialog font
 * ("MS Shell Dlg 2"), as the system's own dialogs use. */
#define KVS_DIALOG_STYLE DS_MODALFRAME | DS_SHELLFONT | WS_POPUP | WS_CAPTION | WS_SYSMENU
#define KVS_DIALOG_FONT 8, "MS Shell Dlg"

/* OK, Cancel and Help from the top of the column at x, each width wide. */
#define KVS_OK_CANCEL_HELP(x, width) \
    DEFPUSHBUTTON   "OK", IDOK, x, 7, width, 14, WS_GROUP \
    PUSHBUTTON      "Cancel", IDCANCEL, x, 25, width, 14 \
    PUSHBUTTON      "&Help", IDC_HELPBUTTON, x, 43, width, 14

/* Reset All, below Help. */
#define KVS_RESET_ALL(x, width) \
    PUSHBUTTON      "&Reset All", IDC_RESETALL, x, 61, width, 14

#endif
