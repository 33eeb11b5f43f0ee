// What one dialog adds to the generic dialog procedure.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/composition.h"
#include "core/seam.h"
#include "resources/common_ids.h"

namespace kvs {

class DefaultsTable;
class GenericDialog;
class VariableCatalogue;
struct SelectionArray;

// A target list whose selection the dialog keeps itself, beyond the
// descriptor's arrays: restored on open, stored on OK, given back on Cancel
// like the descriptor's.
struct OwnList {
    int listId;
    SelectionArray* array;
    std::int32_t capacity;
};

struct DialogContext {
    DialogView& view;
    GenericDialog& dialog;
};

// What a control reported, told apart by the kind of control, so a list's
// selection change is never mistaken for a combo box's.
enum class Event {
    Clicked,                // a button, check box or radio button
    ListSelectionChanged,
    ListDoubleClicked,
    ComboSelectionChanged,
    ComboEditChanged,
    EditChanged,
    EditFocused,
    Other,                  // any other notification; see Notification::code
};

struct Notification {
    int controlId = 0;
    Event event = Event::Other;
    int code = 0;  // the raw notification code

    bool clicked(int id) const { return event == Event::Clicked && controlId == id; }
};

// The typed form of a raw (control, notification code) pair.
Notification classify(const DialogView& view, int controlId, int notifyCode);

class DialogBehaviour {
public:
    virtual ~DialogBehaviour() = default;
    // Sets up the dialog's own controls; returns a control to focus, or 0.
    virtual int init(DialogContext&) { return 0; }
    // OK or Continue (buttonId) was clicked: true lets the dialog close with
    // the selection kept, false keeps it open.
    virtual bool accept(DialogContext& context, int buttonId) = 0;
    // What OK would hand the host now, composed from the controls as OK
    // composes it but without asking the user anything, keeping anything or
    // pushing: the lines, with the SAVE line of the file proposed when one is
    // chosen at OK, or the refusal's message. Nothing for a dialog that pushes
    // no command, which then shows no preview.
    virtual std::optional<Composition> preview(DialogContext&) { return std::nullopt; }
    // A control other than the shared ones and OK reported an event.
    virtual void notify(DialogContext&, const Notification&) {}
    // A list or its Add or Remove button was used (names moved, or a
    // selection changed): controls that depend on what the lists hold follow.
    virtual void listsChanged(DialogContext&) {}
    // "Reset All": the dialog's own controls back to their first state.
    virtual void reset(DialogContext&) {}
    // The dialog is being cancelled.
    virtual void cancel(DialogContext&) {}
    // Fills the source lists itself (from other data files, say) instead of
    // with the variables of the file in use; true when it did.
    virtual bool fillSources(DialogContext&, VariableCatalogue& /*first*/, VariableCatalogue& /*second*/) {
        return false;
    }
    // Target lists the dialog keeps in arrays of its own.
    virtual std::vector<OwnList> ownLists() { return {}; }
    // How many names target list listId takes, given the descriptor's
    // capacity for it (a list that holds one variable says 1).
    virtual std::int32_t listCapacity(int listId, std::int32_t capacity) const {
        (void)listId;
        return capacity;
    }
    // The target list whose order Move Up and Move Down change, when the
    // template has them.
    virtual int orderedList() const { return IDC_TARGET1; }
    // The context the Help button opens, and the help-context word's value.
    virtual std::uint32_t helpContext(std::uint16_t commandId) const { return commandId; }
    // Adds what the dialog remembers between openings to the defaults table
    // that ReinitDialogs applies.
    virtual void addDefaults(DefaultsTable&) {}
};

// The one instance of a behaviour class, made on first use.
template <typename Behaviour>
DialogBehaviour& soleInstance() {
    static Behaviour behaviour;
    return behaviour;
}

}  // namespace kvs
