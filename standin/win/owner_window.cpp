#include "standin/win/owner_window.h"

namespace kvs::standin {

HWND createOwnerWindow(const char* title) {
    constexpr const char* kClassName = "KorvanStandinOwner";
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = kClassName;
    if (!RegisterClassA(&windowClass) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) return nullptr;
    return CreateWindowExA(0, kClassName, title, WS_OVERLAPPEDWINDOW, 0, 0, 320, 200, nullptr, nullptr, instance,
                           nullptr);
}

}  // namespace kvs::standin
