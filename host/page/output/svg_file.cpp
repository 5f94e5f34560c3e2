#include "page/output/svg_file.h"

#include <cairo-svg.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

#include "page/output/cairo_page.h"
#include "page/output/svg_words.h"
#include "page/units.h"
#include "page/words/page_words.h"

namespace host {
namespace {

/// Whether a line fills a rectangle whose sides are parallel to the page's.
bool FillsUprightRectangle(std::string_view line) {
    constexpr std::string_view kFill = "<path style=\" stroke:none;";
    constexpr std::string_view kOutline = " d=\"M ";
    const std::size_t outline = line.find(kOutline);
    if (line.substr(0, kFill.size()) != kFill || outline == std::string_view::npos) {
        return false;
    }
    std::array<std::string_view, 12> word;  // x y L x y L x y L x y Z
    std::size_t from = outline + kOutline.size();
    for (std::string_view& one : word) {
        const std::size_t end = std::min(line.find(' ', from), line.size());
        one = line.substr(from, end - from);
        from = std::min(end + 1, line.size());
    }
    const auto& [x1, y1, l1, x2, y2, l2, x3, y3, l3, x4, y4, z] = word;
    const bool isAcrossFirst = y1 == y2 && x2 == x3 && y3 == y4 && x4 == x1;
    const bool isDownFirst = x1 == x2 && y2 == y3 && x3 == x4 && y4 == y1;
    return l1 == "L" && l2 == "L" && l3 == "L" && z == "Z" &&
           (isAcrossFirst || isDownFirst);
}

/// The words for the map, the scale bar and other figures, one line each.
std::string FiguresOf(const PageWords& words) {
    std::string lines;
    for (const SpokenItem& item : words.items) {
        if (item.role == SpokenItem::Role::Figure) {
            lines += EscapedXml(item.text) + "\n";
        }
    }
    return lines;
}

/// Adds what Cairo does not write: the page's title, its language, its words, those for
/// its figures, and sharp edges for rectangles. Otherwise the strips of a grey ramp, each
/// finer than a pixel, would let the paper shine through.
std::vector<std::uint8_t> WithWords(const std::vector<std::uint8_t>& draft,
                                    const PageWords& words, const std::string& texts) {
    const std::string_view text(reinterpret_cast<const char*>(draft.data()),
                                draft.size());
    const std::size_t root = text.find("<svg ");
    const std::size_t content = text.find(">\n", root);
    const std::size_t end = text.rfind("</svg>");
    if (content == std::string_view::npos || end == std::string_view::npos) {
        throw std::runtime_error("the SVG file cannot be written");
    }
    std::vector<std::uint8_t> file;
    const auto append = [&file](std::string_view part) {
        file.insert(file.end(), part.begin(), part.end());
    };
    append(text.substr(0, content));
    append(" xml:lang=\"" + words.about.language + "\">\n<title>" +
           EscapedXml(words.about.title) + "</title>\n<desc>" + FiguresOf(words) +
           "</desc>\n");
    for (std::size_t from = content + 2; from < end;) {
        const std::size_t next = std::min(text.find('\n', from), end - 1) + 1;
        std::string_view line = text.substr(from, next - from);
        if (FillsUprightRectangle(line)) {
            constexpr std::string_view kShape = "<path ";
            append("<path shape-rendering=\"crispEdges\" ");
            line.remove_prefix(kShape.size());
        }
        append(line);
        from = next;
    }
    append("<g fill-opacity=\"0\" font-family=\"sans-serif\">\n" + texts + "</g>\n");
    append(text.substr(end));
    return file;
}

}  // namespace

std::vector<std::uint8_t> EncodeSvg(const Page& page, double dpi,
                                    const Progress& progress,
                                    const PrintSettings& print) {
    std::vector<std::uint8_t> draft;
    const CairoSurface surface = Owned(cairo_svg_surface_create_for_stream(
        AppendToBytes, &draft, PointsFromUnits(page.Width()),
        PointsFromUnits(page.Height())));
    SvgWords words;
    CairoDrawing how;
    how.print = print;
    how.prepare = [&words](Gdiplus::CairoGraphics& graphics) {
        words.ListenTo(graphics);
    };
    DrawOnCairo(surface.get(), page, dpi, progress, how);
    FinishSurface(surface.get());
    return WithWords(draft, WordsOf(page), words.Texts());
}

}  // namespace host
