// The option records of the graph dialogs: one per graph type and option
// code, kept until ReinitDialogs, marked "set" once its sub-dialog was
// closed with OK. The builders read them through an OptionSource.
#pragma once

#include <span>

#include "core/seam.h"
#include "graph/graph_composers.h"
#include "graph/option_forms.h"

namespace kvs::graph {

struct OptionRecord {
    ControlValues values;
    bool set = false;
};

// The option codes a dialog keeps records for, in its builder's order;
// empty for an id with none.
std::span<const int> optionCodesOf(int dialogId);

// The record of dialogId's code, made with its defaults on first use; null
// when the dialog keeps no record for the code.
OptionRecord* optionRecord(int dialogId, int code);

// Forgets the records of one dialog (its Reset All), or of every dialog.
void forgetOptionRecords(int dialogId);
void forgetAllOptionRecords();

// The records of one open dialog as its builder asks for them: a record's
// keywords when it is set; a button is enabled when the dialog shows it
// enabled.
class StoredOptions : public OptionSource {
public:
    StoredOptions(int dialogId, const DialogView& view) : dialogId_(dialogId), view_(view) {}
    bool buttonEnabled(int buttonId) const override;
    void append(CommandText& line, int optionCode, bool threeDimensional) const override;

private:
    int dialogId_;
    const DialogView& view_;
};

}  // namespace kvs::graph
