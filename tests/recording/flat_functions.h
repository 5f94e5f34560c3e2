#pragma once

/// The flat functions that programs of tests, fuzzers and benchmarks define themselves:
/// how many parameters each has, and its name.
// clang-format off
#define FLAT_FUNCTIONS(FUNCTION)                                                      \
    FUNCTION(1, GdipDeleteGraphics) FUNCTION(2, GdipSetSmoothingMode)                 \
    FUNCTION(4, GdipTranslateWorldTransform) FUNCTION(3, GdipRotateWorldTransform)    \
    FUNCTION(1, GdipResetWorldTransform)                                              \
    FUNCTION(1, GdipCreateMatrix) FUNCTION(1, GdipDeleteMatrix)                       \
    FUNCTION(4, GdipTranslateMatrix) FUNCTION(3, GdipRotateMatrix)                    \
    FUNCTION(3, GdipCreateFontFamilyFromName) FUNCTION(1, GdipDeleteFontFamily)       \
    FUNCTION(5, GdipCreateFont) FUNCTION(1, GdipDeleteFont)                           \
    FUNCTION(2, GdipGetFontSize) FUNCTION(2, GdipGetFontStyle)                        \
    FUNCTION(3, GdipCreateStringFormat) FUNCTION(1, GdipDeleteStringFormat)           \
    FUNCTION(2, GdipSetStringFormatAlign)                                             \
    FUNCTION(7, GdipDrawString) FUNCTION(9, GdipMeasureString)                        \
    FUNCTION(2, GdipCreatePath) FUNCTION(1, GdipDeletePath)                           \
    FUNCTION(1, GdipResetPath) FUNCTION(2, GdipTransformPath)                         \
    FUNCTION(8, GdipAddPathString) FUNCTION(5, GdipAddPathRectangleI)                 \
    FUNCTION(3, GdipAddPathLine2I) FUNCTION(4, GdipGetPathWorldBoundsI)               \
    FUNCTION(3, GdipDrawPath)                                                         \
    FUNCTION(4, GdipCreatePen1) FUNCTION(1, GdipDeletePen)                            \
    FUNCTION(2, GdipSetPenColor) FUNCTION(2, GdipSetPenDashStyle)                     \
    FUNCTION(2, GdipSetPenCustomEndCap) FUNCTION(4, GdipCreateAdjustableArrowCap)     \
    FUNCTION(1, GdipDeleteCustomLineCap)                                              \
    FUNCTION(2, GdipCreateSolidFill) FUNCTION(2, GdipSetSolidFillColor)               \
    FUNCTION(1, GdipDeleteBrush)                                                      \
    FUNCTION(6, GdipDrawLineI) FUNCTION(6, GdipDrawRectangleI)                        \
    FUNCTION(4, GdipDrawPolygonI) FUNCTION(5, GdipFillPolygonI)                       \
    FUNCTION(6, GdipFillRectangle) FUNCTION(6, GdipFillRectangleI)                    \
    FUNCTION(6, GdipCreateBitmapFromScan0) FUNCTION(2, GdipGetImageGraphicsContext)   \
    FUNCTION(2, GdipLoadImageFromFile) FUNCTION(4, GdipSaveImageToFile)               \
    FUNCTION(1, GdipDisposeImage) FUNCTION(2, GdipGetImagePixelFormat)                \
    FUNCTION(2, GdipGetImageWidth) FUNCTION(2, GdipGetImageHeight)                    \
    FUNCTION(6, GdipDrawImageRectI)
// clang-format on
