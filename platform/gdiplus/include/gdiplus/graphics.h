#pragma once

#include "gdiplus/brush.h"
#include "gdiplus/font.h"
#include "gdiplus/image.h"
#include "gdiplus/matrix.h"
#include "gdiplus/path.h"
#include "gdiplus/pen.h"

namespace Gdiplus {

/// A surface to draw on, with its world transform.
class Graphics : public detail::StatusKeeper {
public:
    explicit Graphics(Image* image) {
        SetStatus(
            DllExports::GdipGetImageGraphicsContext(detail::Native(image), &native_));
    }
    ~Graphics() { DllExports::GdipDeleteGraphics(native_); }

    Status Clear(const Color& color) {
        return SetStatus(DllExports::GdipGraphicsClear(native_, color.GetValue()));
    }
    Status SetSmoothingMode(SmoothingMode mode) {
        return SetStatus(DllExports::GdipSetSmoothingMode(native_, mode));
    }
    SmoothingMode GetSmoothingMode() const {
        SmoothingMode mode = SmoothingModeDefault;
        SetStatus(DllExports::GdipGetSmoothingMode(native_, &mode));
        return mode;
    }
    Status SetTextRenderingHint(TextRenderingHint hint) {
        return SetStatus(DllExports::GdipSetTextRenderingHint(native_, hint));
    }
    TextRenderingHint GetTextRenderingHint() const {
        TextRenderingHint hint = TextRenderingHintSystemDefault;
        SetStatus(DllExports::GdipGetTextRenderingHint(native_, &hint));
        return hint;
    }
    Status SetInterpolationMode(InterpolationMode mode) {
        return SetStatus(DllExports::GdipSetInterpolationMode(native_, mode));
    }
    Status SetPixelOffsetMode(PixelOffsetMode mode) {
        return SetStatus(DllExports::GdipSetPixelOffsetMode(native_, mode));
    }

    Status TranslateTransform(REAL dx, REAL dy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipTranslateWorldTransform(native_, dx, dy, order));
    }
    Status RotateTransform(REAL angle, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipRotateWorldTransform(native_, angle, order));
    }
    Status ScaleTransform(REAL sx, REAL sy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipScaleWorldTransform(native_, sx, sy, order));
    }
    Status SetTransform(const Matrix* matrix) {
        return SetStatus(
            DllExports::GdipSetWorldTransform(native_, detail::Native(matrix)));
    }
    Status GetTransform(Matrix* matrix) const {
        return SetStatus(
            DllExports::GdipGetWorldTransform(native_, detail::Native(matrix)));
    }
    Status ResetTransform() {
        return SetStatus(DllExports::GdipResetWorldTransform(native_));
    }

    Status DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2) {
        return SetStatus(
            DllExports::GdipDrawLineI(native_, detail::Native(pen), x1, y1, x2, y2));
    }
    Status DrawLine(const Pen* pen, const Point& from, const Point& to) {
        return DrawLine(pen, from.X, from.Y, to.X, to.Y);
    }
    Status DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height) {
        return SetStatus(DllExports::GdipDrawRectangleI(native_, detail::Native(pen), x,
                                                        y, width, height));
    }
    Status DrawRectangle(const Pen* pen, const Rect& rect) {
        return DrawRectangle(pen, rect.X, rect.Y, rect.Width, rect.Height);
    }
    Status DrawPolygon(const Pen* pen, const Point* points, INT count) {
        return SetStatus(
            DllExports::GdipDrawPolygonI(native_, detail::Native(pen), points, count));
    }
    Status DrawPath(const Pen* pen, const GraphicsPath* path) {
        return SetStatus(
            DllExports::GdipDrawPath(native_, detail::Native(pen), detail::Native(path)));
    }

    Status FillRectangle(const Brush* brush, INT x, INT y, INT width, INT height) {
        return SetStatus(DllExports::GdipFillRectangleI(native_, detail::Native(brush), x,
                                                        y, width, height));
    }
    Status FillRectangle(const Brush* brush, const Rect& rect) {
        return FillRectangle(brush, rect.X, rect.Y, rect.Width, rect.Height);
    }
    Status FillRectangle(const Brush* brush, REAL x, REAL y, REAL width, REAL height) {
        return SetStatus(DllExports::GdipFillRectangle(native_, detail::Native(brush), x,
                                                       y, width, height));
    }
    Status FillRectangle(const Brush* brush, const RectF& rect) {
        return FillRectangle(brush, rect.X, rect.Y, rect.Width, rect.Height);
    }
    Status FillPolygon(const Brush* brush, const Point* points, INT count,
                       FillMode mode = FillModeAlternate) {
        return SetStatus(DllExports::GdipFillPolygonI(native_, detail::Native(brush),
                                                      points, count, mode));
    }
    Status FillPath(const Brush* brush, const GraphicsPath* path) {
        return SetStatus(DllExports::GdipFillPath(native_, detail::Native(brush),
                                                  detail::Native(path)));
    }

    Status DrawString(const WCHAR* string, INT length, const Font* font,
                      const RectF& layout, const StringFormat* format,
                      const Brush* brush) {
        const detail::Utf16Text text(string, length);
        return SetStatus(text.GetStatus() != Ok
                             ? text.GetStatus()
                             : DllExports::GdipDrawString(
                                   native_, text.Text(), text.Length(),
                                   detail::Native(font), &layout, detail::Native(format),
                                   detail::Native(brush)));
    }
    Status DrawString(const WCHAR* string, INT length, const Font* font,
                      const PointF& origin, const Brush* brush) {
        return DrawString(string, length, font, RectF(origin.X, origin.Y, 0.0f, 0.0f),
                          nullptr, brush);
    }
    Status MeasureString(const WCHAR* string, INT length, const Font* font,
                         const RectF& layout, RectF* bounds) const {
        const detail::Utf16Text text(string, length);
        return SetStatus(text.GetStatus() != Ok ? text.GetStatus()
                                                : DllExports::GdipMeasureString(
                                                      native_, text.Text(), text.Length(),
                                                      detail::Native(font), &layout,
                                                      nullptr, bounds, nullptr, nullptr));
    }

    /// Stretches the image into a rectangle.
    Status DrawImage(Image* image, INT x, INT y, INT width, INT height) {
        return SetStatus(DllExports::GdipDrawImageRectI(native_, detail::Native(image), x,
                                                        y, width, height));
    }

    GpGraphics* NativeObject() const { return native_; }

private:
    GpGraphics* native_ = nullptr;
};

}  // namespace Gdiplus
