// A window that shows the library's picture resources as the graph dialogs'
// lists do: the plot symbols handed out by LoadSymbolBitmapsEx, the line
// styles and the axis styles. The tour takes its screenshot.
#pragma once

#include <windows.h>

namespace kvs::standin {

// Shows the board for the loaded library; null when it cannot be made.
// symbols is the table LoadSymbolBitmapsEx gave (22 bitmaps).
HWND showPictureBoard(HMODULE library, HBITMAP* symbols, int symbolCount);
void closePictureBoard(HWND board);

}  // namespace kvs::standin
