#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "map_surround/frame.h"
#include "map_surround/legend.h"
#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/language.h"
#include "page/map/shown_map.h"

namespace host {

/// A frame on a page: it has a name, and may hold its element off centre.
class PlacedFrame : public CSurroundFrame {
public:
    /// A frame without an element.
    PlacedFrame() = default;

    explicit PlacedFrame(std::unique_ptr<CMapSurround> element) {
        SetMapSurround(element.release());
    }

    /// The name of the frame; drawn nowhere. UTF-8.
    const std::string& Name() const { return m_name; }
    void SetName(std::string name) { m_name = std::move(name); }

    /// Read aloud in place of the element, where the page's own words do not describe it
    /// well. UTF-8; empty for the page's own.
    const std::string& AlternativeText() const { return m_alternativeText; }
    void SetAlternativeText(std::string text) { m_alternativeText = std::move(text); }

    /// The offset of the element's centre from the middle of the frame: page units, y
    /// growing upwards.
    void SetElementOffset(double dx, double dy) { m_offset = {dx, dy}; }
    CPoint2D ElementOffset() const { return m_offset; }

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

protected:
    /// The device pixel of the element's centre, given that of the frame's middle.
    CPoint ElementCentre(CPoint middle, double scale) const;

private:
    std::string m_name;
    std::string m_alternativeText;
    CPoint2D m_offset;
};

/// What a scale bar keeps when its map changes; the rest follows from the map.
enum class BarFit : std::int32_t {
    Count,  ///< the number of divisions
    Width,  ///< the width, as far as whole divisions allow
    Value,  ///< the distance of a division
};

/// The frame of a scale bar, which keeps the bar true to the map at any resolution. A bar
/// has no getter for its division, so it is set through the frame, which remembers it.
class ScaleBarFrame : public PlacedFrame {
public:
    explicit ScaleBarFrame(std::unique_ptr<CScaleBarBase> bar);

    /// The length of a division on the page, in page units, before the bar rounds its
    /// value.
    void SetDivisionLength(double length);
    double DivisionLength() const { return m_divisionLength; }

    /// The distance that a division stands for, in the bar's unit.
    void SetDivisionValue(double value);
    double DivisionValue() const { return m_divisionValue; }

    /// Whether the whole bar is true to a pixel. A bar cuts each of its divisions to
    /// whole pixels: ten of 9.99 are 90 long, not 99.9. An exact one is drawn with the
    /// nearest whole pixels, and stretched by the rest where that is a seventh of a pixel
    /// or more.
    void SetExact(bool isExact) { m_isExact = isExact; }
    bool IsExact() const { return m_isExact; }

    /// The unit that the bar counts in; the name of the unit is the bar's own.
    void SetUnit(DistanceUnit unit) { m_unit = unit; }
    DistanceUnit Unit() const { return m_unit; }

    /// The language in which the bar names a unit that is chosen by length; English by
    /// default.
    void SetLanguage(const Language& language) { m_language = PlaceOf(language); }
    const Language& GetLanguage() const { return LanguageAt(m_language); }

    /// The same, by its index in Languages().
    void SetLanguagePlace(std::int32_t place) { m_language = place; }
    std::int32_t LanguagePlace() const { return m_language; }

    /// What FitToMap leaves as it is.
    void SetFit(BarFit fit) { m_fit = fit; }
    BarFit Fit() const { return m_fit; }

    /// The greatest length that FitToMap gives the whole bar, page units; 0 for its
    /// present length.
    void SetLongest(double length) { m_longest = length; }
    double Longest() const { return m_longest; }

    /// The distances that FitToMap keeps the bar true to.
    void SetBarDistances(BarDistances distances) { m_distances = distances; }
    BarDistances GetBarDistances() const { return m_distances; }

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    double m_divisionLength = 25.0;
    double m_divisionValue = 1.0;
    BarDistances m_distances = BarDistances::Fixed;
    bool m_isExact = true;
    DistanceUnit m_unit = DistanceUnit::Metric;
    std::int32_t m_language = 0;
    BarFit m_fit = BarFit::Count;
    double m_longest = 0.0;
};

/// The frame of a north arrow.
class NorthArrowFrame : public PlacedFrame {
public:
    explicit NorthArrowFrame(std::unique_ptr<CNorthArrowBase> arrow)
        : PlacedFrame(std::move(arrow)) {}

    /// Whether FitToMap turns the arrow to true north.
    void SetTrueNorth(bool trueNorth) { m_trueNorth = trueNorth; }
    bool TrueNorth() const { return m_trueNorth; }

    /// Whether an arrow of one angle looks the same at every size and resolution. As the
    /// library draws it, its head grows with the square of its pixels, until it fills the
    /// sheet.
    void SetExact(bool isExact) { m_isExact = isExact; }
    bool IsExact() const { return m_isExact; }

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    bool m_trueNorth = false;
    bool m_isExact = true;
};

/// The frame of a legend, which remembers what a legend has no getter for.
class LegendFrame : public PlacedFrame {
public:
    explicit LegendFrame(std::unique_ptr<CMapLegend> legend)
        : PlacedFrame(std::move(legend)) {}

    /// The factor for the legend's font sizes when it is measured.
    void SetSizeFactor(float factor);
    float SizeFactor() const { return m_sizeFactor; }

    /// The rasters that the legend explains, by path. Naming them opens nothing.
    void SetRasterPaths(std::vector<std::string> paths) {
        m_rasterPaths = std::move(paths);
    }
    const std::vector<std::string>& RasterPaths() const { return m_rasterPaths; }

    /// The names of the rasters, one line each in the order of the paths; for an empty or
    /// missing line, the file's name.
    void SetNames(std::wstring lines) { m_names = std::move(lines); }
    std::wstring Names() const { return m_names; }

    /// Whether tiles of one mosaic become one entry (see JoinTiles) when sources are set.
    void SetJoinsTiles(bool joins) { m_joinsTiles = joins; }
    bool JoinsTiles() const { return m_joinsTiles; }

    /// Whether a raster whose palette is a ramp is explained by the ramp when sources are
    /// set, rather than by a class for each of its values.
    void SetExplainsRamps(bool explains) { m_explainsRamps = explains; }
    bool ExplainsRamps() const { return m_explainsRamps; }

    /// The sources that the legend explains, and the name of each; not owned.
    void SetSources(std::vector<CGISDataSource*> sources,
                    std::vector<LegendSource> shown = {});
    const std::vector<CGISDataSource*>& Sources() const { return m_sources; }

private:
    float m_sizeFactor = 1.0f;
    std::vector<std::string> m_rasterPaths;
    std::wstring m_names;
    bool m_joinsTiles = false;
    bool m_explainsRamps = false;
    std::vector<CGISDataSource*> m_sources;
};

/// Takes over an element in the kind of frame that suits it: a ScaleBarFrame for a scale
/// bar.
std::unique_ptr<PlacedFrame> FrameFor(std::unique_ptr<CMapSurround> element);

}  // namespace host
