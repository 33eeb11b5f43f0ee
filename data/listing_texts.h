// Texts of the listing and output-format dialogs.
#pragma once

#include <string_view>

namespace kvs::data::text {
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
