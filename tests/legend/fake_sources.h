#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "host/common_functions.h"
#include "host/raster_data.h"

/// Data sources that live in memory, and answer what a test tells them.
namespace fakes {

/// A display type that there is none of.
constexpr auto kUnknown = static_cast<DataDisplayType>(7);

/// What a source answers, one value a question; the last goes on answering. A plain value
/// answers every time.
template <typename T>
class Answers {
public:
    Answers(T value) : m_values{std::move(value)} {}
    Answers(std::vector<T> values) : m_values(std::move(values)) {}

    T Next() {
        const std::size_t last = m_values.size() - 1;
        const std::size_t index = m_asked < last ? m_asked : last;
        ++m_asked;
        return m_values[index];
    }
    std::size_t Asked() const { return m_asked; }
    void Rewind() { m_asked = 0; }

private:
    std::vector<T> m_values;
    std::size_t m_asked = 0;
};

struct Item : CClassifyDisplayItem {
    Item(std::wstring itemLabel, unsigned char r, unsigned char g, unsigned char b,
         unsigned char other = 255)
        : label(std::move(itemLabel)), red(r), green(g), blue(b), fourth(other) {}

    std::wstring GetLable() override { return label; }
    void GetColor(unsigned char& r, unsigned char& g, unsigned char& b,
                  unsigned char& other) override {
        if (tellsColour) {
            r = red;
            g = green;
            b = blue;
            other = fourth;
        }
    }

    std::wstring label;
    unsigned char red;
    unsigned char green;
    unsigned char blue;
    unsigned char fourth;
    bool tellsColour = true;
};

struct Table : CClassifyDisplayTable {
    int GetClassesCount() override {
        return overridden ? counts.Next() : static_cast<int>(items.size());
    }
    CClassifyDisplayItem* GetClassifyItem(int index) override {
        const auto i = static_cast<std::size_t>(index);
        return index < 0 || i >= items.size() || missing == index ? nullptr : &items[i];
    }
    /// Answers the count so, however many items there are.
    void Claim(Answers<int> claimed) {
        counts = std::move(claimed);
        overridden = true;
    }

    std::vector<Item> items;
    int missing = -1;  ///< the index of a class that is not there
    Answers<int> counts{0};
    bool overridden = false;
};

struct Band : CRasterBand {
    bool ComputeMinMax(double* min, double* max, bool approximate) override {
        askedToApproximate = approximate;
        if (computable) {
            *min = lowest;
            *max = highest;
        }
        return computable;
    }

    double lowest = 0.0;
    double highest = 0.0;
    bool computable = true;
    bool askedToApproximate = false;
};

struct Raster : CRasterSource {
    explicit Raster(std::wstring name, DataDisplayType display)
        : fileName(std::move(name)), displayType(display) {}
    ~Raster() override {
        if (destroyed != nullptr) {
            ++*destroyed;
        }
    }

    bool IsAvailable() override {
        if (whenAsked) {
            whenAsked();
        }
        return available.Next();
    }
    GISDataSourceType GetDataSourceType() override { return type.Next(); }
    std::wstring GetFileName() override { return fileName; }
    DataDisplayType GetDisplayType() override { return displayType.Next(); }
    int GetRedBandNum() override { return red; }
    int GetGreenBandNum() override { return green; }
    int GetBlueBandNum() override { return blue; }
    CRasterBand* GetRasterBand(int index) override {
        askedForBand = index;
        return hasBand ? &band : nullptr;
    }
    CClassifyDisplayTable* GetClassifyDisplayTable() override {
        return hasTable ? &table : nullptr;
    }

    Answers<bool> available{true};
    Answers<GISDataSourceType> type{DataSourceRaster};
    std::wstring fileName;
    Answers<DataDisplayType> displayType;
    int red = 0;
    int green = 1;
    int blue = 2;
    bool hasBand = true;
    Band band;
    int askedForBand = -1;
    bool hasTable = true;
    Table table;
    std::function<void()> whenAsked;  ///< as soon as the source is asked anything
    int* destroyed = nullptr;         ///< counts the rasters destroyed
};

/// A source that is no raster.
struct Vector : CGISDataSource {
    bool IsAvailable() override { return true; }
    GISDataSourceType GetDataSourceType() override {
        return static_cast<GISDataSourceType>(2);
    }
    std::wstring GetFileName() override { return L"a very long name of a vector file"; }
    DataDisplayType GetDisplayType() override { return DisplayRGB; }
};

}  // namespace fakes
