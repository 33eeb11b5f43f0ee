#include "graph/colour_picker.h"

#include <string>

#include "core/help_requests.h"
#include "core/library_state.h"
#include "graph/colour_font_texts.h"
#include "graph/colour_grid.h"
#include "resources/colour_picker_ids.h"

namespace kvs::graph {

namespace {

// The grid shows its framed cell as its window text, the cell's index, so
// that the drawing side and a scenario's `show` both read it there.
void selectCell(DialogView& view, int index) { view.setText(IDC_COLOUR_GRID, std::to_string(index)); }

class ColourPicker : public DialogHandler {
public:
    explicit ColourPicker(double value) : value_(value) {}

    double value() const { return value_; }

    int onInit(DialogView& view) override {
        view.limitText(IDC_COLOUR_VALUE, kColourFieldLength);
        view.setText(IDC_COLOUR_VALUE, formatColourValue(value_));
        selectCell(view, cellForValue(value_));
        return 0;
    }

    void onCommand(DialogView& view, int controlId, int notifyCode) override {
        if (notifyCode != kButtonClicked) return;
        switch (controlId) {
        case kIdOk:
            value_ = colourFromField(view.text(IDC_COLOUR_VALUE));
            view.end(1);
            break;
        case kIdCancel: view.end(0); break;
        case IDC_HELPBUTTON: openHelpTopic(view.handle(), kColourPickerHelp); break;
        default: break;
        }
    }

    void onSysCommand(DialogView&, int code) override { answerHelpCommand(code); }

    void onClick(DialogView& view, int controlId, int x, int y, int width, int height) override {
        if (controlId != IDC_COLOUR_GRID) return;
        const int index = cellAt(x, y, cellSize(width, height));
        selectCell(view, index);
        view.setText(IDC_COLOUR_VALUE, formatColourValue(cellValue(index)));
    }

private:
    double value_;
};

}  // namespace

int runColourPicker(WindowRef owner, float* colour) {
    if (!colour) return 0;
    ColourPicker picker(*colour);
    DialogUpScope up;  // no dialog starts over the picker
    if (runModalWithTopic(owner, text::kColourPickerTemplate, picker, kColourPickerHelp) != 1) return 0;
    *colour = static_cast<float>(picker.value());
    return 1;
}

}  // namespace kvs::graph
