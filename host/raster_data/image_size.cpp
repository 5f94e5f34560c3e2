#include "raster_data/image_size.h"

#include <gdal_priv.h>

#include <memory>

#include "raster_data/derived_dataset.h"
#include "raster_data/gdal_session.h"

namespace host {

std::optional<ImageSize> SizeOfImage(const std::string& path) {
    static constexpr const char* kDrivers[] = {"PNG", "JPEG",  "GIF",  "BIGGIF",
                                               "BMP", "GTiff", nullptr};
    StartGdal();
    const QuietGdal quiet;
    const std::unique_ptr<GDALDataset, ReleaseDataset> image(
        GDALDataset::Open(path.c_str(), GDAL_OF_RASTER, kDrivers));
    if (image == nullptr) {
        return std::nullopt;
    }
    return ImageSize{image->GetRasterXSize(), image->GetRasterYSize()};
}

}  // namespace host
