// The "Labels" dialog: value labels of one variable, as a LABEL line.
#pragma once

#include <string>
#include <utility>
#include <vector>


namespace kvs::data {

using ValueLabel = std::pair<std::string, std::string>;  // value, label

// "LABEL NAME", then " / " and value=label pairs joined by ", "; a string
// variable's values are quoted like the labels.
std::string composeLabelLine(const std::string& variable, const std::vector<ValueLabel>& labels);

}  // namespace kvs::data
