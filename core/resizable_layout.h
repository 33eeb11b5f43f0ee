// What makes a variable dialog resizable: its controls as they stand once
// the dialog is set up (with what was added at run time) are the layout at
// its opening size, and every later size is laid out from them. The size a
// user gives a dialog is remembered by menu command for the session, so the
// dialog opens at it again, until ReinitDialogs forgets it.
#pragma once

#include <cstdint>
#include <vector>

#include "core/dialog_resize.h"
#include "core/seam.h"

namespace kvs {

class ResizableLayout {
public:
    // Takes the layout as it is now, lets the user resize the dialog, and
    // grows it to the size remembered for commandId, if any.
    void install(DialogView& view, std::uint16_t commandId);
    // Lays the controls out for a client area of width x height and
    // remembers the size (taken no smaller than the opening size).
    void resize(DialogView& view, int width, int height);
    bool installed() const { return installed_; }

private:
    std::vector<ResizeItem> items_;
    DialogRect original_;
    std::uint16_t commandId_ = 0;
    bool installed_ = false;
};

// The client size remembered for a menu command; empty when none.
DialogRect rememberedDialogSize(std::uint16_t commandId);
// Forgets every remembered size (a ReinitDialogs routine).
void forgetDialogSizes(bool freeMemory);

}  // namespace kvs
