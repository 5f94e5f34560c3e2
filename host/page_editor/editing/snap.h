#pragma once

#include <optional>
#include <vector>

#include "page_editor/editing/arrange.h"

namespace page_editor {

/// The lines that edges and middles snap to: those of the sheet and of other items. Page
/// units.
struct SnapLines {
    std::vector<double> x;
    std::vector<double> y;

    void Add(const host::Box& box);
};

/// The distance to a line, and the line.
struct Snap {
    double offset = 0.0;
    double line = 0.0;
};

/// The line nearest to any of some places, within the tolerance.
std::optional<Snap> NearestLine(const std::vector<double>& places,
                                const std::vector<double>& lines, double tolerance);

}  // namespace page_editor
