#pragma once

#include <functional>
#include <string>
#include <utility>

#include "host/common_functions.h"
#include "host/raster_data.h"
#include "input.h"

namespace fuzz {

/// A raster that answers every question straight from the input: null where something
/// should be, counts that have nothing to do with what there is, another answer each time
/// it is asked. Once the input is used up it is not available. It is its own band, table
/// and class.
class Source : public CRasterSource,
               private CRasterBand,
               private CClassifyDisplayTable,
               private CClassifyDisplayItem {
public:
    /// @param whenAsked what else happens when the legend turns to this source
    Source(Input& input, std::function<void()> whenAsked)
        : m_input(input), m_whenAsked(std::move(whenAsked)) {}

    bool IsAvailable() override {
        if (m_input.Choice(8) == 1) {
            m_whenAsked();
        }
        return m_input.Choice(8) != 0;
    }
    GISDataSourceType GetDataSourceType() override {
        return m_input.Choice(8) == 1 ? static_cast<GISDataSourceType>(m_input.Whole())
                                      : DataSourceRaster;
    }
    std::wstring GetFileName() override { return m_input.Text(); }
    DataDisplayType GetDisplayType() override {
        const int kind = m_input.Choice(8);
        return static_cast<DataDisplayType>(kind == 7 ? m_input.Whole() : kind % 3);
    }
    int GetRedBandNum() override { return m_input.Whole(); }
    int GetGreenBandNum() override { return m_input.Whole(); }
    int GetBlueBandNum() override { return m_input.Whole(); }
    CRasterBand* GetRasterBand(int) override { return m_input.Flag() ? this : nullptr; }
    CClassifyDisplayTable* GetClassifyDisplayTable() override {
        return m_input.Choice(8) == 0 ? nullptr : this;
    }

private:
    bool ComputeMinMax(double* min, double* max, bool) override {
        if (m_input.Flag()) {
            *min = m_input.Real<double>();
            *max = m_input.Real<double>();
        }
        return m_input.Flag();
    }
    int GetClassesCount() override { return m_input.Whole(); }
    CClassifyDisplayItem* GetClassifyItem(int) override {
        return m_input.Choice(8) == 0 ? nullptr : this;
    }
    std::wstring GetLable() override { return m_input.Text(); }
    void GetColor(unsigned char& red, unsigned char& green, unsigned char& blue,
                  unsigned char& fourth) override {
        red = green = blue = fourth = static_cast<unsigned char>(m_input.Choice(256));
    }

    Input& m_input;
    std::function<void()> m_whenAsked;
};

}  // namespace fuzz
