#include "families/library.h"

#include "core/lifecycle.h"
#include "data/data_family.h"
#include "graph/graph_family.h"
#include "stats/stats_family.h"

namespace kvs {

void installLibraryFamilies() {
    const FamilyTable families[] = {data::family(), graph::family(), stats::family()};
    installFamilies(families);
}

void loadLibrary() {
    installLibraryFamilies();
    onLibraryLoad();
}

void unloadLibrary() { onLibraryUnload(); }

}  // namespace kvs
