#pragma once

// Aligning, distributing and ordering items.

#include <cstddef>
#include <vector>

#include "page/box.h"
#include "page_editor/editing/history.h"

namespace page_editor {

/// The bounding box of at least one box.
host::Box Around(const std::vector<host::Box>& boxes);

enum class AlignTo { Left, Centre, Right, Top, Middle, Bottom };

/// How far each box moves to align with an edge, or the middle, of the bounding box.
std::vector<CPoint2D> AlignOffsets(const std::vector<host::Box>& boxes, AlignTo to,
                                   const host::Box& around);

enum class Direction { Across, Upwards };

/// How far each box moves so that the gaps between neighbours are equal; the outermost
/// stay. Boxes 10 wide at 0, 20 and 90 then have gaps of 35: the second moves by 25.
std::vector<CPoint2D> DistributeOffsets(const std::vector<host::Box>& boxes,
                                        Direction direction);

enum class Order { ToBack, Down, Up, ToFront };

/// The item at each place after the selected ones went up or down.
Indices Reordered(std::size_t count, const Indices& selection, Order order);

}  // namespace page_editor
