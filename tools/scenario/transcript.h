// Transcript lines: how scenario runs report what the host and the user see.
#pragma once

#include <string>
#include <string_view>

namespace kvs::scenario {

// "text" with \" \\ \r \n \t escapes (other control bytes as \xHH), so
// trailing blanks stay visible.
std::string quote(std::string_view text);
// quote(text), or null for a null pointer.
std::string quoteOrNull(const char* text);

// The lines both backends print of what the user sees, written in one place.
// A library dialog or sub-dialog opens with this caption.
std::string dialogLine(std::string_view caption);
// A message box; icon is "stop", "exclamation", "question", "info" or "none".
std::string messageLine(std::string_view caption, std::string_view icon, std::string_view text);
// A common file dialog, with the file name it shows.
std::string chooserLine(bool save, std::string_view title, std::string_view shownName);
// The system font dialog: its title, the face and points it opens at, its OK text.
std::string fontChooserLine(std::string_view title, std::string_view face, std::string_view points,
                            std::string_view okText);
// A help request: "help FILE" and what it asks for.
std::string helpContextLine(std::string_view file, unsigned long context);
std::string helpContentsLine(std::string_view file);
std::string helpKeyLine(std::string_view file, std::string_view key);
std::string helpOnHelpLine(std::string_view file);
// A request HTML Help opened: "help FILE html context N", "html contents", "html key KEY".
std::string htmlHelpContextLine(std::string_view file, unsigned long context);
std::string htmlHelpContentsLine(std::string_view file);
std::string htmlHelpKeyLine(std::string_view file, std::string_view key);
// A statement the runner could not carry out, or a fault it saw.
std::string errorLine(std::string_view what);

}  // namespace kvs::scenario
