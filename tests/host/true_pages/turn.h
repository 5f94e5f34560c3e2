#pragma once

#include "true_pages/picture.h"

namespace true_pages {

/// A drawing in an area that has nothing else in it.
struct Drawing {
    const Picture& picture;
    Area area;
    double x;  ///< the point that it turns about, to a few pixels
    double y;
};

/// The degrees by which one drawing is turned from another, clockwise: the turn and the
/// shift that lay the one's ink on the other's with the least squares of what is left.
/// @param reach of the ink from the point, in pixels
/// @param near where to begin to look, and at every eighth of a turn from there
double TurnBetween(const Drawing& unturned, const Drawing& turned, double reach,
                   double near);

}  // namespace true_pages
