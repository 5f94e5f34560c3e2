#include "page/output/tiff_image.h"

#include <cpl_vsi.h>
#include <gdal_priv.h>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>

#include "raster_data/gdal_session.h"
#include "system/number_text.h"

namespace host {
namespace {

/// A file in GDAL's memory, removed with this object.
class GdalFile {
public:
    GdalFile() = default;
    GdalFile(const GdalFile&) = delete;
    GdalFile& operator=(const GdalFile&) = delete;
    ~GdalFile() {
        VSIUnlink(Name().c_str());
        VSIUnlink((Name() + ".aux.xml").c_str());
    }

    std::string Name() const {
        return "/vsimem/map_surround/" +
               std::to_string(reinterpret_cast<std::uintptr_t>(this)) + ".tif";
    }

    std::vector<std::uint8_t> Bytes() const {
        vsi_l_offset size = 0;
        const GByte* const bytes =
            VSIGetMemFileBuffer(Name().c_str(), &size, /*bUnlinkAndSeize=*/FALSE);
        return {bytes, bytes + static_cast<std::ptrdiff_t>(size)};
    }
};

/// Paper is the same from pixel to pixel, so differences compress well, at any level.
constexpr const char* kPacked[] = {
    "COMPRESS=DEFLATE", "PREDICTOR=2",     "ZLEVEL=1", "BLOCKYSIZE=64",
    "INTERLEAVE=PIXEL", "PHOTOMETRIC=RGB", nullptr};

void TellPlace(GDALDataset& file, Georeference georeference) {
    file.SetGeoTransform(georeference.transform.data());
    if (!georeference.projection.empty()) {
        file.SetProjection(georeference.projection.c_str());
    }
}

void Write(const PixelRows& pixels, double dpi,
           const std::optional<Georeference>& georeference, GDALDriver& driver,
           const std::string& name) {
    constexpr int kBands = 3;
    const std::unique_ptr<GDALDataset> file(driver.Create(name.c_str(), pixels.width,
                                                          pixels.height, kBands, GDT_Byte,
                                                          const_cast<char**>(kPacked)));
    if (file == nullptr) {
        return;
    }
    const std::string density = NumberText(dpi);
    file->SetMetadataItem("TIFFTAG_XRESOLUTION", density.c_str());
    file->SetMetadataItem("TIFFTAG_YRESOLUTION", density.c_str());
    file->SetMetadataItem("TIFFTAG_RESOLUTIONUNIT", "2");  // inches
    if (georeference) {
        TellPlace(*file, *georeference);
    }
    // Blue, green, red, unused: red is the third, and each band a byte before the last.
    auto* const red = const_cast<std::uint8_t*>(pixels.first) + 2;
    if (file->RasterIO(GF_Write, 0, 0, pixels.width, pixels.height, red, pixels.width,
                       pixels.height, GDT_Byte, kBands, nullptr, 4, pixels.stride, -1,
                       nullptr) == CE_None) {
        file->FlushCache();
    }
}

}  // namespace

std::vector<std::uint8_t> EncodeTiff(const PixelRows& pixels, double dpi,
                                     const std::optional<Georeference>& georeference) {
    StartGdal();
    const QuietGdal messages;
    GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("GTiff");
    if (driver == nullptr) {
        throw std::runtime_error("this GDAL writes no TIFF files");
    }
    const GdalFile file;
    Write(pixels, dpi, georeference, *driver, file.Name());
    const std::string why = messages.Reason(file.Name());
    std::vector<std::uint8_t> bytes = file.Bytes();
    if (!why.empty() || bytes.empty()) {
        throw std::runtime_error("the image cannot be encoded: " + why);
    }
    return bytes;
}

}  // namespace host
