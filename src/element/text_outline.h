#pragma once

#include <gdiplus.h>

#include <string>

namespace map_surround {

/// The length of a text, clamped to what GDI+ takes.
int TextLength(const std::wstring& text);

/// Adds a text's outline to an empty path at (0, 0) and gives its integer bounds: the ink
/// box, not the layout box. Empty if the font does not exist.
Gdiplus::Rect MeasureOutline(Gdiplus::GraphicsPath& path, const std::wstring& text,
                             const Gdiplus::FontFamily& family, const Gdiplus::Font& font,
                             const Gdiplus::StringFormat& format);

/// Draws a text with the top left corner of its layout box on a point, unclipped.
void WriteText(Gdiplus::Graphics* graphics, const std::wstring& text,
               const Gdiplus::Font& font, Gdiplus::PointF topLeft,
               const Gdiplus::Brush& brush);

}  // namespace map_surround
