#include "standin/win/picture_board.h"

#include <string>
#include <vector>

namespace kvs::standin {

namespace {

constexpr char kClassName[] = "KvsStandinPictureBoard";
constexpr int kMargin = 10;
constexpr int kGap = 8;

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
int drawRow(HDC dc, HDC memory, const HBITMAP* bitmaps, int count, int y, int perRow) {
    int x = kMargin, tallest = 0, inRow = 0, top = y;
    for (int i = 0; i < count; ++i) {
        const SIZE size = sizeOf(bitmaps[i]);
        if (inRow == perRow) {
            y += tallest + kGap;
            x = kMargin;
            tallest = 0;
            inRow = 0;
        }
        if (bitmaps[i]) {
            const HGDIOBJ previous = SelectObject(memory, bitmaps[i]);
            BitBlt(dc, x, y, size.cx, size.cy, memory, 0, 0, SRCCOPY);
            SelectObject(memory, previous);
        }
        x += size.cx + kGap;
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
    int y = kMargin;
    const auto heading = [&](const char* text) {
        TextOutA(dc, kMargin, y, text, static_cast<int>(std::char_traits<char>::length(text)));
        y += 18;
    };
    heading("Plot symbols (LoadSymbolBitmapsEx)");
    y += drawRow(dc, memory, board.symbols.data(), static_cast<int>(board.symbols.size()), y, 22) + 12;
    heading("Line styles");
    y += drawRow(dc, memory, board.owned.data(), board.dashes, y, 6) + 12;
    heading("Axis styles, two- and three-dimensional");
    y += drawRow(dc, memory, board.owned.data() + board.dashes, board.axes2d, y, 12) + kGap;
    drawRow(dc, memory, board.owned.data() + board.dashes + board.axes2d,
            static_cast<int>(board.owned.size()) - board.dashes - board.axes2d, y, 12);
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

    const HWND window = CreateWindowExA(0, kClassName, "kvs_dlg.dll pictures", WS_POPUP | WS_CAPTION | WS_VISIBLE,
                                        40, 40, 680, 270, nullptr, nullptr, GetModuleHandleA(nullptr), board);
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
