// What one dialog adds to the generic dialog procedure.
#pragma once

#include <cstdint>

#include "core/seam.h"

namespace kvs {

class GenericDialog;

struct DialogContext {
    DialogView& view;
    GenericDialog& dialog;
};

class DialogBehaviour {
public:
    virtual ~DialogBehaviour() = default;
    // Sets up the dialog's own controls; returns a control to focus, or 0.
    virtual int init(DialogContext&) { return 0; }
    // A control other than the shared ones, or OK / Continue. For OK and
    // Continue, returns 1 to let the dialog close and 0 to keep it open.
    virtual int command(DialogContext&, int controlId, int notifyCode) = 0;
    // "Reset All": the dialog's own controls back to their first state.
    virtual void reset(DialogContext&) {}
    // The dialog is being cancelled.
    virtual void cancel(DialogContext&) {}
};

}  // namespace kvs
