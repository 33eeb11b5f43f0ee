#include "stats/variable_subdialog.h"

#include "core/dialog_behaviour.h"
#include "core/help_requests.h"
#include "core/library_state.h"
#include "core/list_transfer.h"
#include "include/kvs_imports.h"
#include "resources/common_ids.h"

namespace kvs::stats {

int VariableSubDialog::capacityOf(int listId) const {
    for (const auto& [id, capacity] : targets_)
        if (id == listId) return capacity;
    return 0;
}

int VariableSubDialog::onInit(DialogView& view) {
    view.centre();
    fillVariableList(view, IDC_SOURCE, listInsertRule(), GetNumVars(), false, commandId_, catalogue_);
    show(view);
    updateTransferButtons(view, [this](int id) { return capacityOf(id); });
    return 0;
}

void VariableSubDialog::onCommand(DialogView& view, int controlId, int notifyCode) {
    if (handleListTransfer(view, controlId, notifyCode, [this](int id) { return capacityOf(id); }, listInsertRule()))
        return;
    const Notification n = classify(view, controlId, notifyCode);
    if (n.clicked(kIdOk) || n.clicked(IDC_CONTINUE)) {
        if (!keep(view)) return;
        continued_ = true;
        view.end(1);
    } else if (n.clicked(kIdCancel)) {
        view.end(0);
    } else if (n.clicked(IDC_HELPBUTTON)) {
        openHelpTopic(view.handle(), helpTopic_);
    } else {
        other(view, n);
    }
}

void VariableSubDialog::onSysCommand(DialogView&, int code) { answerHelpCommand(code); }

void VariableSubDialog::showNames(DialogView& view, int listId, const Names& names) {
    view.listClear(listId);
    for (const std::string& name : names) view.listAdd(listId, name, ListInsert::Append);
}

}  // namespace kvs::stats
