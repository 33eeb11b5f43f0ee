#include "core/variable_list.h"

#include <algorithm>
#include <array>

#include "core/messages.h"
#include "include/kvs_imports.h"

namespace kvs {

namespace {

// FNV-1a, then a finaliser that carries the high bits down: the table is
// indexed by the low bits, which FNV alone leaves poorly mixed for names
// that differ only in their last characters (V1, V2, ...).
std::size_t hashName(std::string_view name) {
    std::uint64_t hash = 14695981039346656037ull;
    for (char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ull;
    hash ^= hash >> 33;
    hash *= 0xff51afd7ed558ccdull;
    hash ^= hash >> 33;
    return static_cast<std::size_t>(hash);
}

// A power of two with room for count names at a load of at most one half.
std::size_t slotsFor(std::size_t count) {
    std::size_t slots = 16;
    while (slots < count * 2) slots *= 2;
    return slots;
}

}  // namespace

void VariableCatalogue::clear() {
    chars_.clear();
    starts_.assign(1, 0);
    listed_.clear();
    indexed_ = false;
}

void VariableCatalogue::reserve(std::size_t count) {
    chars_.reserve(count * 8);
    starts_.reserve(count + 1);
    listed_.reserve(count);
}

void VariableCatalogue::add(std::string_view name, bool listed) {
    chars_.append(name);
    starts_.push_back(static_cast<std::uint32_t>(chars_.size()));
    listed_.push_back(listed);
    indexed_ = false;
}

void VariableCatalogue::truncate(std::size_t size) {
    if (size >= listed_.size()) return;
    chars_.resize(starts_[size]);
    starts_.resize(size + 1);
    listed_.resize(size);
    indexed_ = false;
}

void VariableCatalogue::buildIndex() const {
    std::size_t listed = 0;
    for (bool on : listed_) listed += on ? 1 : 0;
    slots_.assign(slotsFor(listed), -1);
    for (std::size_t i = 0; i < listed_.size(); ++i)
        if (listed_[i]) insertListed(static_cast<std::int32_t>(i));
    indexed_ = true;
}

// A name listed twice keeps its first index.
void VariableCatalogue::insertListed(std::int32_t index) const {
    const std::string_view name = nameAt(index);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = hashName(name) & mask;; slot = (slot + 1) & mask) {
        const std::int32_t held = slots_[slot];
        if (held < 0) {
            slots_[slot] = index;
            return;
        }
        if (nameAt(held) == name) return;
    }
}

std::int32_t VariableCatalogue::indexOf(std::string_view name) const {
    if (!indexed_) buildIndex();
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = hashName(name) & mask;; slot = (slot + 1) & mask) {
        const std::int32_t held = slots_[slot];
        if (held < 0) return -1;
        if (nameAt(held) == name) return held;
    }
}

std::size_t VariableCatalogue::nextListed(std::size_t from) const {
    while (from < listed_.size() && !listed_[from]) ++from;
    return from;
}

// A handful of names is found sooner by reading the names once in order
// than by building the index, which touches every name at random.
std::vector<std::int32_t> VariableCatalogue::scanFor(const std::vector<std::string>& names) const {
    std::vector<std::int32_t> found(names.size(), -1);
    std::size_t left = names.size();
    for (std::size_t i = nextListed(0); i < listed_.size() && left > 0; i = nextListed(i + 1)) {
        const std::string_view name = nameAt(static_cast<std::int32_t>(i));
        for (std::size_t j = 0; j < names.size(); ++j) {
            if (found[j] < 0 && names[j] == name) {
                found[j] = static_cast<std::int32_t>(i);
                --left;
            }
        }
    }
    return found;
}

std::vector<std::int32_t> VariableCatalogue::indicesOf(const std::vector<std::string>& names) const {
    constexpr std::size_t kFewNames = 16;
    if (!indexed_ && names.size() <= kFewNames) return scanFor(names);
    // Many names chosen in list order (as Add moves them) are found by
    // following the list; the first one out of order builds the index.
    std::vector<std::int32_t> found;
    found.reserve(names.size());
    std::size_t next = nextListed(0);
    for (const std::string& name : names) {
        if (!indexed_ && next < listed_.size() && nameAt(static_cast<std::int32_t>(next)) == name) {
            found.push_back(static_cast<std::int32_t>(next));
            next = nextListed(next + 1);
        } else {
            found.push_back(indexOf(name));
        }
    }
    return found;
}

std::string_view VariableCatalogue::nameAt(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= listed_.size()) return {};
    const auto at = static_cast<std::size_t>(index);
    return std::string_view(chars_).substr(starts_[at], starts_[at + 1] - starts_[at]);
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

std::int32_t kernelNameWidth() { return std::clamp<std::int32_t>(INQFML_EX(), 1, static_cast<std::int32_t>(kNameLength)); }

}  // namespace

bool fileHasCharacterVariable() {
    const std::int32_t count = GetNumVars();
    const std::int32_t width = kernelNameWidth();
    for (std::int32_t k = 1; k <= count; ++k)
        if (kernelName(k, width).ends_with('$')) return true;
    return false;
}

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
    const std::int32_t width = kernelNameWidth();
    // Catalogue positions of the names the list shows, kept only when some
    // are left out; otherwise the list shows every position in order.
    std::vector<std::int32_t> shown;
    if (numericOnly) shown.reserve(room);
    for (std::int32_t k = 1; k <= count; ++k) {
        const std::string name = kernelName(k, width);
        const bool skip = numericOnly && name.find('$') != std::string::npos;
        if (numericOnly && !skip) shown.push_back(static_cast<std::int32_t>(catalogue.size()));
        catalogue.add(name, !skip);
    }
    const auto positionOf = [&](std::size_t i) { return numericOnly ? shown[i] : static_cast<std::int32_t>(i); };
    const std::size_t showing = numericOnly ? shown.size() : catalogue.size();
    const DialogView::ListAddResult result = view.listAddAll(
        listId, showing, [&](std::size_t i) { return catalogue.nameAt(positionOf(i)); }, how);
    if (result.added > 0) view.listSetCurrent(listId, 0);
    if (result.noSpace) {
        // The catalogue ends where the list does.
        catalogue.truncate(static_cast<std::size_t>(positionOf(result.added)));
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
        if (catalogue) catalogue->add(name, true);
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
    for (const std::int32_t index : catalogue.indicesOf(view.listTexts(targetId))) {
        if (stored >= room) break;
        if (index >= 0) entries[stored++] = index;
    }
}

}  // namespace kvs
