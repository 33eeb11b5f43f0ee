#include "core/edit_insertion.h"

#include <algorithm>

namespace kvs {

int replaceEditSelection(DialogView& view, int id, std::string_view insert, std::size_t bound, std::size_t caretFromEnd) {
    const std::string current = view.text(id);
    auto [start, end] = view.editSelection(id);
    const auto size = static_cast<int>(current.size());
    start = std::clamp(start, 0, size);
    end = std::clamp(end, start, size);
    std::string next = current.substr(0, std::min(static_cast<std::size_t>(start), bound));
    next.append(insert);
    const std::size_t caret = next.size() >= caretFromEnd ? next.size() - caretFromEnd : 0;
    next.append(current.substr(static_cast<std::size_t>(end)));
    if (next.size() > bound) next.resize(bound);
    view.setText(id, next);
    const int at = static_cast<int>(std::min(caret, next.size()));
    view.setEditSelection(id, at, at);
    return at;
}

}  // namespace kvs
