#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "raster_data/make_raster.h"

namespace {

/// What this process has held in memory at most, in MB; 0 where the system does not tell.
int PeakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0) {
            return std::stoi(line.substr(6)) / 1024;
        }
    }
    return 0;
}

TEST(RasterMemory, DoesNotFollowTheSizeOfTheRaster) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer's own memory would be measured";
#endif
    const ScratchFolder folder;
    for (const char* form : {"TILED=NO", "TILED=YES"}) {
        const std::string path = folder.Path(std::string(form) + ".tif");
        // 1200 MB, as they are read.
        ASSERT_NE(raster_test::Create(path, 20000, 20000, 3, GDT_Byte,
                                      {"SPARSE_OK=TRUE", "INTERLEAVE=PIXEL", form}),
                  nullptr);
        const auto raster =
            raster_test::Open(path, raster_test::Stretched("percent 2 98"));
        ASSERT_NE(raster, nullptr);
        EXPECT_EQ(raster_test::RangeOf(*raster), std::pair(0.0, 0.0));
        // A page of A4 at 300 dpi.
        const host::PixelImage image = raster->Render(3508, 2480);
        EXPECT_EQ(image.bgra.size(), 3508U * 2480U * 4U);
        EXPECT_EQ(raster_test::Pixel(image, 3507, 2479), 0xff808080U);
    }
    if (PeakMegabytes() == 0) {
        GTEST_SKIP() << "the system does not tell the memory used";
    }
    EXPECT_LT(PeakMegabytes(), 400);
    RecordProperty("peak_megabytes", PeakMegabytes());
}

}  // namespace
