// What one dialog adds to the generic dialog procedure.
#pragma once

#include <cstdint>

#include "core/seam.h"

namespace kvs {

class GenericDialog;
class VariableCatalogue;

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
    // Fills the source lists itself (from other data files, say) instead of
    // with the variables of the file in use; true when it did.
    virtual bool fillSources(DialogContext&, VariableCatalogue& /*first*/, VariableCatalogue& /*second*/) {
        return false;
    }
    // The context the Help button opens, and the help-context word's value.
    virtual std::uint32_t helpContext(std::uint16_t commandId) const { return commandId; }
};

// The one instance of a behaviour class, made on first use.
template <typename Behaviour>
DialogBehaviour& soleInstance() {
    static Behaviour behaviour;
    return behaviour;
}

}  // namespace kvs
