#include "graph/graph_dialog.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>

#include "core/descriptor.h"
#include "core/dialog_defaults.h"
#include "core/edit_insertion.h"
#include "core/generic_dialog.h"
#include "core/join_names.h"
#include "core/leave_checked_fields.h"
#include "core/variable_list.h"
#include "graph/control_values.h"
#include "graph/function_catalogue.h"
#include "graph/graph_specs.h"
#include "graph/option_codes.h"
#include "graph/option_buttons.h"
#include "graph/option_store.h"
#include "include/kvs_imports.h"
#include "resources/graph_ids.h"

namespace kvs::graph {

namespace {

// The function plot offers the equation catalogue and its two axes.
constexpr std::string_view kAxisOperands[] = {"X", "Y"};

// Distributions whose keyword takes one parameter, and those that take two.
bool takesParameter(int distribution) {
    return distribution == 1 || distribution == 3 || (distribution >= 5 && distribution != 9);
}
bool takesTwoParameters(int distribution) {
    return distribution == 5 || distribution == 7 || distribution == 8 || distribution == 10 || distribution == 12;
}

class GraphBehaviour : public DialogBehaviour {
public:
    explicit GraphBehaviour(const GraphSpec& spec) : spec_(spec) {}

    int init(DialogContext& context) override {
        DialogView& view = context.view;
        fillCombos(view, spec_.combos);
        if (spec_.id == 119) {
            for (std::string_view f : kEquationFunctions) view.listAdd(IDC_FPLOT_FUNCTIONS, f, ListInsert::Append);
            for (std::string_view o : kEquationOperators) view.listAdd(IDC_FPLOT_OPERATORS, o, ListInsert::Append);
            for (std::string_view o : kAxisOperands) view.listAdd(IDC_FPLOT_OPERATORS, o, ListInsert::Append);
        }
        working_ = remembered_.empty() ? defaultValues({spec_.fields, {}, {}}) : remembered_;
        transposed_ = rememberedTranspose_;
        showValues(view, spec_.fields, working_);
        numberFields_.attach(view, numberIdsOf(spec_.fields));
        showWVariables(view);
        update(view);
        return 0;
    }

    bool accept(DialogContext& context, int) override {
        DialogView& view = context.view;
        readValues(view, spec_.fields, working_);
        // The OK dispatcher drops what the host holds, and the builder does
        // the same again as its own first step: the host hears both.
        AbortCommands();
        AbortCommands();
        const StoredOptions options(spec_.id, view);
        const Composition composition = spec_.compose(spec_.id, view, extras(view), options);
        if (composition.refused()) {
            // A refused OK keeps nothing: a Cancel after it gives back the
            // settings the dialog opened with.
            showGraphMessage(view.handle(), composition.refusal);
            return false;
        }
        remember();
        return deliver(view.handle(), composition);
    }

    // The builder reads the dialog's controls and its option records as OK
    // does; only the host's dropping of what it holds is left out.
    std::optional<Composition> preview(DialogContext& context) override {
        const StoredOptions options(spec_.id, context.view);
        return spec_.compose(spec_.id, context.view, extras(context.view), options);
    }

    void notify(DialogContext& context, const Notification& n) override {
        DialogView& view = context.view;
        if (n.event == Event::Clicked && n.controlId >= kFirstOptionButton && n.controlId <= kLastOptionButton) {
            optionButton(context, n.controlId);
        } else if (n.clicked(IDC_FPLOT_INSERT_FUNCTION)) {
            insertIntoEquation(view, IDC_FPLOT_FUNCTIONS);
        } else if (n.clicked(IDC_FPLOT_INSERT_OPERATOR)) {
            insertIntoEquation(view, IDC_FPLOT_OPERATORS);
        } else if (n.event == Event::ListDoubleClicked && n.controlId == IDC_FPLOT_FUNCTIONS) {
            insertIntoEquation(view, IDC_FPLOT_FUNCTIONS);
        } else if (n.event == Event::ListDoubleClicked && n.controlId == IDC_FPLOT_OPERATORS) {
            insertIntoEquation(view, IDC_FPLOT_OPERATORS);
        }
        update(view);
    }

    void listsChanged(DialogContext& context) override { update(context.view); }

    void reset(DialogContext& context) override {
        working_ = defaultValues({spec_.fields, {}, {}});
        transposed_ = false;
        showValues(context.view, spec_.fields, working_);
        forgetOptionRecords(spec_.id);
        showWVariables(context.view);
        update(context.view);
    }

    std::vector<OwnList> ownLists() override {
        if (spec_.id != 107) return {};
        return {{kHighList, &hiLo_[0], 1}, {kLowList, &hiLo_[1], 1}, {kCloseList, &hiLo_[2], 1}, {kHiLoXList, &hiLo_[3], 1}};
    }

    std::int32_t listCapacity(int listId, std::int32_t capacity) const override {
        return spec_.id == 101 && listId == kXList ? 1 : capacity;
    }

    // The Y-variables are written in list order.
    int orderedList() const override { return kYList; }

    void addDefaults(DefaultsTable& table) override {
        table.record(remembered_);
        table.record(rememberedTranspose_);
        for (SelectionArray& array : hiLo_) table.record(array);
    }

private:
    void remember() {
        remembered_ = working_;
        rememberedTranspose_ = transposed_;
    }

    GraphExtras extras(const DialogView& view) const {
        GraphExtras e;
        e.transposed = transposed_;
        if (view.has(IDC_GRAPH_WLINE) && !view.text(IDC_GRAPH_WLINE).empty()) e.wVariables = wVariables();
        return e;
    }

    // The W-variables of the triangular coordinates, when that record is set
    // and of the triangular kind.
    Names wVariables() const {
        const OptionRecord* record = optionRecord(spec_.id, 2015);
        if (!record || !record->set || !isChecked(record->values, IDC_COORD_TRI)) return {};
        return namesOf(valueOf(record->values, IDC_TARGET1));
    }

    void showWVariables(DialogView& view) const {
        if (!view.has(IDC_GRAPH_WLINE)) return;
        std::string line;
        for (const std::string& name : wVariables()) {
            if (!line.empty()) line += ' ';
            line += name;
        }
        view.setText(IDC_GRAPH_WLINE, line);
    }

    void optionButton(DialogContext& context, int button) {
        DialogView& view = context.view;
        OptionButtonPress press;
        press.buttonId = button;
        press.parent = {spec_.id, view.handle(), oneWVariable(view)};
        press.facts = facts(view);
        const OptionButtonResult result = pressOptionButton(press);
        if (result.code == kTransposeItem) transposed_ = !transposed_;
        if (result.code == 2015) showWVariables(view);
    }

    MenuFacts facts(const DialogView& view) const {
        MenuFacts f;
        f.dialogId = spec_.id;
        if (spec_.id == 111 || spec_.id == 114)
            f.zVariables = view.listCount(kXList) > 0 && view.listCount(kYList) > 0 &&
                           view.comboSelection(IDC_GRAPH_DISPLAY) <= 0;
        else
            f.zVariables = view.has(kZList) && view.listCount(kZList) > 0;
        f.wVariables = view.has(IDC_GRAPH_WLINE) && !view.text(IDC_GRAPH_WLINE).empty();
        f.characterVariable = fileHasCharacterVariable;
        f.transposed = transposed_;
        return f;
    }

    bool oneWVariable(const DialogView& view) const {
        if (spec_.id != 101) return false;
        const auto onAndEnabled = [&](int id) { return view.isChecked(id) && view.isEnabled(id); };
        return onAndEnabled(IDC_GRAPH_REPEAT) || onAndEnabled(IDC_GRAPH_MATRIX) || onAndEnabled(IDC_GRAPH_MIRROR) ||
               view.listCount(kYList) >= 2 || view.listCount(kZList) >= 2;
    }

    void insertIntoEquation(DialogView& view, int list) {
        const std::vector<int> chosen = view.listSelection(list);
        if (chosen.empty()) return;
        replaceEditSelection(view, IDC_FPLOT_EQUATION, view.listText(list, chosen.front()));
    }

    // The enable rule: Mirror (Dual) with a grouping variable; Matrix columns
    // and "Display as:" with a Z-variable; Counts without one.
    void update(DialogView& view) {
        const int groupList = spec_.id == 107 ? kHiLoGroupList : kGroupList;
        if (view.has(IDC_GRAPH_MIRROR)) view.enable(IDC_GRAPH_MIRROR, view.listCount(groupList) > 0);
        if (view.has(kZList)) {
            const bool z = view.listCount(kZList) > 0;
            if (view.has(IDC_GRAPH_MATRIX)) view.enable(IDC_GRAPH_MATRIX, z);
            if (view.has(IDC_GRAPH_DISPLAY)) view.enable(IDC_GRAPH_DISPLAY, z);
            if (view.has(IDC_GRAPH_COUNTS)) view.enable(IDC_GRAPH_COUNTS, !z);
        }
        if (spec_.id == 119) {
            view.enable(IDC_GRAPH_DISPLAY, view.isChecked(IDC_FPLOT_3D));
            view.enable(IDC_FPLOT_INSERT_FUNCTION, !view.listSelection(IDC_FPLOT_FUNCTIONS).empty());
            view.enable(IDC_FPLOT_INSERT_OPERATOR, !view.listSelection(IDC_FPLOT_OPERATORS).empty());
        }
        if (spec_.id == 121) {
            const int distribution = view.comboSelection(IDC_GRAPH_KIND);
            view.enable(IDC_GRAPH_PARAM1, takesParameter(distribution));
            view.enable(IDC_GRAPH_PARAM2, takesTwoParameters(distribution));
        }
    }

    const GraphSpec& spec_;
    ControlValues working_;
    ControlValues remembered_;
    LeaveCheckedFields numberFields_;
    bool transposed_ = false;
    bool rememberedTranspose_ = false;
    std::array<SelectionArray, 4> hiLo_{};
};

}  // namespace

DialogBehaviour& graphBehaviour(int graphId) {
    static std::map<int, std::unique_ptr<GraphBehaviour>> behaviours;
    auto& slot = behaviours[graphId];
    if (!slot) {
        const GraphSpec* spec = graphSpec(graphId);
        static const GraphSpec kNone{};
        slot = std::make_unique<GraphBehaviour>(spec ? *spec : kNone);
    }
    return *slot;
}

}  // namespace kvs::graph
