#pragma once

#include <cstdint>

#include "gdiplus/enums.h"

namespace Gdiplus {

typedef std::int32_t INT;
typedef std::uint32_t UINT;
typedef std::uint16_t UINT16;
typedef std::uint32_t UINT32;
typedef std::uint8_t BYTE;
typedef std::int32_t BOOL;
typedef wchar_t WCHAR;
typedef std::uint16_t LANGID;
typedef std::uintptr_t ULONG_PTR;
typedef void VOID;

typedef float REAL;
typedef std::uint32_t ARGB;  ///< alpha in the top byte, then red, green, blue

struct GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};
typedef GUID CLSID;

class Size {
public:
    Size() = default;
    Size(INT width, INT height) : Width(width), Height(height) {}

    INT Width = 0;
    INT Height = 0;
};

class SizeF {
public:
    SizeF() = default;
    SizeF(REAL width, REAL height) : Width(width), Height(height) {}

    REAL Width = 0.0f;
    REAL Height = 0.0f;
};

class Point {
public:
    Point() = default;
    Point(INT x, INT y) : X(x), Y(y) {}
    bool Equals(const Point& other) const { return X == other.X && Y == other.Y; }

    INT X = 0;
    INT Y = 0;
};

class PointF {
public:
    PointF() = default;
    PointF(REAL x, REAL y) : X(x), Y(y) {}
    bool Equals(const PointF& other) const { return X == other.X && Y == other.Y; }

    REAL X = 0.0f;
    REAL Y = 0.0f;
};

class Rect {
public:
    Rect() = default;
    Rect(INT x, INT y, INT width, INT height)
        : X(x), Y(y), Width(width), Height(height) {}
    INT GetLeft() const { return X; }
    INT GetTop() const { return Y; }
    INT GetRight() const { return X + Width; }
    INT GetBottom() const { return Y + Height; }
    bool IsEmptyArea() const { return Width <= 0 || Height <= 0; }
    bool Equals(const Rect& other) const {
        return X == other.X && Y == other.Y && Width == other.Width &&
               Height == other.Height;
    }

    INT X = 0;
    INT Y = 0;
    INT Width = 0;
    INT Height = 0;
};

class RectF {
public:
    RectF() = default;
    RectF(REAL x, REAL y, REAL width, REAL height)
        : X(x), Y(y), Width(width), Height(height) {}
    REAL GetLeft() const { return X; }
    REAL GetTop() const { return Y; }
    REAL GetRight() const { return X + Width; }
    REAL GetBottom() const { return Y + Height; }
    bool IsEmptyArea() const { return Width <= 0.0f || Height <= 0.0f; }
    bool Equals(const RectF& other) const {
        return X == other.X && Y == other.Y && Width == other.Width &&
               Height == other.Height;
    }

    REAL X = 0.0f;
    REAL Y = 0.0f;
    REAL Width = 0.0f;
    REAL Height = 0.0f;
};

/// A 32-bit colour; opaque black by default. `Color(0xFF008000)` is opaque green.
class Color {
public:
    Color() = default;
    Color(ARGB argb) : Argb(argb) {}
    Color(BYTE red, BYTE green, BYTE blue) : Argb(MakeARGB(255, red, green, blue)) {}
    Color(BYTE alpha, BYTE red, BYTE green, BYTE blue)
        : Argb(MakeARGB(alpha, red, green, blue)) {}

    ARGB GetValue() const { return Argb; }
    VOID SetValue(ARGB argb) { Argb = argb; }
    BYTE GetA() const { return static_cast<BYTE>(Argb >> 24); }
    BYTE GetR() const { return static_cast<BYTE>(Argb >> 16); }
    BYTE GetG() const { return static_cast<BYTE>(Argb >> 8); }
    BYTE GetB() const { return static_cast<BYTE>(Argb); }
    BYTE GetAlpha() const { return GetA(); }
    BYTE GetRed() const { return GetR(); }
    BYTE GetGreen() const { return GetG(); }
    BYTE GetBlue() const { return GetB(); }

    static ARGB MakeARGB(BYTE alpha, BYTE red, BYTE green, BYTE blue) {
        return (static_cast<ARGB>(alpha) << 24) | (static_cast<ARGB>(red) << 16) |
               (static_cast<ARGB>(green) << 8) | static_cast<ARGB>(blue);
    }

protected:
    ARGB Argb = 0xFF000000;
};

class BitmapData {
public:
    UINT Width = 0;
    UINT Height = 0;
    INT Stride = 0;
    Gdiplus::PixelFormat PixelFormat = 0;
    VOID* Scan0 = nullptr;
    UINT* Reserved = nullptr;
};

// What the flat functions call the types that are plain values.
typedef Status GpStatus;
typedef Point GpPoint;
typedef PointF GpPointF;
typedef Rect GpRect;
typedef RectF GpRectF;
typedef Unit GpUnit;
typedef FillMode GpFillMode;
typedef MatrixOrder GpMatrixOrder;
typedef DashStyle GpDashStyle;

// The objects behind the classes, reached only through pointers.
class GpGraphics {};
class GpImage {};
class GpBitmap : public GpImage {};
class GpBrush {};
class GpSolidFill : public GpBrush {};
class GpPen {};
class GpCustomLineCap {};
class GpAdjustableArrowCap : public GpCustomLineCap {};
class GpFont {};
class GpFontCollection {};
class GpFontFamily {};
class GpStringFormat {};
class GpPath {};
class GpMatrix {};

namespace detail {

/// Creates nothing and keeps no status but the last failure: what every wrapper class
/// shares.
class StatusKeeper {
public:
    /// The last status that was not Ok since the last call, then Ok.
    Status GetLastStatus() const {
        const Status status = lastStatus_;
        lastStatus_ = Ok;
        return status;
    }

    StatusKeeper(const StatusKeeper&) = delete;
    StatusKeeper& operator=(const StatusKeeper&) = delete;

protected:
    StatusKeeper() = default;
    ~StatusKeeper() = default;

    Status SetStatus(Status status) const {
        if (status != Ok) {
            lastStatus_ = status;
        }
        return status;
    }

private:
    mutable Status lastStatus_ = Ok;
};

/// The native object behind a wrapper, null for no wrapper.
template <typename Wrapper>
auto Native(const Wrapper* wrapper) -> decltype(wrapper->NativeObject()) {
    return wrapper == nullptr ? nullptr : wrapper->NativeObject();
}

}  // namespace detail
}  // namespace Gdiplus
