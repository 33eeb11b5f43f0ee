#include "data/composers.h"

#include <algorithm>

#include "core/command_queue.h"
#include "core/dialog_behaviour.h"
#include "core/command_text.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "data/data_texts.h"
#include "data/text_pieces.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

constexpr std::size_t kValueBound = 32;
constexpr std::size_t kLabelBound = 60;

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string shownEntry(const std::string& variable, const ValueLabel& entry) {
    const bool character = variable.find('$') != std::string::npos;
    return (character ? quoted(entry.first) : entry.first) + "=" + quoted(entry.second);
}

class ValueLabelsDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        labels_.clear();
        context.view.listClear(IDC_LABEL_LIST);
        context.view.enable(IDC_LABEL_REMOVE, false);
        context.view.limitText(IDC_LABEL_VALUE, kValueBound);
        context.view.limitText(IDC_LABEL_TEXT, kLabelBound);
        return 0;
    }

    void notify(DialogContext& context, const Notification& n) override {
        DialogView& view = context.view;
        if (n.clicked(IDC_LABEL_ADD)) addLabel(view);
        else if (n.clicked(IDC_LABEL_REMOVE)) removeLabel(view);
        else if (n.controlId == IDC_LABEL_LIST && n.event == Event::ListSelectionChanged) showSelected(view);
    }

    bool accept(DialogContext& context, int) override { return acceptLabels(context.view); }
    std::optional<Composition> preview(DialogContext& context) override { return composition(context.view); }

    void reset(DialogContext& context) override {
        init(context);
        context.view.setText(IDC_LABEL_VALUE, "");
        context.view.setText(IDC_LABEL_TEXT, "");
    }

private:
    static std::string variableOf(const DialogView& view) {
        return view.listCount(IDC_ONE_VARIABLE) > 0 ? view.listText(IDC_ONE_VARIABLE, 0) : std::string();
    }

    void addLabel(DialogView& view) {
        const std::string value = bounded(trimmed(view.text(IDC_LABEL_VALUE)), kValueBound);
        const std::string label = bounded(view.text(IDC_LABEL_TEXT), kLabelBound);
        if (value.empty() || isBlank(label)) {
            showStop(ui().focusWindow(), kvs::text::kProvideMoreInput);
            return;
        }
        // A value labelled again takes the new label.
        const auto same = std::find_if(labels_.begin(), labels_.end(), [&](const ValueLabel& e) { return e.first == value; });
        if (same != labels_.end()) same->second = label;
        else labels_.emplace_back(value, label);
        refill(view);
        view.setText(IDC_LABEL_VALUE, "");
        view.setText(IDC_LABEL_TEXT, "");
        view.setFocus(IDC_LABEL_VALUE);
    }

    void removeLabel(DialogView& view) {
        const auto selected = view.listSelection(IDC_LABEL_LIST);
        if (selected.empty() || static_cast<std::size_t>(selected.front()) >= labels_.size()) return;
        labels_.erase(labels_.begin() + selected.front());
        refill(view);
    }

    void showSelected(DialogView& view) {
        const auto selected = view.listSelection(IDC_LABEL_LIST);
        const bool any = !selected.empty() && static_cast<std::size_t>(selected.front()) < labels_.size();
        view.enable(IDC_LABEL_REMOVE, any);
        if (!any) return;
        const ValueLabel& entry = labels_[static_cast<std::size_t>(selected.front())];
        view.setText(IDC_LABEL_VALUE, entry.first);
        view.setText(IDC_LABEL_TEXT, entry.second);
    }

    void refill(DialogView& view) {
        const std::string variable = variableOf(view);
        view.listClear(IDC_LABEL_LIST);
        for (const ValueLabel& entry : labels_) view.listAdd(IDC_LABEL_LIST, shownEntry(variable, entry), ListInsert::Append);
        view.enable(IDC_LABEL_REMOVE, false);
    }

    bool acceptLabels(DialogView& view) {
        if (!deliver(view.handle(), composition(view))) return false;
        library().dataCommand = 1;
        return true;
    }

    Composition composition(const DialogView& view) const {
        const std::string variable = variableOf(view);
        if (variable.empty()) return Composition::refuse(kvs::text::kSelectVariables);
        return Composition().add(composeLabelLine(variable, labels_));
    }

    std::vector<ValueLabel> labels_;
};

}  // namespace

std::string composeLabelLine(const std::string& variable, const std::vector<ValueLabel>& labels) {
    CommandText line(text::kLabel);
    line.append(variable);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const std::string_view separator = i == 0 ? text::kOptionSeparator : text::kLabelSeparator;
        const std::string entry = shownEntry(variable, labels[i]);
        // A pair that does not fit whole is left out with the rest, so the
        // line never ends inside a quote.
        if (line.size() + separator.size() + entry.size() > CommandText::kCapacity - 1) break;
        line.append(separator);
        line.append(entry);
    }
    return line.str();
}

DialogBehaviour& valueLabelsBehaviour() { return soleInstance<ValueLabelsDialog>(); }

}  // namespace kvs::data
