#pragma once

#include <cstddef>
#include <vector>

#include "element/numbers.h"

namespace map_surround {

/// Rows of a legend that stay in one column: a name and its first entry, three bands, a
/// ramp, a class.
struct RowsTogether {
    Length height;  ///< with the gaps between them
    std::size_t rows;
};

struct Columns {
    std::vector<std::size_t> starts;  ///< the rows that begin all columns but the first
    Length height;                    ///< of the highest
};

/// Sets rows in columns, top to bottom. The highest column is as low as possible, and the
/// columns are then as equal as possible, the fuller ones first: ten rows stand in four
/// columns as 3, 3, 2 and 2. No column is empty, so there may be fewer than asked for.
/// @param gap between any two rows
Columns SetInColumns(const std::vector<RowsTogether>& pieces, Length gap, int columns);

}  // namespace map_surround
