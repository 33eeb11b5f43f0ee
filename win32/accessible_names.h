// Names that screen readers read for controls in place of their text. The
// control answers WM_GETOBJECT for its client object with the standard
// accessibility proxy of Windows, wrapped so that its name is the one given;
// everything else (role, state, location, default action) is the proxy's.
#pragma once

#include <windows.h>

#include <string_view>

namespace kvs::win32 {

// Gives control this accessible name for as long as it lives; a second call
// replaces the name.
void setAccessibleName(HWND control, std::string_view name);

}  // namespace kvs::win32
