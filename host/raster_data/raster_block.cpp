#include "raster_data/raster_block.h"

#include <stdexcept>

#include "raster_data/gdal_session.h"

namespace host {
namespace {

/// Limited before it becomes an integer: rounding may put a window's edge a little beyond
/// a raster of the largest possible size.
int PixelsUpTo(double edge, int size) {
    return static_cast<int>(std::min(std::ceil(edge), 1.0 * size));
}

}  // namespace

void ReadWindow(GDALRasterBand* band, const Window& window, int columns, int rows,
                void* to, GDALDataType type) {
    GDALRasterIOExtraArg exact;
    INIT_RASTERIO_EXTRA_ARG(exact);
    exact.bFloatingPointWindowValidity = TRUE;
    exact.dfXOff = window.x;
    exact.dfYOff = window.y;
    exact.dfXSize = window.width;
    exact.dfYSize = window.height;
    const int x = static_cast<int>(window.x);
    const int y = static_cast<int>(window.y);
    const int right = PixelsUpTo(window.x + window.width, band->GetXSize());
    const int bottom = PixelsUpTo(window.y + window.height, band->GetYSize());
    const QuietGdal quiet;
    if (band->RasterIO(GF_Read, x, y, right - x, bottom - y, to, columns, rows, type, 0,
                       0, &exact) != CE_None) {
        const GDALDataset* const dataset = band->GetDataset();
        throw std::runtime_error(
            "reading failed: " +
            quiet.Reason(dataset == nullptr ? "" : dataset->GetDescription()));
    }
}

}  // namespace host
