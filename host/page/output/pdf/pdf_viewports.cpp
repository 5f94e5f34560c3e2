#include "page/output/pdf/pdf_viewports.h"

#include <ogr_spatialref.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <optional>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>

#include "page/units.h"
#include "raster_data/gdal_session.h"

namespace host {
namespace {

// From the lower left corner up the left side, as fractions of the map.
constexpr std::array<double, 4> kCornersX = {0.0, 0.0, 1.0, 1.0};
constexpr std::array<double, 4> kCornersY = {0.0, 1.0, 1.0, 0.0};

QPDFObjectHandle Numbers(const std::vector<double>& numbers) {
    constexpr int kDecimals = 12;  // a ten thousandth of a millimetre, in degrees
    QPDFObjectHandle array = QPDFObjectHandle::newArray();
    for (const double number : numbers) {
        array.appendItem(QPDFObjectHandle::newReal(number, kDecimals));
    }
    return array;
}

/// Latitude and longitude of each corner, in degrees.
std::optional<std::vector<double>> PlacesOf(const Box& extent,
                                            const OGRSpatialReference& system) {
    const std::unique_ptr<OGRSpatialReference> geographic(system.CloneGeogCS());
    if (geographic == nullptr) {
        return std::nullopt;
    }
    geographic->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    std::array<double, 4> x{};
    std::array<double, 4> y{};
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = extent.left + kCornersX[i] * extent.Width();
        y[i] = extent.bottom + kCornersY[i] * extent.Height();
    }
    if (system.IsGeographic() == 0) {
        const std::unique_ptr<OGRCoordinateTransformation> way(
            OGRCreateCoordinateTransformation(&system, geographic.get()));
        if (way == nullptr ||
            way->Transform(static_cast<int>(x.size()), x.data(), y.data()) == 0) {
            return std::nullopt;
        }
    }
    std::vector<double> places;
    for (std::size_t i = 0; i < x.size(); ++i) {
        places.insert(places.end(), {y[i], x[i]});
        if (!std::isfinite(x[i] + y[i])) {
            return std::nullopt;
        }
    }
    return places;
}

/// In the form that programs measuring in PDF files know, else in GDAL's.
std::string WktOf(const OGRSpatialReference& system) {
    for (const char* const format : {"FORMAT=WKT1_ESRI", "FORMAT=WKT1_GDAL"}) {
        const std::array<const char*, 2> options = {format, nullptr};
        char* text = nullptr;
        const OGRErr error = system.exportToWkt(&text, options.data());
        std::string wkt = text == nullptr ? "" : text;
        CPLFree(text);
        if (error == OGRERR_NONE && !wkt.empty()) {
            return wkt;
        }
    }
    return {};
}

std::optional<QPDFObjectHandle> MeasureOf(const GeoreferencedMap& map) {
    OGRSpatialReference system;
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (map.projection.empty() ||
        system.importFromWkt(map.projection.c_str()) != OGRERR_NONE) {
        return std::nullopt;
    }
    const std::optional<std::vector<double>> places = PlacesOf(map.extent, system);
    const std::string wkt = WktOf(system);
    if (!places || wkt.empty()) {
        return std::nullopt;
    }
    QPDFObjectHandle known = QPDFObjectHandle::newDictionary();
    known.replaceKey("/Type", QPDFObjectHandle::newName(
                                  system.IsGeographic() != 0 ? "/GEOGCS" : "/PROJCS"));
    known.replaceKey("/WKT", QPDFObjectHandle::newString(wkt));
    const char* const authority = system.GetAuthorityName(nullptr);
    const char* const code = system.GetAuthorityCode(nullptr);
    if (authority != nullptr && code != nullptr && std::string(authority) == "EPSG") {
        known.replaceKey("/EPSG", QPDFObjectHandle::newInteger(std::atoi(code)));
    }
    std::vector<double> corners;
    for (std::size_t i = 0; i < kCornersX.size(); ++i) {
        corners.insert(corners.end(), {kCornersX[i], kCornersY[i]});
    }
    QPDFObjectHandle measure = QPDFObjectHandle::newDictionary();
    measure.replaceKey("/Type", QPDFObjectHandle::newName("/Measure"));
    measure.replaceKey("/Subtype", QPDFObjectHandle::newName("/GEO"));
    measure.replaceKey("/Bounds", Numbers(corners));
    measure.replaceKey("/LPTS", Numbers(corners));
    measure.replaceKey("/GPTS", Numbers(*places));
    measure.replaceKey("/GCS", known);
    return measure;
}

}  // namespace

bool AddViewports(PdfObjects& objects, QPDFObjectHandle page,
                  const std::vector<GeoreferencedMap>& maps, double dpi) {
    const QuietGdal messages;
    const double height = page.getKey("/MediaBox").getArrayItem(3).getNumericValue();
    const double pixel = kPointsPerInch / dpi;
    QPDFObjectHandle viewports = QPDFObjectHandle::newArray();
    for (const GeoreferencedMap& map : maps) {
        const std::optional<QPDFObjectHandle> measure = MeasureOf(map);
        if (!measure) {
            continue;
        }
        QPDFObjectHandle viewport = QPDFObjectHandle::newDictionary();
        viewport.replaceKey("/Type", QPDFObjectHandle::newName("/Viewport"));
        viewport.replaceKey("/Name", QPDFObjectHandle::newUnicodeString(map.name));
        viewport.replaceKey(
            "/BBox",
            Numbers({map.pixels.left * pixel, height - map.pixels.bottom * pixel,
                     map.pixels.right * pixel, height - map.pixels.top * pixel}));
        viewport.replaceKey("/Measure", PdfObjects::Reference(objects.Write(*measure)));
        viewports.appendItem(viewport);
    }
    if (viewports.getArrayNItems() == 0) {
        return false;
    }
    page.replaceKey("/VP", viewports);
    return true;
}

}  // namespace host
