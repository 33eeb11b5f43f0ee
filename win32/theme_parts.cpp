#include "win32/theme_parts.h"

#include <array>

#include "win32/late_bound.h"

namespace kvs::win32 {

ThemePart::ThemePart(HWND window, const wchar_t* classList) : window_(window) {
    if (window && themesActive()) theme_ = openThemeData(window, classList);
}

ThemePart::~ThemePart() { closeThemeData(theme_); }

bool ThemePart::drawBackground(HDC dc, int part, int state, const RECT& rect) const {
    if (!theme_) return false;
    if (themeBackgroundPartiallyTransparent(theme_, part, state)) drawThemeParentBackground(window_, dc, rect);
    return SUCCEEDED(drawThemeBackground(theme_, dc, part, state, rect));
}

bool ThemePart::drawText(HDC dc, int part, int state, const char* text, int length, DWORD format,
                         const RECT& rect) const {
    if (!theme_ || !text || length <= 0) return false;
    // Button and list texts are short; a longer one is cut at the bound.
    // (A byte never makes more than one UTF-16 unit.)
    std::array<wchar_t, 256> wide{};
    const int bytes = length < static_cast<int>(wide.size()) ? length : static_cast<int>(wide.size());
    const int converted = MultiByteToWideChar(CP_ACP, 0, text, bytes, wide.data(), static_cast<int>(wide.size()));
    if (converted <= 0) return false;
    return SUCCEEDED(drawThemeText(theme_, dc, part, state, wide.data(), converted, format, rect));
}

}  // namespace kvs::win32
