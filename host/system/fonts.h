#pragma once

#include <string>
#include <vector>

namespace host {

/// Whether text in a font family is drawn in that family, or in one made to the same
/// measures: Liberation Sans for Arial. GDI+ would draw an unknown family in any other
/// without a word. Generic names (sans-serif, serif, monospace) are known.
/// @param family UTF-8
bool IsFontFamilyKnown(const std::string& family);

/// The folders of the fonts, of what is known about them, and of how they are configured;
/// all that is read of the configuration has been read then.
std::vector<std::string> FontPlaces();

}  // namespace host
