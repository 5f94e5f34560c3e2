#pragma once

#include "gdiplus/flat.h"

namespace Gdiplus {

/// A line end of the caller's own shape; made through a derived class.
class CustomLineCap : public detail::StatusKeeper {
public:
    virtual ~CustomLineCap() { DllExports::GdipDeleteCustomLineCap(native_); }

    GpCustomLineCap* NativeObject() const { return native_; }

protected:
    CustomLineCap() = default;

    GpCustomLineCap* native_ = nullptr;
};

/// An arrowhead. Height and width are in units of the width of the pen that carries it.
class AdjustableArrowCap : public CustomLineCap {
public:
    AdjustableArrowCap(REAL height, REAL width, BOOL isFilled = 1) {
        GpAdjustableArrowCap* cap = nullptr;
        SetStatus(
            DllExports::GdipCreateAdjustableArrowCap(height, width, isFilled, &cap));
        native_ = cap;
    }
};

/// What draws lines and outlines. The width is in world units; 0 draws a hairline.
class Pen : public detail::StatusKeeper {
public:
    explicit Pen(const Color& color, REAL width = 1.0f) {
        SetStatus(
            DllExports::GdipCreatePen1(color.GetValue(), width, UnitWorld, &native_));
    }
    ~Pen() { DllExports::GdipDeletePen(native_); }

    Status SetColor(const Color& color) {
        return SetStatus(DllExports::GdipSetPenColor(native_, color.GetValue()));
    }
    Status SetDashStyle(DashStyle style) {
        return SetStatus(DllExports::GdipSetPenDashStyle(native_, style));
    }

    /// The pen takes a copy of the cap.
    Status SetCustomEndCap(const CustomLineCap* cap) {
        return SetStatus(
            DllExports::GdipSetPenCustomEndCap(native_, detail::Native(cap)));
    }

    GpPen* NativeObject() const { return native_; }

private:
    GpPen* native_ = nullptr;
};

}  // namespace Gdiplus
