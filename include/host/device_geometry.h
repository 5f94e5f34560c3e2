#pragma once

/// @file
/// Points and rectangles of a surface.

#include <cstdint>

/// A point of the device surface in whole pixels; y grows downwards.
struct CPoint {
    /// Pixels.
    std::int32_t x = 0;
    std::int32_t y = 0;

    CPoint() = default;
    /// From both.
    CPoint(std::int32_t pointX, std::int32_t pointY) : x(pointX), y(pointY) {}
};

/// A rectangle of the device surface in whole pixels; y grows downwards.
struct CRect {
    /// Pixels; the right and bottom edges are those after the last pixel.
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    CRect() = default;
    /// From all four.
    CRect(std::int32_t rectLeft, std::int32_t rectTop, std::int32_t rectRight,
          std::int32_t rectBottom)
        : left(rectLeft), top(rectTop), right(rectRight), bottom(rectBottom) {}
};
