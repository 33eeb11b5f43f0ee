#include "core/join_names.h"

namespace kvs {

const Names& listNames(const DialogView& view, int listId) { return view.listTexts(listId); }

int joinNames(const Names& names, CommandText& text, char separator) {
    int added = 0;
    for (const std::string& name : names) {
        if (text.size() > kJoinLimit) return added;
        text.append(name);
        text.append(separator);
        ++added;
    }
    if (added > 0) text.dropLast();
    return added;
}

int joinNames(const DialogView& view, int listId, CommandText& text, char separator) {
    const int count = view.listCount(listId);
    int added = 0;
    for (int i = 0; i < count; ++i) {
        if (text.size() > kJoinLimit) return added;
        text.append(view.listText(listId, i));
        text.append(separator);
        ++added;
    }
    if (added > 0) text.dropLast();
    return added;
}

}  // namespace kvs
