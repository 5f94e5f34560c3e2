#pragma once

namespace host {

/// A scale bar's divisions, before the bar rounds them to one digit.
struct Division {
    double value;   ///< in the bar's unit
    double length;  ///< on the page, in page units
};

/// The largest division of a round value that is at most that long. What is rounded
/// already has boxes that neither overlap nor hide the unit. At 0.1 units a page unit and
/// a length of 37, the value is 3 and the length 30.
/// @param perPageUnit how much of the bar's unit one page unit is
Division DivisionOf(double length, double perPageUnit);

}  // namespace host
