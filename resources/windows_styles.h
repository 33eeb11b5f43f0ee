/* Window styles the templates use. windres takes them from windows.h; the
 * headless template reader takes them from here, so both see one set. */
#ifndef KVS_WINDOWS_STYLES_H
#define KVS_WINDOWS_STYLES_H

#if defined(RC_INVOKED) || defined(_WIN32)
#include <windows.h>
#else
#define IDOK                1
#define IDCANCEL            2

#define WS_OVERLAPPED       0x00000000L
#define WS_POPUP            0x80000000L
#define WS_CHILD            0x40000000L
#define WS_VISIBLE          0x10000000L
#define WS_DISABLED         0x08000000L
#define WS_CAPTION          0x00C00000L
#define WS_BORDER           0x00800000L
#define WS_VSCROLL          0x00200000L
#define WS_HSCROLL          0x00100000L
#define WS_SYSMENU          0x00080000L
#define WS_GROUP            0x00020000L
#define WS_TABSTOP          0x00010000L

#define DS_MODALFRAME       0x80L
#define DS_SETFONT          0x40L
#define DS_FIXEDSYS         0x0008L
#define DS_SHELLFONT        (DS_SETFONT | DS_FIXEDSYS)
#define DS_CENTER           0x0800L

#define BS_PUSHBUTTON       0x00000000L
#define BS_DEFPUSHBUTTON    0x00000001L
#define BS_CHECKBOX         0x00000002L
#define BS_AUTOCHECKBOX     0x00000003L
#define BS_RADIOBUTTON      0x00000004L
#define BS_3STATE           0x00000005L
#define BS_AUTO3STATE       0x00000006L
#define BS_GROUPBOX         0x00000007L
#define BS_AUTORADIOBUTTON  0x00000009L
#define BS_OWNERDRAW        0x0000000BL
#define BS_MULTILINE        0x00002000L

#define SS_LEFT             0x00000000L
#define SS_CENTER           0x00000001L
#define SS_RIGHT            0x00000002L
#define SS_BLACKFRAME       0x00000007L
#define SS_OWNERDRAW        0x0000000DL
#define SS_NOPREFIX         0x00000080L
#define SS_SUNKEN           0x00001000L

#define ES_LEFT             0x0000L
#define ES_MULTILINE        0x0004L
#define ES_AUTOVSCROLL      0x0040L
#define ES_AUTOHSCROLL      0x0080L
#define ES_READONLY         0x0800L
#define ES_WANTRETURN       0x1000L

#define LBS_NOTIFY          0x0001L
#define LBS_SORT            0x0002L
#define LBS_MULTIPLESEL     0x0008L
#define LBS_NOINTEGRALHEIGHT 0x0100L
#define LBS_EXTENDEDSEL     0x0800L

#define CBS_SIMPLE          0x0001L
#define CBS_DROPDOWN        0x0002L
#define CBS_DROPDOWNLIST    0x0003L
#define CBS_AUTOHSCROLL     0x0040L
#define CBS_OWNERDRAWFIXED  0x0010L
#define CBS_SORT            0x0100L
#define CBS_HASSTRINGS      0x0200L
#endif

#endif
