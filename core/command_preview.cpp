#include "core/command_preview.h"

#include <algorithm>

#include "core/dialog_grid.h"
#include "core/mnemonics.h"
#include "resources/common_ids.h"

namespace kvs {

namespace {

constexpr int kFieldHeight = 30;  // three lines of the dialog font
constexpr std::string_view kLabel = "Command preview:";
constexpr std::string_view kCopy = "Copy";

}  // namespace

std::string previewText(const Composition& composition) {
    if (composition.refused()) return composition.refusal;
    std::string text;
    for (const std::string& line : composition.lines) {
        if (!text.empty()) text += "\r\n";
        text += line;
    }
    return text;
}

bool CommandPreview::owns(int controlId) {
    return controlId == IDC_COMMAND_PREVIEW || controlId == IDC_COPY_COMMANDS || controlId == IDC_COMMAND_PREVIEW_LABEL;
}

bool CommandPreview::install(DialogView& view) {
    const DialogRect client = view.clientRect();
    if (client.width <= 0) return false;
    // Below the lowest control, whatever the template's bottom margin.
    int top = 0;
    for (const ControlLayout& control : view.layout()) top = std::max(top, control.rect.bottom());
    top = std::max(top, client.height - kGridMargin) + kGridGap;
    const int fieldTop = top + kGridLabelHeight + 1;
    const int needed = fieldTop + kFieldHeight + kGridMargin - client.height;
    const std::string copy = withFreeMnemonic(view, kCopy);
    std::string copyLetter;
    collectMnemonic(copy, copyLetter);
    const std::string label = withFreeMnemonic(view, kLabel, copyLetter);
    if (needed > 0) view.growClient(0, needed);
    const int buttonLeft = client.width - kGridMargin - kGridButtonWidth;
    const int fieldWidth = buttonLeft - kGridGap - kGridMargin;
    installed_ = view.addControl({AddedKind::Label, IDC_COMMAND_PREVIEW_LABEL, label, {kGridMargin, top, fieldWidth, kGridLabelHeight}, 0}) &&
                 view.addControl({AddedKind::ReadOnlyText, IDC_COMMAND_PREVIEW, "",
                                  {kGridMargin, fieldTop, fieldWidth, kFieldHeight}, IDC_COMMAND_PREVIEW_LABEL}) &&
                 view.addControl({AddedKind::PushButton, IDC_COPY_COMMANDS, copy,
                                  {buttonLeft, fieldTop, kGridButtonWidth, kGridButtonHeight}, IDC_COMMAND_PREVIEW});
    return installed_;
}

void CommandPreview::show(DialogView& view, const std::optional<Composition>& composition) {
    if (!installed_) return;
    const std::string text = composition ? previewText(*composition) : std::string();
    lines_ = composition && !composition->refused() ? text : std::string();
    if (view.text(IDC_COMMAND_PREVIEW) != text) view.setText(IDC_COMMAND_PREVIEW, text);
    view.enable(IDC_COPY_COMMANDS, !lines_.empty());
}

void CommandPreview::copy(const DialogView& view) const {
    if (!lines_.empty()) ui().copyText(view.handle(), lines_);
}

}  // namespace kvs
