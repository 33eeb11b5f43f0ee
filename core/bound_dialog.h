// A variable dialog whose own controls are a record of remembered settings
// tied by bindings, and whose OK composes lines from that record and the
// names of its lists. A subclass gives the record, the bindings and the
// composer; set-up, clicks, OK and ReinitDialogs follow from them (Reset
// All is the subclass's, where it has one). The statistics family's form is
// stats/procedure_dialog.h, which works on a copy until an OK is pushed.
#pragma once

#include "core/bindings.h"
#include "core/composition.h"
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/leave_checked_fields.h"

namespace kvs {

template <typename Record>
class BoundDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        bindings_.show(context.view, record_);
        numberFields_.attach(context.view, bindings_.numberIds());
        return 0;
    }

    void notify(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked) bindings_.clicked(context.view, n.controlId, record_);
    }

    // OK keeps what the controls show, even when the composition is refused.
    bool accept(DialogContext& context, int) override {
        bindings_.read(context.view, record_);
        if (!prepare(context.view, record_)) return false;
        if (!deliver(context.view.handle(), compose(record_, context.view))) return false;
        accepted();
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        Record settings = record_;
        bindings_.read(context.view, settings);
        return previewOf(context.view, settings);
    }

    void addDefaults(DefaultsTable& table) override { table.record(record_); }

protected:
    BoundDialog(Record& record, Bindings<Record> bindings) : record_(record), bindings_(std::move(bindings)) {}

    // The lines of an OK, from the record and the names in the dialog's lists.
    virtual Composition compose(const Record& record, const DialogView& view) const = 0;
    // Between reading the controls and composing: settings derived from the
    // record, or a step of its own (a file chooser); false refuses the OK.
    virtual bool prepare(DialogView&, Record&) { return true; }
    // After the lines were pushed.
    virtual void accepted() {}
    // What OK would push for these settings, asking no one: the composition,
    // unless prepare adds a step of its own (a SAVE line, a refusal).
    virtual Composition previewOf(const DialogView& view, Record& settings) const { return compose(settings, view); }

    Record& record_;
    Bindings<Record> bindings_;
    LeaveCheckedFields numberFields_;
};

}  // namespace kvs
