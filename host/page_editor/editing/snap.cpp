#include "page_editor/editing/snap.h"

#include <cmath>

namespace page_editor {

void SnapLines::Add(const host::Box& box) {
    x.insert(x.end(), {box.left, box.MiddleX(), box.right});
    y.insert(y.end(), {box.bottom, box.MiddleY(), box.top});
}

std::optional<Snap> NearestLine(const std::vector<double>& places,
                                const std::vector<double>& lines, double tolerance) {
    std::optional<Snap> nearest;
    for (const double place : places) {
        for (const double line : lines) {
            const double offset = line - place;
            if (std::fabs(offset) <= tolerance &&
                (!nearest || std::fabs(offset) < std::fabs(nearest->offset))) {
                nearest = Snap{offset, line};
            }
        }
    }
    return nearest;
}

}  // namespace page_editor
