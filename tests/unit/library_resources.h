// The library's own templates, as the DLL embeds them, read once for the
// tests that look at every dialog.
#pragma once

#include "headless/embedded_resources.h"
#include "headless/rc_template.h"

namespace kvs::testing {

inline const headless::ResourceSet& libraryResources() {
    static const headless::ResourceSet set = [] {
        headless::ResourceSet s;
        s.load(headless::embeddedResources());
        return s;
    }();
    return set;
}

}  // namespace kvs::testing
