#include "raster_data/make_raster.h"

#include <cpl_string.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <atomic>
#include <numeric>

namespace raster_test {

Raster With(Raster raster, const std::vector<std::string>& options) {
    raster.options = options;
    return raster;
}

Raster With(Raster raster, const Describe& describe) {
    raster.describe = describe;
    return raster;
}

GDALColorEntry EntryOf(unsigned argb) {
    const auto byte = [argb](unsigned index) {
        return static_cast<short>((argb >> (8 * index)) & 0xFF);
    };
    return {byte(2), byte(1), byte(0), byte(3)};
}

Describe Coloured(const Palette& entries) {
    return [=](GDALRasterBand& band) {
        GDALColorTable palette;
        for (const auto& [index, colour] : entries) {
            palette.SetColorEntry(index, &colour);
        }
        band.SetColorTable(&palette);
    };
}

Describe Placed(std::array<double, 6> transform, const std::string& system) {
    return [=](GDALRasterBand& band) mutable {
        if (transform != std::array<double, 6>{}) {
            band.GetDataset()->SetGeoTransform(transform.data());
        }
        if (!system.empty()) {
            OGRSpatialReference read;
            EXPECT_EQ(read.SetFromUserInput(system.c_str()), OGRERR_NONE);
            band.GetDataset()->SetSpatialRef(&read);
        }
    };
}

Dataset Owned(GDALDataset* dataset) {
    return {dataset, [](GDALDataset* opened) { GDALClose(opened); }};
}

Dataset Create(const std::string& path, int width, int height, int bands,
               GDALDataType type, const std::vector<std::string>& options) {
    GDALAllRegister();
    CPLStringList list;
    for (const std::string& option : options) {
        list.AddString(option.c_str());
    }
    Dataset dataset = Owned(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
        path.c_str(), width, height, bands, type, list.List()));
    EXPECT_NE(dataset, nullptr) << path;
    return dataset;
}

void Write(const std::string& path, const Raster& raster) {
    const int height = static_cast<int>(raster.bands.front().size()) / raster.width;
    const int bands = static_cast<int>(raster.bands.size());
    const Dataset dataset =
        Create(path, raster.width, height, bands, raster.type, raster.options);
    ASSERT_NE(dataset, nullptr);
    if (raster.noData) {
        for (int band = 1; band <= bands; ++band) {
            dataset->GetRasterBand(band)->SetNoDataValue(*raster.noData);
        }
    }
    if (raster.describe) {
        raster.describe(*dataset->GetRasterBand(1));
    }
    for (int band = 1; band <= bands; ++band) {
        Set(*dataset->GetRasterBand(band), 0, 0, raster.width, height,
            raster.bands[static_cast<std::size_t>(band - 1)]);
    }
}

void Set(GDALRasterBand& band, int x, int y, int width, int height,
         std::vector<double> values) {
    ASSERT_EQ(band.RasterIO(GF_Write, x, y, width, height, values.data(), width, height,
                            GDT_Float64, 0, 0, nullptr),
              CE_None);
}

void Copy(const Dataset& raster, const char* format, const std::string& path) {
    EXPECT_NE(Owned(GetGDALDriverManager()->GetDriverByName(format)->CreateCopy(
                  path.c_str(), raster.get(), 0, nullptr, nullptr, nullptr)),
              nullptr)
        << path;
}

void AddOverviews(GDALDataset& dataset, std::vector<int> factors) {
    ASSERT_EQ(dataset.BuildOverviews("NEAREST", static_cast<int>(factors.size()),
                                     factors.data(), 0, nullptr, nullptr, nullptr),
              CE_None);
}

std::unique_ptr<host::GdalRaster> Open(const std::string& path,
                                       const host::RasterStyle& style) {
    std::string why;
    std::unique_ptr<host::GdalRaster> raster = host::GdalRaster::Open(path, why, style);
    EXPECT_NE(raster, nullptr) << path << ": " << why;
    return raster;
}

std::unique_ptr<host::GdalRaster> WriteAndOpen(const Raster& raster,
                                               const host::RasterStyle& style) {
    static const ScratchFolder folder;
    static std::atomic<int> count{0};
    const std::string path = folder.Path("raster_" + std::to_string(++count) + ".tif");
    Write(path, raster);
    return Open(path, style);
}

std::optional<std::pair<double, double>> RangeOf(host::GdalRaster& raster, int band,
                                                 bool approximate) {
    double least = 0.0;
    double greatest = 0.0;
    if (!raster.GetRasterBand(band)->ComputeMinMax(&least, &greatest, approximate)) {
        return {};
    }
    return std::pair(least, greatest);
}

host::RasterStyle Stretched(const char* stretch) {
    const std::optional<host::Stretch> parsed = host::ParseStretch(stretch);
    EXPECT_TRUE(parsed) << stretch;
    host::RasterStyle style;
    style.stretch = parsed.value_or(host::Stretch());
    return style;
}

std::vector<double> Ramp(int first, int last) {
    std::vector<double> values(static_cast<std::size_t>(last - first + 1));
    std::iota(values.begin(), values.end(), first);
    return values;
}

unsigned int Pixel(const host::PixelImage& image, int x, int y) {
    const std::size_t at =
        (static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
         static_cast<std::size_t>(x)) *
        4;
    const auto byte = [&](std::size_t i) -> unsigned int {
        return image.bgra.at(at + i);
    };
    return byte(3) << 24U | byte(2) << 16U | byte(1) << 8U | byte(0);
}

Colours Pixels(const host::PixelImage& image) {
    Colours pixels;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            pixels.push_back(Pixel(image, x, y));
        }
    }
    return pixels;
}

}  // namespace raster_test
