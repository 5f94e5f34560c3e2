#pragma once

#include "gdiplus/color.h"
#include "gdiplus/geometry.h"
#include "gdiplus/types.h"

namespace Gdiplus {

/// The character of the flat functions: UTF-16, whatever wchar_t is.
typedef char16_t FlatChar;

struct GdiplusStartupInput;
struct GdiplusStartupOutput;
struct EncoderParameters;

/// The pixels that Bitmap::LockBits returns: rows from Scan0, Stride bytes apart. Use one
/// per lock, and pass it to UnlockBits unchanged.
class BitmapData {
public:
    /// The area in pixels, the bytes from one row to the next (negative for bottom-up
    /// rows), the requested format and the first row.
    UINT Width = 0;
    UINT Height = 0;
    INT Stride = 0;
    Gdiplus::PixelFormat PixelFormat = 0;
    VOID* Scan0 = nullptr;
    ULONG_PTR Reserved = 0;

private:
    /// libgdiplus, with which drawings are compared, stores some 60 bytes more here than
    /// the SDK's class has.
    [[maybe_unused]] ULONG_PTR notes_[12] = {};
};

/// A codec as the flat functions describe it; ImageCodecInfo is the wide-character form.
struct FlatCodecInfo {
    CLSID Clsid;
    GUID FormatID;
    const FlatChar* CodecName;
    const FlatChar* DllName;
    const FlatChar* FormatDescription;
    const FlatChar* FilenameExtension;
    const FlatChar* MimeType;
    DWORD Flags;
    DWORD Version;
    DWORD SigCount;
    DWORD SigSize;
    const BYTE* SigPattern;
    const BYTE* SigMask;
};

/// The palette of an indexed image, with room for the largest.
struct FlatPalette {
    UINT Flags;         ///< PaletteFlags: alpha, greyscale, halftone
    UINT Count;         ///< how many colours there are
    ARGB Entries[256];  ///< the first Count are valid
};

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
GpStatus GdipGetInterpolationMode(GpGraphics* graphics, InterpolationMode* mode);
GpStatus GdipSetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode mode);
GpStatus GdipGetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode* mode);
GpStatus GdipGetDpiX(GpGraphics* graphics, REAL* dpi);
GpStatus GdipGetDpiY(GpGraphics* graphics, REAL* dpi);
GpStatus GdipSetPageUnit(GpGraphics* graphics, Unit unit);
GpStatus GdipFlush(GpGraphics* graphics, FlushIntention intention);
GpStatus GdipSaveGraphics(GpGraphics* graphics, GraphicsState* state);
GpStatus GdipRestoreGraphics(GpGraphics* graphics, GraphicsState state);
GpStatus GdipSetClipRect(GpGraphics* graphics, REAL x, REAL y, REAL width, REAL height,
                         CombineMode mode);
GpStatus GdipSetClipRectI(GpGraphics* graphics, INT x, INT y, INT width, INT height,
                          CombineMode mode);
GpStatus GdipResetClip(GpGraphics* graphics);
GpStatus GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy,
                                     GpMatrixOrder order);
GpStatus GdipRotateWorldTransform(GpGraphics* graphics, REAL angle, GpMatrixOrder order);
GpStatus GdipScaleWorldTransform(GpGraphics* graphics, REAL sx, REAL sy,
                                 GpMatrixOrder order);
GpStatus GdipMultiplyWorldTransform(GpGraphics* graphics, const GpMatrix* matrix,
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
GpStatus GdipMultiplyMatrix(GpMatrix* matrix, const GpMatrix* by, GpMatrixOrder order);
GpStatus GdipInvertMatrix(GpMatrix* matrix);
GpStatus GdipSetMatrixElements(GpMatrix* matrix, REAL m11, REAL m12, REAL m21, REAL m22,
                               REAL dx, REAL dy);
GpStatus GdipTransformMatrixPoints(GpMatrix* matrix, GpPointF* points, INT count);
GpStatus GdipTransformMatrixPointsI(GpMatrix* matrix, GpPoint* points, INT count);
GpStatus GdipGetMatrixElements(const GpMatrix* matrix, REAL* elements);
GpStatus GdipIsMatrixIdentity(const GpMatrix* matrix, BOOL* identity);
GpStatus GdipIsMatrixInvertible(const GpMatrix* matrix, BOOL* invertible);
GpStatus GdipIsMatrixEqual(const GpMatrix* matrix, const GpMatrix* other, BOOL* equal);

// Fonts and string formats
GpStatus GdipCreateFontFamilyFromName(const FlatChar* name, GpFontCollection* collection,
                                      GpFontFamily** family);
GpStatus GdipDeleteFontFamily(GpFontFamily* family);
GpStatus GdipGetFamilyName(const GpFontFamily* family, FlatChar* name, LANGID language);
GpStatus GdipIsStyleAvailable(const GpFontFamily* family, INT style, BOOL* available);
GpStatus GdipGetEmHeight(const GpFontFamily* family, INT style, UINT16* height);
GpStatus GdipGetCellAscent(const GpFontFamily* family, INT style, UINT16* ascent);
GpStatus GdipGetCellDescent(const GpFontFamily* family, INT style, UINT16* descent);
GpStatus GdipGetLineSpacing(const GpFontFamily* family, INT style, UINT16* spacing);
GpStatus GdipCreateFont(const GpFontFamily* family, REAL emSize, INT style, Unit unit,
                        GpFont** font);
GpStatus GdipDeleteFont(GpFont* font);
GpStatus GdipGetFontSize(GpFont* font, REAL* size);
GpStatus GdipGetFontStyle(GpFont* font, INT* style);
GpStatus GdipGetFontUnit(GpFont* font, Unit* unit);
GpStatus GdipGetFamily(GpFont* font, GpFontFamily** family);
GpStatus GdipGetFontHeightGivenDPI(const GpFont* font, REAL dpi, REAL* height);
GpStatus GdipCreateStringFormat(INT flags, LANGID language, GpStringFormat** format);
GpStatus GdipSetStringFormatAlign(GpStringFormat* format, StringAlignment alignment);
GpStatus GdipGetStringFormatAlign(GpStringFormat* format, StringAlignment* alignment);
GpStatus GdipSetStringFormatLineAlign(GpStringFormat* format, StringAlignment alignment);
GpStatus GdipGetStringFormatLineAlign(GpStringFormat* format, StringAlignment* alignment);
GpStatus GdipSetStringFormatFlags(GpStringFormat* format, INT flags);
GpStatus GdipGetStringFormatFlags(GpStringFormat* format, INT* flags);
GpStatus GdipSetStringFormatTrimming(GpStringFormat* format, StringTrimming trimming);
GpStatus GdipGetStringFormatTrimming(GpStringFormat* format, StringTrimming* trimming);
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
GpStatus GdipGetPathFillMode(GpPath* path, GpFillMode* mode);
GpStatus GdipSetPathFillMode(GpPath* path, GpFillMode mode);
GpStatus GdipStartPathFigure(GpPath* path);
GpStatus GdipClosePathFigure(GpPath* path);
GpStatus GdipAddPathString(GpPath* path, const FlatChar* text, INT length,
                           const GpFontFamily* family, INT style, REAL emSize,
                           const GpRectF* layout, const GpStringFormat* format);
GpStatus GdipAddPathRectangleI(GpPath* path, INT x, INT y, INT width, INT height);
GpStatus GdipAddPathRectangle(GpPath* path, REAL x, REAL y, REAL width, REAL height);
GpStatus GdipAddPathLine(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2);
GpStatus GdipAddPathLineI(GpPath* path, INT x1, INT y1, INT x2, INT y2);
GpStatus GdipAddPathLine2(GpPath* path, const GpPointF* points, INT count);
GpStatus GdipAddPathLine2I(GpPath* path, const GpPoint* points, INT count);
GpStatus GdipAddPathPolygon(GpPath* path, const GpPointF* points, INT count);
GpStatus GdipAddPathPolygonI(GpPath* path, const GpPoint* points, INT count);
GpStatus GdipTransformPath(GpPath* path, GpMatrix* matrix);
GpStatus GdipGetPathWorldBounds(GpPath* path, GpRectF* bounds, const GpMatrix* matrix,
                                const GpPen* pen);
GpStatus GdipGetPathWorldBoundsI(GpPath* path, GpRect* bounds, const GpMatrix* matrix,
                                 const GpPen* pen);
GpStatus GdipGetPointCount(GpPath* path, INT* count);
GpStatus GdipGetPathPoints(GpPath* path, GpPointF* points, INT count);

// Pens, caps and brushes
GpStatus GdipCreatePen1(ARGB color, REAL width, GpUnit unit, GpPen** pen);
GpStatus GdipDeletePen(GpPen* pen);
GpStatus GdipSetPenColor(GpPen* pen, ARGB color);
GpStatus GdipGetPenColor(GpPen* pen, ARGB* color);
GpStatus GdipSetPenWidth(GpPen* pen, REAL width);
GpStatus GdipGetPenWidth(GpPen* pen, REAL* width);
GpStatus GdipSetPenDashStyle(GpPen* pen, GpDashStyle style);
GpStatus GdipGetPenDashStyle(GpPen* pen, GpDashStyle* style);
GpStatus GdipSetPenLineJoin(GpPen* pen, GpLineJoin join);
GpStatus GdipGetPenLineJoin(GpPen* pen, GpLineJoin* join);
GpStatus GdipSetPenStartCap(GpPen* pen, GpLineCap cap);
GpStatus GdipGetPenStartCap(GpPen* pen, GpLineCap* cap);
GpStatus GdipSetPenEndCap(GpPen* pen, GpLineCap cap);
GpStatus GdipGetPenEndCap(GpPen* pen, GpLineCap* cap);
GpStatus GdipSetPenCustomStartCap(GpPen* pen, GpCustomLineCap* cap);
GpStatus GdipSetPenCustomEndCap(GpPen* pen, GpCustomLineCap* cap);
GpStatus GdipCreateAdjustableArrowCap(REAL height, REAL width, BOOL filled,
                                      GpAdjustableArrowCap** cap);
GpStatus GdipSetAdjustableArrowCapHeight(GpAdjustableArrowCap* cap, REAL height);
GpStatus GdipGetAdjustableArrowCapHeight(GpAdjustableArrowCap* cap, REAL* height);
GpStatus GdipSetAdjustableArrowCapWidth(GpAdjustableArrowCap* cap, REAL width);
GpStatus GdipGetAdjustableArrowCapWidth(GpAdjustableArrowCap* cap, REAL* width);
GpStatus GdipSetAdjustableArrowCapFillState(GpAdjustableArrowCap* cap, BOOL filled);
GpStatus GdipGetAdjustableArrowCapFillState(GpAdjustableArrowCap* cap, BOOL* filled);
GpStatus GdipDeleteCustomLineCap(GpCustomLineCap* cap);
GpStatus GdipCreateSolidFill(ARGB color, GpSolidFill** brush);
GpStatus GdipSetSolidFillColor(GpSolidFill* brush, ARGB color);
GpStatus GdipGetSolidFillColor(GpSolidFill* brush, ARGB* color);
GpStatus GdipDeleteBrush(GpBrush* brush);

// Shapes
GpStatus GdipDrawLine(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2,
                      REAL y2);
GpStatus GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2, INT y2);
GpStatus GdipDrawLines(GpGraphics* graphics, GpPen* pen, const GpPointF* points,
                       INT count);
GpStatus GdipDrawLinesI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                        INT count);
GpStatus GdipDrawRectangle(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                           REAL height);
GpStatus GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width,
                            INT height);
GpStatus GdipDrawPolygon(GpGraphics* graphics, GpPen* pen, const GpPointF* points,
                         INT count);
GpStatus GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                          INT count);
GpStatus GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path);
GpStatus GdipFillPath(GpGraphics* graphics, GpBrush* brush, GpPath* path);
GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y,
                           REAL width, REAL height);
GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                            INT height);
GpStatus GdipFillPolygon(GpGraphics* graphics, GpBrush* brush, const GpPointF* points,
                         INT count, GpFillMode mode);
GpStatus GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush, const GpPoint* points,
                          INT count, GpFillMode mode);

// Images
GpStatus GdipLoadImageFromFile(const FlatChar* file, GpImage** image);
GpStatus GdipDisposeImage(GpImage* image);
GpStatus GdipGetImageWidth(GpImage* image, UINT* width);
GpStatus GdipGetImageHeight(GpImage* image, UINT* height);
GpStatus GdipGetImageHorizontalResolution(GpImage* image, REAL* dpi);
GpStatus GdipGetImageVerticalResolution(GpImage* image, REAL* dpi);
GpStatus GdipGetImagePixelFormat(GpImage* image, PixelFormat* format);
GpStatus GdipGetImageType(GpImage* image, ImageType* type);
GpStatus GdipGetImagePaletteSize(GpImage* image, INT* bytes);
GpStatus GdipGetImagePalette(GpImage* image, FlatPalette* palette, INT bytes);
GpStatus GdipSetImagePalette(GpImage* image, const FlatPalette* palette);
GpStatus GdipGetImageGraphicsContext(GpImage* image, GpGraphics** graphics);
GpStatus GdipDrawImage(GpGraphics* graphics, GpImage* image, REAL x, REAL y);
GpStatus GdipDrawImageI(GpGraphics* graphics, GpImage* image, INT x, INT y);
GpStatus GdipDrawImageRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y,
                           REAL width, REAL height);
GpStatus GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT x, INT y, INT width,
                            INT height);
GpStatus GdipSaveImageToFile(GpImage* image, const FlatChar* file, const CLSID* encoder,
                             const EncoderParameters* parameters);
GpStatus GdipGetImageEncodersSize(UINT* count, UINT* size);
GpStatus GdipGetImageEncoders(UINT count, UINT size, FlatCodecInfo* encoders);
GpStatus GdipGetImageDecodersSize(UINT* count, UINT* size);
GpStatus GdipGetImageDecoders(UINT count, UINT size, FlatCodecInfo* decoders);
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
