#include "page/output/svg_words.h"

#include <cmath>

#include "system/number_text.h"

namespace host {
namespace {

/// To a thousandth of a point.
std::string Rounded(double number) {
    constexpr double kParts = 1000.0;
    return NumberText(std::round(number * kParts) / kParts);
}

}  // namespace

std::string EscapedXml(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        const bool isControl = static_cast<unsigned char>(c) < ' ';
        escaped += c == '&'    ? "&amp;"
                   : c == '<'  ? "&lt;"
                   : c == '>'  ? "&gt;"
                   : c == '"'  ? "&quot;"
                   : isControl ? " "
                               : std::string(1, c);
    }
    return escaped;
}

void SvgWords::ListenTo(Gdiplus::CairoGraphics& graphics) {
    graphics.TellLines(
        [](void* words, const Gdiplus::CairoLine* line) {
            static_cast<SvgWords*>(words)->Add(*line);
        },
        this);
}

void SvgWords::Add(const Gdiplus::CairoLine& line) {
    const cairo_matrix_t& m = line.matrix;
    // In points, for the same precision at every resolution.
    const double enlarged = std::hypot(m.xx, m.yx);
    if (!(enlarged > 0.0) || !(line.width > 0.0)) {
        return;
    }
    double x = line.x;
    double baseline = line.baseline;
    cairo_matrix_transform_point(&m, &x, &baseline);
    m_texts += "<text transform=\"matrix(" + NumberText(m.xx / enlarged) + " " +
               NumberText(m.yx / enlarged) + " " + NumberText(m.xy / enlarged) + " " +
               NumberText(m.yy / enlarged) + " " + Rounded(x) + " " + Rounded(baseline) +
               ")\" font-size=\"" + Rounded(line.size * enlarged) + "\" textLength=\"" +
               Rounded(line.width * enlarged) +
               R"(" lengthAdjust="spacingAndGlyphs" xml:space="preserve">)" +
               EscapedXml(line.text) + "</text>\n";
}

}  // namespace host
