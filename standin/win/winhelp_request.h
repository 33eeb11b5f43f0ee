// WinHelp requests as Wine's WinHelpA delivers them: a WM_COPYDATA to the
// window of class "MS_WINHELP", dwData 0xA1DE505, holding one block:
//
//   offset 0   WORD  size of the whole block
//          2   WORD  command (HELP_CONTEXT, HELP_KEY, ...)
//          4   LONG  data (the context number; unused when data follows)
//          8   LONG  reserved
//         12   WORD  offset of the file name, 0 for none
//         14   WORD  offset of the data (a key string), valid when the
//                    command carries a string
//
// Pure byte handling, so it is checked on any platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace kvs::standin {

inline constexpr std::uintptr_t kWinHelpCopyDataTag = 0xA1DE505;

// The transcript line of one request: help "FILE" context N, contents,
// key "KEY", helponhelp, or command N for anything else. Nothing when the
// block is too short to be a request.
std::optional<std::string> winHelpLine(const unsigned char* block, std::size_t size);

// HTML Help requests as the stand-in hhctrl.ocx of the scenario runs hands
// them to the same window, dwData 0x4848434B ("HHCK"):
//
//   offset 0   DWORD command (HH_HELP_CONTEXT, HH_DISPLAY_TOC, HH_DISPLAY_INDEX)
//          4   DWORD data (the context number)
//          8   the file name, NUL-terminated, then the key, NUL-terminated
inline constexpr std::uintptr_t kHtmlHelpCopyDataTag = 0x4848434B;

// Writes a request in that form.
std::string htmlHelpBlock(unsigned command, std::uint32_t data, const std::string& file, const std::string& key);
// Its transcript line: help "FILE" html context N, html contents, html key "KEY".
std::optional<std::string> htmlHelpLine(const unsigned char* block, std::size_t size);

}  // namespace kvs::standin
