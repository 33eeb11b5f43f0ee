// The command preview along the bottom of a variable dialog: a read-only
// field that shows what OK would hand the host now (its lines, or the
// message of its refusal), kept up to date as the user works, and a Copy
// button that puts those lines on the clipboard. The dialog grows to hold
// them; the template stays as it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/composition.h"
#include "core/seam.h"

namespace kvs {

// The field's text: the lines joined by "\r\n", or the refusal's message.
std::string previewText(const Composition& composition);

class CommandPreview {
public:
    // Grows the dialog and adds the label, the field and Copy under every
    // other control. False when the view cannot add controls.
    bool install(DialogView& view);
    bool installed() const { return installed_; }
    // Shows the composition (nothing: the field is emptied).
    void show(DialogView& view, const std::optional<Composition>& composition);
    // Copy was clicked: the shown lines go to the clipboard, one per line.
    void copy(const DialogView& view) const;
    // Whether a command of this control is the preview's own.
    static bool owns(int controlId);

private:
    bool installed_ = false;
    std::string lines_;  // what Copy puts on the clipboard; empty when refused
};

}  // namespace kvs
