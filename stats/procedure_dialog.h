// A statistics dialog: a record of remembered settings tied to its controls
// by bindings, worked on as a copy while the dialog is open. OK composes the
// procedure's block from the copy and the names in the lists; only an OK
// whose block was pushed keeps the copy, so a refused OK followed by Cancel,
// or a Cancel after an option sub-dialog, gives back the settings the dialog
// opened with. Reset All puts the defaults (the record's initialisers) up.
#pragma once

#include "core/bindings.h"
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/leave_checked_fields.h"
#include "core/messages.h"
#include "core/procedure_block.h"
#include "resources/common_ids.h"

namespace kvs::stats {

template <typename Record>
class ProcedureDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        working_ = stored_;
        opened(working_);
        bindings_.show(context.view, working_);
        numberFields_.attach(context.view, bindings_.numberIds());
        shown(context.view);
        return 0;
    }

    void notify(DialogContext& context, const Notification& n) override {
        if (n.event == Event::Clicked) bindings_.clicked(context.view, n.controlId, working_);
        changed(context, n);
    }

    bool accept(DialogContext& context, int) override {
        bindings_.read(context.view, working_);
        readOwn(context.view, working_);
        if (const std::string_view refusal = bindings_.validate(working_); !refusal.empty()) {
            showStop(context.view.handle(), refusal);
            return false;
        }
        if (!deliverBlock(context.view, compose(working_, context.view))) return false;
        stored_ = working_;
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override {
        Record settings = working_;
        bindings_.read(context.view, settings);
        readOwn(context.view, settings);
        if (const std::string_view refusal = bindings_.validate(settings); !refusal.empty())
            return Composition::refuse(refusal);
        return previewBlock(context.view, compose(settings, context.view));
    }

    void reset(DialogContext& context) override {
        working_ = Record{};
        bindings_.show(context.view, working_);
        if (context.view.has(IDC_SAVEFILE)) context.view.setChecked(IDC_SAVEFILE, false);
        shown(context.view);
    }

    void addDefaults(DefaultsTable& table) override { table.record(stored_); }

protected:
    ProcedureDialog(Record& stored, Bindings<Record> bindings) : stored_(stored), bindings_(std::move(bindings)) {}

    // The block of an OK, from the settings and the names in the lists.
    virtual ProcedureBlock compose(const Record& settings, const DialogView& view) const = 0;
    // Settings of controls the bindings do not cover, read at OK and for the
    // preview.
    virtual void readOwn(const DialogView&, Record&) const {}
    // The working copy as the dialog opens (a run's flags cleared).
    virtual void opened(Record&) {}
    // After the settings were shown (controls that follow them).
    virtual void shown(DialogView&) {}
    // A control of the dialog's own reported an event.
    virtual void changed(DialogContext&, const Notification&) {}

    Record& stored_;
    Bindings<Record> bindings_;
    Record working_{};
    LeaveCheckedFields numberFields_;
};

}  // namespace kvs::stats
