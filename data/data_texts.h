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
inline constexpr std::string_view kAppend = "APPEND ";
inline constexpr std::string_view kOptionSeparator = " / ";
inline constexpr std::string_view kMatch = "MATCH";
inline constexpr std::string_view kUnion = "UNION";
inline constexpr std::string_view kIntersect = "INTERSECT";
inline constexpr std::string_view kMerge = "MERGE ";
inline constexpr std::string_view kLabel = "LABEL ";
inline constexpr std::string_view kLabelSeparator = ", ";
inline constexpr std::string_view kFileNotSpecified = "Filename(s) not specified.";
inline constexpr std::string_view kExtractTitle = "Extract";
inline constexpr std::string_view kExtractStart = "EXTRACT '";
inline constexpr std::string_view kExtractEnd = "'";

// Save-as and import/export options.
inline constexpr std::string_view kSaveAsOptionsTemplate = "SaveAsOpts";
inline constexpr std::string_view kImportExportTemplate = "IDD_OPTIONSIMPORTEXPORT";
inline constexpr std::string_view kExportOptionsCaption = "Export Options";
inline constexpr std::string_view kSaveAsType = " / TYPE=";
inline constexpr std::string_view kRowsClause = " ROWS=";
inline constexpr std::string_view kColumnsClause = " COLUMNS=";
inline constexpr std::string_view kRangeClause = " RANGE=";
inline constexpr std::string_view kRangeSeparator = "..";
}  // namespace kvs::data::text
