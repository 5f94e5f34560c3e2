#include "page/layout/layout.h"
#include "png_encoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "map_surround/picture.h"
#include "map_surround/title.h"
#include "page/layout/laid_out.h"
#include "page/units.h"
#include "recording/expect.h"
#include "scratch_folder.h"

namespace {

using host_tests::LaidOut;

double Left(const CBoundingBox& box) { return box.TopLeft().x; }
double Right(const CBoundingBox& box) { return box.TopLeft().x + box.GetWidth(); }
double Top(const CBoundingBox& box) { return box.TopLeft().y; }
double Bottom(const CBoundingBox& box) { return box.TopLeft().y - box.GetHeight(); }

bool AreApart(const CBoundingBox& a, const CBoundingBox& b) {
    return Right(a) <= Left(b) || Right(b) <= Left(a) || Bottom(a) >= Top(b) ||
           Bottom(b) >= Top(a);
}

bool IsOnPage(const CBoundingBox& box, const host::Page& page) {
    return Left(box) >= 0.0 && Bottom(box) >= 0.0 && Right(box) <= page.Width() &&
           Top(box) <= page.Height() && box.GetWidth() > 0.0 && box.GetHeight() > 0.0;
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
                const host::LaidOutPage laidOut =
                    host::LayOut(design, {nullptr, aspectRatio});
                const LaidOut laid(laidOut.page);
                const std::string what = std::string(paperText) + " " +
                                         std::to_string(aspectRatio) + " " +
                                         std::to_string(points);
                ASSERT_NE(laid.Of(SurroundMapTitle), nullptr) << what;
                ASSERT_NE(laid.Of(SurroundPicture), nullptr) << what;
                const CBoundingBox title = laid.Of(SurroundMapTitle)->GetExtent();
                const CBoundingBox picture = laid.Of(SurroundPicture)->GetExtent();
                EXPECT_TRUE(IsOnPage(laid.map, laidOut.page)) << what;
                EXPECT_TRUE(AreApart(laid.map, title)) << what;
                EXPECT_TRUE(AreApart(laid.map, picture)) << what;
                EXPECT_TRUE(AreApart(title, picture)) << what;
                if (std::string(paperText).find("20") != 0) {
                    EXPECT_TRUE(IsOnPage(picture, laidOut.page)) << what;
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
        const host::LaidOutPage laidOut = host::LayOut(design, {nullptr, aspectRatio});
        const LaidOut laid(laidOut.page);
        EXPECT_NEAR(laid.map.GetWidth() / laid.map.GetHeight(), aspectRatio, 1.0e-9);
        EXPECT_FLOAT_EQ(laid.Of(SurroundPicture)->GetMapSurround()->GetAspectRatio(),
                        2.0f);
    }
}

TEST_F(Layout, GivesThePanelsRoomToTheMapWhenThereIsNone) {
    host::PageDesign design;
    const double bare = LaidOut(host::LayOut(design, {nullptr, 1.6}).page).map.GetWidth();
    design.picture.path = logo;
    const double beside =
        LaidOut(host::LayOut(design, {nullptr, 1.6}).page).map.GetWidth();
    EXPECT_GT(bare, beside);
}

TEST_F(Layout, PutsThePanelWhereTheMapStaysLarger) {
    host::PageDesign design;
    design.picture.path = logo;
    const host::LaidOutPage square = host::LayOut(design, {nullptr, 1.0});
    const CBoundingBox squareMap = LaidOut(square.page).map;
    const CBoundingBox beside = LaidOut(square.page).Of(SurroundPicture)->GetExtent();
    EXPECT_GT(Left(beside), Right(squareMap));
    EXPECT_NEAR(Bottom(beside), Bottom(squareMap), 1.0e-9);

    const host::LaidOutPage wide = host::LayOut(design, {nullptr, 3.0});
    const CBoundingBox wideMap = LaidOut(wide.page).map;
    const CBoundingBox below = LaidOut(wide.page).Of(SurroundPicture)->GetExtent();
    EXPECT_LT(Top(below), Bottom(wideMap));
    EXPECT_NEAR(Right(below), Right(wideMap), 1.0e-9);
}

TEST_F(Layout, PlacesTheTitleInTheMiddleOnTop) {
    host::PageDesign design;
    design.title.text = L"Title";
    const host::LaidOutPage laidOut = host::LayOut(design, {nullptr, 1.0});
    const CBoundingBox title = LaidOut(laidOut.page).Of(SurroundMapTitle)->GetExtent();
    EXPECT_NEAR(Left(title) + Right(title), laidOut.page.Width(), 1.0e-6);
    EXPECT_GT(Bottom(title), Top(LaidOut(laidOut.page).map));
}

const std::vector<std::string> kOfNoGeoreference = {
    "the scale bar is left out: the map has no georeference",
    "the north arrow is left out: the map has no georeference"};

TEST_F(Layout, SetsTheTitleInItsSize) {
    host::PageDesign design;
    design.title.text = L"Title";
    design.title.points = 36.0;
    const host::LaidOutPage laidOut = host::LayOut(design, {nullptr, 1.0});
    const auto* title = dynamic_cast<const CMapTitle*>(
        LaidOut(laidOut.page).Of(SurroundMapTitle)->GetMapSurround());
    ASSERT_NE(title, nullptr);
    EXPECT_DOUBLE_EQ(title->GetFontSize(), 48.0);
    EXPECT_EQ(laidOut.remarks, kOfNoGeoreference);
}

TEST_F(Layout, SetsATitleSmallerThatWouldNotFit) {
    host::PageDesign design;
    design.title.text = L"A title that is long enough to be wider than the page it is on";
    design.title.points = 100.0;
    design.scaleBar.style = nullptr;
    design.northArrow.style = nullptr;
    const host::LaidOutPage laidOut = host::LayOut(design, {nullptr, 1.0});
    const CSurroundFrame* title = LaidOut(laidOut.page).Of(SurroundMapTitle);
    EXPECT_TRUE(IsOnPage(title->GetExtent(), laidOut.page));
    const auto isToldOf = [](const host::LaidOutPage& page, const std::string& points) {
        ASSERT_EQ(page.remarks.size(), 1u);
        EXPECT_THAT(
            page.remarks.front(),
            ::testing::MatchesRegex("the title is set in .* points to fit the page, "
                                    "instead of " +
                                    points + " points"));
    };
    isToldOf(laidOut, "100.0");

    // What suits the page is as large as it fits, but not half as large in silence.
    design.title.points.reset();
    EXPECT_TRUE(host::LayOut(design, {nullptr, 1.0}).remarks.empty());
    for (int i = 0; i < 6; ++i) {
        design.title.text.append(L" ").append(design.title.text);
    }
    isToldOf(host::LayOut(design, {nullptr, 1.0}), "18.0");
}

TEST_F(Layout, HasNoFrameForATitleWithoutInk) {
    for (const wchar_t* text : {L"", L"   "}) {
        host::PageDesign design;
        design.title.text = text;
        EXPECT_EQ(LaidOut(host::LayOut(design, {nullptr, 1.0}).page).Of(SurroundMapTitle),
                  nullptr);
    }
}

TEST_F(Layout, DecoratesFramesAsAskedFor) {
    host::PageDesign design;
    design.title.text = L"Title";
    design.frames.border.reset();
    design.frames.shadow = Gdiplus::Color(0xFF112233);
    design.frames.background = Gdiplus::Color(0x80445566);
    const host::LaidOutPage laidOut = host::LayOut(design, {nullptr, 1.0});
    const CSurroundFrame* title = LaidOut(laidOut.page).Of(SurroundMapTitle);
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
