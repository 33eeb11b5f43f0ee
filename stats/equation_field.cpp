#include "stats/equation_field.h"

#include <string>

#include "core/dialog_behaviour.h"
#include "core/edit_insertion.h"
#include "resources/common_ids.h"
#include "resources/estimate_ids.h"

namespace kvs::stats {

namespace {

void insertChosen(DialogView& view, int list) {
    if (!view.isEnabled(IDC_EQUATION)) return;
    const std::vector<int> chosen = view.listSelection(list);
    if (chosen.empty()) return;
    const std::string item = view.listText(list, chosen.front());
    if (list == IDC_SOURCE && !item.empty() && item.front() == '*') return;
    replaceEditSelection(view, IDC_EQUATION, item);
}

}  // namespace

void fillEquationLists(DialogView& view) {
    view.listClear(IDC_EQ_FUNCTIONS);
    view.listClear(IDC_EQ_OPERATORS);
    for (std::string_view f : kEquationFunctions) view.listAdd(IDC_EQ_FUNCTIONS, f, ListInsert::Append);
    for (std::string_view o : kEquationOperators) view.listAdd(IDC_EQ_OPERATORS, o, ListInsert::Append);
}

bool equationNotified(DialogView& view, const Notification& n) {
    const bool doubled = n.event == Event::ListDoubleClicked;
    if (n.clicked(IDC_EQ_INSERT_FUNCTION) || (doubled && n.controlId == IDC_EQ_FUNCTIONS)) {
        insertChosen(view, IDC_EQ_FUNCTIONS);
    } else if (n.clicked(IDC_EQ_INSERT_OPERATOR) || (doubled && n.controlId == IDC_EQ_OPERATORS)) {
        insertChosen(view, IDC_EQ_OPERATORS);
    } else if (n.clicked(IDC_EQ_INSERT_VARIABLE)) {
        insertChosen(view, IDC_SOURCE);
    } else if (n.event != Event::ListSelectionChanged) {
        return false;
    }
    updateEquationButtons(view);
    return true;
}

void updateEquationButtons(DialogView& view) {
    const bool field = view.isEnabled(IDC_EQUATION);
    view.enable(IDC_EQ_INSERT_FUNCTION, field && !view.listSelection(IDC_EQ_FUNCTIONS).empty());
    view.enable(IDC_EQ_INSERT_OPERATOR, field && !view.listSelection(IDC_EQ_OPERATORS).empty());
    view.enable(IDC_EQ_INSERT_VARIABLE, field && !view.listSelection(IDC_SOURCE).empty());
}

}  // namespace kvs::stats
