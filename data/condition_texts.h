// Texts of the Select, Let and If...Then...Let dialogs.
#pragma once

#include <array>
#include <string_view>

namespace kvs::data::text {
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
}  // namespace kvs::data::text
