// The data family's composers: each dialog's remembered settings and the pure
// function that turns them and the names of its lists into lines (or a
// refusal), with the pieces they share.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
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
