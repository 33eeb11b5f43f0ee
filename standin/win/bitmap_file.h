// Screenshots of one window as a 24-bit .bmp file (the tour converts them
// to PNG).
#pragma once

#include <windows.h>

#include <string>

namespace kvs::standin {

// Repaints window and writes what it shows, frame included, to path.
bool saveWindowBitmap(HWND window, const std::string& path);

}  // namespace kvs::standin
