#pragma once

#include <gdiplus.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A colour as written on the command line, in page files and in the editor: #RRGGBB, or
/// #RRGGBBAA where it is not opaque. 0x80FF0000, half-transparent red, is "#FF000080".
std::string ColourText(Gdiplus::ARGB colour);

/// Reads such a text, with hexadecimal digits in either case; nothing for any other text.
std::optional<Gdiplus::ARGB> ColourFromText(std::string_view text);

/// The colour with a name, such as "navy"; nothing for an unknown name.
std::optional<Gdiplus::ARGB> NamedColour(std::string_view name);

/// The names that NamedColour knows.
std::vector<std::string> ColourNames();

}  // namespace host
