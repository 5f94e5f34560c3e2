#pragma once

#include "gdiplus/line_cap.h"

namespace Gdiplus {

/// Draws lines and outlines. The width is in world units, so it scales with the world
/// transform; a line is never thinner than a pixel.
class Pen : public detail::StatusKeeper {
public:
    /// A pen of one colour, with its width in world units.
    Pen(const Color& color, REAL width = 1.0f) {
        SetStatus(
            DllExports::GdipCreatePen1(color.GetValue(), width, UnitWorld, &native_));
    }
    ~Pen() { DllExports::GdipDeletePen(native_); }

    /// The colour, alpha included.
    Status SetColor(const Color& color) {
        return SetStatus(DllExports::GdipSetPenColor(native_, color.GetValue()));
    }
    Status GetColor(Color* color) const {
        if (color == nullptr) {
            return SetStatus(InvalidParameter);
        }
        ARGB argb = 0;
        const Status status = SetStatus(DllExports::GdipGetPenColor(native_, &argb));
        *color = Color(argb);
        return status;
    }
    /// World units.
    Status SetWidth(REAL width) {
        return SetStatus(DllExports::GdipSetPenWidth(native_, width));
    }
    REAL GetWidth() const { return Query(DllExports::GdipGetPenWidth, native_); }
    /// Dash lengths are multiples of the pen's width.
    Status SetDashStyle(DashStyle style) {
        return SetStatus(DllExports::GdipSetPenDashStyle(native_, style));
    }
    DashStyle GetDashStyle() const {
        return Query(DllExports::GdipGetPenDashStyle, native_);
    }
    /// How the corners of an outline are drawn.
    Status SetLineJoin(LineJoin join) {
        return SetStatus(DllExports::GdipSetPenLineJoin(native_, join));
    }
    LineJoin GetLineJoin() const {
        return Query(DllExports::GdipGetPenLineJoin, native_);
    }

    /// How the two ends of a line are drawn.
    Status SetStartCap(LineCap cap) {
        return SetStatus(DllExports::GdipSetPenStartCap(native_, cap));
    }
    LineCap GetStartCap() const { return Query(DllExports::GdipGetPenStartCap, native_); }
    Status SetEndCap(LineCap cap) {
        return SetStatus(DllExports::GdipSetPenEndCap(native_, cap));
    }
    LineCap GetEndCap() const { return Query(DllExports::GdipGetPenEndCap, native_); }

    /// The pen takes a copy of the cap.
    Status SetCustomStartCap(const CustomLineCap* cap) {
        return SetStatus(
            DllExports::GdipSetPenCustomStartCap(native_, detail::Native(cap)));
    }
    Status SetCustomEndCap(const CustomLineCap* cap) {
        return SetStatus(
            DllExports::GdipSetPenCustomEndCap(native_, detail::Native(cap)));
    }

    /// The native object, for the flat functions; null if creation failed.
    GpPen* NativeObject() const { return native_; }

private:
    GpPen* native_ = nullptr;
};

}  // namespace Gdiplus
