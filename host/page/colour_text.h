#pragma once

#include <gdiplus.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A colour as the command line, page files and the editor have it: #RRGGBB, or
/// #RRGGBBAA where it is not opaque. 0x80FF0000, half-transparent red, is "#FF000080".
std::string ColourText(Gdiplus::ARGB colour);

/// The colour of such a text, with digits in any case; none for any other text.
std::optional<Gdiplus::ARGB> ColourFromText(std::string_view text);

/// The colour that has a name, such as "navy"; none where none has.
std::optional<Gdiplus::ARGB> NamedColour(std::string_view name);

/// The names that NamedColour knows.
std::vector<std::string> ColourNames();

}  // namespace host
