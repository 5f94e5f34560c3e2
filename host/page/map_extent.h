#pragma once

namespace host {

/// A map that is longer than wide by more is a line; nothing is shown of it beyond.
constexpr double kLongestMap = 100.0;

/// A rectangle of the map, in the units of its coordinate system; y grows upwards.
struct MapExtent {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;

    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
    double MiddleX() const { return left + Width() / 2.0; }
    double MiddleY() const { return bottom + Height() / 2.0; }
};

}  // namespace host
