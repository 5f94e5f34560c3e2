#pragma once

/// The flat functions that drawing and measuring call, and the one that a page sets its
/// surface with between elements: how many parameters each has, and its name.
// clang-format off
#define FLAT_FUNCTIONS(FUNCTION)                                                      \
    FLAT_TEXT_FUNCTIONS(FUNCTION)                                                     \
    FUNCTION(2, GdipSetSmoothingMode)                                                 \
    FUNCTION(4, GdipTranslateWorldTransform) FUNCTION(3, GdipRotateWorldTransform)    \
    FUNCTION(1, GdipResetWorldTransform)                                              \
    FUNCTION(1, GdipCreateMatrix) FUNCTION(1, GdipDeleteMatrix)                       \
    FUNCTION(4, GdipTranslateMatrix) FUNCTION(3, GdipRotateMatrix)                    \
    FUNCTION(2, GdipGetFontSize) FUNCTION(2, GdipGetFontStyle)                        \
    FUNCTION(3, GdipCreateStringFormat) FUNCTION(1, GdipDeleteStringFormat)           \
    FUNCTION(2, GdipSetStringFormatAlign)                                             \
    FUNCTION(2, GdipCreatePath) FUNCTION(1, GdipDeletePath)                           \
    FUNCTION(1, GdipResetPath) FUNCTION(2, GdipTransformPath)                         \
    FUNCTION(5, GdipAddPathRectangleI) FUNCTION(3, GdipAddPathLine2I)                 \
    FUNCTION(4, GdipGetPathWorldBoundsI) FUNCTION(3, GdipDrawPath)                    \
    FUNCTION(4, GdipCreatePen1) FUNCTION(1, GdipDeletePen)                            \
    FUNCTION(2, GdipSetPenColor) FUNCTION(2, GdipSetPenDashStyle)                     \
    FUNCTION(2, GdipSetPenCustomEndCap) FUNCTION(4, GdipCreateAdjustableArrowCap)     \
    FUNCTION(1, GdipDeleteCustomLineCap)                                              \
    FUNCTION(2, GdipCreateSolidFill) FUNCTION(2, GdipSetSolidFillColor)               \
    FUNCTION(1, GdipDeleteBrush)                                                      \
    FUNCTION(6, GdipDrawLineI) FUNCTION(6, GdipDrawRectangleI)                        \
    FUNCTION(4, GdipDrawPolygonI) FUNCTION(5, GdipFillPolygonI)                       \
    FUNCTION(6, GdipFillRectangle) FUNCTION(6, GdipFillRectangleI)                    \
    FUNCTION(6, GdipDrawImageRectI)

/// Those of them that use fonts.
#define FLAT_TEXT_FUNCTIONS(FUNCTION)                                                 \
    FUNCTION(3, GdipCreateFontFamilyFromName) FUNCTION(1, GdipDeleteFontFamily)       \
    FUNCTION(5, GdipCreateFont) FUNCTION(1, GdipDeleteFont)                           \
    FUNCTION(7, GdipDrawString) FUNCTION(8, GdipAddPathString)
// clang-format on
