#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "page/box.h"
#include "page/catalogue.h"
#include "page/document/property.h"
#include "page/document/raster_store.h"
#include "page/language.h"
#include "page/page.h"
#include "page/paper.h"

namespace host {

/// Another value of a property of the page's element of a family: of its only one, or of
/// several the one that is called as on an automatic page, "scale bar".
struct ElementChange {
    std::string asked;  ///< who asks for it, for messages: "--divisions"
    MapSurroundType family = SurroundNone;
    std::string property;
    PropertyValue value;
};

/// Another style of that element; null takes all of the family away.
struct StyleChange {
    std::string asked;
    MapSurroundType family = SurroundNone;
    const CatalogueEntry* style = nullptr;
};

/// Another sheet, on which the page stands in the middle, as large as it fits.
struct PaperChange {
    std::optional<PaperSize> paper;  ///< else its own
    bool turns = false;              ///< upright where the page is
    bool isUpright = false;          ///< in any case
};

/// What a page has otherwise than its page file, as the pages of a series have.
struct PageChanges {
    std::vector<std::string> rasters;    ///< none: as in the page file
    std::optional<Box> extent;           ///< likewise
    std::optional<double> scale;         ///< likewise
    const Language* language = nullptr;  ///< of legends and scale bars; null: as they are
    std::optional<PaperChange> paper;    ///< likewise
    bool numericScale = false;           ///< the scale in figures, if it has none
    std::vector<StyleChange> styles;
    std::vector<ElementChange> elements;
    /// Names of properties of every frame with an element, and their values.
    std::vector<std::pair<std::string, PropertyValue>> frames;
    /// Names of properties that every map has, and their texts: {"stretch", "minmax"}.
    std::vector<std::pair<std::string, std::string>> mapTexts;
    /// Names of elements and their texts, in UTF-8.
    std::vector<std::pair<std::string, std::string>> texts;
};

/// Both, of which the latter prevail.
PageChanges Merged(PageChanges first, const PageChanges& then);

/// Changes a page whose rasters are not open yet. Every map and legend has the rasters,
/// every map the extent and the texts, every title of a name the text, every legend of a
/// name the first line; the frame of a title that gets longer than it is widened, and
/// what it has no room for is set smaller. Throws PageError for a value that is none, and
/// where the page has no such element.
/// @return which titles were set smaller, one line each
std::vector<std::string> Change(Page& page, const PageChanges& changes);

/// Opens the rasters of a page that was changed so. A legend of other rasters or with
/// other texts is measured again, and no larger than its frame; scale bars, north arrows
/// and numeric scales follow the map, and one that is wanted is added. Throws PageError
/// for what cannot be opened.
/// @return what could not be made true to the map, one line each
std::vector<std::string> OpenChanged(Page& page, const PageChanges& changes,
                                     RasterStore& store);

/// Whether an element of that name has a text.
bool HasText(const Page& page, const std::string& name);

}  // namespace host
