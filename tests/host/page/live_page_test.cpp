#include "page/live_page.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <variant>

#include "map_surround/title.h"
#include "page/made_picture.h"
#include "page/page_pixels.h"
#include "page/twelve_elements.h"

namespace {

using host_tests::PagePixels;

CSurroundFrame& FrameOf(const host::Page& page, std::size_t item) {
    return *std::get<std::unique_ptr<CSurroundFrame>>(page.Items()[item]);
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
            ASSERT_TRUE(PagePixels(live.Image()) == PagePixels(page, dpi))
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
        EXPECT_TRUE(PagePixels(live.Image()) == PagePixels(page, 96.0));
    }
    FrameOf(page, 1).BorderWidth = 9.0f;
    FrameOf(page, 1).ShadowRatioX = -0.2f;
    live.DrawChanged(1);
    EXPECT_TRUE(PagePixels(live.Image()) == PagePixels(page, 96.0));
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
    EXPECT_TRUE(PagePixels(live.Image()) == PagePixels(page, 96.0));
    FrameOf(page, 4).SetOffset(100.0, 0.0);
    EXPECT_TRUE(live.DrawMoved(4).IsEmptyArea());
}

TEST(LivePage, ReadsAMapOnceForEachSize) {
    host::Page page = host_tests::TwelveElements();
    const auto map =
        std::make_shared<host_tests::MadePicture>([](int, int) { return 0xFFFFFFFFU; });
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
