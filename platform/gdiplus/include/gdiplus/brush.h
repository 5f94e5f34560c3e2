#pragma once

#include "gdiplus/flat.h"
#include "gdiplus/object.h"

namespace Gdiplus {

/// Fills shapes and draws text.
class Brush : public detail::StatusKeeper {
public:
    virtual ~Brush() { DllExports::GdipDeleteBrush(native_); }

    /// The native object, for the flat functions; null if creation failed.
    GpBrush* NativeObject() const { return native_; }

protected:
    Brush() = default;

    /// Owned; deleted with the brush.
    GpBrush* native_ = nullptr;
};

/// A brush of one colour.
class SolidBrush : public Brush {
public:
    /// Fails if GDI+ is out of memory.
    SolidBrush(const Color& color) {
        GpSolidFill* brush = nullptr;
        SetStatus(DllExports::GdipCreateSolidFill(color.GetValue(), &brush));
        native_ = brush;
    }

    /// The colour, alpha included.
    Status SetColor(const Color& color) {
        return SetStatus(DllExports::GdipSetSolidFillColor(Solid(), color.GetValue()));
    }
    Status GetColor(Color* color) const {
        if (color == nullptr) {
            return SetStatus(InvalidParameter);
        }
        ARGB argb = 0;
        const Status status =
            SetStatus(DllExports::GdipGetSolidFillColor(Solid(), &argb));
        *color = Color(argb);
        return status;
    }

private:
    GpSolidFill* Solid() const { return static_cast<GpSolidFill*>(native_); }
};

}  // namespace Gdiplus
