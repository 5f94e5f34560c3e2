#pragma once

#include <optional>
#include <string>

#include "map_surround/north_arrow.h"
#include "page/page.h"
#include "page/units.h"

namespace host {

/// Smaller type is guessed rather than read.
constexpr double kSmallestPoints = 5.0;

/// "12.5 points"
std::string PointsText(double points);

/// The em size of the smallest text in an item, in points; nothing where it has no text.
std::optional<double> SmallestText(const PageItem& item);

/// The height of a text's ink, page units.
/// @param em its size, page units
double InkHeight(const wchar_t* text, const std::wstring& family, double em, int style);

/// The em size of an arrow's letters, as a share of its size: 1/10 for the rose of eight
/// points.
double LettersOf(const CNorthArrowBase& arrow);

/// The em size of a bar's numbers, as a share of its size.
constexpr double kBarNumbers = 1.0 / 4.0;

}  // namespace host
