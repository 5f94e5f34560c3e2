#include "page/made_raster.h"

#include "raster_data/make_raster.h"

void WriteRaster(const std::string& path, const MadeRaster& made) {
    constexpr int kBody = 1, kCorner = 2, kHole = 3;
    raster_test::Raster raster;
    raster.width = made.width;
    raster.bands.emplace_back(
        static_cast<std::size_t>(made.width) * static_cast<std::size_t>(made.height),
        kBody);
    raster.bands[0].front() = kCorner;
    if (made.hole) {
        raster.bands[0].back() = kHole;
        raster.noData = kHole;
    }
    raster.describe = [&](GDALRasterBand& band) {
        raster_test::Coloured({{kBody, raster_test::EntryOf(made.argb)},
                               {kCorner, raster_test::EntryOf(made.cornerArgb)}})(band);
        raster_test::Placed(made.transform, made.projection)(band);
    };
    raster_test::Write(path, raster);
}

void WriteScene(const std::string& path, int width, int height) {
    raster_test::Raster raster;
    raster.width = width;
    raster.bands.resize(3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            raster.bands[0].push_back(x * 200 / width);
            raster.bands[1].push_back(y * 200 / height);
            raster.bands[2].push_back((x + y) % 200);
        }
    }
    raster.describe =
        raster_test::Placed({500000.0, 30.0, 0.0, 9000000.0, 0.0, -30.0}, "EPSG:32725");
    raster_test::Write(path, raster);
}
