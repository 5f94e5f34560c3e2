#pragma once

#include <gdiplus.h>

#include <string>
#include <vector>

#include "element/text_outline.h"

namespace map_surround {

/// A font together with its family; the em size is in pixels.
struct Lettering {
    Lettering(const std::wstring& familyName, float emSize, Gdiplus::FontStyle style)
        : family(familyName.c_str()), font(&family, emSize, style, Gdiplus::UnitPixel) {}

    Gdiplus::FontFamily family;
    Gdiplus::Font font;
};

/// Measures the ink of one text after another, reusing one path.
class Ruler {
public:
    Ruler() { m_format.SetAlignment(Gdiplus::StringAlignmentNear); }

    Gdiplus::Rect Measure(const std::wstring& text, const Gdiplus::FontFamily& family,
                          const Gdiplus::Font& font) {
        if (m_used) {
            m_path.Reset();
        }
        m_used = true;
        return MeasureOutline(m_path, text, family, font, m_format);
    }
    Gdiplus::Rect Measure(const std::wstring& text, const Lettering& lettering) {
        return Measure(text, lettering.family, lettering.font);
    }

private:
    Gdiplus::GraphicsPath m_path{Gdiplus::FillModeAlternate};
    Gdiplus::StringFormat m_format{0, 0};
    bool m_used = false;
};

/// A text, cut so that it fits the width with the ellipsis that ends it.
std::wstring Cut(const std::wstring& text, float width, Ruler& ruler,
                 const Lettering& lettering);

/// A text in lines, and whether any of them ends in an ellipsis.
struct BrokenText {
    std::vector<std::wstring> lines;
    bool isCut = false;
};

/// A text in lines no wider than `width`. Lines end after spaces, hyphens, underscores,
/// slashes and full stops, and between East Asian characters; a word too long for a line
/// is cut, and so is the last line if text is left over.
/// @param most the greatest number of lines
BrokenText BreakLines(const std::wstring& text, float width, int most, Ruler& ruler,
                      const Lettering& lettering);

}  // namespace map_surround
