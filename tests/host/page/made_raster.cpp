#include "page/made_raster.h"

#include <gdal.h>
#include <gtest/gtest.h>
#include <ogr_srs_api.h>

#include <cstdint>
#include <vector>

namespace {

GDALDatasetH Create(const std::string& path, int width, int height, int bands) {
    GDALAllRegister();
    GDALDatasetH raster = GDALCreate(GDALGetDriverByName("GTiff"), path.c_str(), width,
                                     height, bands, GDT_Byte, nullptr);
    EXPECT_NE(raster, nullptr) << path;
    return raster;
}

void SetProjection(GDALDatasetH raster, const std::string& projection) {
    OGRSpatialReferenceH system = OSRNewSpatialReference(nullptr);
    EXPECT_EQ(OSRSetFromUserInput(system, projection.c_str()), OGRERR_NONE);
    GDALSetSpatialRef(raster, system);
    OSRDestroySpatialReference(system);
}

short Byte(unsigned argb, unsigned index) {
    return static_cast<short>((argb >> (8 * index)) & 0xFF);
}

void SetColor(GDALColorTableH table, int value, unsigned argb) {
    const GDALColorEntry color = {Byte(argb, 2), Byte(argb, 1), Byte(argb, 0),
                                  Byte(argb, 3)};
    GDALSetColorEntry(table, value, &color);
}

void Fill(GDALDatasetH raster, int band, std::vector<std::uint8_t>& values, int width,
          int height) {
    EXPECT_EQ(GDALRasterIO(GDALGetRasterBand(raster, band), GF_Write, 0, 0, width, height,
                           values.data(), width, height, GDT_Byte, 0, 0),
              CE_None);
}

}  // namespace

void WriteRaster(const std::string& path, const MadeRaster& made) {
    constexpr std::uint8_t kBody = 1, kCorner = 2, kHole = 3;
    GDALDatasetH raster = Create(path, made.width, made.height, 1);
    GDALRasterBandH band = GDALGetRasterBand(raster, 1);
    GDALColorTableH table = GDALCreateColorTable(GPI_RGB);
    SetColor(table, kBody, made.argb);
    SetColor(table, kCorner, made.cornerArgb);
    GDALSetRasterColorTable(band, table);
    GDALDestroyColorTable(table);
    std::array<double, 6> transform = made.transform;
    if (transform[1] != 0.0 || transform[2] != 0.0) {
        GDALSetGeoTransform(raster, transform.data());
    }
    if (!made.projection.empty()) {
        SetProjection(raster, made.projection);
    }
    std::vector<std::uint8_t> values(
        static_cast<std::size_t>(made.width) * static_cast<std::size_t>(made.height),
        kBody);
    values.front() = kCorner;
    if (made.hole) {
        values.back() = kHole;
        GDALSetRasterNoDataValue(band, kHole);
    }
    Fill(raster, 1, values, made.width, made.height);
    GDALClose(raster);
}

void WriteScene(const std::string& path, int width, int height) {
    GDALDatasetH raster = Create(path, width, height, 3);
    std::array<double, 6> transform = {500000.0, 30.0, 0.0, 9000000.0, 0.0, -30.0};
    GDALSetGeoTransform(raster, transform.data());
    SetProjection(raster, "EPSG:32725");
    for (int band = 1; band <= 3; ++band) {
        std::vector<std::uint8_t> values;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const int value = band == 1   ? x * 200 / width
                                  : band == 2 ? y * 200 / height
                                              : (x + y) % 200;
                values.push_back(static_cast<std::uint8_t>(value));
            }
        }
        Fill(raster, band, values, width, height);
    }
    GDALClose(raster);
}
