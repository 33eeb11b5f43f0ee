#include "core/resizable_layout.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace kvs {

namespace {

std::unordered_map<std::uint16_t, DialogRect>& sizes() {
    static std::unordered_map<std::uint16_t, DialogRect> map;
    return map;
}

}  // namespace

DialogRect rememberedDialogSize(std::uint16_t commandId) {
    const auto it = sizes().find(commandId);
    return it == sizes().end() ? DialogRect{} : it->second;
}

void forgetDialogSizes(bool freeMemory) {
    if (freeMemory) std::unordered_map<std::uint16_t, DialogRect>().swap(sizes());
    else sizes().clear();
}

void ResizableLayout::install(DialogView& view, std::uint16_t commandId) {
    original_ = view.clientRect();
    if (original_.width <= 0 || original_.height <= 0) return;
    items_.clear();
    for (const ControlLayout& control : view.layout()) items_.push_back({control.rect, resizeKindOf(control)});
    commandId_ = commandId;
    installed_ = true;
    // Read first: the frame's change of style may report the opening size.
    const DialogRect last = rememberedDialogSize(commandId);
    view.makeResizable(original_.width, original_.height);
    if (last.width <= 0) return;
    const int wider = std::max(last.width - original_.width, 0);
    const int taller = std::max(last.height - original_.height, 0);
    if (wider == 0 && taller == 0) return;
    if (last.width > 0) sizes()[commandId] = last;
    view.growClient(wider, taller);
    view.centre();
    resize(view, original_.width + wider, original_.height + taller);
}

void ResizableLayout::resize(DialogView& view, int width, int height) {
    if (!installed_) return;
    width = std::max(width, original_.width);
    height = std::max(height, original_.height);
    view.arrange(resizedLayout(items_, original_, width, height));
    if (width == original_.width && height == original_.height) sizes().erase(commandId_);
    else sizes()[commandId_] = {0, 0, width, height};
}

}  // namespace kvs
