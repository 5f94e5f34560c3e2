#pragma once

#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <string>

namespace host_tests {

inline std::string Wkt(int epsg) {
    OGRSpatialReference system;
    EXPECT_EQ(system.importFromEPSG(epsg), OGRERR_NONE);
    char* text = nullptr;
    system.exportToWkt(&text);
    std::string wkt = text;
    CPLFree(text);
    return wkt;
}

}  // namespace host_tests
