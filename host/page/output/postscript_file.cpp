#include "page/output/postscript_file.h"

#include <cairo-ps.h>
#include <sys/mman.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

#include "page/output/cairo_page.h"
#include "page/units.h"
#include "page/words/page_words.h"

// Cairo writes PostScript through tmpfile(). A confined process may not open files in a
// folder that others use, so here it is a file in memory.
extern "C" [[gnu::visibility("default")]] std::FILE* tmpfile() {
    const int descriptor = memfd_create("page", MFD_CLOEXEC);
    return descriptor < 0 ? nullptr : fdopen(descriptor, "w+b");
}

namespace host {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// The title as a comment, a line of at most 255 ASCII characters; empty for a title that
/// cannot be written so.
std::string TitleLine(const std::string& title) {
    constexpr std::size_t kMost = 200;
    const bool isPlain = std::all_of(title.begin(), title.end(),
                                     [](char c) { return c >= ' ' && c <= '~'; });
    return isPlain && !title.empty() && title.size() <= kMost ? "%%Title: " + title + "\n"
                                                              : "";
}

/// What the comments say about a page.
struct Told {
    double width;
    double height;
    std::string title;
};

std::string Number(double number) {
    char text[32];
    // Never in scientific notation: a page has at most 5 digits of points.
    std::snprintf(text, sizeof text, "%.6f", number);
    for (char& c : text) {
        c = c == ',' ? '.' : c;  // in any locale
    }
    return text;
}

std::string Whole(double number) {
    return std::to_string(static_cast<long>(std::ceil(number)));
}

/// Replaces a line that gives the size of what was drawn, since the page may be larger;
/// returns any other line unchanged, with its end.
std::string InPlaceOf(std::string_view line, const Told& told) {
    const auto [width, height, title] = told;
    const auto begins = [line](std::string_view with) {
        return line.substr(0, with.size()) == with;
    };
    const std::string size = Number(width) + " " + Number(height);
    const std::string box = "0 0 " + Whole(width) + " " + Whole(height);
    if (begins("%%CreationDate:")) {
        // A date would make the file differ each time.
        return TitleLine(title);
    }
    if (begins("%%DocumentMedia:")) {
        return "%%DocumentMedia: page " + size + " 0 () ()\n";
    }
    if (begins("%%BoundingBox:")) {
        return "%%BoundingBox: " + box + "\n%%HiResBoundingBox: 0 0 " + size + "\n";
    }
    if (begins("%%PageMedia:")) {
        return "%%PageMedia: page\n";
    }
    if (begins("%%PageBoundingBox:")) {
        return "%%PageBoundingBox: " + box + "\n";
    }
    constexpr std::string_view sets = " cairo_set_page_size";
    if (line.size() > sets.size() && line.substr(line.size() - sets.size()) == sets) {
        // Cairo drew from the top of a page of whole points.
        return size + std::string(sets) + "\n0 " + Number(height - std::ceil(height)) +
               " translate\n";
    }
    return std::string(line) + "\n";
}

/// Writes the page's title and true size into the comments and the page's set-up: between
/// the two stand only shared definitions, and after them the page.
Bytes Telling(const Told& told, const Bytes& file) {
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
            append(InPlaceOf(text.substr(from, end - from), told));
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
    return Telling({width, height, WordsOf(page).about.title}, file);
}

}  // namespace host
