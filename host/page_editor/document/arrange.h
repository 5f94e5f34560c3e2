#pragma once

// Where items go when several are put in line or in order.

#include <cstddef>
#include <vector>

#include "host/raster_data.h"
#include "page_editor/document/history.h"

namespace page_editor {

/// The edges of a box as numbers.
struct Edges {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;

    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
    double MiddleX() const { return (left + right) / 2.0; }
    double MiddleY() const { return (bottom + top) / 2.0; }
    CBoundingBox Box() const { return {left, bottom, right, top}; }
};

Edges EdgesOf(const CBoundingBox& box);

/// The smallest box around all of at least one.
Edges Around(const std::vector<Edges>& boxes);

enum class AlignTo { Left, Centre, Right, Top, Middle, Bottom };

/// How far each box moves so that all have the edge, or the middle, of the one around.
std::vector<CPoint2D> AlignOffsets(const std::vector<Edges>& boxes, AlignTo to,
                                   const Edges& around);

enum class Direction { Across, Upwards };

/// How far each box moves so that the gaps between neighbours are equal; the outermost
/// stay. Boxes 10 wide at 0, 20 and 90 have gaps of 35 then: the second moves by 25.
std::vector<CPoint2D> DistributeOffsets(const std::vector<Edges>& boxes,
                                        Direction direction);

enum class Order { ToBack, Down, Up, ToFront };

/// The item that stands at each place after the selected ones went up or down.
Indices Reordered(std::size_t count, const Indices& selection, Order order);

}  // namespace page_editor
