#include "data/join_names.h"

namespace kvs::data {

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

}  // namespace kvs::data
