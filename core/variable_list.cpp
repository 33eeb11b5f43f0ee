#include "core/variable_list.h"

#include <algorithm>
#include <array>

#include "core/messages.h"
#include "include/kvs_imports.h"

namespace kvs {

void VariableCatalogue::clear() {
    names_.clear();
    listed_.clear();
}

void VariableCatalogue::reserve(std::size_t count) {
    names_.reserve(count);
    listed_.reserve(count);
}

void VariableCatalogue::add(std::string name, bool listed) {
    const auto index = static_cast<std::int32_t>(names_.size());
    if (listed) listed_.emplace(name, index);
    names_.push_back(std::move(name));
}

void VariableCatalogue::truncate(std::size_t size) {
    for (std::size_t i = size; i < names_.size(); ++i) {
        const auto it = listed_.find(names_[i]);
        if (it != listed_.end() && static_cast<std::size_t>(it->second) == i) listed_.erase(it);
    }
    if (size < names_.size()) names_.resize(size);
}

std::int32_t VariableCatalogue::indexOf(std::string_view name) const {
    auto it = listed_.find(std::string(name));
    return it == listed_.end() ? -1 : it->second;
}

std::string_view VariableCatalogue::nameAt(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= names_.size()) return {};
    return names_[static_cast<std::size_t>(index)];
}

std::string nameFromField(std::string_view field) {
    field = field.substr(0, kNameLength);
    if (field.empty()) return {};
    const std::size_t blank = field.find(' ', 1);
    return std::string(field.substr(0, blank));
}

namespace {

void warnTooMany(WindowRef owner, std::int32_t added) {
    std::string message(text::kTooManyVariables1);
    message += std::to_string(added);
    message += text::kTooManyVariables2;
    showStop(owner, message);
}

std::string kernelName(std::int32_t number, std::int32_t width) {
    // One byte past the widest name is a blank, so a full-width name ends there.
    std::array<char, kNameLength + 1> field{};
    field.fill(' ');
    INQVARNAME_EX(number, field.data(), width);
    field[kNameLength] = ' ';
    return nameFromField(std::string_view(field.data(), field.size()));
}

}  // namespace

void fillVariableList(DialogView& view, int listId, ListInsert how, std::int32_t count, bool numericOnly,
                      std::uint16_t commandId, VariableCatalogue& catalogue) {
    INQKS_EX();
    const std::uintptr_t cursor = ui().beginWait();
    view.setRedraw(listId, false);
    const auto room = static_cast<std::size_t>(std::max<std::int32_t>(count, 0));
    view.listReserve(listId, room + 1);
    catalogue.clear();
    catalogue.reserve(room);
    if (commandId == 46 || commandId == 677) view.listAdd(listId, "Case", how);
    const std::int32_t width = std::clamp<std::int32_t>(INQFML_EX(), 1, static_cast<std::int32_t>(kNameLength));
    std::vector<std::int32_t> shown;  // catalogue positions of the names the list shows
    shown.reserve(room);
    for (std::int32_t k = 1; k <= count; ++k) {
        std::string name = kernelName(k, width);
        const bool skip = numericOnly && name.find('$') != std::string::npos;
        if (!skip) shown.push_back(static_cast<std::int32_t>(catalogue.size()));
        catalogue.add(std::move(name), !skip);
    }
    std::vector<std::string_view> texts;
    texts.reserve(shown.size());
    for (std::int32_t position : shown) texts.push_back(catalogue.nameAt(position));
    const DialogView::ListAddResult result = view.listAddAll(listId, texts, how);
    if (result.added > 0) view.listSetCurrent(listId, 0);
    if (result.noSpace) {
        // The catalogue ends where the list does.
        catalogue.truncate(static_cast<std::size_t>(shown[result.added]));
        warnTooMany(view.handle(), static_cast<std::int32_t>(result.added));
    }
    view.setRedraw(listId, true);
    ui().endWait(cursor);
}

void fillListFromFile(DialogView& view, const std::string& fileName, int listId, ListInsert how,
                      VariableCatalogue* catalogue) {
    if (fileName.empty()) return;
    char* block = nullptr;
    const std::int32_t count = GetFileVariables(fileName.c_str(), &block);
    if (view.listCount(listId) > 0) view.listClear(listId);
    if (catalogue) catalogue->clear();
    constexpr std::size_t kEntry = kNameLength + 1;
    for (std::int32_t i = 0; block && i < count; ++i) {
        const char* entry = block + static_cast<std::size_t>(i) * kEntry;
        std::string name(entry, std::find(entry, entry + kNameLength, '\0'));
        view.listAdd(listId, name, how);
        if (catalogue) catalogue->add(std::move(name), true);
    }
    if (block) {
        void* memory = block;
        free_mem_ex(&memory);
    }
}

void restoreSelection(DialogView& view, const GlobalIndices& entries, std::int32_t capacity,
                      int targetId, const VariableCatalogue& catalogue) {
    const std::size_t n = std::min<std::size_t>(entries.size(), static_cast<std::size_t>(std::max(capacity, 0)));
    for (std::size_t i = 0; i < n && entries[i] != -1; ++i) {
        const std::string_view name = catalogue.nameAt(entries[i]);
        if (!name.empty()) view.listAdd(targetId, name, ListInsert::Append);
    }
}

void storeSelection(const DialogView& view, int targetId, std::int32_t capacity,
                    const VariableCatalogue& catalogue, GlobalIndices& entries) {
    const std::size_t room = std::min<std::size_t>(entries.size(), static_cast<std::size_t>(std::max(capacity, 0)));
    std::fill_n(entries.begin(), room, -1);
    std::size_t stored = 0;
    for (const std::string& name : view.listTexts(targetId)) {
        if (stored >= room) break;
        const std::int32_t index = catalogue.indexOf(name);
        if (index >= 0) entries[stored++] = index;
    }
}

}  // namespace kvs
