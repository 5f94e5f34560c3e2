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

/// A new value for a property of the page's element of a family: the only one, or among
/// several the one named as on an automatic page, "scale bar".
struct ElementChange {
    std::string asked;  ///< the option that asks for it, for messages: "--divisions"
    MapSurroundType family = SurroundNone;
    std::string property;
    PropertyValue value;
};

/// Another style for that element; null removes every element of the family.
struct StyleChange {
    std::string asked;
    MapSurroundType family = SurroundNone;
    const CatalogueEntry* style = nullptr;
};

/// Another sheet, with the page in its middle, as large as it fits.
struct PaperChange {
    std::optional<PaperSize> paper;  ///< else its own
    bool turns = false;              ///< upright if the page is
    bool isUpright = false;          ///< upright in any case
};

/// How a page differs from its page file, as the pages of a series do.
struct PageChanges {
    std::vector<std::string> rasters;    ///< empty: as in the page file
    std::optional<Box> extent;           ///< likewise
    std::optional<double> scale;         ///< likewise
    const Language* language = nullptr;  ///< of legends and scale bars; null: as they are
    std::optional<PaperChange> paper;    ///< likewise
    bool numericScale = false;           ///< adds the scale in figures
    std::vector<StyleChange> styles;
    std::vector<ElementChange> elements;
    /// Names and values of properties, for every frame with an element.
    std::vector<std::pair<std::string, PropertyValue>> frames;
    /// Names and texts of properties, for every map: {"stretch", "minmax"}.
    std::vector<std::pair<std::string, std::string>> mapTexts;
    /// Names of elements and their texts, in UTF-8.
    std::vector<std::pair<std::string, std::string>> texts;
};

/// Both together; the second take precedence.
PageChanges Merged(PageChanges first, const PageChanges& then);

/// Changes a page whose rasters are not open yet. Every map and legend gets the rasters,
/// every map the extent and the texts, every title with a name its text, every legend
/// with a name its first line; a frame that its title outgrows is widened, and a title
/// that still does not fit is set smaller. Throws PageError for an invalid value, and
/// where the page has no such element.
/// @return the titles set smaller, one line each
std::vector<std::string> Change(Page& page, const PageChanges& changes);

/// Opens the rasters of a page after Change. A legend with other rasters or texts is
/// measured again and kept within its frame; scale bars, north arrows and numeric scales
/// follow the map, and a missing one that is wanted is added. Throws PageError for what
/// cannot be opened.
/// @return what could not be made true to the map, one line each
std::vector<std::string> OpenChanged(Page& page, const PageChanges& changes,
                                     RasterStore& store);

/// Whether an element with that name has a text.
bool HasText(const Page& page, const std::string& name);

}  // namespace host
