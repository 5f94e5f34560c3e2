#include "page_editor/editing/resize.h"

#include <algorithm>

namespace page_editor {
namespace {

constexpr Pull kPulls[kHandles] = {
    {-1, 1}, {0, 1}, {1, 1}, {1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0},
};

double Place(int pull, double low, double high) {
    return pull < 0 ? low : pull > 0 ? high : (low + high) / 2.0;
}

/// How long a side gets when its end is pulled to a place.
double Length(int pull, double low, double high, double to) {
    const double length = pull < 0 ? high - to : pull > 0 ? to - low : high - low;
    return std::max(kSmallestSide, length);
}

/// Moves the end that is pulled, or both, so that the side has a length.
void Stretch(int pull, double length, double& low, double& high) {
    if (pull < 0) {
        low = high - length;
    } else if (pull > 0) {
        high = low + length;
    } else {
        const double middle = (low + high) / 2.0;
        low = middle - length / 2.0;
        high = middle + length / 2.0;
    }
}

}  // namespace

Pull PullOf(int handle) { return kPulls[handle]; }

CPoint2D HandleAt(const host::Box& box, int handle) {
    const Pull pull = PullOf(handle);
    return {Place(pull.x, box.left, box.right), Place(pull.y, box.bottom, box.top)};
}

host::Box Resized(const host::Box& box, int handle, CPoint2D to, bool keepProportions) {
    const Pull pull = PullOf(handle);
    double width = Length(pull.x, box.left, box.right, to.x);
    double height = Length(pull.y, box.bottom, box.top, to.y);
    if (keepProportions && box.Width() > 0.0 && box.Height() > 0.0) {
        const double across = width / box.Width();
        const double upwards = height / box.Height();
        const double asked = pull.x == 0   ? upwards
                             : pull.y == 0 ? across
                                           : std::max(across, upwards);
        const double least =
            std::max(kSmallestSide / box.Width(), kSmallestSide / box.Height());
        const double factor = std::max(asked, least);
        width = box.Width() * factor;
        height = box.Height() * factor;
    }
    host::Box result = box;
    if (pull.x != 0 || keepProportions) {
        Stretch(pull.x, width, result.left, result.right);
    }
    if (pull.y != 0 || keepProportions) {
        Stretch(pull.y, height, result.bottom, result.top);
    }
    return result;
}

}  // namespace page_editor
