// The key-selection sub-dialog of Merge ("KeyVars", menu id 91) and the key
// state it leaves for the MERGE line.
#pragma once

#include <string>

#include "core/seam.h"

namespace kvs::data {

// Runs the key selection over the owner dialog; on OK the key flag is set.
// Returns 1 on OK, 0 otherwise.
int runKeySelection(WindowRef owner);

// 1 once a key selection ended with OK, until the defaults are restored.
int keyFlag();
// The chosen key names separated by single blanks.
const std::string& keyText();

}  // namespace kvs::data
