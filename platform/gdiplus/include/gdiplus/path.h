#pragma once

#include "gdiplus/font.h"
#include "gdiplus/matrix.h"
#include "gdiplus/pen.h"

namespace Gdiplus {

/// A figure of lines and outlines.
class GraphicsPath : public detail::StatusKeeper {
public:
    explicit GraphicsPath(FillMode mode = FillModeAlternate) {
        SetStatus(DllExports::GdipCreatePath(mode, &native_));
    }
    ~GraphicsPath() { DllExports::GdipDeletePath(native_); }

    Status Reset() { return SetStatus(DllExports::GdipResetPath(native_)); }

    /// Adds the outline of a text in the given em size.
    Status AddString(const WCHAR* string, INT length, const FontFamily* family, INT style,
                     REAL emSize, const RectF& layout, const StringFormat* format) {
        const detail::Utf16Text text(string, length);
        return SetStatus(
            text.GetStatus() != Ok
                ? text.GetStatus()
                : DllExports::GdipAddPathString(native_, text.Text(), text.Length(),
                                                detail::Native(family), style, emSize,
                                                &layout, detail::Native(format)));
    }
    Status AddString(const WCHAR* string, INT length, const FontFamily* family, INT style,
                     REAL emSize, const PointF& origin, const StringFormat* format) {
        return AddString(string, length, family, style, emSize,
                         RectF(origin.X, origin.Y, 0.0f, 0.0f), format);
    }
    Status AddRectangle(const Rect& rect) {
        return SetStatus(DllExports::GdipAddPathRectangleI(native_, rect.X, rect.Y,
                                                           rect.Width, rect.Height));
    }
    Status AddLines(const Point* points, INT count) {
        return SetStatus(DllExports::GdipAddPathLine2I(native_, points, count));
    }

    Status Transform(const Matrix* matrix) {
        return matrix == nullptr ? Ok
                                 : SetStatus(DllExports::GdipTransformPath(
                                       native_, matrix->NativeObject()));
    }

    /// The bounds in whole units, of the path after the matrix and with the pen's width.
    Status GetBounds(Rect* bounds, const Matrix* matrix = nullptr,
                     const Pen* pen = nullptr) const {
        return SetStatus(DllExports::GdipGetPathWorldBoundsI(
            native_, bounds, detail::Native(matrix), detail::Native(pen)));
    }
    INT GetPointCount() const {
        INT count = 0;
        SetStatus(DllExports::GdipGetPointCount(native_, &count));
        return count;
    }

    GpPath* NativeObject() const { return native_; }

private:
    GpPath* native_ = nullptr;
};

}  // namespace Gdiplus
