#pragma once

#include "host/raster_data.h"

namespace host {

/// What is left of the page while elements are placed: page units, y growing upwards.
struct Room {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;

    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
    CBoundingBox Box() const { return {left, bottom, right, top}; }
};

/// The room without a rim.
constexpr Room Inset(const Room& room, double rim) {
    return {room.left + rim, room.bottom + rim, room.right - rim, room.top - rim};
}

}  // namespace host
