#include "win32/late_bound.h"

#include <cstring>

namespace kvs::win32 {

namespace {

// A function of a module by name, as the type it has.
template <typename Function>
Function resolve(HMODULE module, const char* name) {
    const FARPROC found = module ? GetProcAddress(module, name) : nullptr;
    Function function = nullptr;
    static_assert(sizeof function == sizeof found);
    if (found) std::memcpy(&function, &found, sizeof function);
    return function;
}

HMODULE user32() { return GetModuleHandleW(L"user32.dll"); }

// Loaded once and never freed: an object handed to a screen reader may
// still call into it.
HMODULE loaded(const wchar_t* name) {
    HMODULE module = GetModuleHandleW(name);
    return module ? module : LoadLibraryW(name);
}

HMODULE uxtheme() {
    static const HMODULE module = loaded(L"uxtheme.dll");
    return module;
}

}  // namespace

HWND windowFromPoint(POINT screenPoint) {
    using Function = HWND(WINAPI*)(POINT);
    static const auto function = resolve<Function>(user32(), "WindowFromPoint");
    return function ? function(screenPoint) : nullptr;
}

HWND previousSibling(HWND window) {
    using Function = HWND(WINAPI*)(HWND, UINT);
    static const auto function = resolve<Function>(user32(), "GetWindow");
    return function && window ? function(window, GW_HWNDPREV) : nullptr;
}

HCURSOR createCursor(HINSTANCE instance, int hotX, int hotY, int width, int height, const void* andMask,
                     const void* xorMask) {
    using Function = HCURSOR(WINAPI*)(HINSTANCE, int, int, int, int, const void*, const void*);
    static const auto function = resolve<Function>(user32(), "CreateCursor");
    return function ? function(instance, hotX, hotY, width, height, andMask, xorMask) : nullptr;
}

void destroyCursor(HCURSOR cursor) {
    using Function = BOOL(WINAPI*)(HCURSOR);
    static const auto function = resolve<Function>(user32(), "DestroyCursor");
    if (function && cursor) function(cursor);
}

DPI_AWARENESS_CONTEXT setThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT context) {
    using Function = DPI_AWARENESS_CONTEXT(WINAPI*)(DPI_AWARENESS_CONTEXT);
    static const auto function = resolve<Function>(user32(), "SetThreadDpiAwarenessContext");
    return function ? function(context) : nullptr;
}

UINT dpiForWindow(HWND window) {
    using Function = UINT(WINAPI*)(HWND);
    static const auto function = resolve<Function>(user32(), "GetDpiForWindow");
    return function && window ? function(window) : 0;
}

bool themesActive() {
    using Function = BOOL(WINAPI*)();
    static const auto themeActive = resolve<Function>(uxtheme(), "IsThemeActive");
    static const auto appThemed = resolve<Function>(uxtheme(), "IsAppThemed");
    return themeActive && appThemed && themeActive() && appThemed();
}

HTHEME openThemeData(HWND window, const wchar_t* classList) {
    using Function = HTHEME(WINAPI*)(HWND, LPCWSTR);
    static const auto function = resolve<Function>(uxtheme(), "OpenThemeData");
    return function ? function(window, classList) : nullptr;
}

void closeThemeData(HTHEME theme) {
    using Function = HRESULT(WINAPI*)(HTHEME);
    static const auto function = resolve<Function>(uxtheme(), "CloseThemeData");
    if (function && theme) function(theme);
}

HRESULT drawThemeBackground(HTHEME theme, HDC dc, int part, int state, const RECT& rect) {
    using Function = HRESULT(WINAPI*)(HTHEME, HDC, int, int, const RECT*, const RECT*);
    static const auto function = resolve<Function>(uxtheme(), "DrawThemeBackground");
    return function ? function(theme, dc, part, state, &rect, nullptr) : E_NOTIMPL;
}

HRESULT drawThemeText(HTHEME theme, HDC dc, int part, int state, const wchar_t* text, int length, DWORD flags,
                      const RECT& rect) {
    using Function = HRESULT(WINAPI*)(HTHEME, HDC, int, int, LPCWSTR, int, DWORD, DWORD, const RECT*);
    static const auto function = resolve<Function>(uxtheme(), "DrawThemeText");
    return function ? function(theme, dc, part, state, text, length, flags, 0, &rect) : E_NOTIMPL;
}

bool themeBackgroundPartiallyTransparent(HTHEME theme, int part, int state) {
    using Function = BOOL(WINAPI*)(HTHEME, int, int);
    static const auto function = resolve<Function>(uxtheme(), "IsThemeBackgroundPartiallyTransparent");
    return function && function(theme, part, state);
}

HRESULT drawThemeParentBackground(HWND window, HDC dc, const RECT& rect) {
    using Function = HRESULT(WINAPI*)(HWND, HDC, const RECT*);
    static const auto function = resolve<Function>(uxtheme(), "DrawThemeParentBackground");
    return function ? function(window, dc, &rect) : E_NOTIMPL;
}

bool htmlHelp(HWND owner, const char* file, UINT command, DWORD_PTR data) {
    using Function = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);
    static const auto function = resolve<Function>(loaded(L"hhctrl.ocx"), "HtmlHelpA");
    if (!function) return false;
    function(owner, file, command, data);
    return true;
}

HRESULT createStdAccessibleObject(HWND window, LONG objectId, REFIID iid, void** object) {
    using Function = HRESULT(WINAPI*)(HWND, LONG, REFIID, void**);
    static const auto function = resolve<Function>(loaded(L"oleacc.dll"), "CreateStdAccessibleObject");
    return function ? function(window, objectId, iid, object) : E_NOTIMPL;
}

LRESULT lresultFromObject(REFIID iid, WPARAM wParam, IUnknown* object) {
    using Function = LRESULT(WINAPI*)(REFIID, WPARAM, IUnknown*);
    static const auto function = resolve<Function>(loaded(L"oleacc.dll"), "LresultFromObject");
    return function ? function(iid, wParam, object) : E_NOTIMPL;
}

BSTR sysAllocStringLen(const wchar_t* text, UINT length) {
    using Function = BSTR(WINAPI*)(const wchar_t*, UINT);
    static const auto function = resolve<Function>(loaded(L"oleaut32.dll"), "SysAllocStringLen");
    return function ? function(text, length) : nullptr;
}

}  // namespace kvs::win32
