#include "page/live_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <variant>
#include <vector>

#include "map_surround/title.h"
#include "page/twelve_elements.h"

namespace {

/// The pixels as 0x00RRGGBB; the fourth byte means nothing.
std::vector<std::uint32_t> Pixels(const host::PageImage& image) {
    const host::PixelRows rows = image.Rows();
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < rows.height; ++y) {
        const std::uint8_t* pixel = rows.first + y * rows.stride;
        for (int x = 0; x < rows.width; ++x, pixel += 4) {
            pixels.push_back(static_cast<std::uint32_t>(pixel[2]) << 16U |
                             static_cast<std::uint32_t>(pixel[1]) << 8U | pixel[0]);
        }
    }
    return pixels;
}

std::vector<std::uint32_t> DrawnWhole(const host::Page& page, double dpi) {
    host::PageImage image(host::PixelSize(page, dpi));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        page.Draw(graphics, dpi);
    }
    return Pixels(image);
}

std::size_t Differences(const std::vector<std::uint32_t>& a,
                        const std::vector<std::uint32_t>& b) {
    std::size_t count = a.size() == b.size() ? 0 : 1;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        count += a[i] != b[i] ? 1 : 0;
    }
    return count;
}

CSurroundFrame& FrameOf(const host::Page& page, std::size_t item) {
    return *std::get<std::unique_ptr<CSurroundFrame>>(page.Items()[item]);
}

TEST(LivePage, IsTheWholePageAtFirst) {
    const host::Page page = host_tests::TwelveElements();
    host::LivePage live(page, 60.0);
    EXPECT_EQ(Differences(Pixels(live.Image()), DrawnWhole(page, 60.0)), 0u);
}

TEST(LivePage, IsTheWholePageAfterEveryMove) {
    for (const double dpi : {40.0, 96.0, 137.0}) {
        const host::Page page = host_tests::TwelveElements();
        host::LivePage live(page, dpi);
        std::mt19937 random(7);
        std::uniform_real_distribution<double> step(-120.0, 120.0);
        for (int move = 0; move < 24; ++move) {
            const std::size_t item = 1 + static_cast<std::size_t>(move) % 12;
            FrameOf(page, item).SetOffset(step(random), step(random));
            live.DrawMoved(item);
            ASSERT_EQ(Differences(Pixels(live.Image()), DrawnWhole(page, dpi)), 0u)
                << "item " << item << " at " << dpi << " dpi";
        }
    }
}

TEST(LivePage, IsTheWholePageAfterAChange) {
    const host::Page page = host_tests::TwelveElements();
    host::LivePage live(page, 96.0);
    auto* const title = dynamic_cast<CMapTitle*>(FrameOf(page, 1).GetMapSurround());
    ASSERT_NE(title, nullptr);
    for (const double size : {90.0, 12.0}) {
        title->SetFontSize(size);
        title->ResetAspectRatio();
        live.DrawChanged(1);
        EXPECT_EQ(Differences(Pixels(live.Image()), DrawnWhole(page, 96.0)), 0u);
    }
    FrameOf(page, 1).BorderWidth = 9.0f;
    FrameOf(page, 1).ShadowRatioX = -0.2f;
    live.DrawChanged(1);
    EXPECT_EQ(Differences(Pixels(live.Image()), DrawnWhole(page, 96.0)), 0u);
}

TEST(LivePage, DrawsNoMoreThanTheSurroundings) {
    const host::Page page = host_tests::TwelveElements();
    host::LivePage live(page, 96.0);
    FrameOf(page, 4).SetOffset(10.0, 0.0);
    const Gdiplus::Rect area = live.DrawMoved(4);
    // A frame of 100 x 110 units that moved by 10, with its shadow and some leeway.
    EXPECT_GE(area.Width, 110);
    EXPECT_LE(area.Width, 160);
    EXPECT_GE(area.Height, 110);
    EXPECT_LE(area.Height, 160);
}

TEST(LivePage, DrawsNothingForWhatIsOffThePage) {
    const host::Page page = host_tests::TwelveElements();
    host::LivePage live(page, 96.0);
    FrameOf(page, 4).SetOffset(5000.0, 5000.0);
    EXPECT_FALSE(live.DrawMoved(4).IsEmptyArea());
    EXPECT_EQ(Differences(Pixels(live.Image()), DrawnWhole(page, 96.0)), 0u);
    FrameOf(page, 4).SetOffset(100.0, 0.0);
    EXPECT_TRUE(live.DrawMoved(4).IsEmptyArea());
}

/// A map that counts how often it is read.
class CountedMap : public host::MapPicture {
public:
    host::PixelImage Render(int width, int height, const host::Progress&) override {
        ++readings;
        host::PixelImage image;
        image.width = width;
        image.height = height;
        image.bgra.assign(static_cast<std::size_t>(width * height) * 4, 255);
        return image;
    }
    int readings = 0;
};

TEST(LivePage, ReadsAMapOnceForEachSize) {
    host::Page page = host_tests::TwelveElements();
    const auto map = std::make_shared<CountedMap>();
    host::MapFrame frame;
    frame.picture = map;
    frame.frame.SetExtent(CBoundingBox(0.0, 0.0, 500.0, 400.0));
    page.Add(std::move(frame));
    host::LivePage live(page, 50.0);
    EXPECT_EQ(map->readings, 1);
    for (int i = 0; i < 5; ++i) {
        FrameOf(page, 8).SetOffset(5.0, 5.0);
        live.DrawMoved(8);
    }
    live.DrawAll();
    EXPECT_EQ(map->readings, 1);
}

}  // namespace
