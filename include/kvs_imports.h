/*
 * kvs_imports.h - what kvs_dlg.dll imports: the functions that KORVAN.exe,
 * the statistics kernel kernkvs.dll and the graphics module kvgraph.dll must
 * export for it. All are __stdcall on 32-bit Windows (KVS_CALL), exported
 * undecorated (the import libraries are made from .def files listing
 * Name@bytes and dlltool -k).
 *
 * Every function is called on the host's user-interface thread only.
 */
#ifndef KVS_IMPORTS_H
#define KVS_IMPORTS_H

#include <stdint.h>

#include "kvs_platform.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------- KORVAN.exe */

/* One line for the command interpreter. command is never null; argument is
 * null except for a module switch (module name, window title). Both strings
 * belong to the library and are freed when AddCmd returns: copy them. The
 * result is ignored. */
int32_t KVS_CALL AddCmd(const char* command, const char* argument);

/* Tells the host which procedure module a dialog is about (for example
 * "STATS") and its window title (at most 260 characters). Copy both. */
int32_t KVS_CALL AddTitle(const char* module, const char* title);

/* Non-zero when the named procedure module is the active one. */
int32_t KVS_CALL IsThisModuleNameActive(const char* module);

/* Checks (1) or unchecks (0) the host menu entry with this command id. */
int32_t KVS_CALL CheckMainMenuItem(uint32_t commandId, int32_t checked);

/* The variables of another data file. fileName is the path as the user
 * typed or chose it (never null, at most 259 characters, possibly missing).
 * Returns their count and stores through block a block of count 13-byte
 * entries, each a name of at most 12 characters padded with NULs to the
 * entry's end, in file order. The block is allocated with the kernel's
 * reallocate_mem_ex (tag 0); the library releases it with free_mem_ex. With
 * no variables (or an unreadable file) returns 0 and stores null; a negative
 * count is read as 0. */
int32_t KVS_CALL GetFileVariables(const char* fileName, char** block);

/* Number of variables of the data file in use. */
int32_t KVS_CALL GetNumVars(void);

/* Non-zero when the data file in use holds a matrix rather than cases. */
int32_t KVS_CALL IsCurrentUseFileAMatrix(void);

/* Type code of the model in use for the statistics dialogs: first argument
 * the command id asking, second a selector the asking dialog defines. */
int32_t KVS_CALL GetMNType(int32_t commandId, int32_t selector);

/* Non-zero when the host's MGLH module is the active one. */
int32_t KVS_CALL IsMGLHActive(void);

/* Discards command lines the host collected but has not run yet. Called by
 * every graph dialog on each OK, while the dialog is still up and before
 * any of its lines reach AddCmd. Must not call back into the library. */
int32_t KVS_CALL AbortCommands(void);

/* 0 disables the host's windows, 1 enables them again. */
int32_t KVS_CALL DoWindowEnable(int32_t enable);

/* --------------------------------------------------------------- kernkvs.dll */

/* Allocates (*block null) or grows *block to count elements of elementSize
 * bytes (the new part zero-filled) and stores the new address through block;
 * returns it. On failure stores and returns null; the kernel then owns and
 * releases the old block, which the library never touches again. tag: 99
 * for the library's command queue, 0 for strings. The library always passes
 * count and elementSize of at least 1. */
void* KVS_CALL reallocate_mem_ex(void** block, int32_t count, int32_t elementSize, int32_t tag);

/* Releases *block (null is allowed) and stores null through block. */
void KVS_CALL free_mem_ex(void** block);

/* Length of a NUL-terminated string in bytes. */
int32_t KVS_CALL kvs_strlen_ex(const char* text);

/* Number of variable positions of the data file in use. */
int32_t KVS_CALL INQFMV_EX(void);

/* Width in bytes of the blank-padded name field INQVARNAME_EX writes (12). */
int32_t KVS_CALL INQFML_EX(void);

/* Kind of the data file in use: 0 rectangular cases, 1 matrix, -1 none. */
int32_t KVS_CALL INQKS_EX(void);

/* Writes the name of variable varNumber (1-based) into field, blank-padded
 * to fieldWidth bytes and not NUL-terminated. Returns 1, or 0 (field
 * untouched) when varNumber is out of range. */
int32_t KVS_CALL INQVARNAME_EX(int32_t varNumber, char* field, int32_t fieldWidth);

/* Print setting of the kernel (0 short, 1 medium, 2 long). */
int32_t KVS_CALL INQPRT_EX(void);

/* 1 when variable varNumber is numeric, 0 when it holds text. */
int32_t KVS_CALL DXNUM_EX(int32_t varNumber);

/* The kernel's missing-value code: the double it stores for a missing
 * numeric value, the same on every call while the process runs. */
double KVS_CALL DMIS_EX(void);

/* Length of text without its trailing blanks. */
int32_t KVS_CALL NBLANK_EX(const char* text, int32_t length);

/* Cholesky factor of an n x n symmetric matrix in place; 0 when it is not
 * positive definite. */
int32_t KVS_CALL choll(double* matrix, int32_t n);

/* Stops the sampling job whose handle was given to StartSamplingDialog. */
void KVS_CALL CancelSampling(int32_t job);

/* --------------------------------------------------------------- kvgraph.dll */

/* The graph module's logical palette (an HPALETTE), owned by the module. */
void* KVS_CALL GetKvgPalEx(void);

#ifdef __cplusplus
}
#endif

#endif
