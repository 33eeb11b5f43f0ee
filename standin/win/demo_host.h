// KORVAN.exe without arguments: a small host to try the library by hand.
#pragma once

namespace kvs::standin {

// A main window with a menu entry for every command id the library serves,
// grouped by family, over a sample data file of 20 variables, and a log of
// everything the library tells the host. Returns the process exit code.
int runDemoHost();

}  // namespace kvs::standin
