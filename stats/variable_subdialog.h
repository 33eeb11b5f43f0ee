// The frame of a statistics sub-dialog with its own variable lists: the
// source list filled with the file's variables, Add and Remove moving names
// into its target lists within their capacities, Continue, Cancel and Help.
// A subclass says what it shows, what Continue keeps (false keeps the
// sub-dialog open) and what its other controls do.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "core/dialog_behaviour.h"
#include "core/join_names.h"
#include "core/seam.h"
#include "core/variable_list.h"

namespace kvs::stats {

class VariableSubDialog : public DialogHandler {
public:
    int onInit(DialogView& view) override;
    void onCommand(DialogView& view, int controlId, int notifyCode) override;
    void onSysCommand(DialogView& view, int code) override;

    bool continued() const { return continued_; }

protected:
    VariableSubDialog(std::uint16_t commandId, std::uint32_t helpTopic, std::vector<std::pair<int, int>> targets)
        : commandId_(commandId), helpTopic_(helpTopic), targets_(std::move(targets)) {}

    virtual void show(DialogView& view) = 0;
    virtual bool keep(DialogView& view) = 0;
    virtual void other(DialogView&, const Notification&) {}

    // Fills a target list with names.
    static void showNames(DialogView& view, int listId, const Names& names);

private:
    int capacityOf(int listId) const;

    std::uint16_t commandId_;
    std::uint32_t helpTopic_;
    std::vector<std::pair<int, int>> targets_;  // list id, capacity
    VariableCatalogue catalogue_;
    bool continued_ = false;
};

}  // namespace kvs::stats
