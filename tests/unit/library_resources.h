// The library's own templates, as the DLL embeds them, read once for the
// tests that look at every dialog.
#pragma once

#include <string>
#include <vector>

#include "headless/embedded_resources.h"
#include "headless/rc_template.h"

namespace kvs::testing {

// How tall a control shows on the dialog: a drop-down combo box's template
// height includes its dropped list; closed it is one line high.
inline int shownHeight(const headless::ControlTemplate& c) {
    constexpr int kClosedComboHeight = 12;
    const bool dropDown = c.kind == headless::ControlKind::ComboBox && (c.style & 0x3u) >= 2;
    return dropDown ? (c.h < kClosedComboHeight ? c.h : kClosedComboHeight) : c.h;
}

// Faults of a check over every template, one per line, for its message.
inline std::string listed(const std::vector<std::string>& faults) {
    std::string all;
    for (const std::string& fault : faults) all += "\n  " + fault;
    return all;
}

inline const headless::ResourceSet& libraryResources() {
    static const headless::ResourceSet set = [] {
        headless::ResourceSet s;
        s.load(headless::embeddedResources());
        return s;
    }();
    return set;
}

}  // namespace kvs::testing
