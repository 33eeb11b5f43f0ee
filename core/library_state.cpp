#include "core/library_state.h"

namespace kvs {

LibraryState& library() {
    static LibraryState state;
    return state;
}

void setHelpPath(const char* path) {
    std::string& help = library().helpPath;
    help.assign(path ? path : "");
    if (help.size() >= kHelpPathCapacity) help.resize(kHelpPathCapacity - 1);
}

ListInsert listInsertRule() { return library().sortList ? ListInsert::Sorted : ListInsert::Append; }

}  // namespace kvs
