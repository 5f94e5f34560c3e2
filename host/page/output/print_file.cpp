#include "page/output/print_file.h"

#include <cairo-pdf.h>
#include <cairo-ps.h>
#include <gdiplus/cairo.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

#include "page/units.h"

namespace host {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr const char* kTitle = "map page";

cairo_status_t Append(void* bytes, const unsigned char* data, unsigned int length) {
    try {
        static_cast<Bytes*>(bytes)->insert(static_cast<Bytes*>(bytes)->end(), data,
                                           data + length);
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_WRITE_ERROR;
    }
    return CAIRO_STATUS_SUCCESS;
}

cairo_surface_t* SurfaceOf(OutputFormat format, double width, double height,
                           Bytes& file) {
    if (format == OutputFormat::PostScript) {
        return cairo_ps_surface_create_for_stream(Append, &file, width, height);
    }
    cairo_surface_t* const surface =
        cairo_pdf_surface_create_for_stream(Append, &file, width, height);
    cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_TITLE, kTitle);
    return surface;
}

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
        return std::string("%%Title: ") + kTitle;
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

std::vector<std::uint8_t> EncodeForPrint(const Page& page, OutputFormat format,
                                         double dpi, const Progress& progress) {
    const double width = PointsFromUnits(page.Width());
    const double height = PointsFromUnits(page.Height());
    Bytes file;
    const std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> surface(
        SurfaceOf(format, width, height, file), cairo_surface_destroy);
    const std::unique_ptr<cairo_t, void (*)(cairo_t*)> cairo(cairo_create(surface.get()),
                                                             cairo_destroy);
    const double pixel = 72.0 / dpi;
    cairo_scale(cairo.get(), pixel, pixel);
    {
        Gdiplus::CairoGraphics graphics(cairo.get(), static_cast<float>(dpi));
        page.Draw(graphics, dpi, progress);
    }
    cairo_surface_finish(surface.get());
    for (const cairo_status_t status :
         {cairo_surface_status(surface.get()), cairo_status(cairo.get())}) {
        if (status != CAIRO_STATUS_SUCCESS) {
            throw std::runtime_error(std::string("the page cannot be written: ") +
                                     cairo_status_to_string(status));
        }
    }
    return format == OutputFormat::PostScript ? TellingSize(file, width, height) : file;
}

}  // namespace host
