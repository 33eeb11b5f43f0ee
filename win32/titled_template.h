// A copy of a dialog template in memory with another caption, so that a
// dialog shared by several titles is created bearing the right one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kvs::win32 {

// The template (DLGTEMPLATE or DLGTEMPLATEEX, as a resource holds it) with
// its title replaced by caption (ANSI text of the code page in use). Empty
// when the template does not read as one.
std::vector<std::uint8_t> titledTemplate(const std::uint8_t* resource, std::size_t size, std::string_view caption);

}  // namespace kvs::win32
