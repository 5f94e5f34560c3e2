#pragma once

#include <gdiplus.h>

#include <cstdint>

#include "element/numbers.h"
#include "scale_bar/bar_drawing.h"

namespace map_surround {

/// The count after one more box. It wraps to 0 after the largest, so that odd and even
/// keep alternating.
constexpr std::int32_t NextBox(std::int32_t count) {
    return static_cast<std::int32_t>((Length{count} + 1) & 0x7FFFFFFF);
}

constexpr bool IsOdd(std::int32_t count) { return count % 2 != 0; }

/// The height of a box, a third of the bar's, rounded down.
inline Length BoxHeight(const BarDrawing& bar) { return bar.height / 3; }

/// A box of the row, in device pixels.
inline Gdiplus::Rect BoxAt(const BarDrawing& bar, Length x, Length width) {
    return {ToDevice(x), ToDevice(bar.tickTop), ToDevice(width),
            ToDevice(BoxHeight(bar))};
}

/// What follows the boxes: the label of the last boundary and the unit name. Without any
/// division the unit name is placed from y 0, not from the bottom.
inline void EndBoxRow(const BarDrawing& bar, const Gdiplus::Font& labelFont,
                      Length endX) {
    bar.DrawLabel(labelFont, bar.mainCount, endX);
    bar.DrawUnitName({endX, bar.mainCount > 0 ? bar.bottom : 0}, bar.height / 3);
}

}  // namespace map_surround
