#pragma once

#include "gdiplus/brush.h"
#include "gdiplus/font.h"
#include "gdiplus/image.h"
#include "gdiplus/matrix.h"
#include "gdiplus/path.h"
#include "gdiplus/pen.h"
#include "gdiplus/string_format.h"

namespace Gdiplus {

/// A surface to draw on, with its world transform. The image it draws into must outlive
/// it.
class Graphics : public detail::StatusKeeper {
public:
    /// A surface that draws into an image, which the caller still owns.
    Graphics(Image* image) {
        SetStatus(
            DllExports::GdipGetImageGraphicsContext(detail::Native(image), &native_));
    }
    /// A surface made with new, owned by the caller.
    static Graphics* FromImage(Image* image) { return new Graphics(image); }

    ~Graphics() { DllExports::GdipDeleteGraphics(native_); }

    /// Sets every pixel within the clip to a colour, alpha included.
    Status Clear(const Color& color) {
        return SetStatus(DllExports::GdipGraphicsClear(native_, color.GetValue()));
    }
    /// Whether shapes are anti-aliased.
    Status SetSmoothingMode(SmoothingMode mode) {
        return SetStatus(DllExports::GdipSetSmoothingMode(native_, mode));
    }
    SmoothingMode GetSmoothingMode() const {
        return Query(DllExports::GdipGetSmoothingMode, native_);
    }
    /// Whether text is anti-aliased, and fitted to the pixel grid.
    Status SetTextRenderingHint(TextRenderingHint hint) {
        return SetStatus(DllExports::GdipSetTextRenderingHint(native_, hint));
    }
    TextRenderingHint GetTextRenderingHint() const {
        return Query(DllExports::GdipGetTextRenderingHint, native_);
    }
    /// How images are resampled.
    Status SetInterpolationMode(InterpolationMode mode) {
        return SetStatus(DllExports::GdipSetInterpolationMode(native_, mode));
    }
    InterpolationMode GetInterpolationMode() const {
        return Query(DllExports::GdipGetInterpolationMode, native_);
    }
    /// Whether integer coordinates fall on pixel centres or corners.
    Status SetPixelOffsetMode(PixelOffsetMode mode) {
        return SetStatus(DllExports::GdipSetPixelOffsetMode(native_, mode));
    }
    PixelOffsetMode GetPixelOffsetMode() const {
        return Query(DllExports::GdipGetPixelOffsetMode, native_);
    }
    /// Device pixels per inch.
    REAL GetDpiX() const { return Query(DllExports::GdipGetDpiX, native_); }
    REAL GetDpiY() const { return Query(DllExports::GdipGetDpiY, native_); }
    /// Finishes pending drawing.
    VOID Flush(FlushIntention intention = FlushIntentionFlush) {
        SetStatus(DllExports::GdipFlush(native_, intention));
    }

    /// Saves the transform, the clip and the modes for Restore.
    GraphicsState Save() const { return Query(DllExports::GdipSaveGraphics, native_); }
    Status Restore(GraphicsState state) {
        return SetStatus(DllExports::GdipRestoreGraphics(native_, state));
    }

    /// The clip: a rectangle in world coordinates, under the transform current at this
    /// call.
    Status SetClip(const Rect& rect, CombineMode mode = CombineModeReplace) {
        return SetStatus(DllExports::GdipSetClipRectI(native_, rect.X, rect.Y, rect.Width,
                                                      rect.Height, mode));
    }
    Status SetClip(const RectF& rect, CombineMode mode = CombineModeReplace) {
        return SetStatus(DllExports::GdipSetClipRect(native_, rect.X, rect.Y, rect.Width,
                                                     rect.Height, mode));
    }
    Status ResetClip() { return SetStatus(DllExports::GdipResetClip(native_)); }

    /// The world transform, from drawing coordinates to pixels. A prepended step is
    /// applied before those already there. Angles are degrees, clockwise on the surface.
    /// Resetting gives the identity.
    Status TranslateTransform(REAL dx, REAL dy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipTranslateWorldTransform(native_, dx, dy, order));
    }
    Status RotateTransform(REAL angle, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipRotateWorldTransform(native_, angle, order));
    }
    Status ScaleTransform(REAL sx, REAL sy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipScaleWorldTransform(native_, sx, sy, order));
    }
    Status MultiplyTransform(const Matrix* matrix,
                             MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipMultiplyWorldTransform(
            native_, detail::Native(matrix), order));
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

    /// Outlines with a pen, in world coordinates. Points stay the caller's.
    Status DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2) {
        return SetStatus(
            DllExports::GdipDrawLineI(native_, detail::Native(pen), x1, y1, x2, y2));
    }
    Status DrawLine(const Pen* pen, const Point& from, const Point& to) {
        return DrawLine(pen, from.X, from.Y, to.X, to.Y);
    }
    Status DrawLine(const Pen* pen, REAL x1, REAL y1, REAL x2, REAL y2) {
        return SetStatus(
            DllExports::GdipDrawLine(native_, detail::Native(pen), x1, y1, x2, y2));
    }
    Status DrawLine(const Pen* pen, const PointF& from, const PointF& to) {
        return DrawLine(pen, from.X, from.Y, to.X, to.Y);
    }
    Status DrawLines(const Pen* pen, const Point* points, INT count) {
        return SetStatus(
            DllExports::GdipDrawLinesI(native_, detail::Native(pen), points, count));
    }
    Status DrawLines(const Pen* pen, const PointF* points, INT count) {
        return SetStatus(
            DllExports::GdipDrawLines(native_, detail::Native(pen), points, count));
    }
    Status DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height) {
        return SetStatus(DllExports::GdipDrawRectangleI(native_, detail::Native(pen), x,
                                                        y, width, height));
    }
    Status DrawRectangle(const Pen* pen, const Rect& rect) {
        return DrawRectangle(pen, rect.X, rect.Y, rect.Width, rect.Height);
    }
    Status DrawRectangle(const Pen* pen, REAL x, REAL y, REAL width, REAL height) {
        return SetStatus(DllExports::GdipDrawRectangle(native_, detail::Native(pen), x, y,
                                                       width, height));
    }
    Status DrawRectangle(const Pen* pen, const RectF& rect) {
        return DrawRectangle(pen, rect.X, rect.Y, rect.Width, rect.Height);
    }
    Status DrawPolygon(const Pen* pen, const Point* points, INT count) {
        return SetStatus(
            DllExports::GdipDrawPolygonI(native_, detail::Native(pen), points, count));
    }
    Status DrawPolygon(const Pen* pen, const PointF* points, INT count) {
        return SetStatus(
            DllExports::GdipDrawPolygon(native_, detail::Native(pen), points, count));
    }
    Status DrawPath(const Pen* pen, const GraphicsPath* path) {
        return SetStatus(
            DllExports::GdipDrawPath(native_, detail::Native(pen), detail::Native(path)));
    }

    /// Fills with a brush, in world coordinates; open outlines are closed.
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
    Status FillPolygon(const Brush* brush, const PointF* points, INT count,
                       FillMode mode = FillModeAlternate) {
        return SetStatus(DllExports::GdipFillPolygon(native_, detail::Native(brush),
                                                     points, count, mode));
    }
    Status FillPath(const Brush* brush, const GraphicsPath* path) {
        return SetStatus(DllExports::GdipFillPath(native_, detail::Native(brush),
                                                  detail::Native(path)));
    }

    /// A rectangle of width or height 0 does not bound the text on that side.
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
                      const PointF& origin, const StringFormat* format,
                      const Brush* brush) {
        return DrawString(string, length, font, RectF(origin.X, origin.Y, 0.0f, 0.0f),
                          format, brush);
    }
    Status DrawString(const WCHAR* string, INT length, const Font* font,
                      const PointF& origin, const Brush* brush) {
        return DrawString(string, length, font, origin, nullptr, brush);
    }

    /// The layout box of DrawString, margins included. `codepointsFitted` UTF-16 units of
    /// the text fit into the rectangle.
    Status MeasureString(const WCHAR* string, INT length, const Font* font,
                         const RectF& layout, const StringFormat* format, RectF* bounds,
                         INT* codepointsFitted = nullptr,
                         INT* linesFilled = nullptr) const {
        const detail::Utf16Text text(string, length);
        if (bounds != nullptr) {
            *bounds = RectF();
        }
        return SetStatus(text.GetStatus() != Ok
                             ? text.GetStatus()
                             : DllExports::GdipMeasureString(
                                   native_, text.Text(), text.Length(),
                                   detail::Native(font), &layout, detail::Native(format),
                                   bounds, codepointsFitted, linesFilled));
    }
    Status MeasureString(const WCHAR* string, INT length, const Font* font,
                         const RectF& layout, RectF* bounds) const {
        return MeasureString(string, length, font, layout, nullptr, bounds);
    }
    Status MeasureString(const WCHAR* string, INT length, const Font* font,
                         const PointF& origin, RectF* bounds) const {
        return MeasureString(string, length, font, RectF(origin.X, origin.Y, 0.0f, 0.0f),
                             nullptr, bounds);
    }

    /// At the image's own size, by its resolution and the surface's.
    Status DrawImage(Image* image, INT x, INT y) {
        return SetStatus(
            DllExports::GdipDrawImageI(native_, detail::Native(image), x, y));
    }
    Status DrawImage(Image* image, REAL x, REAL y) {
        return SetStatus(DllExports::GdipDrawImage(native_, detail::Native(image), x, y));
    }

    /// Stretches the image into a rectangle.
    Status DrawImage(Image* image, INT x, INT y, INT width, INT height) {
        return SetStatus(DllExports::GdipDrawImageRectI(native_, detail::Native(image), x,
                                                        y, width, height));
    }
    Status DrawImage(Image* image, const Rect& rect) {
        return DrawImage(image, rect.X, rect.Y, rect.Width, rect.Height);
    }
    Status DrawImage(Image* image, REAL x, REAL y, REAL width, REAL height) {
        return SetStatus(DllExports::GdipDrawImageRect(native_, detail::Native(image), x,
                                                       y, width, height));
    }
    Status DrawImage(Image* image, const RectF& rect) {
        return DrawImage(image, rect.X, rect.Y, rect.Width, rect.Height);
    }

    /// The native object, for the flat functions; null if creation failed.
    GpGraphics* NativeObject() const { return native_; }

protected:
    /// For a surface of another kind, created by the derived class.
    Graphics() = default;

    /// Owned; deleted with the surface.
    GpGraphics* native_ = nullptr;
};

}  // namespace Gdiplus
