// Windows functions the library calls without importing them: found at run
// time, so that kvs_dlg.dll imports what it always has (the host team checks
// the import table) and loads the accessibility libraries only when a screen
// reader asks.
#pragma once

#include <windows.h>
#include <uxtheme.h>

namespace kvs::win32 {

// WindowFromPoint; null when it cannot be found.
HWND windowFromPoint(POINT screenPoint);
// The sibling before window in z-order (GetWindow GW_HWNDPREV), or null.
HWND previousSibling(HWND window);
// CreateCursor and DestroyCursor.
HCURSOR createCursor(HINSTANCE instance, int hotX, int hotY, int width, int height, const void* andMask,
                     const void* xorMask);
void destroyCursor(HCURSOR cursor);

// SetThreadDpiAwarenessContext (Windows 10 1607 and later): the previous
// context, or null when Windows lacks it (nothing changes then).
DPI_AWARENESS_CONTEXT setThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT context);

// GetDpiForWindow (Windows 10 1607 and later): 0 when Windows lacks it.
UINT dpiForWindow(HWND window);

// uxtheme.dll, loaded on first use and kept. Without it themes count as off,
// openThemeData gives null and the drawing calls answer E_NOTIMPL, so every
// caller keeps a classic drawing to fall back on.
bool themesActive();  // IsThemeActive and IsAppThemed
HTHEME openThemeData(HWND window, const wchar_t* classList);
void closeThemeData(HTHEME theme);
HRESULT drawThemeBackground(HTHEME theme, HDC dc, int part, int state, const RECT& rect);
HRESULT drawThemeText(HTHEME theme, HDC dc, int part, int state, const wchar_t* text, int length, DWORD flags,
                      const RECT& rect);
bool themeBackgroundPartiallyTransparent(HTHEME theme, int part, int state);
HRESULT drawThemeParentBackground(HWND window, HDC dc, const RECT& rect);

// HtmlHelpA of hhctrl.ocx, loaded on first use and kept: false when HTML
// Help is missing, so the caller can fall back to WinHelp.
bool htmlHelp(HWND owner, const char* file, UINT command, DWORD_PTR data);

// oleacc.dll and oleaut32.dll, loaded on first use and kept. Each returns
// E_NOTIMPL (or null) when its library or function is missing.
HRESULT createStdAccessibleObject(HWND window, LONG objectId, REFIID iid, void** object);
LRESULT lresultFromObject(REFIID iid, WPARAM wParam, IUnknown* object);
BSTR sysAllocStringLen(const wchar_t* text, UINT length);

}  // namespace kvs::win32
