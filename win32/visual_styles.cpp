#include "win32/visual_styles.h"

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

using SetDpiContext = void*(WINAPI*)(void*);

SetDpiContext setThreadDpiContext() {
    static const SetDpiContext function = [] {
        HMODULE user = GetModuleHandleA("user32.dll");
        return user ? reinterpret_cast<SetDpiContext>(
                          reinterpret_cast<void*>(GetProcAddress(user, "SetThreadDpiAwarenessContext")))
                    : nullptr;
    }();
    return function;
}

// DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2
void* const kPerMonitorV2 = reinterpret_cast<void*>(static_cast<INT_PTR>(-4));

}  // namespace

void releaseVisualStyles() {
    if (context != INVALID_HANDLE_VALUE) ReleaseActCtx(context);
    context = INVALID_HANDLE_VALUE;
    tried = false;
}

VisualStyleScope::VisualStyleScope() {
    const HANDLE styles = visualStyles();
    if (styles != INVALID_HANDLE_VALUE) active_ = ActivateActCtx(styles, &cookie_) != FALSE;
    if (const SetDpiContext set = setThreadDpiContext()) previousDpi_ = set(kPerMonitorV2);
}

VisualStyleScope::~VisualStyleScope() {
    if (previousDpi_) setThreadDpiContext()(previousDpi_);
    if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace kvs::win32
