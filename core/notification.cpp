#include "core/dialog_behaviour.h"

namespace kvs {

Notification classify(const DialogView& view, int controlId, int notifyCode) {
    Event event = Event::Other;
    switch (view.controlType(controlId)) {
    case ControlType::Button:
        if (notifyCode == kButtonClicked) event = Event::Clicked;
        break;
    case ControlType::ListBox:
        if (notifyCode == kListSelChange) event = Event::ListSelectionChanged;
        else if (notifyCode == kListDblClick) event = Event::ListDoubleClicked;
        break;
    case ControlType::ComboBox:
        if (notifyCode == kComboSelChange) event = Event::ComboSelectionChanged;
        else if (notifyCode == kComboEditChange) event = Event::ComboEditChanged;
        break;
    case ControlType::Edit:
        if (notifyCode == kEditChange) event = Event::EditChanged;
        else if (notifyCode == kEditSetFocus) event = Event::EditFocused;
        break;
    case ControlType::Other: break;
    }
    return {controlId, event, notifyCode};
}

}  // namespace kvs
