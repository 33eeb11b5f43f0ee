/*
 * kvs_dlg.h - what KORVAN.exe may call in kvs_dlg.dll.
 *
 * Calling convention: every exported function is __stdcall (KVS_CALL) on
 * 32-bit Windows, exported under its plain, undecorated name (see
 * kvs_dlg.def). On x86_64 Windows there is only one convention; natively
 * (Linux test builds) KVS_CALL is empty.
 *
 * Threading: call everything from the host's user-interface thread, one call
 * at a time. A StartDialog made while a library dialog is up is refused with
 * a message box.
 *
 * Ownership: the library never keeps a pointer it is given beyond the call
 * unless stated. Strings handed to the host's AddCmd are the library's own
 * and are freed right after AddCmd returns: the host must copy them.
 */
#ifndef KVS_DLG_H
#define KVS_DLG_H

#include <stdint.h>

#include "kvs_platform.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Runs the dialog of one menu command and then hands every command line it
 * queued to AddCmd, in order. commandId: the 16-bit menu id (the high half is
 * ignored). owner: the host window that owns the dialog. helpFile: path of
 * the help file that Help buttons open; copied (cut at 259 characters), may
 * be null (treated as empty). Always returns 1, also for ids that have no
 * dialog. */
KVS_EXPORT int32_t KVS_CALL StartDialog(uint32_t commandId, KvsWindow owner, const char* helpFile);

/* Resets every dialog's remembered selections and options. freeMemory != 0
 * also releases their memory. Call whenever the data file in use changes.
 * Always returns 1. */
KVS_EXPORT int32_t KVS_CALL ReinitDialogs(int32_t freeMemory);

/* One menu command the library serves through StartDialog. family: 0 data,
 * 1 graph, 2 statistics. caption and templateName are the library's own
 * strings, valid while it is loaded; both are null for a command that runs
 * without a dialog of its own (a chooser or a command queued at once). */
typedef struct KvsDialogEntry {
    uint16_t commandId;
    uint16_t family;
    const char* caption;
    const char* templateName;
} KvsDialogEntry;

/* Writes the menu commands StartDialog serves with a dialog or a routine of
 * their own, in id order, into entries
 * (at most capacity of them; entries may be null when capacity is 0) and
 * returns how many there are, so a host can build or check its menus. */
KVS_EXPORT int32_t KVS_CALL GetDialogList(KvsDialogEntry* entries, int32_t capacity);

/* The library's version as (major << 16) | (minor << 8) | patch, 1.1.0 giving
 * 0x010100. When text is not null it also receives the version as
 * "major.minor.patch", cut to capacity bytes with the NUL. */
KVS_EXPORT int32_t KVS_CALL GetLibraryVersion(char* text, int32_t capacity);

/* Non-zero: variable lists are shown alphabetically; zero: in file order.
 * Returns the flag it was given. */
KVS_EXPORT int32_t KVS_CALL SetDlgSortList(int32_t sorted);

/* Progress dialog of a sampling job. job is handed back to the kernel's
 * CancelSampling when the user cancels. StartSamplingDialog disables the
 * host's windows (DoWindowEnable(0)) and ClearSamplingDialog enables them
 * again. UpdateSamplingDialog takes the samples remaining (counting down
 * from total; values outside 1..total-1 only refresh the window) and the
 * seconds elapsed; it returns 1 when the user has just confirmed a cancel
 * (CancelSampling has been called), else 0. */
KVS_EXPORT void KVS_CALL StartSamplingDialog(int32_t job, int32_t total);
KVS_EXPORT int32_t KVS_CALL UpdateSamplingDialog(int32_t remaining, int32_t elapsedSeconds);
KVS_EXPORT void KVS_CALL ClearSamplingDialog(void);
KVS_EXPORT intptr_t KVS_CALL ProcessDlgProc(KvsWindow window, uint32_t message, uintptr_t wParam, intptr_t lParam);

/* Save-as and import/export option dialogs; 1 for OK, 0 for Cancel. */
KVS_EXPORT int32_t KVS_CALL DoSaveDataOptionsDlg(KvsWindow owner);
KVS_EXPORT int32_t KVS_CALL DoImpExpOptionsDlg(KvsWindow owner, int32_t exportFlag, int32_t value);

/* Append the chosen options to a NUL-terminated command line owned by the
 * caller, whose buffer must hold 10,000 bytes. Neither lets the line pass
 * 9,999 characters: AttachSaveAsOptions leaves its clause off when it does
 * not fit whole, AttachImpExpOptions appends the pieces that fit. Both
 * return 1. */
KVS_EXPORT int32_t KVS_CALL AttachSaveAsOptions(char* commandLine);
KVS_EXPORT int32_t KVS_CALL AttachImpExpOptions(char* commandLine);

/* Program selector of the companion package: value is the program to start
 * from (another value: the one chosen last), text the help file or null; the
 * extras are reserved. Returns 1 when a program was chosen, 0 otherwise. */
KVS_EXPORT int32_t KVS_CALL TRAXCallDialog(uint32_t commandId, int32_t value, const char* text, int32_t extra1, int32_t extra2);

/* Colour picker: on OK stores the chosen value (0 to 1) through colour and
 * returns 1; on Cancel leaves it and returns 0. */
KVS_EXPORT int32_t KVS_CALL ColorPickerDialogEx(KvsWindow owner, float* colour);

/* Stores the address of the library's table of 22 symbol bitmaps through
 * table and returns 22. The table and bitmaps stay the library's; release
 * them with DeleteSymbolBitmapsEx. */
KVS_EXPORT int32_t KVS_CALL LoadSymbolBitmapsEx(void** table);
KVS_EXPORT void KVS_CALL DeleteSymbolBitmapsEx(void);

/* Exported data shared with the host and the graph module. The LOGFONTA
 * members are declared as opaque blocks of sizeof(LOGFONTA) (60 bytes) so
 * that this header needs no windows.h. */
KVS_EXPORT extern int32_t bPortrait;        /* 1 = portrait */
KVS_EXPORT extern float fPageHeight;        /* inches, 11.0 */
KVS_EXPORT extern float fPageWidth;         /* inches, 8.5 */
KVS_EXPORT extern int32_t nGlbGraphCounter; /* 0 at load */
KVS_EXPORT extern KvsLogFont lfKvgFont;     /* current graph font */
KVS_EXPORT extern KvsLogFont lfDefKvgFont;  /* default graph font */

#ifdef __cplusplus
}
#endif

#endif
