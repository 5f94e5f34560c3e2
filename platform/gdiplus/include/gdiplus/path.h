#pragma once

#include "gdiplus/font.h"
#include "gdiplus/matrix.h"
#include "gdiplus/pen.h"
#include "gdiplus/string_format.h"

namespace Gdiplus {

/// A path of lines, shapes and text outlines.
class GraphicsPath : public detail::StatusKeeper {
public:
    /// An empty path.
    GraphicsPath(FillMode mode = FillModeAlternate) {
        SetStatus(DllExports::GdipCreatePath(mode, &native_));
    }
    ~GraphicsPath() { DllExports::GdipDeletePath(native_); }

    /// Empties the path and resets its fill mode.
    Status Reset() { return SetStatus(DllExports::GdipResetPath(native_)); }
    /// Which parts of overlapping figures are inside.
    FillMode GetFillMode() const {
        return Query(DllExports::GdipGetPathFillMode, native_);
    }
    Status SetFillMode(FillMode mode) {
        return SetStatus(DllExports::GdipSetPathFillMode(native_, mode));
    }
    /// StartFigure begins a new figure without closing the current one; CloseFigure
    /// closes it.
    Status StartFigure() { return SetStatus(DllExports::GdipStartPathFigure(native_)); }
    Status CloseFigure() { return SetStatus(DllExports::GdipClosePathFigure(native_)); }

    /// Adds the outline of a text; fails for an em size over 65,535.
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
    Status AddString(const WCHAR* string, INT length, const FontFamily* family, INT style,
                     REAL emSize, const Rect& layout, const StringFormat* format) {
        return AddString(
            string, length, family, style, emSize,
            RectF(static_cast<REAL>(layout.X), static_cast<REAL>(layout.Y),
                  static_cast<REAL>(layout.Width), static_cast<REAL>(layout.Height)),
            format);
    }
    Status AddString(const WCHAR* string, INT length, const FontFamily* family, INT style,
                     REAL emSize, const Point& origin, const StringFormat* format) {
        return AddString(string, length, family, style, emSize,
                         PointF(static_cast<REAL>(origin.X), static_cast<REAL>(origin.Y)),
                         format);
    }

    /// Adds to the current figure; a polygon or rectangle is a closed figure of its own.
    Status AddLine(INT x1, INT y1, INT x2, INT y2) {
        return SetStatus(DllExports::GdipAddPathLineI(native_, x1, y1, x2, y2));
    }
    Status AddLine(REAL x1, REAL y1, REAL x2, REAL y2) {
        return SetStatus(DllExports::GdipAddPathLine(native_, x1, y1, x2, y2));
    }
    Status AddLine(const Point& from, const Point& to) {
        return AddLine(from.X, from.Y, to.X, to.Y);
    }
    Status AddLine(const PointF& from, const PointF& to) {
        return AddLine(from.X, from.Y, to.X, to.Y);
    }
    Status AddLines(const Point* points, INT count) {
        return SetStatus(DllExports::GdipAddPathLine2I(native_, points, count));
    }
    Status AddLines(const PointF* points, INT count) {
        return SetStatus(DllExports::GdipAddPathLine2(native_, points, count));
    }
    Status AddPolygon(const Point* points, INT count) {
        return SetStatus(DllExports::GdipAddPathPolygonI(native_, points, count));
    }
    Status AddPolygon(const PointF* points, INT count) {
        return SetStatus(DllExports::GdipAddPathPolygon(native_, points, count));
    }
    Status AddRectangle(const Rect& rect) {
        return SetStatus(DllExports::GdipAddPathRectangleI(native_, rect.X, rect.Y,
                                                           rect.Width, rect.Height));
    }
    Status AddRectangle(const RectF& rect) {
        return SetStatus(DllExports::GdipAddPathRectangle(native_, rect.X, rect.Y,
                                                          rect.Width, rect.Height));
    }

    /// Without a matrix the path is unchanged and GDI+ is not called.
    Status Transform(const Matrix* matrix) {
        return matrix == nullptr ? Ok
                                 : SetStatus(DllExports::GdipTransformPath(
                                       native_, matrix->NativeObject()));
    }

    /// The bounds of the path, transformed by the matrix and widened by the pen.
    Status GetBounds(Rect* bounds, const Matrix* matrix = nullptr,
                     const Pen* pen = nullptr) const {
        return SetStatus(DllExports::GdipGetPathWorldBoundsI(
            native_, bounds, detail::Native(matrix), detail::Native(pen)));
    }
    Status GetBounds(RectF* bounds, const Matrix* matrix = nullptr,
                     const Pen* pen = nullptr) const {
        return SetStatus(DllExports::GdipGetPathWorldBounds(
            native_, bounds, detail::Native(matrix), detail::Native(pen)));
    }
    /// How many points the path has.
    INT GetPointCount() const { return Query(DllExports::GdipGetPointCount, native_); }

    /// Into a buffer for count points, at least GetPointCount().
    Status GetPathPoints(PointF* points, INT count) const {
        return SetStatus(DllExports::GdipGetPathPoints(native_, points, count));
    }

    /// The native object, for the flat functions; null if creation failed.
    GpPath* NativeObject() const { return native_; }

private:
    GpPath* native_ = nullptr;
};

}  // namespace Gdiplus
