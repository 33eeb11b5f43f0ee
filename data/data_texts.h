// Texts of the data-management dialogs.
#pragma once

#include <string_view>

namespace kvs::data::text {
inline constexpr std::string_view kSort = "SORT ";
inline constexpr std::string_view kDescending = " / D";
inline constexpr std::string_view kRank = "RANK ";
inline constexpr std::string_view kTranspose = "TRANSPOSE ";
inline constexpr std::string_view kSaveStart = "SAVE '";
inline constexpr std::string_view kSaveEnd = "'";
inline constexpr std::string_view kAppendDefaultFile = "APPEND.KVD";
}  // namespace kvs::data::text
