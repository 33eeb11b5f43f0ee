// The library's windows in the current look of Windows: an activation
// context made from the common-controls 6 manifest in the DLL's resources
// is active only while a library window is created and runs, so the host's
// own windows keep theirs whatever its own manifest says.
#pragma once

#include <windows.h>

namespace kvs::win32 {

// Made from the DLL's manifest resource when the first library window opens
// (not under the loader lock); released at unload.
void releaseVisualStyles();

// For its lifetime: the context active (nothing when there is none), and
// the thread aware of each monitor's DPI, so the windows it creates are
// laid out at their monitor's scale instead of stretched from 96 DPI
// (looked up at run time: older Windows lack it and go on as before).
class VisualStyleScope {
public:
    VisualStyleScope();
    ~VisualStyleScope();
    VisualStyleScope(const VisualStyleScope&) = delete;
    VisualStyleScope& operator=(const VisualStyleScope&) = delete;

private:
    ULONG_PTR cookie_ = 0;
    bool active_ = false;
    DPI_AWARENESS_CONTEXT previousDpi_ = nullptr;
};

}  // namespace kvs::win32
