#include "page/ink.h"

#include <algorithm>
#include <cmath>

#include "page/element_drawing.h"
#include "page/placed_frame.h"

namespace host {

InkBox MeasureInk(CSurroundFrame& frame) {
    const CMapSurround* const element = frame.GetMapSurround();
    if (element == nullptr) {
        return {};
    }
    const auto* const placed = dynamic_cast<const PlacedFrame*>(&frame);
    const CPoint2D offset = placed == nullptr ? CPoint2D() : placed->ElementOffset();
    const double away = std::max(std::fabs(offset.x), std::fabs(offset.y));
    return map_surround::kit::ink::Measure(
        map_surround::kit::ink::RoomFor(*element) + 2.0 * away,
        [&frame](Gdiplus::Graphics* graphics, CPoint centre, double scale) {
            DrawElement(*graphics, frame, centre, scale);
        });
}

}  // namespace host
