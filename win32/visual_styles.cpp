#include "win32/visual_styles.h"

#include "win32/late_bound.h"
#include "win32/module_instance.h"

namespace kvs::win32 {

namespace {

// The manifest's resource id: 2 is what a DLL's own manifest is given, and
// CreateActCtx is pointed at it explicitly (the loader activates nothing for
// a DLL loaded after the host started).
constexpr WORD kManifestId = 2;

HANDLE context = INVALID_HANDLE_VALUE;

bool tried = false;

HANDLE visualStyles() {
    if (!tried) {
        tried = true;
        ACTCTXA request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        request.hModule = moduleInstance();
        request.lpResourceName = MAKEINTRESOURCEA(kManifestId);
        context = CreateActCtxA(&request);
    }
    return context;
}

// DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2
const DPI_AWARENESS_CONTEXT kPerMonitorV2 = reinterpret_cast<DPI_AWARENESS_CONTEXT>(static_cast<INT_PTR>(-4));

}  // namespace

void releaseVisualStyles() {
    if (context != INVALID_HANDLE_VALUE) ReleaseActCtx(context);
    context = INVALID_HANDLE_VALUE;
    tried = false;
}

VisualStyleScope::VisualStyleScope() {
    const HANDLE styles = visualStyles();
    if (styles != INVALID_HANDLE_VALUE) active_ = ActivateActCtx(styles, &cookie_) != FALSE;
    previousDpi_ = setThreadDpiAwarenessContext(kPerMonitorV2);
}

VisualStyleScope::~VisualStyleScope() {
    if (previousDpi_) setThreadDpiAwarenessContext(previousDpi_);
    if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace kvs::win32
