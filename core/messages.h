// Texts the core shows, and the message boxes that show them.
#pragma once

#include <string>
#include <string_view>

#include "core/seam.h"

namespace kvs {

namespace text {
inline constexpr std::string_view kCaption = "KORVAN";
inline constexpr std::string_view kWarningCaption = "KorvanWarning!";
inline constexpr std::string_view kOneDialog = "Cannot keep more than one dialog box open.";
inline constexpr std::string_view kNoMemory = "Doh! Not enough memory!";
inline constexpr std::string_view kCannotCreate = "Couldn't create the dialog box.  You are very low on free memory.";
inline constexpr std::string_view kTooManyVariables1 = "Too many variables to list! Only the first\r";
inline constexpr std::string_view kTooManyVariables2 = " names will be used.";
inline constexpr std::string_view kSelectVariables = "You must select variables.";
inline constexpr std::string_view kProvideMoreInput = "You must provide more input.";
inline constexpr std::string_view kHelpOnHelpFile = "WINHELP.HLP";
inline constexpr std::string_view kHelpSearchKey = "keys";
}  // namespace text

// A stop-icon message under the caption "KORVAN".
void showStop(WindowRef owner, std::string_view message);
// "Doh! Not enough memory!" under "KorvanWarning!".
void showNoMemory(WindowRef owner);

}  // namespace kvs
