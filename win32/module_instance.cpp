#include "win32/module_instance.h"

namespace kvs::win32 {

namespace {
HINSTANCE templateInstance = nullptr;
HINSTANCE libraryInstance = nullptr;
}  // namespace

void setModuleInstance(HINSTANCE instance) {
    templateInstance = instance;
    libraryInstance = instance;
}

HINSTANCE dialogInstance() { return templateInstance; }
HINSTANCE moduleInstance() { return libraryInstance; }

}  // namespace kvs::win32
