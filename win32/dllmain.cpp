// Load and unload notifications of kvs_dlg.dll.
#include <windows.h>

#include "core/global_memory.h"
#include "families/library.h"
#include "core/seam.h"
#include "win32/colour_grid_window.h"
#include "win32/graph_resources.h"
#include "win32/list_drag.h"
#include "win32/microscroll.h"
#include "win32/module_instance.h"
#include "win32/visual_styles.h"
#include "win32/win32_ui.h"

namespace {

// Fixed rather than movable global memory: an array keeps its block for as
// long as it lives, as a movable block locked throughout would.
void* globalAllocate(std::size_t bytes) { return GlobalAlloc(GMEM_FIXED | GMEM_ZEROINIT, bytes ? bytes : 1); }
void globalRelease(void* block) { GlobalFree(block); }

void attach(HINSTANCE instance) {
    kvs::setGlobalMemory({globalAllocate, globalRelease});
    kvs::win32::registerMicroscroll(instance);
    kvs::win32::setModuleInstance(instance);
    kvs::win32::createGraphPalette();
    kvs::win32::allocatePatternBlock();
    // Registering again fails because the class exists; that is expected.
    kvs::win32::registerMicroscroll(instance);
    kvs::win32::registerColourGrid(instance);
    kvs::setUi(&kvs::win32::win32Ui());
    kvs::loadLibrary();
}

// processEnding: the process exits rather than FreeLibrary unloading us.
void detach(bool processEnding) {
    kvs::win32::deleteGraphPalette();
    kvs::win32::releaseDragCursor();
    // A class of a DLL outlives the DLL; after a FreeLibrary its window
    // procedure would point into unmapped code when the library is loaded
    // again elsewhere.
    if (!processEnding) {
        kvs::win32::releaseVisualStyles();
        kvs::win32::unregisterMicroscroll(kvs::win32::moduleInstance());
        kvs::win32::unregisterColourGrid(kvs::win32::moduleInstance());
    }
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    try {
        switch (reason) {
        case DLL_PROCESS_ATTACH: attach(instance); break;
        case DLL_PROCESS_DETACH: detach(reserved != nullptr); break;
        default: break;
        }
    } catch (...) {
        // The load never fails: what could not be prepared is simply absent.
    }
    return TRUE;
}
