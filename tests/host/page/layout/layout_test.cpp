#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "map_surround/picture.h"
#include "map_surround/title.h"
#include "page/layout/laid_out.h"
#include "page/units.h"
#include "png_encoder.h"
#include "recording/expect.h"
#include "scratch_folder.h"

namespace {

using host::Box;
using host_tests::LaidOut;

bool AreApart(const Box& a, const Box& b) {
    return a.right <= b.left || b.right <= a.left || a.bottom >= b.top ||
           b.bottom >= a.top;
}

bool IsOnPage(const Box& box, const host::Page& page) {
    return box.left >= 0.0 && box.bottom >= 0.0 && box.right <= page.Width() &&
           box.top <= page.Height() && box.Width() > 0.0 && box.Height() > 0.0;
}

class Layout : public ::testing::Test {
protected:
    Layout() {
        const std::string path = folder.Path("logo.png");
        recording::Surface surface(200, 100);
        const std::wstring name(path.begin(), path.end());
        surface.Bitmap().Save(name.c_str(), &host_tests::kPngEncoder);
        logo = name;
    }

    ScratchFolder folder;
    std::wstring logo;
};

TEST_F(Layout, KeepsEverythingApartAndOnThePage) {
    for (const char* paperText : {"A4", "A0", "210x297", "20x20", "5000x20", "20x5000"}) {
        for (const double aspectRatio :
             {1.0, 0.3, 3.0, 100.0, 1.0e9, 0.0, std::nan("")}) {
            for (const double points : {0.0, 1.0, 24.0, 1000.0}) {
                host::PageDesign design;
                ASSERT_TRUE(host::ParsePaperSize(paperText, design.paper));
                design.title.text = L"A title of some length";
                if (points > 0.0) {
                    design.title.points = points;
                }
                design.picture.path = logo;
                const LaidOut laid(design, {nullptr, aspectRatio});
                SCOPED_TRACE(std::string(paperText) + " " + std::to_string(aspectRatio) +
                             " " + std::to_string(points));
                const Box title = laid.BoxOf(SurroundMapTitle);
                const Box picture = laid.BoxOf(SurroundPicture);
                EXPECT_TRUE(IsOnPage(laid.map, laid.page));
                EXPECT_TRUE(AreApart(laid.map, title));
                EXPECT_TRUE(AreApart(laid.map, picture));
                EXPECT_TRUE(AreApart(title, picture));
                if (std::string(paperText).find("20") != 0) {
                    EXPECT_TRUE(IsOnPage(picture, laid.page));
                }
            }
        }
    }
}

TEST_F(Layout, KeepsTheProportionsOfMapAndPicture) {
    for (const double aspectRatio : {0.2, 0.99, 1.0, 2.5, 6.0}) {
        host::PageDesign design;
        design.title.text = L"Title";
        design.picture.path = logo;
        const LaidOut laid(design, {nullptr, aspectRatio});
        EXPECT_NEAR(laid.map.Width() / laid.map.Height(), aspectRatio, 1.0e-9);
        EXPECT_FLOAT_EQ(laid.The<CDrawPicture>(SurroundPicture).GetAspectRatio(), 2.0f);
    }
}

TEST_F(Layout, GivesThePanelsRoomToTheMapWhenThereIsNone) {
    host::PageDesign design;
    const LaidOut bare(design, {nullptr, 1.6});
    design.picture.path = logo;
    EXPECT_GT(bare.map.Width(), LaidOut(design, {nullptr, 1.6}).map.Width());
}

TEST_F(Layout, PutsThePanelWhereTheMapStaysLarger) {
    host::PageDesign design;
    design.picture.path = logo;
    const LaidOut square(design, {nullptr, 1.0});
    const Box beside = square.BoxOf(SurroundPicture);
    EXPECT_GT(beside.left, square.map.right);
    EXPECT_NEAR(beside.bottom, square.map.bottom, 1.0e-9);

    const LaidOut wide(design, {nullptr, 3.0});
    const Box below = wide.BoxOf(SurroundPicture);
    EXPECT_LT(below.top, wide.map.bottom);
    EXPECT_NEAR(below.right, wide.map.right, 1.0e-9);
}

TEST_F(Layout, PlacesTheTitleInTheMiddleOnTop) {
    host::PageDesign design;
    design.title.text = L"Title";
    const LaidOut laid(design, {nullptr, 1.0});
    const Box title = laid.BoxOf(SurroundMapTitle);
    EXPECT_NEAR(title.left + title.right, laid.page.Width(), 1.0e-6);
    EXPECT_GT(title.bottom, laid.map.top);
}

TEST_F(Layout, SetsTheTitleInItsSize) {
    host::PageDesign design;
    design.title.text = L"Title";
    design.title.points = 36.0;
    const LaidOut laid(design, {nullptr, 1.0});
    EXPECT_DOUBLE_EQ(laid.The<CMapTitle>(SurroundMapTitle).GetFontSize(), 48.0);
    EXPECT_THAT(laid.remarks,
                ::testing::ElementsAre(
                    "the scale bar is left out: the map has no georeference",
                    "the north arrow is left out: the map has no georeference"));
}

TEST_F(Layout, SetsATitleSmallerThatWouldNotFit) {
    host::PageDesign design;
    design.title.text = L"A title that is long enough to be wider than the page it is on";
    design.title.points = 100.0;
    design.scaleBar.style = nullptr;
    design.northArrow.style = nullptr;
    const LaidOut laid(design, {nullptr, 1.0});
    EXPECT_TRUE(IsOnPage(laid.BoxOf(SurroundMapTitle), laid.page));
    const auto isSetSmallerThan = [](const std::string& points) {
        return ::testing::ElementsAre(
            ::testing::MatchesRegex("the title is set in .* points to fit the page, "
                                    "instead of " +
                                    points + " points"));
    };
    EXPECT_THAT(laid.remarks, isSetSmallerThan("100.0"));

    // What suits the page is as large as it fits, but not half as large in silence.
    design.title.points.reset();
    EXPECT_TRUE(LaidOut(design, {nullptr, 1.0}).remarks.empty());
    for (int i = 0; i < 6; ++i) {
        design.title.text.append(L" ").append(design.title.text);
    }
    EXPECT_THAT(LaidOut(design, {nullptr, 1.0}).remarks, isSetSmallerThan("18.0"));
}

TEST_F(Layout, HasNoFrameForATitleWithoutInk) {
    for (const wchar_t* text : {L"", L"   "}) {
        host::PageDesign design;
        design.title.text = text;
        EXPECT_EQ(LaidOut(design, {nullptr, 1.0}).Of(SurroundMapTitle), nullptr);
    }
}

TEST_F(Layout, DecoratesFramesAsAskedFor) {
    host::PageDesign design;
    design.title.text = L"Title";
    design.frames.border.reset();
    design.frames.shadow = Gdiplus::Color(0xFF112233);
    design.frames.background = Gdiplus::Color(0x80445566);
    const LaidOut laid(design, {nullptr, 1.0});
    const CSurroundFrame* title = laid.Of(SurroundMapTitle);
    EXPECT_FALSE(title->DrawBorder);
    EXPECT_TRUE(title->DrawShadow);
    EXPECT_EQ(title->ShadowColor.GetValue(), 0xFF112233u);
    EXPECT_TRUE(title->DrawFill);
    EXPECT_EQ(title->FillColor.GetValue(), 0x80445566u);
    // The shadow falls as far to the right as down.
    EXPECT_NEAR(double{title->ShadowRatioX} * title->GetExtent().GetWidth(),
                double{title->ShadowRatioY} * title->GetExtent().GetHeight(), 1.0e-4);
}

}  // namespace
