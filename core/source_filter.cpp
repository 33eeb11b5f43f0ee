#include "core/source_filter.h"

#include <algorithm>
#include <numeric>

#include "core/dialog_grid.h"
#include "core/mnemonics.h"
#include "core/variable_list.h"
#include "resources/common_ids.h"

namespace kvs {

namespace {

constexpr std::string_view kLabel = "Quick find:";
constexpr int kLabelWidth = 36;
// With the gap above it, the row takes two whole list rows: it ends where the list did.
constexpr int kRoom = kGridGap + kGridFieldHeight;
static_assert(kRoom % kGridListRow == 0);
constexpr int kShortestList = 36;  // what a list keeps at the least: three or four names
constexpr int kNarrowestList = 70;  // the label and room for a few letters
constexpr std::size_t kLongestKey = 64;

// What changing a list costs, in microseconds, as measured on Wine's list
// box at 100,000 items (docs/performance.md): adding an item at the end,
// deleting the last, each item that moves along when an item is deleted or
// inserted before it, and each item that emptying the list frees.
constexpr double kAddCost = 0.9;
constexpr double kDeleteCost = 0.4;
constexpr double kDeleteMoveCost = 0.0007;
constexpr double kInsertMoveCost = 0.0023;
constexpr double kClearCost = 0.05;

char fold(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::size_t commonPrefix(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b) {
    const std::size_t n = std::min(a.size(), b.size());
    std::size_t i = 0;
    while (i < n && a[i] == b[i]) ++i;
    return i;
}

// The cost of deleting and inserting the entries that differ, walking both
// ascending sequences once: each operation moves the items after it.
double editCost(const std::vector<std::uint32_t>& was, const std::vector<std::uint32_t>& next) {
    double cost = 0;
    std::size_t i = 0, j = 0, at = 0, size = was.size();
    while (i < was.size() || j < next.size()) {
        if (j == next.size() || (i < was.size() && was[i] < next[j])) {
            --size;
            cost += kDeleteCost + kDeleteMoveCost * static_cast<double>(size - at);
            ++i;
        } else if (i == was.size() || next[j] < was[i]) {
            cost += kAddCost + kInsertMoveCost * static_cast<double>(size - at);
            ++size, ++at, ++j;
        } else {
            ++at, ++i, ++j;
        }
    }
    return cost;
}

double refillCost(std::size_t was, std::size_t next, std::size_t from) {
    const double emptying = from == 0 ? kClearCost * static_cast<double>(was) : kDeleteCost * static_cast<double>(was - from);
    return emptying + kAddCost * static_cast<double>(next - from);
}

}  // namespace

std::string filterKey(std::string_view typed) {
    const std::size_t first = typed.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    typed = typed.substr(first, typed.find_last_not_of(" \t") - first + 1);
    std::string key(typed.substr(0, kLongestKey));
    for (char& c : key) c = fold(c);
    return key;
}

// ---------------------------------------------------------------------------
// The box

bool SourceFilter::install(DialogView& view, const VariableCatalogue* catalogue) {
    catalogue_ = catalogue;
    if (view.controlType(listId_) != ControlType::ListBox) return false;
    const DialogRect list = view.controlRect(listId_);
    if (list.width < kNarrowestList || list.height < kShortestList + kRoom) return false;
    // The list gives up whole rows for the search row, which sits just under
    // it, so the row stays with the list when the dialog is resized.
    const int listHeight = wholeListRows(list.height - kRoom);
    const int top = list.y + listHeight + kGridGap;
    const int boxLeft = list.x + kLabelWidth + 2;
    installed_ = view.addControl({AddedKind::Label, labelId_, withFreeMnemonic(view, kLabel),
                                  {list.x, top + kGridLabelDrop, kLabelWidth, kGridLabelHeight}, listId_}) &&
                 view.addControl({AddedKind::Edit, boxId_, "", {boxLeft, top, list.right() - boxLeft, kGridFieldHeight}, labelId_});
    if (!installed_) return false;
    view.moveControl(listId_, {list.x, list.y, list.width, listHeight});
    view.limitText(boxId_, kLongestKey);
    return true;
}

void SourceFilter::prepare(DialogView& view) {
    if (installed_) sync(view);
}

bool SourceFilter::apply(DialogView& view) {
    if (!installed_) return false;
    const std::string key = filterKey(view.text(boxId_));
    if (key.empty() && showsEverything()) {
        key_.clear();
        return false;
    }
    sync(view);
    std::vector<std::uint32_t> next = matching(key);
    key_ = key;
    if (next == shown_) return false;
    return show(view, next);
}

void SourceFilter::follow(DialogView& view) {
    if (!installed_ || !copied_ || view.listChanges(listId_) == seen_) return;
    // A list that showed everything is copied afresh when next needed.
    if (showsEverything()) {
        copied_ = false;
        return;
    }
    apply(view);
}

void SourceFilter::clear(DialogView& view) {
    if (!installed_) return;
    if (!view.text(boxId_).empty()) view.setText(boxId_, "");
    apply(view);
}

// ---------------------------------------------------------------------------
// The copy

std::string_view SourceFilter::entry(std::uint32_t position) const {
    return std::string_view(chars_).substr(starts_[position], starts_[position + 1] - starts_[position]);
}

std::string_view SourceFilter::foldedEntry(std::uint32_t position) const {
    return std::string_view(folded_).substr(starts_[position], starts_[position + 1] - starts_[position]);
}

void SourceFilter::resetEntries(std::size_t reserve) {
    chars_.clear();
    folded_.clear();
    starts_.assign(1, 0);
    pinned_.clear();
    chars_.reserve(reserve * 8);
    folded_.reserve(reserve * 8);
    starts_.reserve(reserve + 1);
    pinned_.reserve(reserve);
}

void SourceFilter::appendEntry(std::string_view text, bool pinned) {
    chars_.append(text);
    for (char c : text) folded_.push_back(fold(c));
    starts_.push_back(static_cast<std::uint32_t>(chars_.size()));
    pinned_.push_back(pinned);
}

// Without a catalogue of names every entry is taken for a variable.
bool SourceFilter::isVariable(std::string_view text) const {
    return !catalogue_ || catalogue_->size() == 0 || catalogue_->indexOf(text) >= 0;
}

// Brings the copy up to date with the list when someone else changed it.
void SourceFilter::sync(DialogView& view) {
    const DialogView::ListChanges now = view.listChanges(listId_);
    if (copied_ && now == seen_) return;
    if (showsEverything() || now.clears != seen_.clears) copyList(view);
    else mergeEdits(view);
}

void SourceFilter::copyList(const DialogView& view) {
    const std::vector<std::string>& texts = view.listTexts(listId_);
    std::vector<std::int32_t> indices;
    if (catalogue_ && catalogue_->size() > 0) indices = catalogue_->indicesOf(texts);
    resetEntries(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) appendEntry(texts[i], !indices.empty() && indices[i] < 0);
    shown_.resize(texts.size());
    std::iota(shown_.begin(), shown_.end(), 0u);
    key_.clear();
    complete_ = true;
    copied_ = true;
    seen_ = view.listChanges(listId_);
}

// The filtered list differs from what the filter left in one stretch (a
// dialog puts its sets at the top, or takes them away): the entries of that
// stretch leave the copy, and the list's new ones go in after the last entry
// before them that stayed, or first.
void SourceFilter::mergeEdits(const DialogView& view) {
    const std::vector<std::string>& now = view.listTexts(listId_);
    const std::size_t was = shown_.size();
    std::size_t head = 0;
    while (head < was && head < now.size() && entry(shown_[head]) == now[head]) ++head;
    std::size_t tail = 0;
    while (tail < was - head && tail < now.size() - head &&
           entry(shown_[was - 1 - tail]) == now[now.size() - 1 - tail])
        ++tail;
    const std::uint32_t insertAt = head == 0 ? 0 : shown_[head - 1] + 1;
    std::vector<bool> removed(entryCount(), false);
    for (std::size_t k = head; k < was - tail; ++k) removed[shown_[k]] = true;

    const std::string chars = std::move(chars_);
    const std::vector<std::uint32_t> starts = std::move(starts_);
    const std::vector<bool> pinned = std::move(pinned_);
    const std::vector<std::uint32_t> shown = std::move(shown_);
    resetEntries(pinned.size() + now.size());
    shown_.clear();
    std::vector<std::uint32_t> moved(pinned.size(), 0);  // old position -> new
    const auto insertNew = [&] {
        for (std::size_t k = head; k < now.size() - tail; ++k) {
            shown_.push_back(static_cast<std::uint32_t>(entryCount()));
            appendEntry(now[k], !isVariable(now[k]));
        }
    };
    for (std::uint32_t old = 0; old < pinned.size(); ++old) {
        if (old == insertAt) insertNew();
        if (removed[old]) continue;
        moved[old] = static_cast<std::uint32_t>(entryCount());
        appendEntry(std::string_view(chars).substr(starts[old], starts[old + 1] - starts[old]), pinned[old]);
    }
    if (insertAt >= pinned.size()) insertNew();
    // Rebuilt in order: the head's entries, the new ones, the tail's.
    std::vector<std::uint32_t> merged;
    merged.reserve(head + shown_.size() + tail);
    for (std::size_t k = 0; k < head; ++k) merged.push_back(moved[shown[k]]);
    merged.insert(merged.end(), shown_.begin(), shown_.end());
    for (std::size_t k = was - tail; k < was; ++k) merged.push_back(moved[shown[k]]);
    shown_ = std::move(merged);
    seen_ = view.listChanges(listId_);
}

std::vector<std::uint32_t> SourceFilter::matching(const std::string& key) const {
    std::vector<std::uint32_t> found;
    if (key.empty()) {
        found.resize(entryCount());
        std::iota(found.begin(), found.end(), 0u);
        return found;
    }
    const auto matches = [&](std::uint32_t p) { return pinned_[p] || foldedEntry(p).find(key) != std::string_view::npos; };
    // Every entry that holds a longer key holds the shorter one.
    if (complete_ && key.find(key_) != std::string::npos) {
        for (std::uint32_t p : shown_)
            if (matches(p)) found.push_back(p);
        return found;
    }
    for (std::uint32_t p = 0; p < entryCount(); ++p)
        if (matches(p)) found.push_back(p);
    return found;
}

// ---------------------------------------------------------------------------
// The list

// Changes the list from shown_ to next the cheaper way, keeping the
// selection of every entry that stays.
bool SourceFilter::show(DialogView& view, const std::vector<std::uint32_t>& next) {
    std::vector<std::uint32_t> selected;
    for (int index : view.listSelection(listId_))
        if (index >= 0 && static_cast<std::size_t>(index) < shown_.size())
            selected.push_back(shown_[static_cast<std::size_t>(index)]);

    const std::size_t head = commonPrefix(shown_, next);
    const double edit = editCost(shown_, next);
    const double fromHead = refillCost(shown_.size(), next.size(), head);
    const double fromTop = refillCost(shown_.size(), next.size(), 0);
    view.setRedraw(listId_, false);
    std::vector<std::uint32_t> actual;
    std::size_t rebuiltFrom = 0;
    if (edit <= std::min(fromHead, fromTop)) {
        actual = editInPlace(view, next);
        rebuiltFrom = actual.size();
    } else {
        rebuiltFrom = fromHead <= fromTop ? head : 0;
        actual = refillFrom(view, next, rebuiltFrom);
    }
    // Entries added again come unselected; those that were selected are
    // selected again.
    bool lost = false;
    for (std::uint32_t position : selected) {
        const auto it = std::lower_bound(actual.begin(), actual.end(), position);
        if (it == actual.end() || *it != position) {
            lost = true;
            continue;
        }
        const auto index = static_cast<std::size_t>(it - actual.begin());
        if (index >= rebuiltFrom) view.listSelect(listId_, static_cast<int>(index), true);
    }
    view.setRedraw(listId_, true);
    complete_ = actual.size() == next.size();
    shown_ = std::move(actual);
    seen_ = view.listChanges(listId_);
    return lost;
}

// One walk over both sequences: an entry only shown_ has is deleted, one
// only next has is inserted where it belongs. An entry the list has no
// room for stays out.
std::vector<std::uint32_t> SourceFilter::editInPlace(DialogView& view, const std::vector<std::uint32_t>& next) {
    std::vector<std::uint32_t> actual;
    actual.reserve(next.size());
    std::size_t i = 0, j = 0;
    int at = 0;
    while (i < shown_.size() || j < next.size()) {
        if (j == next.size() || (i < shown_.size() && shown_[i] < next[j])) {
            view.listDelete(listId_, at);
            ++i;
        } else if (i == shown_.size() || next[j] < shown_[i]) {
            if (view.listInsertAt(listId_, at, entry(next[j])) >= 0) {
                actual.push_back(next[j]);
                ++at;
            }
            ++j;
        } else {
            actual.push_back(next[j]);
            ++at, ++i, ++j;
        }
    }
    return actual;
}

// Keeps the first `from` entries, empties the rest of the list and adds
// next's entries from there on.
std::vector<std::uint32_t> SourceFilter::refillFrom(DialogView& view, const std::vector<std::uint32_t>& next,
                                                    std::size_t from) {
    if (from == 0) {
        view.listClear(listId_);
    } else {
        for (std::size_t k = shown_.size(); k-- > from;) view.listDelete(listId_, static_cast<int>(k));
    }
    const std::size_t count = next.size() - from;
    view.listReserve(listId_, count);
    const DialogView::ListAddResult added = view.listAddAll(
        listId_, count, [&](std::size_t k) { return entry(next[from + k]); }, ListInsert::Append);
    return std::vector<std::uint32_t>(next.begin(), next.begin() + static_cast<std::ptrdiff_t>(from + added.added));
}

// ---------------------------------------------------------------------------
// Both source lists

SourceFilters::SourceFilters()
    : filters_{SourceFilter(IDC_SOURCE, IDC_SOURCE_FILTER, IDC_SOURCE_FILTER_LABEL),
               SourceFilter(IDC_SOURCE2, IDC_SOURCE2_FILTER, IDC_SOURCE2_FILTER_LABEL)} {}

void SourceFilters::install(DialogView& view, const VariableCatalogue& first, const VariableCatalogue& second) {
    filters_[0].install(view, &first);
    filters_[1].install(view, &second);
}

bool SourceFilters::owns(int controlId) const {
    return std::any_of(filters_.begin(), filters_.end(), [&](const SourceFilter& f) { return f.owns(controlId); });
}

int SourceFilters::command(DialogView& view, int controlId, int notifyCode) {
    for (SourceFilter& filter : filters_) {
        if (!filter.owns(controlId)) continue;
        if (notifyCode == kEditSetFocus) filter.prepare(view);
        else if (notifyCode == kEditChange && filter.apply(view)) return filter.listId();
        return 0;
    }
    return 0;
}

void SourceFilters::follow(DialogView& view) {
    for (SourceFilter& filter : filters_) filter.follow(view);
}

void SourceFilters::clear(DialogView& view) {
    for (SourceFilter& filter : filters_) filter.clear(view);
}

}  // namespace kvs
