#pragma once

/// @file
/// The title and its font styles.

#include <gdiplus.h>

#include <cstdint>
#include <string>
#include <utility>

#include "map_surround/element.h"
#include "map_surround/export.h"

/// The style of the title's font. The values are GDI+'s FontStyle; flags combine by
/// bitwise or.
enum FontProcess : std::int32_t {
    FontProcessRegular = 0,
    FontProcessBold = 1,
    FontProcessItalic = 2,
    FontProcessBoldItalic = 3,
    FontProcessUnderline = 4,
    FontProcessStrikeout = 8,
};

/// A text in the front colour: the title of the map. It is one line, except for the
/// U+000A that the host puts into it; SetLineAlignment() says how lines of different
/// length are aligned.
///
/// Mind the accessors' names: the font *value* is the text, the font *style* is the name
/// of the font family, the font *process* is the style.
///
/// The host sets text, family, style and size, then calls ResetAspectRatio(), and again
/// after each change. There is no default family. A family that GDI+ does not find draws
/// and measures nothing.
/// @see [Title](docs/elements/title.md)
class MAP_SURROUND_API CMapTitle : public CMapSurround {
public:
    CMapTitle();
    /// Copies everything. An assignment that runs out of memory changes nothing.
    CMapTitle(const CMapTitle&) = default;
    CMapTitle& operator=(const CMapTitle& other);
    CMapTitle& operator=(CMapTitle&&) = default;

    /// Measures the outline of the text at scale 1, rotated by the angle. The size
    /// becomes the height of the rotated outline's bounding box and the aspect ratio its
    /// width over its height, so the size follows the font, not the other way round. A
    /// text outline of 60 by 20 gives size 20 and aspect ratio 3 at angle 0. If nothing
    /// can be measured the size becomes 0 and the aspect ratio NaN (0/0).
    void ResetAspectRatio() override;

    /// Draws the text rotated by the angle about the centre, with an em of font size
    /// times scale pixels; draws nothing for an empty text.
    ///
    /// The text's layout box starts half the measured width and height up and left of the
    /// centre. The glyphs sit inside it by their side bearing and the font's ascent, so
    /// the ink lands low and to the right, and reaches past the box of GetSize() and
    /// GetAspectRatio(): "Olinda" in Arial bold at 120 pixels is 89 high, and its ink
    /// lies 22 pixels lower than that box.
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// The text.
    std::wstring GetFontValue() const { return m_fontValue; }
    void SetFontValue(std::wstring text) { m_fontValue = std::move(text); }

    /// The name of the font family.
    std::wstring GetFontStyle() const { return m_fontStyle; }
    void SetFontStyle(std::wstring family) { m_fontStyle = std::move(family); }

    /// The style of the font; regular by default.
    FontProcess GetFontProcess() const { return m_fontProcess; }
    void SetFontProcess(FontProcess process) { m_fontProcess = process; }

    /// The em size in device pixels at scale 1.
    double GetFontSize() const { return m_fontSize; }
    void SetFontSize(double size) { m_fontSize = size; }

    /// How lines are aligned: at the left edge of their box, in its middle or at its
    /// right edge. The left edge by default, with the same calls as for a text without a
    /// format.
    ///
    /// Centred lines are centred on the centre itself: of "Land cover" over "Olinda",
    /// both have their middle there, and only the ascent sets them low.
    Gdiplus::StringAlignment GetLineAlignment() const { return m_lineAlignment; }
    void SetLineAlignment(Gdiplus::StringAlignment alignment) {
        m_lineAlignment = alignment;
    }

private:
    std::wstring m_fontValue;
    std::wstring m_fontStyle;
    FontProcess m_fontProcess = FontProcessRegular;
    double m_fontSize = 15.0;
    Gdiplus::StringAlignment m_lineAlignment = Gdiplus::StringAlignmentNear;
    Gdiplus::Rect m_textBounds;  // of the unrotated outline at scale 1
};
