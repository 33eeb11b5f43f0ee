#include "win32/microscroll.h"

#include "win32/numeric_field_window.h"

namespace kvs::win32 {

namespace {

constexpr COLORREF kBackground = RGB(16, 0, 0);

}  // namespace

bool registerMicroscroll(HINSTANCE instance) {
    WNDCLASSA wc{};
    wc.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    wc.lpfnWndProc = upDownProcedure;
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
