#include "standin/win/bitmap_file.h"

#include <cstdio>
#include <vector>

namespace kvs::standin {

namespace {

template <typename T>
bool write(std::FILE* file, const T& value) {
    return std::fwrite(&value, sizeof value, 1, file) == 1;
}

}  // namespace

bool saveWindowBitmap(HWND window, const std::string& path) {
    RECT frame{};
    if (!GetWindowRect(window, &frame)) return false;
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    if (width <= 0 || height <= 0) return false;
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;  // bottom-up, as a .bmp file stores it
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    const DWORD stride = (static_cast<DWORD>(width) * 3 + 3) & ~3u;
    info.bmiHeader.biSizeImage = stride * static_cast<DWORD>(height);

    bool ok = false;
    void* bits = nullptr;
    const HDC source = GetWindowDC(window);
    const HDC memory = CreateCompatibleDC(source);
    const HBITMAP bitmap = CreateDIBSection(source, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (source && memory && bitmap && bits) {
        const HGDIOBJ previous = SelectObject(memory, bitmap);
        ok = BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY) != FALSE;
        SelectObject(memory, previous);
        GdiFlush();
    }
    if (ok) {
        BITMAPFILEHEADER header{};
        header.bfType = 0x4D42;  // "BM"
        header.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
        header.bfSize = header.bfOffBits + info.bmiHeader.biSizeImage;
        std::FILE* file = std::fopen(path.c_str(), "wb");
        ok = file && write(file, header) && write(file, info.bmiHeader) &&
             std::fwrite(bits, 1, info.bmiHeader.biSizeImage, file) == info.bmiHeader.biSizeImage;
        if (file) ok = std::fclose(file) == 0 && ok;
    }
    if (bitmap) DeleteObject(bitmap);
    if (memory) DeleteDC(memory);
    if (source) ReleaseDC(window, source);
    return ok;
}

}  // namespace kvs::standin
