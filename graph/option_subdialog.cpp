#include "graph/option_subdialog.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <unordered_set>
#include <string>

#include "core/dialog_behaviour.h"
#include "core/help_requests.h"
#include "core/leave_checked_fields.h"
#include "core/library_state.h"
#include "core/variable_list.h"
#include "graph/colour_picker.h"
#include "graph/control_values.h"
#include "graph/option_codes.h"
#include "graph/option_store.h"
#include "include/kvs_imports.h"
#include "resources/graph_ids.h"

namespace kvs::graph {

namespace {

// A field greyed unless a choice is checked (when), or while a box is (unless).
struct Enabling {
    int field;
    int when;
    int unless;
};

constexpr Enabling kEnablings[] = {
    {IDC_AXIS_POWER, IDC_AXIS_POW, 0},
    {IDC_AXIS_LOGBASE, IDC_AXIS_LOG, 0},
    {IDC_SYMBOL_1, IDC_SYMBOL_PICTURES, 0},
    {IDC_SYMBOL_2, IDC_SYMBOL_PICTURES, 0},
    {IDC_SYMBOL_3, IDC_SYMBOL_PICTURES, 0},
    {IDC_SYMBOL_TEXT, IDC_SYMBOL_CHARACTER, 0},
    {IDC_LEGEND_X, 0, IDC_LEGEND_NONE},
    {IDC_LEGEND_Y, 0, IDC_LEGEND_NONE},
    {IDC_LEGEND_TITLE, 0, IDC_LEGEND_NONE},
    {IDC_LEGEND_LABELS, 0, IDC_LEGEND_NONE},
    {IDC_ERROR_MULTIPLE, IDC_ERROR_SD, 0},
    {IDC_PIE_POWER_VALUE, IDC_PIE_POWER, 0},
    {IDC_PIE_LOG_VALUE, IDC_PIE_LOG, 0},
    {IDC_PLOT_ELM, IDC_PLOT_ELL, 0},
};

// The colour buttons and the fields they fill.
constexpr std::pair<int, int> kColourButtons[] = {
    {IDC_PICK_COLOR_1, IDC_COLOR_1},       {IDC_PICK_COLOR_2, IDC_COLOR_2}, {IDC_PICK_COLOR_3, IDC_COLOR_3},
    {IDC_PICK_COLOR_AXES, IDC_COLOR_AXES}, {IDC_PICK_COLOR_FRAME, IDC_COLOR_FRAME},
};

// Add, Remove, the list they fill and the one name it may take.
struct ListPair {
    int add;
    int remove;
    int target;
};
constexpr ListPair kListPairs[] = {
    {IDC_ADD1, IDC_REMOVE1, IDC_TARGET1},
    {IDC_ILOC_ADD_X, IDC_ILOC_REMOVE_X, IDC_ILOC_X},
    {IDC_ILOC_ADD_Y, IDC_ILOC_REMOVE_Y, IDC_ILOC_Y},
};

class OptionSubDialog : public DialogHandler {
public:
    OptionSubDialog(const ParentState& parent, int code, const OptionRecord* record)
        : parent_(parent), code_(code), sub_(subDialogFor(code, parent.dialogId)),
          form_(formOf(sub_.templateName)),
          values_(record ? record->values : defaultValues(form_)) {}

    int onInit(DialogView& view) override {
        view.centre();
        fillCombos(view, form_.combos);
        if (view.has(IDC_SOURCE)) {
            VariableCatalogue catalogue;
            fillVariableList(view, IDC_SOURCE, listInsertRule(), GetNumVars(), false, 0, catalogue);
        }
        showValues(view, form_.fields, values_);
        numberFields_.attach(view, numberIdsOf(form_.fields));
        update(view);
        return 0;
    }

    void onCommand(DialogView& view, int id, int code) override {
        const Notification n = classify(view, id, code);
        if (n.clicked(kIdOk)) return accept(view);
        if (n.clicked(kIdCancel)) return view.end(0);
        if (n.clicked(IDC_OPT_RESET)) {
            // Reset writes the defaults into the record at once: a Cancel
            // after it keeps them (the "set" flag is left as it was).
            values_ = defaultValues(form_);
            if (OptionRecord* record = optionRecord(parent_.dialogId, code_)) record->values = values_;
            showValues(view, form_.fields, values_);
            return update(view);
        }
        if (n.clicked(IDC_OPT_HELP)) return openHelpTopic(view.handle(), optionHelpContext(code_, parent_.dialogId));
        for (const auto& [button, field] : kColourButtons)
            if (n.clicked(button)) return pickColour(view, field);
        if (n.event == Event::ListDoubleClicked) {
            if (id == IDC_SOURCE) press(view, view.has(IDC_ADD1) ? IDC_ADD1 : IDC_ILOC_ADD_X);
            for (const ListPair& pair : kListPairs)
                if (id == pair.target) press(view, pair.remove);
            return;
        }
        for (const ListPair& pair : kListPairs) {
            if (n.clicked(pair.add)) return add(view, pair.target);
            if (n.clicked(pair.remove)) return remove(view, pair.target);
        }
        update(view);
    }

    void onSysCommand(DialogView&, int code) override { answerHelpCommand(code); }

private:
    void accept(DialogView& view) {
        readValues(view, form_.fields, values_);
        if (const std::string refusal = validateValues(form_, values_); !refusal.empty()) {
            showGraphMessage(view.handle(), refusal);
            return;
        }
        // Looked up again: ReinitDialogs may have forgotten the records while
        // the sub-dialog was up (a host timer can call it); OK then keeps
        // what the user confirmed in a record made anew.
        if (OptionRecord* record = optionRecord(parent_.dialogId, code_)) record->values = values_;
        view.end(1);
    }

    void press(DialogView& view, int button) {
        if (view.has(button) && view.isEnabled(button)) onCommand(view, button, kButtonClicked);
    }

    int room(const DialogView& view, int target) const {
        if (target == IDC_TARGET1 && parent_.oneWVariable) return view.listCount(target) == 0 ? 1 : 0;
        return -1;  // no limit
    }

    // A name the target list holds already is not added twice. The names
    // go in as the variable lists are filled: in one pass, with the list's
    // storage reserved and its drawing held until the end.
    void add(DialogView& view, int target) {
        int left = room(view, target);
        const std::vector<std::string>& held = view.listTexts(target);
        std::unordered_set<std::string_view> present(held.begin(), held.end());
        const std::vector<std::string>& source = view.listTexts(IDC_SOURCE);
        std::vector<std::string_view> adding;
        for (int index : view.listSelection(IDC_SOURCE)) {
            if (left == 0) break;
            if (index < 0 || static_cast<std::size_t>(index) >= source.size()) continue;
            const std::string_view name = source[static_cast<std::size_t>(index)];
            if (!present.insert(name).second) continue;
            adding.push_back(name);
            if (left > 0) --left;
        }
        view.setRedraw(target, false);
        view.listReserve(target, adding.size());
        view.listAddAll(target, adding.size(), [&adding](std::size_t i) { return adding[i]; }, listInsertRule());
        view.setRedraw(target, true);
        if (const int count = view.listCount(target); count > 0) view.listSetCurrent(target, count - 1);
        update(view);
    }

    void remove(DialogView& view, int target) {
        const std::vector<int> chosen = view.listSelection(target);
        for (auto it = chosen.rbegin(); it != chosen.rend(); ++it) view.listDelete(target, *it);
        update(view);
    }

    void pickColour(DialogView& view, int field) {
        float value = static_cast<float>(std::strtod(view.text(field).c_str(), nullptr));
        if (!runColourPicker(view.handle(), &value)) return;
        char text[32];
        std::snprintf(text, sizeof text, "%5.3f", static_cast<double>(value));
        std::string shown(text);
        shown.erase(0, shown.find_first_not_of(' '));
        view.setText(field, shown);
    }

    // Fields follow their choices; Add and Remove their lists.
    void update(DialogView& view) {
        for (const Enabling& e : kEnablings) {
            if (!view.has(e.field)) continue;
            bool on = true;
            if (e.when && view.has(e.when)) on = view.isChecked(e.when);
            if (e.unless && view.has(e.unless)) on = on && !view.isChecked(e.unless);
            view.enable(e.field, on);
        }
        const bool chosen = view.has(IDC_SOURCE) && !view.listSelection(IDC_SOURCE).empty();
        for (const ListPair& pair : kListPairs) {
            if (!view.has(pair.target)) continue;
            view.enable(pair.add, chosen && room(view, pair.target) != 0);
            view.enable(pair.remove, !view.listSelection(pair.target).empty());
        }
    }

    ParentState parent_;
    int code_;
    SubDialog sub_;
    const OptionForm& form_;
    ControlValues values_;
    LeaveCheckedFields numberFields_;
};

}  // namespace

bool runOptionDialog(const ParentState& parent, int code) {
    const SubDialog sub = subDialogFor(code, parent.dialogId);
    if (sub.kind == OptionKind::None) return false;
    OptionRecord* record = optionRecord(parent.dialogId, code);
    OptionSubDialog handler(parent, code, record);
    const int result = ui().runModalTitled(parent.window, sub.templateName, sub.title, handler);
    if (result <= 0 || !record) return false;
    OptionRecord* kept = optionRecord(parent.dialogId, code);
    if (!kept) return false;
    kept->set = true;
    return true;
}

}  // namespace kvs::graph
