#include <string>

#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"
#include "raster_data/raster_style.h"

namespace host::tables {
namespace {

using Read = PropertyValue (*)(const PageItem&);
using Write = void (*)(PageItem&, const PropertyValue&);
using Check = std::string (*)(const std::string&);

RasterStyle& StyleOf(PageItem& item) { return SubjectOf<MapFrame>(item).style; }

const RasterStyle& StyleOf(const PageItem& item) {
    return SubjectOf<MapFrame>(item).style;
}

Property OfStyle(const char* name, const char* about, Read read, Write write, Check check,
                 const char* pattern) {
    Property property = Named<std::string>(name, about, PropertyKind::Text);
    property.read = read;
    property.write = write;
    property.checkText = check;
    property.pattern = pattern;
    return property;
}

}  // namespace

std::vector<Property> MapProperties() {
    return {
        OfField<&MapFrame::name>("name", "Its name; not drawn", PropertyKind::Text),
        OfField<&MapFrame::alternativeText>("alternativeText", kAlternativeText,
                                            PropertyKind::Text),
        OfField<&MapFrame::rasterPaths>("rasters", "Files on the map, the first on top",
                                        PropertyKind::Rasters),
        OfField<&MapFrame::extent>("extent",
                                   "The part shown, in map units; null for all of it",
                                   PropertyKind::MapExtent),
        Within(OfField<&MapFrame::scale>(
                   "scale",
                   "The denominator of the scale that the frame keeps, 25000 for "
                   "1 : 25 000; null for as much of the map as it holds",
                   PropertyKind::Ratio),
               {1.0, 1.0e12}),
        OfStyle(
            "stretch",
            "Which values are black and white: auto, none, minmax, percent "
            "LOW HIGH, or stddev COUNT",
            [](const PageItem& item) {
                return PropertyValue(StyleOf(item).stretch.Text());
            },
            [](PageItem& item, const PropertyValue& value) {
                const auto stretch = ParseStretch(std::get<std::string>(value));
                StyleOf(item).stretch = stretch.value_or(StyleOf(item).stretch);
            },
            [](const std::string& text) { return RasterStyle::WhyNoStretch(text); },
            "^(auto|none|minmax|percent [0-9.eE+-]+ [0-9.eE+-]+|stddev [0-9.eE+-]+)$"),
        OfStyle(
            "bands",
            "Numbers of the bands shown: RED,GREEN,BLUE, or one; empty for those that "
            "the raster marks as such",
            [](const PageItem& item) { return PropertyValue(StyleOf(item).BandsText()); },
            [](PageItem& item, const PropertyValue& value) {
                StyleOf(item).ParseBands(std::get<std::string>(value));
            },
            [](const std::string& text) { return RasterStyle::WhyNoBands(text); },
            "^([0-9]+(,[0-9]+,[0-9]+)?)?$"),
        OfStyle(
            "noData",
            "Value of pixels that are not drawn, or none; empty for the files' own",
            [](const PageItem& item) {
                return PropertyValue(StyleOf(item).NoDataText());
            },
            [](PageItem& item, const PropertyValue& value) {
                StyleOf(item).ParseNoData(std::get<std::string>(value));
            },
            [](const std::string& text) { return RasterStyle::WhyNoNoData(text); },
            "^(none|nan|[0-9.eE+-]+)?$"),
    };
}

}  // namespace host::tables
