// One part of the current visual style for the owner-drawn controls: open
// while a control paints, absent when uxtheme.dll or an active theme is
// missing, so the caller draws the classic face instead.
#pragma once

#include <windows.h>
#include <uxtheme.h>
#include <vsstyle.h>

namespace kvs::win32 {

class ThemePart {
public:
    // classList as OpenThemeData takes it ("BUTTON", "SPIN").
    ThemePart(HWND window, const wchar_t* classList);
    ~ThemePart();
    ThemePart(const ThemePart&) = delete;
    ThemePart& operator=(const ThemePart&) = delete;

    explicit operator bool() const { return theme_ != nullptr; }

    // The part's background in state over rect, with the parent's
    // background under it where the part lets it show; false when nothing
    // was drawn.
    bool drawBackground(HDC dc, int part, int state, const RECT& rect) const;
    // ANSI text (length bytes) in the part's text colour; false when nothing
    // was drawn. The font is the one selected into dc.
    bool drawText(HDC dc, int part, int state, const char* text, int length, DWORD format, const RECT& rect) const;

private:
    HWND window_;
    HTHEME theme_ = nullptr;
};

}  // namespace kvs::win32
