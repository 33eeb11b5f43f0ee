// The data family's composers: each dialog's remembered settings and the pure
// function that turns them and the names of its lists into lines (or a
// refusal), with the pieces they share.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/command_text.h"
#include "core/composition.h"
#include "core/join_names.h"
#include "data/text_pieces.h"
#include "resources/data_ids.h"

namespace kvs::data {

// Bounds of the remembered texts, in characters.
inline constexpr std::size_t kListFieldLimit = 20;
inline constexpr std::size_t kNoteFieldLimit = 100;
inline constexpr std::size_t kTitleFieldLimit = 256;
inline constexpr std::size_t kUnwrapFieldLimit = 10;
inline constexpr std::size_t kDecimalsFieldLimit = 3;
// Program text (Basic, Enter Matrix): what a user can type into an edit
// control before its default limit; pasted text beyond it is cut.
inline constexpr std::size_t kProgramTextLimit = 32767;

using TextLines = std::array<std::string, 5>;

// Condition rows: Select (46), Let (67) and If...Then...Let (69).
inline constexpr int kConditionRows = 4;
inline constexpr std::size_t kVariableTextBound = 32;
inline constexpr std::size_t kValueTextBound = 128;
inline constexpr std::size_t kConnectorTextBound = 15;
inline constexpr std::size_t kOperatorTextBound = 2;

struct ConditionRow {
    int connector = 0;  // Select's AND / OR position (rows 2 to 4)
    std::string variable;
    int op = 0;         // position in the operator drop-down
    std::string value;
};

// Kept between openings, refreshed at each OK.
struct ConditionState {
    std::array<ConditionRow, kConditionRows> rows;
    std::array<int, 2> thenConnectors{1, 1};  // If...Then...Let rows 2 and 3: "AND"
    bool ifNot = false;
    bool selectOff = false;
    bool complete = false;
    int functionType = 0;
};

// A value that already is a character expression: it holds a quote, an
// apostrophe, a "$" or the name of a character function.
bool isCharacterExpression(std::string_view value);
// An entry of a fixed table of drop-down texts; empty when out of range.
template <std::size_t N>
std::string_view entryAt(const std::array<std::string_view, N>& entries, int position) {
    return position >= 0 && static_cast<std::size_t>(position) < N ? entries[static_cast<std::size_t>(position)]
                                                                     : std::string_view();
}

// Select: appends the conditions of the rows to line, which starts with
// "SELECT " unless continueLine; false when the first row is incomplete.
bool composeSelect(const ConditionState& state, CommandText& line, bool continueLine);
// Let: "LET variable = value" from row 1; false when either is missing.
bool composeLet(const ConditionState& state, CommandText& line);
// If...Then...Let: "IF (...) ... THEN LET ..."; false when fewer than two
// pieces are complete or an assignment is half filled.
bool composeIfThenLet(const ConditionState& state, CommandText& line);

// Append (73): "APPEND file1 file2 / OPTION" (option 31, 32 or 33; anything
// else leaves the line ending in " / "). Returns how many of the two names
// were blank.
inline constexpr std::size_t kFileNameLength = 255;  // longest file name a name block keeps
int composeAppendLine(std::string_view file1, std::string_view file2, int option, CommandText& line);
// Merge (74): "MERGE file1(names1) file2(names2) / keys". False, with the
// line incomplete, when file 1 is blank. An empty file 2 and its names are
// left out; the keys are added only when the key flag is set and they are
// not empty.
bool composeMergeLine(std::string_view file1, std::string_view names1, std::string_view file2,
                      std::string_view names2, int keyFlag, std::string_view keys, CommandText& line);

// Labels (78): "LABEL NAME", then " / " and value=label pairs joined by
// ", "; a string variable's values are quoted like the labels.
using ValueLabel = std::pair<std::string, std::string>;  // value, label
std::string composeLabelLine(const std::string& variable, const std::vector<ValueLabel>& labels);

// List Cases (43).
struct ListCasesSettings {
    std::string characters;
    std::string decimals;
    std::string lastCase;
    int cases = IDC_LIST_ALL_CASES;  // stored at each click
    bool labels = false;
};
Composition composeListCases(const ListCasesSettings& settings, const Names& names);

// By Groups (45): the names and " MISS", " PAGE" after "/"; "BY " alone when off.
struct ByGroupsSettings {
    bool excludeMissing = false;
    bool newPage = false;
    bool off = false;
};
Composition composeByGroups(const ByGroupsSettings& settings, const Names& names);

// Category (84): the names and " / MISSING"; "CATEGORY " alone when off.
struct CategorySettings {
    bool missing = false;
    bool off = false;
};
Composition composeCategory(const CategorySettings& settings, const Names& names);

// Reshape (92): "WRAP " and the names, or "UNWRAP=" and the value.
struct ReshapeSettings {
    int choice = IDC_RESHAPE_WRAP;
    std::string unwrapBy;
};
Composition composeReshape(const ReshapeSettings& settings, const Names& names);

// Standardize (70): the names, and " / RANGE" for the range method.
Composition composeStandardize(int method, const Names& names);
// Order (83): "ORDER " and the names.
Composition composeOrder(const Names& names);
// Weight (47), ID Variable (77), Frequency (85): the keyword and the one
// variable, or the keyword alone when turned off.
Composition composeOneVariable(std::string_view keyword, bool off, const Names& variable);

// Print Format (53): "PRINT" with " SHORT" or " LONG", then "FORMAT ",
// the decimals and " /UNDERFLOW".
struct PrintSettings {
    int pages = IDC_PRINT_PORTRAIT;  // stored at each click
    int length = IDC_PRINT_LONG;     // stored at each click
    std::string decimals{"3"};
    int decimalsNumber = 3;
    bool underflow = false;
    bool pageNumbers = false;
};
Composition composePrintFormat(const PrintSettings& settings);

// Basic (87) and Enter Matrix (88): the keyword, then each line of the text;
// refused when the text holds nothing but blanks and line ends.
Composition composeProgram(std::string_view keyword, std::string_view text);

// Sort (72): "SORT " and at most ten keys, each followed by a blank; " / D"
// for the descending order.
inline constexpr int kMaxSortKeys = 10;
Composition composeSort(const Names& keys, int order);
// Rank (71): "RANK " and the names.
Composition composeRank(const Names& names);
// Transpose (75): "TRANSPOSE " and each name followed by a blank; an empty
// list still gives the line, for the kernel to report.
Composition composeTranspose(const Names& names);

// "NOTE=" and the quoted non-blank lines; false (nothing composed) when the
// first line is blank.
bool composeNote(const TextLines& lines, CommandText& line);

// "PAGE TITLE=" and the titles up to the last non-blank one, a blank title
// before it written as an empty quoted pair; "PAGE TITLE" alone when the
// title is turned off or every title is blank.
void composePageTitle(const TextLines& titles, bool off, CommandText& line);

// The lines of program text: a line ends at a carriage return, with or
// without a following line feed; empty lines are left out.
std::vector<std::string_view> programLines(std::string_view text);

}  // namespace kvs::data
