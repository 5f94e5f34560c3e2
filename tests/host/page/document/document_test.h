#pragma once

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "page/document/raster_store.h"
#include "page/element_of.h"
#include "page/made_raster.h"
#include "page/numeric_scale.h"
#include "page/page.h"
#include "page/page_pixels.h"
#include "page/placed_frame.h"
#include "png_encoder.h"
#include "scratch_folder.h"

namespace host_tests {

/// The text of a page of 400 x 300 units with these elements.
inline std::string PageText(const std::string& elements, int version = 3) {
    return R"({"version": )" + std::to_string(version) +
           R"(, "width": 400, "height": 300, "elements": [)" + elements + "]}";
}

/// What a page is refused with; empty for none.
template <class Work>
std::string PageErrorOf(const Work& work) {
    try {
        work();
        return "";
    } catch (const host::PageError& error) {
        return error.what();
    }
}

/// A page of 400 x 300 units with an item of every type, as it is by itself.
inline host::Page PageOfEveryType() {
    host::Page page(400.0, 300.0);
    for (const host::ItemType& type : host::ItemTypes()) {
        page.Items().push_back(type.make());
    }
    return page;
}

/// The pixels of a page at 96 dpi.
inline PagePixels PixelsOf(const host::Page& page) { return {page, 96.0}; }

/// The pixels of a page with this item alone.
inline PagePixels PixelsOf(host::PageItem& item) {
    host::Page page(300.0, 200.0);
    page.Items().push_back(std::move(item));
    PagePixels pixels = PixelsOf(page);
    item = std::move(page.Items().front());
    return pixels;
}

/// An item of a type that can be seen: with the least that its element needs for that.
inline host::PageItem MakeVisible(const host::ItemType& type, const std::string& folder) {
    host::PageItem item = type.make();
    host::FrameOf(item).SetExtent({20.0, 20.0, 280.0, 180.0});
    auto* const title = host::ElementOf<CMapTitle>(item);
    if (title != nullptr && host::ElementOf<host::NumericScale>(item) == nullptr) {
        title->SetFontValue(L"Title");
        title->SetFontStyle(L"Arial");
    }
    if (auto* const picture = host::ElementOf<CDrawPicture>(item)) {
        const std::string path = folder + "/logo.png";
        picture->Open(std::wstring(path.begin(), path.end()).c_str());
    }
    if (auto* const legend = host::FrameAs<host::LegendFrame>(item)) {
        legend->SetRasterPaths({folder + "/scene.tif"});
    } else if (auto* const element = host::ElementOf<CMapSurround>(item)) {
        element->SetSize(40);
        element->ResetAspectRatio();
    }
    return item;
}

/// A folder with a raster, scene.tif, and an image, logo.png, and rasters once opened.
class DocumentTest : public ::testing::Test {
protected:
    DocumentTest() {
        WriteScene(folder.Path("scene.tif"), 40, 30);
        WriteLogo(folder.Path("logo.png"));
    }

    ScratchFolder folder;
    host::RasterStore store;
};

}  // namespace host_tests
