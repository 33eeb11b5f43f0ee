#include "standin/win/picture_board.h"

#include <string>
#include <vector>

namespace kvs::standin {

namespace {

constexpr char kClassName[] = "KvsStandinPictureBoard";
// Pixels at 96 DPI; the board is drawn at the screen's scale, as the
// library's lists draw the same pictures.
constexpr int kMargin = 10;
constexpr int kGap = 8;
constexpr int kRowGap = 12;
constexpr int kWidth = 560, kHeight = 320;
constexpr int kAxesPerRow = 8;  // so that at 150 % the board still fits a 1024-pixel screen

int screenDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 96;
    if (screen) ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : 96;
}

int scaled(int pixels, int dpi) { return MulDiv(pixels, dpi, 96); }

struct Board {
    HMODULE library = nullptr;
    std::vector<HBITMAP> symbols;  // the library's, not ours to delete
    std::vector<HBITMAP> owned;    // dashes and axes, loaded here
    int dashes = 0, axes2d = 0;
};

SIZE sizeOf(HBITMAP bitmap) {
    BITMAP info{};
    if (!bitmap || !GetObjectA(bitmap, sizeof info, &info)) return {0, 0};
    return {info.bmWidth, info.bmHeight};
}

// Draws a row of pictures from x, y; returns the height used.
int drawRow(HDC dc, HDC memory, const HBITMAP* bitmaps, int count, int y, int perRow, int dpi) {
    const int margin = scaled(kMargin, dpi), gap = scaled(kGap, dpi);
    int x = margin, tallest = 0, inRow = 0, top = y;
    for (int i = 0; i < count; ++i) {
        const SIZE bitmap = sizeOf(bitmaps[i]);
        const SIZE size{scaled(bitmap.cx, dpi), scaled(bitmap.cy, dpi)};
        if (inRow == perRow) {
            y += tallest + gap;
            x = margin;
            tallest = 0;
            inRow = 0;
        }
        if (bitmaps[i]) {
            const HGDIOBJ previous = SelectObject(memory, bitmaps[i]);
            StretchBlt(dc, x, y, size.cx, size.cy, memory, 0, 0, bitmap.cx, bitmap.cy, SRCCOPY);
            SelectObject(memory, previous);
        }
        x += size.cx + gap;
        if (size.cy > tallest) tallest = size.cy;
        ++inRow;
    }
    return y + tallest - top;
}

void paint(HWND window, const Board& board) {
    PAINTSTRUCT ps;
    const HDC dc = BeginPaint(window, &ps);
    const HDC memory = CreateCompatibleDC(dc);
    SetBkMode(dc, TRANSPARENT);
    SetStretchBltMode(dc, HALFTONE);
    const int dpi = screenDpi();
    TEXTMETRICA metrics{};
    GetTextMetricsA(dc, &metrics);
    const int headingHeight = metrics.tmHeight + scaled(4, dpi);
    const int rowGap = scaled(kRowGap, dpi);
    int y = scaled(kMargin, dpi);
    const auto heading = [&](const char* text) {
        TextOutA(dc, scaled(kMargin, dpi), y, text, static_cast<int>(std::char_traits<char>::length(text)));
        y += headingHeight;
    };
    heading("Plot symbols (LoadSymbolBitmapsEx)");
    y += drawRow(dc, memory, board.symbols.data(), static_cast<int>(board.symbols.size()), y, 22, dpi) + rowGap;
    heading("Line styles");
    y += drawRow(dc, memory, board.owned.data(), board.dashes, y, 6, dpi) + rowGap;
    heading("Axis styles, two- and three-dimensional");
    y += drawRow(dc, memory, board.owned.data() + board.dashes, board.axes2d, y, kAxesPerRow, dpi) + scaled(kGap, dpi);
    drawRow(dc, memory, board.owned.data() + board.dashes + board.axes2d,
            static_cast<int>(board.owned.size()) - board.dashes - board.axes2d, y, kAxesPerRow, dpi);
    DeleteDC(memory);
    EndPaint(window, &ps);
}

LRESULT CALLBACK boardProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* board = reinterpret_cast<Board*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    switch (message) {
    case WM_NCCREATE:
        SetWindowLongPtrA(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams));
        break;
    case WM_PAINT:
        if (board) {
            paint(window, *board);
            return 0;
        }
        break;
    case WM_NCDESTROY:
        if (board) {
            for (HBITMAP bitmap : board->owned)
                if (bitmap) DeleteObject(bitmap);
            delete board;
            SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        }
        break;
    default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void loadSet(Board& board, const char* prefix, int count) {
    for (int i = 1; i <= count; ++i)
        board.owned.push_back(LoadBitmapA(board.library, (prefix + std::to_string(i)).c_str()));
}

}  // namespace

HWND showPictureBoard(HMODULE library, HBITMAP* symbols, int symbolCount) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = boardProcedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = kClassName;
    RegisterClassA(&windowClass);  // fails harmlessly when already there

    auto* board = new Board;
    board->library = library;
    if (symbols) board->symbols.assign(symbols, symbols + symbolCount);
    loadSet(*board, "dash", 11);
    board->dashes = 11;
    loadSet(*board, "axes2d", 12);
    board->axes2d = 12;
    loadSet(*board, "axes3d", 8);

    const int dpi = screenDpi();
    const HWND window =
        CreateWindowExA(0, kClassName, "kvs_dlg.dll pictures", WS_POPUP | WS_CAPTION | WS_VISIBLE, 40, 40,
                        scaled(kWidth, dpi), scaled(kHeight, dpi), nullptr, nullptr, GetModuleHandleA(nullptr), board);
    if (!window) {
        delete board;
        return nullptr;
    }
    UpdateWindow(window);
    return window;
}

void closePictureBoard(HWND board) {
    if (board) DestroyWindow(board);
}

}  // namespace kvs::standin
