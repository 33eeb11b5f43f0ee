#include "graph/option_buttons.h"

#include <map>
#include <string>

#include "graph/graph_specs.h"
#include "graph/option_codes.h"
#include "graph/option_store.h"

namespace kvs::graph {

namespace {

std::map<int, std::span<const int>>& registeredOptionCodes() {
    static std::map<int, std::span<const int>> codes;
    return codes;
}

}  // namespace

void registerOptionCodes(int dialogId, std::span<const int> codes) { registeredOptionCodes()[dialogId] = codes; }

std::span<const int> optionCodesOf(int dialogId) {
    if (const GraphSpec* spec = graphSpec(dialogId)) return spec->codes;
    const auto& registered = registeredOptionCodes();
    const auto it = registered.find(dialogId);
    return it == registered.end() ? std::span<const int>() : it->second;
}

OptionButtonResult pressOptionButton(const OptionButtonPress& press) {
    OptionButtonResult result;
    result.code = directCodeOf(press.buttonId, press.parent.dialogId);
    if (!result.code) {
        const std::string_view menu =
            press.menuName.empty() ? popupMenuOf(press.buttonId, press.parent.dialogId) : press.menuName;
        if (menu.empty()) return result;
        PopupRequest request;
        request.owner = press.parent.window;
        request.menuName = std::string(menu);
        request.anchorControl = press.buttonId;
        request.states = menuItemStates(press.buttonId, press.facts);
        result.code = ui().popupMenu(request);
    }
    if (result.code && result.code != kTransposeItem) result.stored = runOptionDialog(press.parent, result.code);
    return result;
}

}  // namespace kvs::graph
