#include "map_page/template_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "map_page/error.h"
#include "page/document/opened_page.h"
#include "page/map/distance_unit.h"
#include "page/units.h"
#include "system/utf8.h"

namespace map_page {
namespace {

// Options of a single value; extent, stretch, bands and noData are columns of their own.
constexpr std::string_view kColumns[] = {
    "title-font",  "title-size",  "title-style", "picture",       "legend-title",
    "legend-font", "scale",       "scale-bar",   "divisions",     "subdivisions",
    "units",       "unit-name",   "fit",         "unit-position", "distances",
    "north-arrow", "north-angle", "size",        "border",        "shadow",
    "background",  "language"};

/// The given options as changes to a page.
class Changes {
public:
    explicit Changes(const CLI::App& app) : m_app(app) {}

    bool Has(const char* option) const { return m_app.get_option(option)->count() > 0; }

    void Element(const char* option, MapSurroundType family, const char* property,
                 const host::PropertyValue& value) {
        if (Has(option)) {
            changes.elements.push_back({option, family, property, value});
        }
    }
    template <class Enumeration>
    void Choice(const char* option, MapSurroundType family, const char* property,
                Enumeration value) {
        Element(option, family, property, static_cast<std::int32_t>(value));
    }
    void Style(const char* option, MapSurroundType family,
               const host::CatalogueEntry* style) {
        if (Has(option)) {
            changes.styles.push_back({option, family, style});
        }
    }
    void Frames(const char* option, const char* drawn, const char* colour,
                const std::optional<Gdiplus::Color>& value) {
        if (!Has(option)) {
            return;
        }
        changes.frames.emplace_back(drawn, value.has_value());
        if (value) {
            changes.frames.emplace_back(colour, value->GetValue());
        }
    }

    host::PageChanges changes;

private:
    const CLI::App& m_app;
};

void ChangeTexts(const Given& given, const host::PageDesign& design, Changes& changes) {
    changes.Element("--title-font", SurroundMapTitle, "font", given.titleFont);
    changes.Choice("--title-style", SurroundMapTitle, "fontStyle", design.title.style);
    changes.Element("--title", SurroundMapTitle, "text", given.title);
    changes.Element("--title-size", SurroundMapTitle, "fontSize",
                    host::UnitsFromPoints(design.title.points.value_or(0.0)));
    changes.Element("--picture", SurroundPicture, "path", given.picture);
    if (given.noLegend) {
        changes.Style("--no-legend", SurroundLegend, nullptr);
    }
    changes.Element("--legend-title", SurroundLegend, "title", given.legendTitle);
    changes.Element("--legend-font", SurroundLegend, "titleFont", given.legendFont);
    changes.Element("--legend-font", SurroundLegend, "fileNameFont", given.legendFont);
}

void ChangeBar(const host::ScaleBarDesign& design, Changes& changes) {
    changes.Style("--scale-bar", SurroundScaleBar, design.style.value_or(nullptr));
    for (const char* const option : {"--units", "--distances"}) {
        // A bar that counts what it says, and so follows the map.
        changes.Element(option, SurroundScaleBar, "exact", true);
        changes.Choice(option, SurroundScaleBar, "distances", design.distances);
    }
    if (design.unit) {
        changes.Choice("--units", SurroundScaleBar, "unit", *design.unit);
        if (!host::IsLength(*design.unit)) {
            changes.Choice("--units", SurroundScaleBar, "distances",
                           host::BarDistances::Map);
        }
    }
    changes.Element("--unit-name", SurroundScaleBar, "units",
                    host::Narrow(design.unitName.value_or(L"")));
    changes.Choice("--unit-position", SurroundScaleBar, "unitPosition",
                   design.unitPosition);
    changes.Choice("--fit", SurroundScaleBar, "fit", design.fit);
    changes.Element("--divisions", SurroundScaleBar, "divisions",
                    std::int32_t{design.divisions.value_or(0)});
    changes.Element("--subdivisions", SurroundScaleBar, "subdivisions",
                    std::int32_t{design.subdivisions});
}

void ChangeArrow(const host::NorthArrowDesign& design, Changes& changes) {
    changes.Style("--north-arrow", SurroundNorthArrow, design.style.value_or(nullptr));
    changes.Element("--north-angle", SurroundNorthArrow, "trueNorth",
                    !design.angle.has_value());
    if (design.angle) {
        changes.Element("--north-angle", SurroundNorthArrow, "angle", *design.angle);
    }
}

void ChangePaper(const Given& given, const host::PageDesign& design, Changes& changes) {
    if (!changes.Has("--size") && !changes.Has("--portrait")) {
        return;
    }
    host::PaperChange paper;
    paper.isUpright = given.portrait;
    if (changes.Has("--size")) {
        paper.paper = design.paper;
        // Sides in millimetres are taken as given; a named sheet may be turned.
        const char first = given.size.empty() ? '0' : given.size.front();
        paper.turns = first < '0' || first > '9';
    }
    changes.changes.paper = paper;
}

}  // namespace

void CheckGoesWithPageFile(const CLI::App& app, const Given& given) {
    if (app.get_option("--save")->count() > 0 &&
        app.get_option("--series")->count() > 0) {
        throw UsageError("--save", "cannot be used with --series");
    }
    if (app.get_option("--layout")->count() > 0) {
        throw UsageError("--layout",
                         "cannot be used with a page file, which has its layout");
    }
    const auto second =
        std::find_if(given.rasters.begin() + 1, given.rasters.end(), host::IsPageFile);
    if (second != given.rasters.end()) {
        throw UsageError(*second, "is a second page file");
    }
}

host::PageChanges TemplateChanges(const CLI::App& app, const Given& given,
                                  const Options& options) {
    const host::PageDesign& design = options.design;
    Changes changes(app);
    ChangePaper(given, design, changes);
    ChangeTexts(given, design, changes);
    ChangeBar(design.scaleBar, changes);
    ChangeArrow(design.northArrow, changes);
    changes.Frames("--border", "border", "borderColor", design.frames.border);
    changes.Frames("--shadow", "shadow", "shadowColor", design.frames.shadow);
    changes.Frames("--background", "fill", "fillColor", design.frames.background);
    changes.changes.numericScale = design.scaleBar.numeric;
    changes.changes.rasters = options.rasters;
    changes.changes.extent = design.map.extent;
    changes.changes.scale = design.map.scale;
    changes.changes.language = changes.Has("--language") ? design.language : nullptr;
    changes.changes.mapTexts = MapTexts(given.style);
    return std::move(changes.changes);
}

bool IsOptionColumn(const std::string& name) {
    return std::find(std::begin(kColumns), std::end(kColumns), name) !=
           std::end(kColumns);
}

host::PageChanges ChangesOfCells(const std::vector<std::string>& cells) {
    std::vector<const char*> arguments = {"map_page", "page.json", "-o", "page.png"};
    for (const std::string& cell : cells) {
        arguments.push_back(cell.c_str());
    }
    return std::get<Options>(
               ReadCommandLine(static_cast<int>(arguments.size()), arguments.data()))
        .changes;
}

}  // namespace map_page
