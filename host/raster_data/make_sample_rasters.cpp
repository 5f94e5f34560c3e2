// Writes the sample rasters into a folder and prints their paths.

#include <cstdio>
#include <exception>

#include "raster_data/sample_rasters.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: make_sample_rasters FOLDER\n", stderr);
        return 2;
    }
    try {
        const host::SampleRasters rasters = host::MakeSampleRasters(argv[1]);
        std::printf("%s\n%s\n%s\n", rasters.scene.c_str(), rasters.elevation.c_str(),
                    rasters.landCover.c_str());
    } catch (const std::exception& e) {
        std::fprintf(stderr, "make_sample_rasters: %s\n", e.what());
        return 1;
    }
    return 0;
}
