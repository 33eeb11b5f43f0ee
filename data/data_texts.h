// Texts of the data-management dialogs.
#pragma once

#include <array>
#include <string_view>

namespace kvs::data::text {
inline constexpr std::string_view kSort = "SORT ";
inline constexpr std::string_view kDescending = " / D";
inline constexpr std::string_view kRank = "RANK ";
inline constexpr std::string_view kTranspose = "TRANSPOSE ";
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

// Select, Let and If...Then...Let.
inline constexpr std::string_view kIncomplete = "Dialog box is not complete. Please enter more information.";

inline constexpr std::string_view kSelect = "SELECT ";
inline constexpr std::string_view kSelectOff = "SELECT";
inline constexpr std::string_view kComplete = " / COMPLETE";
inline constexpr std::array<std::string_view, 2> kSelectConnectors = {"AND", "OR"};

inline constexpr std::string_view kLet = "LET ";
inline constexpr std::string_view kLetEquals = " = ";
inline constexpr std::array<std::string_view, 2> kIfChoices = {"IF ", "IF NOT "};
inline constexpr std::string_view kThenLet = " THEN LET ";
inline constexpr std::string_view kThen = "THEN";
inline constexpr std::array<std::string_view, 5> kThenConnectors = {"THEN", "AND", "OR", "AND NOT", "OR NOT"};

inline constexpr std::array<std::string_view, 6> kOperators = {"=", ">", "<", "=>", "=<", "<>"};

// Names whose presence makes a value a character expression.
inline constexpr std::array<std::string_view, 20> kCharacterFunctions = {
    "UPR$", "LOW$", "CAP$", "CNT$", "RGT$", "LFT$", "SQZ$", "IND", "VAL", "STR$",
    "MID$", "SUB$", "PUT$", "RPD$", "LPD$", "CAT$", "ICH",  "ASC$", "SND$", "LAB$",
};

// Listing and output format.
inline constexpr std::string_view kList = "LIST ";
inline constexpr std::string_view kListCases = " /N=";
inline constexpr std::string_view kListSlash = " / ";
inline constexpr std::string_view kListLabel = " LABEL";
inline constexpr std::string_view kListFormat = " FORMAT=";
inline constexpr std::string_view kBy = "BY ";
inline constexpr std::string_view kByOptions = "/";
inline constexpr std::string_view kByMissing = " MISS";
inline constexpr std::string_view kByPage = " PAGE";
inline constexpr std::string_view kWeight = "WEIGHT ";
inline constexpr std::string_view kIdVar = "IDVAR ";
inline constexpr std::string_view kCategory = "CATEGORY ";
inline constexpr std::string_view kCategoryMissing = " / MISSING";
inline constexpr std::string_view kFrequency = "FREQUENCY ";
inline constexpr std::string_view kWrap = "WRAP ";
inline constexpr std::string_view kUnwrap = "UNWRAP=";
inline constexpr std::string_view kStandardize = "STANDARDIZE ";
inline constexpr std::string_view kStandardizeRange = " / RANGE";
inline constexpr std::string_view kOrder = "ORDER ";
inline constexpr std::string_view kNote = "NOTE=";
inline constexpr std::string_view kPageTitleOff = "PAGE TITLE";
inline constexpr std::string_view kPageTitle = "PAGE TITLE=";
inline constexpr std::string_view kEmptyTitle = " \"\"";
inline constexpr std::string_view kPrint = "PRINT";
inline constexpr std::string_view kPrintShort = " SHORT";
inline constexpr std::string_view kPrintLong = " LONG";
inline constexpr std::string_view kFormat = "FORMAT ";
inline constexpr std::string_view kUnderflow = " /UNDERFLOW";
inline constexpr std::string_view kBasic = "BASIC";
inline constexpr std::string_view kMatrix = "MATRIX";
inline constexpr std::string_view kDefaultDecimals = "3";

inline constexpr std::string_view kMoreInput = "You must provide more input.";
inline constexpr std::string_view kUnwrapValue = "You must provide a value for Unwrapping.";
}  // namespace kvs::data::text
