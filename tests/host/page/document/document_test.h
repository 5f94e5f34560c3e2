#pragma once

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "page/made_raster.h"
#include "page/output/page_image.h"
#include "page/page.h"
#include "png_encoder.h"
#include "scratch_folder.h"

namespace host_tests {

/// The pixels of a page at 96 dpi.
inline std::vector<std::uint8_t> PixelsOf(const host::Page& page) {
    host::PageImage image(host::PixelSize(page, 96.0));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        page.Draw(graphics, 96.0);
    }
    return host::EncodePng(image.Rows(), 96.0);
}

/// The pixels of a page with this item alone.
inline std::vector<std::uint8_t> PixelsOf(host::PageItem& item) {
    host::Page page(300.0, 200.0);
    page.Items().push_back(std::move(item));
    std::vector<std::uint8_t> pixels = PixelsOf(page);
    item = std::move(page.Items().front());
    return pixels;
}

/// A folder with a raster, scene.tif, and an image, logo.png.
class DocumentTest : public ::testing::Test {
protected:
    DocumentTest() {
        WriteScene(folder.Path("scene.tif"), 40, 30);
        Gdiplus::Bitmap logo(64, 48, PixelFormat32bppARGB);
        {
            Gdiplus::Graphics graphics(&logo);
            graphics.Clear(Gdiplus::Color(0, 128, 0));
        }
        const std::string path = folder.Path("logo.png");
        logo.Save(std::wstring(path.begin(), path.end()).c_str(), &kPngEncoder);
    }

    ScratchFolder folder;
};

}  // namespace host_tests
