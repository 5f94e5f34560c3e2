#pragma once

#include <gdiplus.h>

#include <string>

namespace map_surround {

/// The length of a text as GDI+ takes it.
int TextLength(const std::wstring& text);

/// The integer bounds of a text's outline, added to an empty path at (0, 0): the ink box,
/// not a layout box. Empty where the font does not exist, whatever its wrapper answers
/// for its size then.
Gdiplus::Rect MeasureOutline(Gdiplus::GraphicsPath& path, const std::wstring& text,
                             const Gdiplus::FontFamily& family, const Gdiplus::Font& font,
                             const Gdiplus::StringFormat& format);

/// Draws a text with the top left corner of its layout box on a point, unclipped.
void WriteText(Gdiplus::Graphics* graphics, const std::wstring& text,
               const Gdiplus::Font& font, Gdiplus::PointF topLeft,
               const Gdiplus::Brush& brush);

}  // namespace map_surround
