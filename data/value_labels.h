// The "Labels" dialog: value labels of one variable, as a LABEL line.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/dialog_behaviour.h"
#include "core/dialog_defaults.h"

namespace kvs::data {

using ValueLabel = std::pair<std::string, std::string>;  // value, label

// "LABEL NAME", then " / " and value=label pairs joined by ", "; a string
// variable's values are quoted like the labels.
std::string composeLabelLine(const std::string& variable, const std::vector<ValueLabel>& labels);

// Runs the dialog from the host's menu (it has no row of its own in the
// dispatch table).
void runValueLabels();
DialogBehaviour& valueLabelsBehaviour();
// The remembered variable.
void addValueLabelDefaults(DefaultsTable& table);

}  // namespace kvs::data
