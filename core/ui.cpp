#include <stdexcept>

#include "core/seam.h"

namespace kvs {

namespace {
UiServices* services = nullptr;
}

UiServices& ui() {
    if (!services) throw std::logic_error("no user-interface backend installed");
    return *services;
}

void setUi(UiServices* installed) { services = installed; }

}  // namespace kvs
