#pragma once

#include <gdiplus.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/common_functions.h"
#include "host/raster_data.h"
#include "map_surround/map_surround.h"

namespace gallery {

class Class : public CClassifyDisplayItem {
public:
    Class(std::wstring label, Gdiplus::Color color)
        : m_label(std::move(label)), m_color(color) {}

    std::wstring GetLable() override { return m_label; }
    void GetColor(unsigned char& red, unsigned char& green, unsigned char& blue,
                  unsigned char& alpha) override {
        red = m_color.GetRed();
        green = m_color.GetGreen();
        blue = m_color.GetBlue();
        alpha = m_color.GetAlpha();
    }

private:
    std::wstring m_label;
    Gdiplus::Color m_color;
};

/// A raster without pixels: only what a legend queries.
class Raster : public CRasterSource, private CRasterBand, private CClassifyDisplayTable {
public:
    static std::unique_ptr<Raster> Rgb(std::wstring name, int red, int green, int blue) {
        auto raster = std::make_unique<Raster>(std::move(name), DisplayRGB);
        raster->m_red = red;
        raster->m_green = green;
        raster->m_blue = blue;
        return raster;
    }
    static std::unique_ptr<Raster> Gray(std::wstring name, double lowest,
                                        double highest) {
        auto raster = std::make_unique<Raster>(std::move(name), DisplayGray);
        raster->m_lowest = lowest;
        raster->m_highest = highest;
        return raster;
    }
    static std::unique_ptr<Raster> Classified(std::wstring name,
                                              std::vector<Class> classes) {
        auto raster = std::make_unique<Raster>(std::move(name), DisplayClassified);
        raster->m_classes = std::move(classes);
        return raster;
    }
    Raster(std::wstring name, DataDisplayType display)
        : m_name(std::move(name)), m_display(display) {}

    bool IsAvailable() override { return true; }
    GISDataSourceType GetDataSourceType() override { return DataSourceRaster; }
    std::wstring GetFileName() override { return m_name; }
    DataDisplayType GetDisplayType() override { return m_display; }
    int GetRedBandNum() override { return m_red; }
    int GetGreenBandNum() override { return m_green; }
    int GetBlueBandNum() override { return m_blue; }
    CRasterBand* GetRasterBand(int) override { return this; }
    CClassifyDisplayTable* GetClassifyDisplayTable() override { return this; }

private:
    bool ComputeMinMax(double* min, double* max, bool) override {
        *min = m_lowest;
        *max = m_highest;
        return true;
    }
    int GetClassesCount() override { return static_cast<int>(m_classes.size()); }
    CClassifyDisplayItem* GetClassifyItem(int index) override {
        return &m_classes[static_cast<std::size_t>(index)];
    }

    std::wstring m_name;
    DataDisplayType m_display;
    int m_red = 0;
    int m_green = 0;
    int m_blue = 0;
    double m_lowest = 0.0;
    double m_highest = 0.0;
    std::vector<Class> m_classes;
};

using Rasters = std::vector<std::unique_ptr<Raster>>;

template <typename... Raster>
Rasters Of(Raster... raster) {
    Rasters rasters;
    (rasters.push_back(std::move(raster)), ...);
    return rasters;
}

inline std::unique_ptr<Raster> Scene() {
    return Raster::Rgb(L"landsat_2024.tif", 3, 2, 1);
}
inline std::unique_ptr<Raster> Elevation() {
    return Raster::Gray(L"elevation.tif", -3.7, 107.9);
}
inline std::unique_ptr<Raster> LandCover(const wchar_t* name) {
    return Raster::Classified(name, {{L"Water", Gdiplus::Color(0xFF4A7FB5)},
                                     {L"Mangrove", Gdiplus::Color(0xFF2E6B4F)},
                                     {L"Sugar cane", Gdiplus::Color(0xFFC9D36A)},
                                     {L"Built-up", Gdiplus::Color(0xFFB5574A)}});
}

/// A measured legend together with the rasters that it explains.
class ExplainedRasters {
public:
    ExplainedRasters(const CMapLegend& legend, Rasters rasters)
        : m_legend(legend), m_rasters(std::make_shared<Rasters>(std::move(rasters))) {
        std::vector<CGISDataSource*> sources;
        for (const std::unique_ptr<Raster>& raster : *m_rasters) {
            sources.push_back(raster.get());
        }
        m_legend.SetDataSouce(sources);
        m_legend.ResetAspectRatio();
    }

    const CMapLegend& Legend() const { return m_legend; }

    /// The strips of a ramp are thinner than a pixel: anti-aliased, they would never
    /// reach black.
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
        const Gdiplus::SmoothingMode mode = graphics->GetSmoothingMode();
        graphics->SetSmoothingMode(Gdiplus::SmoothingModeDefault);
        m_legend.Draw(graphics, centre, scale);
        graphics->SetSmoothingMode(mode);
    }

private:
    CMapLegend m_legend;
    std::shared_ptr<Rasters> m_rasters;
};

}  // namespace gallery
