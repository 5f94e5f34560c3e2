#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "map_surround/frame.h"

namespace host {

/// What a scale bar on a page measures.
enum class BarDistances : std::int32_t {
    Fixed,   ///< what it was told to
    Map,     ///< the map on the page, in map units
    Ground,  ///< the ground in the middle of that map, along the ellipsoid
};

/// A frame that holds its element off the middle, and keeps a scale bar true to the map
/// at any resolution.
///
/// Scale bars and legends take some values that they do not give back. They are set
/// through the frame, once it holds the element, and the frame remembers them.
class PlacedFrame : public CSurroundFrame {
public:
    /// What people call it; drawn nowhere. UTF-8.
    const std::string& Name() const { return m_name; }
    void SetName(std::string name) { m_name = std::move(name); }

    /// Where the element's centre stands from the middle of the frame: page units, y
    /// growing upwards.
    void SetElementOffset(double dx, double dy);
    CPoint2D ElementOffset() const { return {m_offsetX, m_offsetY}; }

    /// The length on the page, in page units, of a scale bar's division before it is
    /// rounded to a nice value. Has no meaning for other elements.
    void SetDivisionLength(double length);
    double DivisionLength() const { return m_divisionLength; }

    /// What that length stands for, in the bar's unit.
    void SetDivisionValue(double value);
    double DivisionValue() const { return m_divisionValue; }

    /// What the bar is kept true to by FitToMap. Has no meaning for other elements.
    void SetBarDistances(BarDistances distances) { m_barDistances = distances; }
    BarDistances GetBarDistances() const { return m_barDistances; }

    /// Whether FitToMap turns a north arrow to true north. Has no meaning for others.
    void SetTrueNorth(bool trueNorth) { m_trueNorth = trueNorth; }
    bool TrueNorth() const { return m_trueNorth; }

    /// What a legend's font sizes are multiplied by when it is measured. Has no meaning
    /// for other elements.
    void SetLegendSizeFactor(float factor);
    float LegendSizeFactor() const { return m_legendSizeFactor; }

    /// The rasters that a legend explains, by path. Naming them opens nothing.
    void SetRasterPaths(std::vector<std::string> paths) {
        m_rasterPaths = std::move(paths);
    }
    const std::vector<std::string>& RasterPaths() const { return m_rasterPaths; }

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    std::string m_name;
    double m_offsetX = 0.0;
    double m_offsetY = 0.0;
    double m_divisionLength = 25.0;
    double m_divisionValue = 1.0;
    BarDistances m_barDistances = BarDistances::Fixed;
    bool m_trueNorth = false;
    float m_legendSizeFactor = 1.0f;
    std::vector<std::string> m_rasterPaths;
};

}  // namespace host
