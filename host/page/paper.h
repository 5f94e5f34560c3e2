#pragma once

#include <string>

#include "page/units.h"

namespace host {

/// The size of a sheet in page units.
struct PaperSize {
    double width = UnitsFromMillimetres(297.0);
    double height = UnitsFromMillimetres(210.0);
};

constexpr double kSmallestPaperMillimetres = 20.0;
constexpr double kLargestPaperMillimetres = 5000.0;

/// The names of sheets: "A0 to A6, B0 to B5, Letter, …".
std::string PaperNames();

/// Reads a sheet's name (in any case; all in landscape) or its width and height in
/// millimetres (`297x210`), each from 20 to 5000.
/// @return false when the text is neither, leaving `paper` alone
bool ParsePaperSize(const std::string& text, PaperSize& paper);

}  // namespace host
