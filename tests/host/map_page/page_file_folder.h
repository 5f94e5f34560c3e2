#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "map_page/run_map_page.h"
#include "page/made_raster.h"
#include "png_encoder.h"
#include "system/gdiplus_session.h"

namespace host_tests {

/// A folder with data/scene.tif, data/classes.tif on the same ground, and logo.png.
class PageFileTest : public MapPageTest {
protected:
    PageFileTest() {
        std::filesystem::create_directory(folder.Path("data"));
        WriteScene(folder.Path("data/scene.tif"), 120, 120);
        MadeRaster classes;
        classes.transform = {500000.0, 450.0, 0.0, 9000000.0, 0.0, -450.0};
        classes.projection = "EPSG:32725";
        WriteRaster(folder.Path("data/classes.tif"), classes);
        WriteLogo(folder.Path("logo.png"));
    }

private:
    host::GdiplusSession m_gdiplus;
};

}  // namespace host_tests
