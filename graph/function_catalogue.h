// The functions and operators an equation may use, as the function plot
// and the nonlinear-model dialogs list them for insertion.
#pragma once

#include <string_view>

namespace kvs::graph {

inline constexpr std::string_view kEquationFunctions[] = {"ABS(", "ACS(", "ASN(", "ATN(", "COS(", "EXP(",
                                                          "LOG(", "L10(", "SIN(", "SQR(", "TAN("};
inline constexpr std::string_view kEquationOperators[] = {"+", "-", "*", "/", "^", "(", ")"};

}  // namespace kvs::graph
