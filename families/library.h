// The library's composition root: which families serve which ids, and the
// load and unload notifications with every family installed.
#pragma once

namespace kvs {

// Installs the rows of the data, graph and statistics families.
void installLibraryFamilies();
// Installs the families, then runs the load notification (defaults,
// filters, ...).
void loadLibrary();
// Runs the unload notification.
void unloadLibrary();

}  // namespace kvs
