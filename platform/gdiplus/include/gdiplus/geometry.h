#pragma once

#include "gdiplus/types.h"

namespace Gdiplus {

namespace detail {

/// Integer coordinates wrap on overflow; near the limits a rectangle's right side may
/// then be left of its left one, and nothing worse.
inline INT Plus(INT a, INT b) {
    return static_cast<INT>(static_cast<UINT>(a) + static_cast<UINT>(b));
}
inline INT Minus(INT a, INT b) {
    return static_cast<INT>(static_cast<UINT>(a) - static_cast<UINT>(b));
}
inline REAL Plus(REAL a, REAL b) { return a + b; }
inline REAL Minus(REAL a, REAL b) { return a - b; }

/// A width and a height.
template <typename Number, typename Self>
class SizeOf {
public:
    SizeOf() = default;
    SizeOf(Number width, Number height) : Width(width), Height(height) {}

    BOOL Empty() const { return Width == Number() && Height == Number(); }
    BOOL Equals(const Self& other) const {
        return Width == other.Width && Height == other.Height;
    }
    Self operator+(const Self& other) const {
        return Self(Plus(Width, other.Width), Plus(Height, other.Height));
    }
    Self operator-(const Self& other) const {
        return Self(Minus(Width, other.Width), Minus(Height, other.Height));
    }

    Number Width = 0;
    Number Height = 0;
};

/// A position.
template <typename Number, typename Self>
class PointOf {
public:
    PointOf() = default;
    PointOf(Number x, Number y) : X(x), Y(y) {}

    BOOL Equals(const Self& other) const { return X == other.X && Y == other.Y; }
    Self operator+(const Self& other) const {
        return Self(Plus(X, other.X), Plus(Y, other.Y));
    }
    Self operator-(const Self& other) const {
        return Self(Minus(X, other.X), Minus(Y, other.Y));
    }

    Number X = 0;
    Number Y = 0;
};

/// An axis-aligned rectangle: its corner of smallest x and y, and its size. Its left and
/// top sides belong to it, its right and bottom ones do not: (0, 0, 10, 5) contains
/// (0, 0) and (9, 4), but not (10, 4). It is empty unless width and height are positive.
template <typename Number, typename Self, typename Location, typename Extent>
class RectangleOf {
public:
    RectangleOf() = default;
    RectangleOf(Number x, Number y, Number width, Number height)
        : X(x), Y(y), Width(width), Height(height) {}
    RectangleOf(const Location& location, const Extent& size)
        : X(location.X), Y(location.Y), Width(size.Width), Height(size.Height) {}

    /// A copy made with new, owned by the caller.
    Self* Clone() const { return new Self(X, Y, Width, Height); }

    Number GetLeft() const { return X; }
    Number GetTop() const { return Y; }
    Number GetRight() const { return Plus(X, Width); }
    Number GetBottom() const { return Plus(Y, Height); }
    VOID GetLocation(Location* location) const { *location = Location(X, Y); }
    VOID GetSize(Extent* size) const { *size = Extent(Width, Height); }
    VOID GetBounds(Self* rect) const { *rect = Self(X, Y, Width, Height); }

    BOOL IsEmptyArea() const { return Width <= Number() || Height <= Number(); }
    BOOL Equals(const Self& other) const {
        return X == other.X && Y == other.Y && Width == other.Width &&
               Height == other.Height;
    }

    BOOL Contains(Number x, Number y) const {
        return x >= X && x < GetRight() && y >= Y && y < GetBottom();
    }
    BOOL Contains(const Location& point) const { return Contains(point.X, point.Y); }
    BOOL Contains(const Self& other) const {
        return X <= other.X && other.GetRight() <= GetRight() && Y <= other.Y &&
               other.GetBottom() <= GetBottom();
    }
    BOOL IntersectsWith(const Self& other) const {
        return GetLeft() < other.GetRight() && GetTop() < other.GetBottom() &&
               GetRight() > other.GetLeft() && GetBottom() > other.GetTop();
    }

    /// Moves each side outwards, so that the width grows by twice dx.
    VOID Inflate(Number dx, Number dy) {
        X = Minus(X, dx);
        Y = Minus(Y, dy);
        Width = Plus(Width, Plus(dx, dx));
        Height = Plus(Height, Plus(dy, dy));
    }
    VOID Inflate(const Location& by) { Inflate(by.X, by.Y); }
    VOID Offset(Number dx, Number dy) {
        X = Plus(X, dx);
        Y = Plus(Y, dy);
    }
    VOID Offset(const Location& by) { Offset(by.X, by.Y); }

    /// The intersection of two rectangles; false, with a width or height that is not
    /// positive, if there is none.
    static BOOL Intersect(Self& result, const Self& a, const Self& b) {
        return result.SetSides(
            Greater(a.GetLeft(), b.GetLeft()), Greater(a.GetTop(), b.GetTop()),
            Less(a.GetRight(), b.GetRight()), Less(a.GetBottom(), b.GetBottom()));
    }
    BOOL Intersect(const Self& other) {
        Self& self = static_cast<Self&>(*this);
        return Intersect(self, self, other);
    }

    /// The smallest rectangle that holds both; false when it is empty.
    static BOOL Union(Self& result, const Self& a, const Self& b) {
        return result.SetSides(
            Less(a.GetLeft(), b.GetLeft()), Less(a.GetTop(), b.GetTop()),
            Greater(a.GetRight(), b.GetRight()), Greater(a.GetBottom(), b.GetBottom()));
    }

    Number X = 0;
    Number Y = 0;
    Number Width = 0;
    Number Height = 0;

private:
    static Number Less(Number a, Number b) { return b < a ? b : a; }
    static Number Greater(Number a, Number b) { return a < b ? b : a; }

    BOOL SetSides(Number left, Number top, Number right, Number bottom) {
        X = left;
        Y = top;
        Width = Minus(right, left);
        Height = Minus(bottom, top);
        return !IsEmptyArea();
    }
};

}  // namespace detail

/// Width and height, as integers.
class Size : public detail::SizeOf<INT, Size> {
public:
    using SizeOf::SizeOf;
};

/// Width and height.
class SizeF : public detail::SizeOf<REAL, SizeF> {
public:
    using SizeOf::SizeOf;
};

/// A point with integer coordinates.
class Point : public detail::PointOf<INT, Point> {
public:
    using PointOf::PointOf;
    /// The point that far from the origin.
    Point(const Size& size) : PointOf(size.Width, size.Height) {}
};

/// A point.
class PointF : public detail::PointOf<REAL, PointF> {
public:
    using PointOf::PointOf;
    /// The point that far from the origin.
    PointF(const SizeF& size) : PointOf(size.Width, size.Height) {}
};

/// A rectangle with integer coordinates: its top left corner and its size.
class Rect : public detail::RectangleOf<INT, Rect, Point, Size> {
public:
    using RectangleOf::RectangleOf;
};

/// A rectangle: its top left corner and its size.
class RectF : public detail::RectangleOf<REAL, RectF, PointF, SizeF> {
public:
    using RectangleOf::RectangleOf;
};

// What the flat functions call them.
typedef Point GpPoint;
typedef PointF GpPointF;
typedef Rect GpRect;
typedef RectF GpRectF;

}  // namespace Gdiplus
