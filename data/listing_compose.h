// The pure parts of the listing dialogs' lines: blank tests, bounded texts,
// quoting, the page-title and note lines and the splitting of typed program
// text into command lines.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/command_text.h"
#include "data/text_pieces.h"

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
