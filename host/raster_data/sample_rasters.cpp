#include "raster_data/sample_rasters.h"

#include <cpl_error.h>
#include <cpl_string.h>
#include <gdal_priv.h>
#include <gdal_rat.h>
#include <ogr_spatialref.h>

#include <array>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "raster_data/sample_terrain.h"

namespace host {

namespace {

constexpr double kWest = 412'000.0;
constexpr double kNorth = 5'038'000.0;
constexpr int kUtmZone = 33;
constexpr float kNoElevation = -9999.0F;

struct CoverClass {
    LandCover cover;
    const char* name;
    std::array<short, 3> colour;
};

constexpr std::array<CoverClass, 9> kCoverClasses{{
    {LandCover::kWater, "Water", {92, 143, 183}},
    {LandCover::kBeach, "Beach", {240, 226, 178}},
    {LandCover::kWetland, "Wetland", {128, 177, 166}},
    {LandCover::kCropland, "Cropland", {222, 196, 96}},
    {LandCover::kGrassland, "Grassland", {186, 208, 126}},
    {LandCover::kForest, "Forest", {70, 120, 66}},
    {LandCover::kBareRock, "Bare rock", {160, 150, 142}},
    {LandCover::kSnow, "Snow and ice", {244, 247, 250}},
    {LandCover::kBuiltUp, "Built-up area", {206, 92, 84}},
}};

struct Close {
    void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<GDALDataset, Close>;

void Check(bool done, const std::string& path) {
    if (!done) {
        throw std::runtime_error(path + ": " + CPLGetLastErrorMsg());
    }
}

Dataset Create(const std::string& path, const SampleTerrain& terrain, int bands,
               GDALDataType type) {
    GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("GTiff");
    Check(driver != nullptr, path);
    CPLStringList options;
    options.SetNameValue("COMPRESS", "DEFLATE");
    Dataset dataset(driver->Create(path.c_str(), terrain.width, terrain.height, bands,
                                   type, options.List()));
    Check(dataset != nullptr, path);
    std::array<double, 6> fromPixels{kWest, terrain.pixelSize, 0.0, kNorth,
                                     0.0,   -terrain.pixelSize};
    dataset->SetGeoTransform(fromPixels.data());
    OGRSpatialReference utm;
    utm.SetWellKnownGeogCS("WGS84");
    utm.SetUTM(kUtmZone, TRUE);
    dataset->SetSpatialRef(&utm);
    return dataset;
}

template <class T>
void Write(GDALDataset& dataset, int band, std::vector<T>& pixels, GDALDataType type,
           const std::string& path) {
    const int width = dataset.GetRasterXSize();
    const int height = dataset.GetRasterYSize();
    Check(dataset.GetRasterBand(band)->RasterIO(GF_Write, 0, 0, width, height,
                                                pixels.data(), width, height, type, 0, 0,
                                                nullptr) == CE_None,
          path);
}

/// Closing a dataset writes what is still in memory.
void Finish(Dataset& dataset, const std::string& path) {
    CPLErrorReset();
    dataset.reset();
    Check(CPLGetLastErrorType() < CE_Failure, path);
}

void WriteScene(const SampleTerrain& terrain, const std::string& path) {
    Dataset dataset = Create(path, terrain, 3, GDT_Byte);
    for (std::size_t channel = 0; channel < 3; ++channel) {
        std::vector<std::uint8_t> pixels;
        pixels.reserve(terrain.appearance.size());
        for (const auto& colour : terrain.appearance) {
            pixels.push_back(colour[channel]);
        }
        Write(*dataset, static_cast<int>(channel) + 1, pixels, GDT_Byte, path);
    }
    Finish(dataset, path);
}

void WriteElevation(const SampleTerrain& terrain, const std::string& path) {
    Dataset dataset = Create(path, terrain, 1, GDT_Float32);
    dataset->GetRasterBand(1)->SetNoDataValue(kNoElevation);
    dataset->GetRasterBand(1)->SetUnitType("m");
    std::vector<float> pixels = terrain.elevation;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        if (terrain.cover[i] == LandCover::kWater) {
            pixels[i] = kNoElevation;
        }
    }
    Write(*dataset, 1, pixels, GDT_Float32, path);
    Finish(dataset, path);
}

void DescribeClasses(GDALRasterBand& band) {
    GDALColorTable palette;
    GDALDefaultRasterAttributeTable table;
    table.CreateColumn("Value", GFT_Integer, GFU_MinMax);
    table.CreateColumn("Class_Name", GFT_String, GFU_Name);
    table.CreateColumn("Red", GFT_Integer, GFU_Red);
    table.CreateColumn("Green", GFT_Integer, GFU_Green);
    table.CreateColumn("Blue", GFT_Integer, GFU_Blue);
    int row = 0;
    for (const CoverClass& cover : kCoverClasses) {
        const auto& [red, green, blue] = cover.colour;
        const int code = static_cast<int>(cover.cover);
        const GDALColorEntry entry{red, green, blue, 255};
        palette.SetColorEntry(code, &entry);
        table.SetValue(row, 0, code);
        table.SetValue(row, 1, cover.name);
        table.SetValue(row, 2, int{red});
        table.SetValue(row, 3, int{green});
        table.SetValue(row, 4, int{blue});
        ++row;
    }
    band.SetColorTable(&palette);
    band.SetDefaultRAT(&table);
}

void WriteLandCover(const SampleTerrain& terrain, const std::string& path) {
    Dataset dataset = Create(path, terrain, 1, GDT_Byte);
    DescribeClasses(*dataset->GetRasterBand(1));
    std::vector<std::uint8_t> pixels;
    pixels.reserve(terrain.cover.size());
    for (const LandCover cover : terrain.cover) {
        pixels.push_back(static_cast<std::uint8_t>(cover));
    }
    Write(*dataset, 1, pixels, GDT_Byte, path);
    Finish(dataset, path);
}

}  // namespace

SampleRasters MakeSampleRasters(const std::string& folder) {
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) {
        throw std::runtime_error(folder + ": " + failure.message());
    }
    GDALAllRegister();
    CPLPushErrorHandler(CPLQuietErrorHandler);
    const std::unique_ptr<void, void (*)(void*)> quiet(
        &failure, [](void*) { CPLPopErrorHandler(); });
    const std::filesystem::path in(folder);
    SampleRasters rasters{(in / "landscape.tif").string(),
                          (in / "elevation.tif").string(),
                          (in / "land_cover.tif").string()};
    const SampleTerrain terrain = MakeSampleTerrain();
    WriteScene(terrain, rasters.scene);
    WriteElevation(terrain, rasters.elevation);
    WriteLandCover(terrain, rasters.landCover);
    return rasters;
}

}  // namespace host
