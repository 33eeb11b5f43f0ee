/* kvs_platform.h - calling convention and handle types shared by the
 * library's public headers. */
#ifndef KVS_PLATFORM_H
#define KVS_PLATFORM_H

#include <stdint.h>

#if defined(_WIN32)
#define KVS_CALL __stdcall
#else
#define KVS_CALL
#endif

/* KVS_BUILDING_DLL is defined while kvs_dlg.dll itself is compiled. The
 * export names come from kvs_dlg.def, so nothing is marked dllexport; the
 * host sees the exported data through dllimport. */
#if defined(_WIN32) && !defined(KVS_BUILDING_DLL) && !defined(KVS_STATIC)
#define KVS_EXPORT __declspec(dllimport)
#else
#define KVS_EXPORT
#endif

/* A window handle (HWND) without windows.h. */
typedef void* KvsWindow;

/* Same size and layout as LOGFONTA. */
typedef struct KvsLogFont {
    int32_t height, width, escapement, orientation, weight;
    uint8_t italic, underline, strikeOut, charSet;
    uint8_t outPrecision, clipPrecision, quality, pitchAndFamily;
    char faceName[32];
} KvsLogFont;

#endif
