// Texts of the picture sets, the colour picker and the font chooser.
#pragma once

#include <string_view>

namespace kvs::graph::text {
// Bitmap resources, numbered from 1 after the prefix.
inline constexpr std::string_view kSymbolPicture = "symbol";
inline constexpr std::string_view kDashPicture = "dash";
inline constexpr std::string_view kAxes2dPicture = "axes2d";
inline constexpr std::string_view kAxes3dPicture = "axes3d";

inline constexpr std::string_view kColourPickerTemplate = "ColorPicker";

inline constexpr std::string_view kDefaultFontFace = "Arial";
inline constexpr std::string_view kFontOkText = "Continue";
}  // namespace kvs::graph::text
