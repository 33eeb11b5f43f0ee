// Weight, ID Variable and Frequency: a keyword and the one variable of list
// 239, or the keyword alone when the setting is turned off.
#include "core/descriptor.h"
#include "core/library_state.h"
#include "core/messages.h"
#include "data/listing_dialogs.h"
#include "data/data_texts.h"
#include "resources/data_ids.h"

namespace kvs::data {

namespace {

constexpr std::uint16_t kFrequencyId = 85;

bool weightOff = false;
bool idVariableOff = false;

// Frequency keeps its box in option slot 1, which the dispatcher fills from
// the descriptor's extra word and copies back when the dialog ends with OK.
std::int32_t& frequencySlot() { return library().optionSlots[0]; }

class OneVariableDialog : public DialogBehaviour {
public:
    OneVariableDialog(std::string_view keyword, int offBox) : keyword_(keyword), offBox_(offBox) {}

    int init(DialogContext& context) override {
        context.view.setChecked(offBox_, isOff());
        return 0;
    }

    int command(DialogContext& context, int controlId, int) override {
        if (controlId != kIdOk) return 0;
        DialogView& view = context.view;
        const bool off = view.isChecked(offBox_);
        setOff(off);
        CommandText line(keyword_);
        if (!off) {
            if (view.listCount(IDC_ONE_VARIABLE) == 0) return listing::refuse(view, kvs::text::kSelectVariables);
            line.append(view.listText(IDC_ONE_VARIABLE, 0));
        }
        listing::queueLine(line, true);
        return 1;
    }

protected:
    virtual bool isOff() const = 0;
    virtual void setOff(bool off) = 0;

private:
    std::string_view keyword_;
    int offBox_;
};

class WeightDialog : public OneVariableDialog {
public:
    WeightDialog() : OneVariableDialog(text::kWeight, IDC_WEIGHT_OFF) {}

private:
    bool isOff() const override { return weightOff; }
    void setOff(bool off) override { weightOff = off; }
};

class IdVariableDialog : public OneVariableDialog {
public:
    IdVariableDialog() : OneVariableDialog(text::kIdVar, IDC_IDVAR_OFF) {}

private:
    bool isOff() const override { return idVariableOff; }
    void setOff(bool off) override { idVariableOff = off; }
};

class FrequencyDialog : public OneVariableDialog {
public:
    FrequencyDialog() : OneVariableDialog(text::kFrequency, IDC_FREQUENCY_OFF) {}

private:
    bool isOff() const override { return frequencySlot() == 1; }
    void setOff(bool off) override { frequencySlot() = off ? 1 : 0; }
};

}  // namespace

DialogBehaviour& weightBehaviour() { return soleInstance<WeightDialog>(); }
DialogBehaviour& idVariableBehaviour() { return soleInstance<IdVariableDialog>(); }
DialogBehaviour& frequencyBehaviour() { return soleInstance<FrequencyDialog>(); }

void listing::resetOneVariableDialogs() {
    weightOff = false;
    idVariableOff = false;
    if (Descriptor* frequency = descriptorFor(kFrequencyId)) frequency->extra[0] = 0;
}

}  // namespace kvs::data
