#pragma once

#include <gdiplus/cairo.h>

#include <string>

namespace host {

/// The lines of text of a page, in drawing order, for its SVG file.
class SvgWords {
public:
    /// Records what is drawn on a surface from now on, as long as both live.
    void ListenTo(Gdiplus::CairoGraphics& graphics);

    /// The lines as invisible SVG texts: each where it was drawn, and stretched to its
    /// width in whatever font the viewer has.
    const std::string& Texts() const { return m_texts; }

private:
    void Add(const Gdiplus::CairoLine& line);

    std::string m_texts;
};

/// A text escaped for XML.
std::string EscapedXml(const std::string& text);

}  // namespace host
