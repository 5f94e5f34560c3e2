#include "page/output/postscript_file.h"

#include <gdiplus/postscript.h>

#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

#include "page/units.h"
#include "system/memory_file.h"

namespace host {
namespace {

std::string Number(double number) {
    char text[32];
    // Never in another notation: a page has at most 5 digits of points.
    std::snprintf(text, sizeof text, "%.6f", number);
    for (char& c : text) {
        c = c == ',' ? '.' : c;  // whatever the locale
    }
    return text;
}

std::string Whole(double number) {
    return std::to_string(static_cast<long>(std::ceil(number)));
}

/// The page in points, and the points in which it was drawn: a pixel each.
struct Sizes {
    double width;
    double height;
    double scale;  ///< from those that were drawn to the page's

    /// What stands in place of a line that tells the size of what was drawn; the line
    /// itself if it is another.
    std::string InPlaceOf(const std::string& line) const {
        const auto begins = [&line](std::string_view with) {
            return line.compare(0, with.size(), with) == 0;
        };
        const std::string size = Number(width) + " " + Number(height);
        const std::string box = "0 0 " + Whole(width) + " " + Whole(height);
        if (begins("%%CreationDate:")) {
            return "%%Title: map page";  // the same page gives the same file
        }
        if (begins("%%DocumentMedia:")) {
            return "%%DocumentMedia: page " + size + " 0 () ()";
        }
        if (begins("%%BoundingBox:")) {
            return "%%BoundingBox: " + box + "\n%%HiResBoundingBox: 0 0 " + size;
        }
        if (begins("%%PageMedia:")) {
            return "%%PageMedia: page";
        }
        if (begins("%%PageBoundingBox:")) {
            return "%%PageBoundingBox: " + box;
        }
        const std::string sets = " cairo_set_page_size";
        if (line.size() > sets.size() &&
            line.compare(line.size() - sets.size(), sets.size(), sets) == 0) {
            return size + sets + "\n" + Number(scale) + " dup scale";
        }
        return line;
    }
};

/// Gives the page its true size, within the comments and the page's set-up: between the
/// two stand only what the pages share, and after them the page.
std::vector<std::uint8_t> InTrueSize(const std::vector<std::uint8_t>& file,
                                     const Sizes& sizes) {
    const std::string text(file.begin(), file.end());
    const std::size_t comments = text.find("\n%%EndComments");
    const std::size_t setUp = text.find("\n%%BeginPageSetup");
    const std::size_t page = text.find("\n%%EndPageSetup");
    if (comments == std::string::npos || setUp == std::string::npos ||
        page == std::string::npos) {
        throw std::runtime_error("the PostScript file cannot be written");
    }
    std::vector<std::uint8_t> changed;
    const auto append = [&changed](std::string_view part) {
        changed.insert(changed.end(), part.begin(), part.end());
    };
    const auto appendChanged = [&](std::size_t from, std::size_t to) {
        while (from < to) {
            const std::size_t end = text.find('\n', from);
            append(sizes.InPlaceOf(text.substr(from, end - from)) + "\n");
            from = end + 1;
        }
    };
    changed.reserve(text.size() + 200);
    appendChanged(0, comments + 1);
    append(std::string_view(text).substr(comments + 1, setUp - comments));
    appendChanged(setUp + 1, page + 1);
    append(std::string_view(text).substr(page + 1));
    return changed;
}

}  // namespace

std::vector<std::uint8_t> EncodePostScript(const Page& page, double dpi,
                                           const Progress& progress) {
    const MemoryFile file;
    const Gdiplus::Size size = PixelSize(page, dpi);
    {
        Gdiplus::PostScriptGraphics graphics(file.Name().c_str(), size.Width,
                                             size.Height);
        page.Draw(graphics, dpi, progress);
    }
    return InTrueSize(file.Bytes(), {PointsFromUnits(page.Width()),
                                     PointsFromUnits(page.Height()), 72.0 / dpi});
}

}  // namespace host
