#include "win32/colour_grid_window.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "graph/colour_grid.h"
#include "include/kvs_imports.h"
#include "win32/dpi_scale.h"
#include "win32/palette_sweep.h"

namespace kvs::win32 {

namespace {

// The framed cell's frame, in pixels at 96 DPI; never wider than the gap
// between two cells, so it covers no neighbour.
constexpr int kFrameWidth = 2;
constexpr int kCellGap = 3;

// The framed cell: the window text read as an index, -1 when it is none.
int framedCell(HWND grid) {
    std::array<char, 16> text{};
    const int length = GetWindowTextA(grid, text.data(), static_cast<int>(text.size()));
    int index = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + (length > 0 ? length : 0), index);
    (void)end;
    return error == std::errc{} && index >= 0 && index < graph::kColourCells ? index : -1;
}

COLORREF cellColour(int index, bool paletteDisplay) {
    const PaletteColour c = sweepColour(graph::cellValue(index));
    return paletteDisplay ? PALETTERGB(c.red, c.green, c.blue) : RGB(c.red, c.green, c.blue);
}

void paint(HWND grid) {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(grid, &ps);
    if (!dc) return;
    RECT client;
    GetClientRect(grid, &client);
    // On a palette display the cells' colours come from the graph module's
    // palette.
    const bool paletteDisplay = (GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) != 0;
    HPALETTE oldPalette = nullptr;
    if (paletteDisplay) {
        if (auto* palette = static_cast<HPALETTE>(GetKvgPalEx())) {
            oldPalette = SelectPalette(dc, palette, FALSE);
            RealizePalette(dc);
        }
    }
    FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    RECT edge = client;
    DrawEdge(dc, &edge, EDGE_SUNKEN, BF_RECT);

    const graph::CellSize size = graph::cellSize(client.right, client.bottom);
    if (size.width > 3 && size.height > 3) {
        for (int i = 0; i < graph::kColourCells; ++i) {
            const graph::CellRect r = graph::cellRect(i, size);
            const RECT cell{r.left, r.top, r.right, r.bottom};
            HBRUSH brush = CreateSolidBrush(cellColour(i, paletteDisplay));
            if (brush) {
                FillRect(dc, &cell, brush);
                DeleteObject(brush);
            }
        }
        const int framed = framedCell(grid);
        if (framed >= 0) {
            const graph::CellRect r = graph::cellRect(framed, size);
            // The chosen cell is marked in the system's selection colour.
            HBRUSH ink = GetSysColorBrush(COLOR_HIGHLIGHT);
            const int width = std::min(scaledLength(kFrameWidth, windowDpi(grid)), kCellGap);
            for (int inset = 1; inset <= width; ++inset) {
                const RECT frame{r.left - inset, r.top - inset, r.right + inset, r.bottom + inset};
                FrameRect(dc, &frame, ink);
            }
        }
    }
    if (oldPalette) SelectPalette(dc, oldPalette, FALSE);
    EndPaint(grid, &ps);
}

LRESULT CALLBACK gridProcedure(HWND grid, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT: paint(grid); return 0;
    case WM_SETTEXT: {
        const LRESULT result = DefWindowProcA(grid, message, wParam, lParam);
        InvalidateRect(grid, nullptr, FALSE);
        return result;
    }
    case WM_LBUTTONDOWN:
        SendMessageA(GetParent(grid), kColourGridClick, static_cast<WPARAM>(GetDlgCtrlID(grid)), lParam);
        return 0;
    case WM_GETDLGCODE: return DLGC_STATIC;
    case WM_DPICHANGED_AFTERPARENT:
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE: InvalidateRect(grid, nullptr, TRUE); return 0;
    default: return DefWindowProcA(grid, message, wParam, lParam);
    }
}

}  // namespace

bool registerColourGrid(HINSTANCE instance) {
    WNDCLASSA wc{};
    wc.style = CS_VREDRAW | CS_HREDRAW;
    wc.lpfnWndProc = gridProcedure;
    wc.hInstance = instance;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = kColourGridClass;
    return RegisterClassA(&wc) != 0;
}

void unregisterColourGrid(HINSTANCE instance) { UnregisterClassA(kColourGridClass, instance); }

}  // namespace kvs::win32
