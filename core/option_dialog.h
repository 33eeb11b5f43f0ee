// An option sub-dialog over a record of settings: it shows the record, works
// on a copy while open, commits the copy on OK or Continue (once the
// subclass's check passes) and leaves the record untouched on Cancel; its
// Help button opens its topic. The save-as options and Logit's options are
// made of this and a Bindings list; the graph family's option sub-dialogs
// keep their records by option code (graph/option_subdialog.h).
#pragma once

#include <cstdint>

#include "core/bindings.h"
#include "core/dialog_behaviour.h"
#include "core/help_requests.h"
#include "core/leave_checked_fields.h"
#include "core/messages.h"
#include "resources/common_ids.h"

namespace kvs {

template <typename Record>
class OptionDialog : public DialogHandler {
public:
    OptionDialog(Record& stored, const Bindings<Record>& bindings, std::uint32_t helpTopic)
        : stored_(stored), bindings_(bindings), helpTopic_(helpTopic), working_(stored) {}

    int onInit(DialogView& view) override {
        view.centre();
        working_ = stored_;
        bindings_.show(view, working_);
        numberFields_.attach(view, bindings_.numberIds());
        return 0;
    }

    void onCommand(DialogView& view, int controlId, int notifyCode) override {
        const Notification n = classify(view, controlId, notifyCode);
        if (n.clicked(kIdOk) || n.clicked(IDC_CONTINUE)) {
            bindings_.read(view, working_);
            if (const std::string_view refusal = bindings_.validate(working_); !refusal.empty()) {
                showStop(view.handle(), refusal);
                return;
            }
            if (!validate(view, working_)) return;
            stored_ = working_;
            committed();
            view.end(1);
        } else if (n.clicked(kIdCancel)) {
            view.end(0);
        } else if (n.clicked(IDC_HELPBUTTON)) {
            openHelpTopic(view.handle(), helpTopic_);
        } else if (n.event == Event::Clicked) {
            bindings_.clicked(view, controlId, working_);
        }
    }

    void onSysCommand(DialogView&, int code) override { answerHelpCommand(code); }

protected:
    // Whether OK may commit; a refusal shows its own message.
    virtual bool validate(DialogView&, const Record&) { return true; }
    // After the copy became the record.
    virtual void committed() {}

    Record& stored_;
    const Bindings<Record>& bindings_;
    std::uint32_t helpTopic_;
    Record working_;
    LeaveCheckedFields numberFields_;
};

}  // namespace kvs
