#include "page/output/postscript_file.h"

#include <cairo-ps.h>

#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

#include "page/output/cairo_page.h"
#include "page/units.h"

namespace host {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr const char* kFileTitle = "map page";

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

/// What stands in place of a line that tells the size of what was drawn, where the page
/// may be larger; the line itself if it is another.
std::string InPlaceOf(std::string_view line, double width, double height) {
    const auto begins = [line](std::string_view with) {
        return line.substr(0, with.size()) == with;
    };
    const std::string size = Number(width) + " " + Number(height);
    const std::string box = "0 0 " + Whole(width) + " " + Whole(height);
    if (begins("%%CreationDate:")) {
        // The same page gives the same file.
        return std::string("%%Title: ") + kFileTitle;
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
    constexpr std::string_view sets = " cairo_set_page_size";
    if (line.size() > sets.size() && line.substr(line.size() - sets.size()) == sets) {
        // Cairo drew on a page of whole points, from its top.
        return size + std::string(sets) + "\n0 " + Number(height - std::ceil(height)) +
               " translate";
    }
    return std::string(line);
}

/// Tells the page's true size in the comments and in the page's set-up: between the two
/// stand only what the pages share, and after them the page.
Bytes TellingSize(const Bytes& file, double width, double height) {
    const std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
    const std::size_t comments = text.find("\n%%EndComments");
    const std::size_t setUp = text.find("\n%%BeginPageSetup");
    const std::size_t page = text.find("\n%%EndPageSetup");
    if (comments == std::string::npos || setUp == std::string::npos ||
        page == std::string::npos) {
        throw std::runtime_error("the PostScript file cannot be written");
    }
    Bytes changed;
    changed.reserve(text.size() + 200);
    const auto append = [&changed](std::string_view part) {
        changed.insert(changed.end(), part.begin(), part.end());
    };
    const auto appendChanged = [&](std::size_t from, std::size_t to) {
        while (from < to) {
            const std::size_t end = text.find('\n', from);
            append(InPlaceOf(text.substr(from, end - from), width, height) + "\n");
            from = end + 1;
        }
    };
    appendChanged(0, comments + 1);
    append(text.substr(comments + 1, setUp - comments));
    appendChanged(setUp + 1, page + 1);
    append(text.substr(page + 1));
    return changed;
}

}  // namespace

std::vector<std::uint8_t> EncodePostScript(const Page& page, double dpi,
                                           const Progress& progress,
                                           const PrintSettings& print) {
    const double width = PointsFromUnits(page.Width());
    const double height = PointsFromUnits(page.Height());
    Bytes file;
    const CairoSurface surface =
        Owned(cairo_ps_surface_create_for_stream(AppendToBytes, &file, width, height));
    CairoDrawing how;
    how.print = print;
    DrawOnCairo(surface.get(), page, dpi, progress, how);
    FinishSurface(surface.get());
    return TellingSize(file, width, height);
}

}  // namespace host
