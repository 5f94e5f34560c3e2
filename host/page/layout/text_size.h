#pragma once

#include <optional>
#include <string>

#include "map_surround/north_arrow.h"
#include "page/page.h"
#include "page/units.h"

namespace host {

/// Type below this is not read, but guessed.
constexpr double kSmallestPoints = 5.0;
constexpr double kSmallestEm = UnitsFromPoints(kSmallestPoints);  ///< page units

/// "12.5 points"
std::string PointsText(double points);

/// The em size of the smallest text that an item writes, in points; none where it writes
/// nothing.
std::optional<double> SmallestText(const PageItem& item);

/// The height of the ink of a text, page units.
/// @param em its size, page units
double InkHeight(const wchar_t* text, const std::wstring& family, double em, int style);

/// The em size of the letters of an arrow, in parts of its size: 1/10 for the rose of
/// eight points.
double LettersOf(const CNorthArrowBase& arrow);

/// The em size of the numbers of a bar, in parts of its size.
constexpr double kBarNumbers = 1.0 / 4.0;

}  // namespace host
