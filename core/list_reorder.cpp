#include "core/list_reorder.h"

#include <algorithm>
#include <string>

namespace kvs {

namespace {

// The selection as flags, ignoring indices out of range.
std::vector<bool> flagsOf(int count, const std::vector<int>& selected) {
    std::vector<bool> flags(static_cast<std::size_t>(std::max(count, 0)), false);
    for (int index : selected)
        if (index >= 0 && index < count) flags[static_cast<std::size_t>(index)] = true;
    return flags;
}

std::vector<int> movedPositions(const std::vector<int>& order, const std::vector<bool>& flags) {
    std::vector<int> moved;
    for (std::size_t i = 0; i < order.size(); ++i)
        if (flags[static_cast<std::size_t>(order[i])]) moved.push_back(static_cast<int>(i));
    return moved;
}

}  // namespace

Reordering moveSelectionTo(int count, const std::vector<int>& selected, int at) {
    const std::vector<bool> flags = flagsOf(count, selected);
    Reordering result;
    std::vector<int> picked;
    // The unselected entries keep their order; the picked ones go in before
    // the first unselected entry that stood at or after position at.
    std::size_t insertAt = 0;
    for (int i = 0; i < count; ++i) {
        if (flags[static_cast<std::size_t>(i)]) {
            picked.push_back(i);
            continue;
        }
        result.order.push_back(i);
        if (i < at) insertAt = result.order.size();
    }
    result.order.insert(result.order.begin() + static_cast<std::ptrdiff_t>(insertAt), picked.begin(), picked.end());
    result.moved = movedPositions(result.order, flags);
    return result;
}

Reordering moveSelectionBy(int count, const std::vector<int>& selected, int step) {
    const std::vector<bool> flags = flagsOf(count, selected);
    Reordering result;
    result.order.resize(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) result.order[static_cast<std::size_t>(i)] = i;
    const auto isSelected = [&](int position) {
        return flags[static_cast<std::size_t>(result.order[static_cast<std::size_t>(position)])];
    };
    // Walking from the end the entries move towards, each selected entry
    // swaps with an unselected neighbour; one already blocked by the end or
    // by a blocked selected entry stays.
    if (step < 0) {
        for (int i = 1; i < count; ++i)
            if (isSelected(i) && !isSelected(i - 1))
                std::swap(result.order[static_cast<std::size_t>(i)], result.order[static_cast<std::size_t>(i - 1)]);
    } else if (step > 0) {
        for (int i = count - 2; i >= 0; --i)
            if (isSelected(i) && !isSelected(i + 1))
                std::swap(result.order[static_cast<std::size_t>(i)], result.order[static_cast<std::size_t>(i + 1)]);
    }
    result.moved = movedPositions(result.order, flags);
    return result;
}

bool canMoveSelectionBy(int count, const std::vector<int>& selected, int step) {
    const std::vector<bool> flags = flagsOf(count, selected);
    // Something moves when a selected entry has an unselected one on the
    // side it moves to.
    for (int i = 0; i < count; ++i) {
        const int neighbour = i + (step < 0 ? -1 : 1);
        if (flags[static_cast<std::size_t>(i)] && neighbour >= 0 && neighbour < count &&
            !flags[static_cast<std::size_t>(neighbour)])
            return true;
    }
    return false;
}

void applyReordering(DialogView& view, int listId, const Reordering& reordering) {
    const int count = view.listCount(listId);
    if (static_cast<int>(reordering.order.size()) != count) return;
    std::vector<std::string> before;
    before.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) before.push_back(view.listText(listId, i));
    view.setRedraw(listId, false);
    view.listSelect(listId, -1, false);
    for (int i = 0; i < count; ++i) {
        const std::string& wanted = before[static_cast<std::size_t>(reordering.order[static_cast<std::size_t>(i)])];
        if (wanted == before[static_cast<std::size_t>(i)]) continue;
        view.listDelete(listId, i);
        view.listInsertAt(listId, i, wanted);
    }
    for (int position : reordering.moved) view.listSelect(listId, position, true);
    view.setRedraw(listId, true);
}

}  // namespace kvs
