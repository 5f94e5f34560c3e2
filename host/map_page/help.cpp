#include "map_page/help.h"

#include <cstddef>
#include <string_view>

#include "page/colour_text.h"

namespace map_page {
namespace {

constexpr const char* kFooter = R"(
The rasters lie on top of each other like a list of layers: the first is on top and sets
the coordinate system. The map spans all of them. A raster in another coordinate system or
without a georeference is left off the map, with a warning.

If the first name ends in .json, it is a page file: it is drawn with the changes that the
options make, and with any rasters after it in place of its own. --save writes the page
that would be drawn as a page file, to be edited by hand; docs/page_file.md describes it.

A page file may come from somebody else. So it, and the list of a series, may only have
plain files below their folders read, and nothing is written but the output. The same
document says what follows from that, and what --allow-outside, --allow-remote and
--allow-all change.

A series draws one page for each row of a list of comma-separated values. Its first row
names the columns: rasters (files with ; between), extent (left bottom right top), names of
options, such as scale and title-size, and names of elements, such as title, for their
text. Any column may be part of the output's name. An empty cell keeps what the page file
says. A PDF file without a column in its name takes all pages, with a bookmark each.
Existing outputs are not drawn again. docs/series.md has the details.

A raster is stretched by all of its values, so that one value has one shade on every page
and in the legend, whose range is the range drawn. Classes keep their colours.

COLOR is on (the default colour), off, #RRGGBB, #RRGGBBAA or one of
{colours}.

Anything on a page that would trouble its reader gives a warning: an element that leaves
its frame or the sheet, overlaps another one or the edge of a map, or is set in type below
5 points. --strict makes this, and every other warning, a failure.

Exit status: 0 when the page was drawn, 1 when it could not be, 2 for a wrong command line.

Examples:
  map_page scene.tif -o page.png --title "Olinda" --picture logo.png
  map_page west.tif east.tif -o page.jpg --size A3 --dpi 300 --shadow off
  map_page scene.tif --title "Olinda" --save page.json
  map_page page.json -o page.png
  map_page page.json -o a3.pdf --size A3 --scale 1:25000 --title "Recife"
  map_page page.json --series sheets.csv -o 'sheets/{name}.png' --jobs 4)";

}  // namespace

std::string HelpDescription() {
    return "Draws rasters as a map on a page with a title, a legend, a scale bar, a "
           "north "
           "arrow and a picture, into an image file; or draws a page file.";
}

std::string HelpFooter() {
    constexpr std::size_t kNamesInALine = 12;
    constexpr std::string_view kPlace = "{colours}";
    std::string names;
    std::size_t count = 0;
    for (const std::string& name : host::ColourNames()) {
        names += (count++ % kNamesInALine == 0 ? "\n" : " ") + name;
    }
    std::string footer = kFooter;
    return footer.replace(footer.find(kPlace), kPlace.size(), names.substr(1));
}

}  // namespace map_page
