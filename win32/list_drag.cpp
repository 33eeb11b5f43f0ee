#include "win32/list_drag.h"

#include <cstdlib>
#include <unordered_map>

#include "resources/list_transfer.h"
#include "win32/dialog_procedure.h"
#include "win32/late_bound.h"
#include "win32/module_instance.h"

namespace kvs::win32 {

namespace {

// The mouse: a press being watched in one list box, and whether it has
// become a drag.
//  - A press on a selected entry is kept from the list box (which would
//    select that entry alone): past the drag threshold it drags the whole
//    selection, released where it was it is replayed as the click it was.
//  - A press elsewhere is the list box's (select, or select a range by
//    dragging within the list); when the mouse leaves the list past the
//    threshold, the list box's press ends there and its selection is dragged.
struct Press {
    HWND list = nullptr;  // null: no press watched
    POINT at{};           // client point of the press
    WPARAM keys = 0;
    bool held = false;    // kept from the list box
    bool dragging = false;
};

Press press;
std::unordered_map<HWND, WNDPROC> listProcedures;
HCURSOR dragCursor = nullptr;

constexpr WPARAM kSelectAllCharacter = 1;  // what Ctrl+A types

bool isListBox(HWND window) {
    char name[16] = {};
    return window && GetClassNameA(window, name, static_cast<int>(sizeof name)) > 0 && lstrcmpiA(name, "ListBox") == 0;
}

POINT pointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

LPARAM lParamOf(POINT at) {
    return MAKELPARAM(static_cast<WORD>(static_cast<short>(at.x)), static_cast<WORD>(static_cast<short>(at.y)));
}

// The dialog session of the list's dialog, with its view; null if it has none.
DialogSession* sessionOf(HWND list) {
    DialogSession* session = librarySession(GetParent(list));
    return session && session->handler && session->view ? session : nullptr;
}

// The entry under a client point, or -1. LB_ITEMFROMPOINT answers in 16
// bits; the entry is a visible one, so in a list of more than 65,535 it is
// the one at or after the top entry with those low bits.
int entryAt(HWND list, POINT at) {
    const LRESULT hit = SendMessageA(list, LB_ITEMFROMPOINT, 0, lParamOf(at));
    if (HIWORD(hit) != 0) return -1;
    const auto top = static_cast<int>(SendMessageA(list, LB_GETTOPINDEX, 0, 0));
    return top + static_cast<WORD>(LOWORD(hit) - static_cast<WORD>(top));
}

// Before which entry a drop at a client point lands: the entry under it, or
// the next one when the point is in its lower half; below the last entry,
// the count.
int dropIndex(HWND list, POINT at) {
    const auto count = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
    const int entry = entryAt(list, at);
    if (entry < 0 || count <= 0) return count > 0 ? count : 0;
    RECT item{};
    if (SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&item)) == LB_ERR)
        return entry;
    const bool lowerHalf = at.y * 2 >= item.top + item.bottom;
    return lowerHalf && entry < count ? entry + 1 : entry;
}

// The list box of the same dialog under a client point of list from, and the
// point in its own client area; null over anything else.
HWND listAt(HWND from, POINT at, POINT& inTarget) {
    POINT screen = at;
    MapWindowPoints(from, nullptr, &screen, 1);
    const HWND window = windowFromPoint(screen);
    if (!window || GetParent(window) != GetParent(from) || !isListBox(window)) return nullptr;
    inTarget = screen;
    MapWindowPoints(nullptr, window, &inTarget, 1);
    return window;
}

// An arrow with a sheet below it: 'X' black, 'o' white, '.' the screen.
constexpr const char* kDragPicture[] = {
    "X...............", "XX..............", "XoX.............", "XooX............",
    "XoooX...........", "XooooX..........", "XoooooX.........", "XooooooX........",
    "XoooooooX.......", "XooooooooX......", "XoooooXXXXX.....", "XooXooX.........",
    "XoX.XooX........", "XX..XooX........", ".....XooX.......", ".....XooX.......",
    "......XX........", "................", "........XXXXXXXXXXXXX",
    "........XoooooooooooX", "........XoXXXXXXXXXoX", "........XoooooooooooX",
    "........XoXXXXXXXoooX", "........XoooooooooooX", "........XXXXXXXXXXXXX",
};

HCURSOR draggingCursor() {
    if (dragCursor) return dragCursor;
    constexpr int kSize = 32, kRowBytes = kSize / 8;
    BYTE andMask[kSize * kRowBytes];
    BYTE xorMask[kSize * kRowBytes] = {};
    for (BYTE& bits : andMask) bits = 0xFF;
    int row = 0;
    for (const char* line : kDragPicture) {
        for (int column = 0; line[column] && column < kSize; ++column) {
            const int byte = row * kRowBytes + column / 8;
            const auto bit = static_cast<BYTE>(0x80 >> (column % 8));
            if (line[column] == '.') continue;
            andMask[byte] = static_cast<BYTE>(andMask[byte] & ~bit);
            if (line[column] == 'o') xorMask[byte] = static_cast<BYTE>(xorMask[byte] | bit);
        }
        ++row;
    }
    dragCursor = createCursor(moduleInstance(), 0, 0, kSize, kSize, andMask, xorMask);
    return dragCursor ? dragCursor : LoadCursor(nullptr, IDC_ARROW);
}

// The cursor says whether letting go here would do anything.
void showDropCursor(HWND from, POINT at) {
    POINT inTarget{};
    const HWND target = listAt(from, at, inTarget);
    DialogSession* session = sessionOf(from);
    const bool allowed =
        target && session && session->handler->canDrop(*session->view, GetDlgCtrlID(from), GetDlgCtrlID(target));
    SetCursor(allowed ? draggingCursor() : LoadCursor(nullptr, IDC_NO));
}

void endPress(HWND list) {
    press = Press{};
    if (GetCapture() == list) ReleaseCapture();
}

void drop(HWND from, POINT at) {
    POINT inTarget{};
    const HWND target = listAt(from, at, inTarget);
    DialogSession* session = sessionOf(from);
    if (!target || !session) return;
    session->handler->onDrop(*session->view, GetDlgCtrlID(from), GetDlgCtrlID(target), dropIndex(target, inTarget));
}

bool onPress(HWND list, WNDPROC previous, WPARAM keys, LPARAM lParam, LRESULT& result) {
    // A press still watched holds the mouse; one that lost it is over.
    if (press.list && GetCapture() == press.list) return false;
    press = Press{};
    DialogSession* session = sessionOf(list);
    if (!session || (keys & (MK_SHIFT | MK_CONTROL)) != 0 ||
        !session->handler->canDrop(*session->view, GetDlgCtrlID(list), 0))
        return false;
    const POINT at = pointOf(lParam);
    const int entry = entryAt(list, at);
    press = Press{list, at, keys, false, false};
    if (entry >= 0 && SendMessageA(list, LB_GETSEL, static_cast<WPARAM>(entry), 0) > 0) {
        press.held = true;
        SetFocus(list);
        SetCapture(list);
        result = 0;
        return true;
    }
    result = CallWindowProcA(previous, list, WM_LBUTTONDOWN, keys, lParam);
    return true;
}

bool onMove(HWND list, WNDPROC previous, WPARAM keys, LPARAM lParam) {
    if (press.list != list) return false;
    const POINT at = pointOf(lParam);
    if (!press.dragging) {
        if ((keys & MK_LBUTTON) == 0) {
            // The release went elsewhere.
            press = Press{};
            return false;
        }
        const bool pastThreshold = std::abs(at.x - press.at.x) > GetSystemMetrics(SM_CXDRAG) ||
                         std::abs(at.y - press.at.y) > GetSystemMetrics(SM_CYDRAG);
        if (press.held) {
            if (!pastThreshold) return true;
        } else {
            RECT client{};
            GetClientRect(list, &client);
            if (!pastThreshold || PtInRect(&client, at)) return false;
            // Leaving the list: the list box's own press ends here.
            const Press kept = press;
            press = Press{};
            CallWindowProcA(previous, list, WM_LBUTTONUP, 0, lParamOf(kept.at));
            press = kept;
        }
        press.held = false;
        press.dragging = true;
        if (GetCapture() != list) SetCapture(list);
    }
    showDropCursor(list, at);
    return true;
}

bool onRelease(HWND list, WNDPROC previous, WPARAM keys, LPARAM lParam, LRESULT& result) {
    if (press.list != list) return false;
    const Press ended = press;
    if (!ended.dragging && !ended.held) {
        press = Press{};
        return false;
    }
    endPress(list);
    result = 0;
    if (ended.dragging) {
        SetCursor(LoadCursor(nullptr, IDC_ARROW));
        drop(list, pointOf(lParam));
    } else {
        // No drag after all: the press was a click on the entry.
        CallWindowProcA(previous, list, WM_LBUTTONDOWN, ended.keys, lParamOf(ended.at));
        result = CallWindowProcA(previous, list, WM_LBUTTONUP, keys, lParam);
    }
    return true;
}

bool onKey(HWND list, WPARAM key) {
    if (press.dragging) {
        if (key == VK_ESCAPE) {
            endPress(list);
            SetCursor(LoadCursor(nullptr, IDC_ARROW));
        }
        return true;
    }
    DialogSession* session = sessionOf(list);
    if (!session) return false;
    const bool control = GetKeyState(VK_CONTROL) < 0, alt = GetKeyState(VK_MENU) < 0, shift = GetKeyState(VK_SHIFT) < 0;
    if (key == VK_DELETE && !control && !alt && !shift)
        return session->handler->onListKey(*session->view, GetDlgCtrlID(list), ListKey::Delete);
    if (key == 'A' && control && !alt && !shift)
        return session->handler->onListKey(*session->view, GetDlgCtrlID(list), ListKey::SelectAll);
    return false;
}

bool onGesture(HWND list, WNDPROC previous, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case WM_LBUTTONDOWN: return onPress(list, previous, wParam, lParam, result);
    case WM_MOUSEMOVE: return onMove(list, previous, wParam, lParam);
    case WM_LBUTTONUP: return onRelease(list, previous, wParam, lParam, result);
    case WM_CAPTURECHANGED:
        // Another window took the mouse: the press or the drag is over.
        if (press.list == list && reinterpret_cast<HWND>(lParam) != list) press = Press{};
        return false;
    case WM_SETCURSOR:
        // The drop cursor stays while dragging.
        if (!press.dragging) return false;
        result = TRUE;
        return true;
    case WM_GETDLGCODE:
        // Escape comes to the list while it drags instead of cancelling the dialog.
        if (!press.dragging) return false;
        result = CallWindowProcA(previous, list, message, wParam, lParam) | DLGC_WANTALLKEYS;
        return true;
    case WM_KEYDOWN: return onKey(list, wParam);
    case WM_CHAR:
        // Ctrl+A's character would start the list box's search by first letter.
        result = 0;
        return wParam == kSelectAllCharacter;
    default: return false;
    }
}

LRESULT CALLBACK listProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = listProcedures.find(list);
    if (found == listProcedures.end()) return DefWindowProcA(list, message, wParam, lParam);
    const WNDPROC previous = found->second;
    if (message == WM_NCDESTROY) {
        if (press.list == list) press = Press{};
        SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
        listProcedures.erase(found);
        return CallWindowProcA(previous, list, message, wParam, lParam);
    }
    // No exception may cross into the window manager: a failing handler
    // ends its dialog as cancelled, as the dialog procedure does.
    try {
        LRESULT result = 0;
        if (onGesture(list, previous, message, wParam, lParam, result)) return result;
    } catch (...) {
        endPress(list);
        EndDialog(GetParent(list), IDCANCEL);
        return 0;
    }
    return CallWindowProcA(previous, list, message, wParam, lParam);
}

void subclass(HWND list) {
    if (!isListBox(list) || listProcedures.count(list)) return;
    listProcedures[list] =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(listProcedure)));
}

}  // namespace

void attachListGestures(HWND dialog) {
    for (const ListTransferRow& row : kListTransfers) {
        subclass(GetDlgItem(dialog, row.targetList));
        for (int source : row.sources) subclass(GetDlgItem(dialog, source));
    }
}

void releaseDragCursor() {
    destroyCursor(dragCursor);
    dragCursor = nullptr;
}

}  // namespace kvs::win32
