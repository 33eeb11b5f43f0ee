// The transformation functions the expression dialogs offer under
// "Function Type:" and "Functions:": one table, in alphabetical order, each
// function with its category.
#pragma once

#include <span>
#include <string_view>

namespace kvs::data {

enum class FunctionCategory { Mathematical, Multivariable, GroupsAndIntervals, DateAndTime, Character, Distribution };

inline constexpr int kFunctionCategoryCount = 6;

struct FunctionEntry {
    std::string_view name;  // as inserted, with its parentheses: "LOG()"
    FunctionCategory category;
};

// Every function, sorted by name.
std::span<const FunctionEntry> functionCatalogue();

// The names shown in the "Function Type:" drop-down, in category order.
std::string_view categoryName(FunctionCategory category);

// The category at a drop-down position; positions out of range give the first.
FunctionCategory categoryAt(int position);

}  // namespace kvs::data
