#include "graph/option_store.h"

#include <algorithm>
#include <map>
#include <utility>

#include "graph/option_codes.h"
#include "resources/graph_ids.h"

namespace kvs::graph {

namespace {

std::map<std::pair<int, int>, OptionRecord>& records() {
    static std::map<std::pair<int, int>, OptionRecord> all;
    return all;
}

}  // namespace

OptionRecord* optionRecord(int dialogId, int code) {
    const std::span<const int> codes = optionCodesOf(dialogId);
    if (std::find(codes.begin(), codes.end(), code) == codes.end()) return nullptr;
    auto [it, made] = records().try_emplace({dialogId, code});
    if (made) it->second.values = defaultValues(formOf(subDialogFor(code, dialogId).templateName));
    return &it->second;
}

void forgetOptionRecords(int dialogId) {
    std::erase_if(records(), [dialogId](const auto& entry) { return entry.first.first == dialogId; });
}

void forgetAllOptionRecords() { records().clear(); }

bool StoredOptions::buttonEnabled(int buttonId) const { return view_.has(buttonId) && view_.isEnabled(buttonId); }

void StoredOptions::append(CommandText& line, int code, bool threeDimensional) const {
    const auto it = records().find({dialogId_, code});
    if (it == records().end() || !it->second.set) return;
    // The function plot's dimension is its own choice, not the builder's.
    if (dialogId_ == 119) threeDimensional = !view_.isChecked(IDC_FPLOT_2D);
    appendOptionKeywords(line, code, subDialogFor(code, dialogId_).templateName, it->second.values,
                         threeDimensional);
}

}  // namespace kvs::graph
