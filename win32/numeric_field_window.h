// The window side of numeric fields: the subclassed edit control that checks
// its number as the user leaves it, and the "Tmicroscroll" up/down control
// beside it.
//
// A check that fails on focus loss is reported later: the edit posts
// WM_USER + 50 (1074) with the error code and itself to a null window, so
// the message sits in the thread's queue until the focus change has settled.
// A message hook of the thread hands that message to the edit window named
// in it, which then shows the message and takes the focus back with its text
// selected. The hook is in place while any numeric field exists.
#pragma once

#include <windows.h>

#include "core/numeric_field.h"

namespace kvs::win32 {

inline constexpr UINT kDeferredFieldError = WM_USER + 50;
inline constexpr UINT_PTR kUpTimer = 500;
inline constexpr UINT_PTR kDownTimer = 501;
inline constexpr DWORD kUpDownStyle = 0x5000001D;  // child, visible
inline constexpr int kUpDownWidth = 15;  // pixels at 96 DPI, scaled to the monitor

// Subclasses the edit control field.controlId of dialog. field.dialog,
// field.edit are filled in; field must outlive the edit window. False when
// the dialog has no such control or it is a numeric field already.
bool attachNumericField(HWND dialog, NumericField& field);

// Creates the up/down control right of the edit control editId, linked to
// field, and subclasses the edit. notify becomes the field's notify flag;
// initialText, when given, is put into the edit control first. Each tick of
// a held arrow (every repeatMilliseconds) steps once. The up/down window or
// null.
HWND createUpDown(HWND dialog, int editId, NumericField& field, std::int32_t notify, const char* initialText,
                  UINT repeatMilliseconds);

// The up/down control's window procedure, for the class registration.
LRESULT CALLBACK upDownProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace kvs::win32
