#pragma once

#include "element/numbers.h"
#include "scale_bar/bar_drawing.h"

namespace map_surround {

/// What tells the line styles apart, in device pixels downwards.
struct LineShape {
    Length baseLine;
    Length subTickTop;
    Length subTickBottom;
    Length unitNameRise;  ///< from the base line up
};

/// Draws main ticks with their labels, sub ticks, the base line and the unit name.
void DrawTickedLine(const BarDrawing& bar, const LineShape& shape);

}  // namespace map_surround
