#pragma once

#include "gdiplus/flat.h"
#include "gdiplus/object.h"

namespace Gdiplus {

/// A custom line cap; constructed as a derived class.
class CustomLineCap : public detail::StatusKeeper {
public:
    virtual ~CustomLineCap() { DllExports::GdipDeleteCustomLineCap(native_); }

    /// The native object, for the flat functions; null if creation failed.
    GpCustomLineCap* NativeObject() const { return native_; }

protected:
    CustomLineCap() = default;

    /// Owned; deleted with the cap.
    GpCustomLineCap* native_ = nullptr;
};

/// An arrowhead. Height and width are in units of the width of the pen that carries it:
/// a cap of height 5 on a pen of width 3 is 15 long.
class AdjustableArrowCap : public CustomLineCap {
public:
    /// An arrowhead, filled or open.
    AdjustableArrowCap(REAL height, REAL width, BOOL isFilled = 1) {
        GpAdjustableArrowCap* cap = nullptr;
        SetStatus(
            DllExports::GdipCreateAdjustableArrowCap(height, width, isFilled, &cap));
        native_ = cap;
    }

    /// In pen widths.
    Status SetHeight(REAL height) {
        return SetStatus(DllExports::GdipSetAdjustableArrowCapHeight(Arrow(), height));
    }
    REAL GetHeight() const {
        return Query(DllExports::GdipGetAdjustableArrowCapHeight, Arrow());
    }
    Status SetWidth(REAL width) {
        return SetStatus(DllExports::GdipSetAdjustableArrowCapWidth(Arrow(), width));
    }
    REAL GetWidth() const {
        return Query(DllExports::GdipGetAdjustableArrowCapWidth, Arrow());
    }
    /// Filled, or open (two lines).
    Status SetFillState(BOOL isFilled) {
        return SetStatus(
            DllExports::GdipSetAdjustableArrowCapFillState(Arrow(), isFilled));
    }
    BOOL IsFilled() const {
        return Query(DllExports::GdipGetAdjustableArrowCapFillState, Arrow());
    }

private:
    GpAdjustableArrowCap* Arrow() const {
        return static_cast<GpAdjustableArrowCap*>(native_);
    }
};

}  // namespace Gdiplus
