#pragma once

/// @file
/// The title and its font styles.

#include <gdiplus.h>

#include <cstdint>
#include <string>
#include <utility>

#include "map_surround/element.h"
#include "map_surround/export.h"

/// The style of the title's font. The values are GDI+'s FontStyle, handed on as they
/// stand; flags combine by bitwise or.
enum FontProcess : std::int32_t {
    FontProcessRegular = 0,
    FontProcessBold = 1,
    FontProcessItalic = 2,
    FontProcessBoldItalic = 3,
    FontProcessUnderline = 4,
    FontProcessStrikeout = 8,
};

/// One line of text in the front colour: the title of the map.
///
/// The names of the accessors are those of old: the font *value* is the text, the font
/// *style* is the name of the font family, the font *process* is the style.
///
/// The host sets text, family, style and size, then calls ResetAspectRatio(), and again
/// after each change. There is no default family; where GDI+ finds none of the name,
/// nothing is drawn and measured (libgdiplus finds a substitute for any name).
class MAP_SURROUND_API CMapTitle : public CMapSurround {
public:
    CMapTitle();
    /// Copies everything. An assignment for which there is not enough memory changes
    /// nothing.
    CMapTitle(const CMapTitle&) = default;
    CMapTitle& operator=(const CMapTitle& other);
    CMapTitle& operator=(CMapTitle&&) = default;

    /// Measures the outline of the text at scale 1, turned by the angle. The size becomes
    /// the height of the box around the turned outline and the aspect ratio its width
    /// over its height, so the size follows the font, not the other way round. A text
    /// outline of 60 by 20 gives size 20 and aspect ratio 3 at angle 0. Where nothing can
    /// be measured the size becomes 0 and the aspect ratio NaN (0/0).
    void ResetAspectRatio() override;

    /// Draws the text turned by the angle about the centre, in font size times scale
    /// pixels; nothing at all for an empty text. The layout point is half the measured
    /// width and height up and left of the centre; GDI+ then sets the glyphs off from it
    /// by their side bearing and ascent, and that offset is kept.
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// The text.
    std::wstring GetFontValue() const { return m_fontValue; }
    void SetFontValue(std::wstring text) { m_fontValue = std::move(text); }

    /// The name of the font family.
    std::wstring GetFontStyle() const { return m_fontStyle; }
    void SetFontStyle(std::wstring family) { m_fontStyle = std::move(family); }

    /// The style of the font; regular until it is set.
    FontProcess GetFontProcess() const { return m_fontProcess; }
    void SetFontProcess(FontProcess process) { m_fontProcess = process; }

    /// The em size in device pixels at scale 1.
    double GetFontSize() const { return m_fontSize; }
    void SetFontSize(double size) { m_fontSize = size; }

private:
    std::wstring m_fontValue;
    std::wstring m_fontStyle;
    FontProcess m_fontProcess = FontProcessRegular;
    double m_fontSize = 15.0;
    Gdiplus::Rect m_textBounds;  // of the unturned outline at scale 1
};
