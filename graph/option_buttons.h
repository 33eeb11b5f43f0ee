// The option buttons 501 to 530 of any dialog (the graph dialogs, and the
// statistics dialogs that reuse the graph option menus): the popup menu at
// the button, or the sub-dialog it opens at once, then the sub-dialog of the
// picked code over the dialog's record for it.
#pragma once

#include <span>
#include <string_view>

#include "core/seam.h"
#include "graph/option_menus.h"
#include "graph/option_subdialog.h"

namespace kvs::graph {

inline constexpr int kFirstOptionButton = 501, kLastOptionButton = 530;

struct OptionButtonPress {
    int buttonId = 0;
    ParentState parent;
    MenuFacts facts;
    std::string_view menuName;  // a menu of the dialog's own; empty: the button's menu
};

// What came of a press: the code picked (0 when none), and whether its
// sub-dialog was closed with OK (a record set).
struct OptionButtonResult {
    int code = 0;
    bool stored = false;
};

OptionButtonResult pressOptionButton(const OptionButtonPress& press);

// The option codes a dialog of another family keeps records for, in its
// builder's order; the graph dialogs' codes are their rows'.
void registerOptionCodes(int dialogId, std::span<const int> codes);

}  // namespace kvs::graph
