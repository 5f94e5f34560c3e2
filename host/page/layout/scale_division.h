#pragma once

namespace host {

/// A scale bar's divisions, before the bar rounds them to one digit.
struct Division {
    double value;   ///< in the bar's unit
    double length;  ///< on the page, in page units
};

/// The largest round division that is at most that long. A rounded value makes boxes that
/// neither overlap nor hide the unit. At 0.1 units per page unit and a length of 37, the
/// value is 3 and the length 30.
/// @param perPageUnit the bar's units in one page unit
Division DivisionOf(double length, double perPageUnit);

}  // namespace host
