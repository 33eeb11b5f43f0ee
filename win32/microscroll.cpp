#include "win32/microscroll.h"

namespace kvs::win32 {

namespace {

constexpr COLORREF kBackground = RGB(16, 0, 0);

LRESULT CALLBACK microscrollProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        PAINTSTRUCT paint;
        if (HDC dc = BeginPaint(window, &paint)) {
            auto brush = reinterpret_cast<HBRUSH>(GetClassLongPtrA(window, GCLP_HBRBACKGROUND));
            if (brush) FillRect(dc, &paint.rcPaint, brush);
            EndPaint(window, &paint);
        }
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

bool registerMicroscroll(HINSTANCE instance) {
    WNDCLASSA wc{};
    wc.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    wc.lpfnWndProc = microscrollProcedure;
    wc.cbWndExtra = sizeof(void*);
    wc.hInstance = instance;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    // A registered class owns its brush; one that fails to register does not.
    wc.hbrBackground = CreateSolidBrush(kBackground);
    wc.lpszClassName = kMicroscrollClass;
    if (RegisterClassA(&wc)) return true;
    if (wc.hbrBackground) DeleteObject(wc.hbrBackground);
    return false;
}

void unregisterMicroscroll(HINSTANCE instance) { UnregisterClassA(kMicroscrollClass, instance); }

}  // namespace kvs::win32
