// Load and unload of the library.
#pragma once

namespace kvs {

// Everything the load notification does, from a state as at first load.
void onLibraryLoad();
// The exported data back to its values at first load.
void resetExportedData();
// What the unload notification releases; also returns every remembered
// setting to its never-loaded state, so a test can load the library afresh.
void onLibraryUnload();

}  // namespace kvs
