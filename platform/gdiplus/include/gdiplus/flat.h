#pragma once

#include "gdiplus/types.h"

namespace Gdiplus {

/// The text unit of the flat functions: UTF-16, whatever wchar_t is.
typedef char16_t FlatChar;

struct GdiplusStartupInput;
struct GdiplusStartupOutput;

namespace DllExports {
extern "C" {

GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                        GdiplusStartupOutput* output);
VOID GdiplusShutdown(ULONG_PTR token);

// Graphics and its world transform
GpStatus GdipDeleteGraphics(GpGraphics* graphics);
GpStatus GdipGraphicsClear(GpGraphics* graphics, ARGB color);
GpStatus GdipSetSmoothingMode(GpGraphics* graphics, SmoothingMode mode);
GpStatus GdipGetSmoothingMode(GpGraphics* graphics, SmoothingMode* mode);
GpStatus GdipSetTextRenderingHint(GpGraphics* graphics, TextRenderingHint hint);
GpStatus GdipGetTextRenderingHint(GpGraphics* graphics, TextRenderingHint* hint);
GpStatus GdipSetInterpolationMode(GpGraphics* graphics, InterpolationMode mode);
GpStatus GdipSetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode mode);
GpStatus GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy,
                                     GpMatrixOrder order);
GpStatus GdipRotateWorldTransform(GpGraphics* graphics, REAL angle, GpMatrixOrder order);
GpStatus GdipScaleWorldTransform(GpGraphics* graphics, REAL sx, REAL sy,
                                 GpMatrixOrder order);
GpStatus GdipSetWorldTransform(GpGraphics* graphics, GpMatrix* matrix);
GpStatus GdipGetWorldTransform(GpGraphics* graphics, GpMatrix* matrix);
GpStatus GdipResetWorldTransform(GpGraphics* graphics);

// Matrices
GpStatus GdipCreateMatrix(GpMatrix** matrix);
GpStatus GdipCreateMatrix2(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy,
                           GpMatrix** matrix);
GpStatus GdipDeleteMatrix(GpMatrix* matrix);
GpStatus GdipTranslateMatrix(GpMatrix* matrix, REAL dx, REAL dy, GpMatrixOrder order);
GpStatus GdipRotateMatrix(GpMatrix* matrix, REAL angle, GpMatrixOrder order);
GpStatus GdipScaleMatrix(GpMatrix* matrix, REAL sx, REAL sy, GpMatrixOrder order);
GpStatus GdipGetMatrixElements(const GpMatrix* matrix, REAL* elements);
GpStatus GdipIsMatrixIdentity(const GpMatrix* matrix, BOOL* identity);

// Fonts and string formats
GpStatus GdipCreateFontFamilyFromName(const FlatChar* name, GpFontCollection* collection,
                                      GpFontFamily** family);
GpStatus GdipDeleteFontFamily(GpFontFamily* family);
GpStatus GdipGetFamilyName(const GpFontFamily* family, FlatChar* name, LANGID language);
GpStatus GdipCreateFont(const GpFontFamily* family, REAL emSize, INT style, Unit unit,
                        GpFont** font);
GpStatus GdipDeleteFont(GpFont* font);
GpStatus GdipGetFontSize(GpFont* font, REAL* size);
GpStatus GdipGetFontStyle(GpFont* font, INT* style);
GpStatus GdipCreateStringFormat(INT flags, LANGID language, GpStringFormat** format);
GpStatus GdipSetStringFormatAlign(GpStringFormat* format, StringAlignment alignment);
GpStatus GdipDeleteStringFormat(GpStringFormat* format);

// Text
GpStatus GdipDrawString(GpGraphics* graphics, const FlatChar* text, INT length,
                        const GpFont* font, const GpRectF* layout,
                        const GpStringFormat* format, const GpBrush* brush);
GpStatus GdipMeasureString(GpGraphics* graphics, const FlatChar* text, INT length,
                           const GpFont* font, const GpRectF* layout,
                           const GpStringFormat* format, GpRectF* bounds,
                           INT* codepointsFitted, INT* linesFilled);

// Paths
GpStatus GdipCreatePath(GpFillMode mode, GpPath** path);
GpStatus GdipDeletePath(GpPath* path);
GpStatus GdipResetPath(GpPath* path);
GpStatus GdipAddPathString(GpPath* path, const FlatChar* text, INT length,
                           const GpFontFamily* family, INT style, REAL emSize,
                           const GpRectF* layout, const GpStringFormat* format);
GpStatus GdipAddPathRectangleI(GpPath* path, INT x, INT y, INT width, INT height);
GpStatus GdipAddPathLine2I(GpPath* path, const GpPoint* points, INT count);
GpStatus GdipTransformPath(GpPath* path, GpMatrix* matrix);
GpStatus GdipGetPathWorldBoundsI(GpPath* path, GpRect* bounds, const GpMatrix* matrix,
                                 const GpPen* pen);
GpStatus GdipGetPointCount(GpPath* path, INT* count);

// Pens, caps and brushes
GpStatus GdipCreatePen1(ARGB color, REAL width, GpUnit unit, GpPen** pen);
GpStatus GdipDeletePen(GpPen* pen);
GpStatus GdipSetPenColor(GpPen* pen, ARGB color);
GpStatus GdipSetPenDashStyle(GpPen* pen, GpDashStyle style);
GpStatus GdipSetPenCustomEndCap(GpPen* pen, GpCustomLineCap* cap);
GpStatus GdipCreateAdjustableArrowCap(REAL height, REAL width, BOOL filled,
                                      GpAdjustableArrowCap** cap);
GpStatus GdipDeleteCustomLineCap(GpCustomLineCap* cap);
GpStatus GdipCreateSolidFill(ARGB color, GpSolidFill** brush);
GpStatus GdipSetSolidFillColor(GpSolidFill* brush, ARGB color);
GpStatus GdipGetSolidFillColor(GpSolidFill* brush, ARGB* color);
GpStatus GdipDeleteBrush(GpBrush* brush);

// Shapes
GpStatus GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2, INT y2);
GpStatus GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width,
                            INT height);
GpStatus GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                          INT count);
GpStatus GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path);
GpStatus GdipFillPath(GpGraphics* graphics, GpBrush* brush, GpPath* path);
GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y,
                           REAL width, REAL height);
GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                            INT height);
GpStatus GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush, const GpPoint* points,
                          INT count, GpFillMode mode);

// Images
GpStatus GdipLoadImageFromFile(const FlatChar* file, GpImage** image);
GpStatus GdipDisposeImage(GpImage* image);
GpStatus GdipGetImageWidth(GpImage* image, UINT* width);
GpStatus GdipGetImageHeight(GpImage* image, UINT* height);
GpStatus GdipGetImageGraphicsContext(GpImage* image, GpGraphics** graphics);
GpStatus GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT x, INT y, INT width,
                            INT height);
GpStatus GdipSaveImageToFile(GpImage* image, const FlatChar* file, const CLSID* encoder,
                             const void* parameters);
GpStatus GdipCreateBitmapFromScan0(INT width, INT height, INT stride, PixelFormat format,
                                   BYTE* scan0, GpBitmap** bitmap);
GpStatus GdipBitmapLockBits(GpBitmap* bitmap, const GpRect* area, UINT mode,
                            PixelFormat format, BitmapData* data);
GpStatus GdipBitmapUnlockBits(GpBitmap* bitmap, BitmapData* data);
GpStatus GdipBitmapGetPixel(GpBitmap* bitmap, INT x, INT y, ARGB* color);
GpStatus GdipBitmapSetPixel(GpBitmap* bitmap, INT x, INT y, ARGB color);
GpStatus GdipBitmapSetResolution(GpBitmap* bitmap, REAL xdpi, REAL ydpi);

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
