// Weight, ID Variable and Frequency: a keyword and the one variable of list
// 239, or the keyword alone when the setting is turned off.
#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"
#include "core/messages.h"
#include "core/library_state.h"
#include "data/composers.h"
#include "data/data_texts.h"

namespace kvs::data {

namespace {

class OneVariableDialog : public DialogBehaviour {
public:
    int init(DialogContext& context) override {
        context.view.setChecked(offBox_, isOff());
        return 0;
    }

    bool accept(DialogContext& context, int) override {
        DialogView& view = context.view;
        setOff(view.isChecked(offBox_));
        if (!deliver(view.handle(), composition(view))) return false;
        library().dataCommand = 1;
        return true;
    }

    std::optional<Composition> preview(DialogContext& context) override { return composition(context.view); }

protected:
    OneVariableDialog(std::string_view keyword, int offBox) : keyword_(keyword), offBox_(offBox) {}
    virtual bool isOff() const = 0;
    virtual void setOff(bool off) = 0;

private:
    Composition composition(const DialogView& view) const {
        Names variable;
        if (view.listCount(IDC_ONE_VARIABLE) > 0) variable.push_back(view.listText(IDC_ONE_VARIABLE, 0));
        return composeOneVariable(keyword_, view.isChecked(offBox_), variable);
    }

    std::string_view keyword_;
    int offBox_;
};

// Weight and ID Variable remember their box themselves.
class RememberedOffDialog : public OneVariableDialog {
public:
    RememberedOffDialog(std::string_view keyword, int offBox) : OneVariableDialog(keyword, offBox) {}
    void addDefaults(DefaultsTable& table) override { table.record(off_); }

private:
    bool isOff() const override { return off_; }
    void setOff(bool off) override { off_ = off; }
    bool off_ = false;
};

// Frequency keeps its box in option slot 1, which the dispatcher fills from
// the descriptor's extra word and copies back when the dialog ends with OK.
class FrequencyDialog : public OneVariableDialog {
public:
    FrequencyDialog() : OneVariableDialog(text::kFrequency, IDC_FREQUENCY_OFF) {}

private:
    bool isOff() const override { return library().optionSlots[0] == 1; }
    void setOff(bool off) override { library().optionSlots[0] = off ? 1 : 0; }
};

}  // namespace

Composition composeOneVariable(std::string_view keyword, bool off, const Names& variable) {
    CommandText line(keyword);
    if (!off) {
        if (variable.empty()) return Composition::refuse(kvs::text::kSelectVariables);
        line.append(variable.front());
    }
    return Composition().add(line);
}

DialogBehaviour& weightBehaviour() {
    static RememberedOffDialog dialog(text::kWeight, IDC_WEIGHT_OFF);
    return dialog;
}

DialogBehaviour& idVariableBehaviour() {
    static RememberedOffDialog dialog(text::kIdVar, IDC_IDVAR_OFF);
    return dialog;
}

DialogBehaviour& frequencyBehaviour() { return soleInstance<FrequencyDialog>(); }

}  // namespace kvs::data
