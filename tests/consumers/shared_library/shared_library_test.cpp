// A host that knows the library by its public headers and its shared library alone, as an
// application does: it draws every element onto a picture and looks at the pixels.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/map_surround.h"
#include "page/catalogue.h"
#include "title_picture/image_file.h"

namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;
const Gdiplus::Color kPaper(255, 255, 255, 255);

/// How many pixels differ from the paper after an element was drawn on it.
int InkOf(CMapSurround& element) {
    Gdiplus::Bitmap picture(kWidth, kHeight);
    Gdiplus::Graphics graphics(&picture);
    graphics.Clear(kPaper);
    element.Draw(&graphics, CPoint(kWidth / 2, kHeight / 2), 1.0);
    EXPECT_EQ(graphics.GetLastStatus(), Gdiplus::Ok);
    int ink = 0;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            Gdiplus::Color pixel;
            picture.GetPixel(x, y, &pixel);
            ink += pixel.GetValue() != kPaper.GetValue() ? 1 : 0;
        }
    }
    return ink;
}

TEST(LibraryHost, DrawsTheTitle) {
    CMapTitle title;
    title.SetFontValue(L"Olinda");
    title.SetFontStyle(L"Arial");
    title.SetFontSize(30.0);
    title.ResetAspectRatio();
    EXPECT_GT(title.GetSize(), 15);
    EXPECT_GT(InkOf(title), 200);
}

TEST(LibraryHost, DrawsAPictureFromAFile) {
    const ImageFolder folder;
    CDrawPicture picture;
    ASSERT_TRUE(picture.Open(folder.WriteBmp("red.bmp", 30, 20, 0xC80000).c_str()));
    EXPECT_EQ(picture.GetSize(), 6);  // 20 / 3
    picture.SetSize(40);
    picture.ResetAspectRatio();
    // 60 by 40 pixels; the edges may be blended.
    EXPECT_NEAR(InkOf(picture), 60 * 40, 2 * (60 + 40) + 4);
}

TEST(LibraryHost, DrawsEveryStyle) {
    for (const host::CatalogueEntry& style : host::kCatalogue) {
        const std::unique_ptr<CMapSurround> element = style.make();
        EXPECT_EQ(element->GetItemType(), style.family);
        if (auto* const bar = dynamic_cast<CScaleBarBase*>(element.get())) {
            bar->SetPaper2DataScale(37.0);
            bar->SetPaper2ScreenScale(40.0);
            bar->SetScreen2PaperByOneScale(40.0);
            bar->SetUnitsName(L"Meter");
            EXPECT_EQ(bar->GetUnitsName(), L"\u7C73");
            bar->ResetAspectRatio();
            EXPECT_GT(InkOf(*bar), 300) << style.name;
        } else if (style.family == SurroundNorthArrow) {
            element->SetSize(150);
            element->SetAngle(20.0f);
            EXPECT_GT(InkOf(*element), 100) << style.name;
        }
    }
}

/// Bars and arrows of all styles, as a host may make, measure and draw them before it has
/// started GDI+.
std::vector<std::unique_ptr<CMapSurround>> MakeTooEarly() {
    Gdiplus::Bitmap picture(kWidth, kHeight);
    Gdiplus::Graphics graphics(&picture);
    std::vector<std::unique_ptr<CMapSurround>> elements;
    for (const host::CatalogueEntry& style : host::kCatalogue) {
        if (style.family == SurroundScaleBar || style.family == SurroundNorthArrow) {
            elements.push_back(style.make());
            elements.back()->SetSize(100);
            elements.back()->ResetAspectRatio();
            elements.back()->Draw(&graphics, CPoint(kWidth / 2, kHeight / 2), 1.0);
        }
    }
    return elements;
}

std::vector<std::unique_ptr<CMapSurround>> madeTooEarly;

#ifndef _WIN32  // Wine's GDI+ does not mind
// A bar has its font family from the start, and none if that was too early.
TEST(LibraryHost, HearsOfBarsThatItMadeBeforeItStartedGdiplus) {
    EXPECT_GE(madeTooEarly.size(), 10u);
    for (const std::unique_ptr<CMapSurround>& element : madeTooEarly) {
        Gdiplus::Bitmap picture(kWidth, kHeight);
        Gdiplus::Graphics graphics(&picture);
        element->Draw(&graphics, CPoint(kWidth / 2, kHeight / 2), 1.0);
        const bool isBar = element->GetItemType() == SurroundScaleBar;
        EXPECT_EQ(graphics.GetLastStatus(),
                  isBar ? Gdiplus::InvalidParameter : Gdiplus::Ok);
    }
}
#endif

TEST(LibraryHost, DrawsTheLegend) {
    fakes::Raster source(L"scene.tif", DisplayRGB);
    CMapLegend legend;
    legend.SetTitleValue(L"Legend");
    legend.SetDataSouce({&source});
    legend.ResetAspectRatio();
    EXPECT_GT(legend.GetSize(), 80);
    EXPECT_GT(InkOf(legend), 3 * 30 * 5);
}

TEST(LibraryHost, FramesAndDeletesAnElement) {
    CSurroundFrame frame;
    auto title = std::make_unique<CMapTitle>();
    title->SetFontValue(L"Olinda");
    title->SetFontStyle(L"Arial");
    title->ResetAspectRatio();
    frame.SetMapSurround(title.release());
    frame.SetExtent(CBoundingBox(0.0, 0.0, 100.0, 50.0));
    EXPECT_EQ(frame.HitTest(CPoint2D(47.0, 50.0), 3.0, false), TopoOnHandle);
    EXPECT_EQ(frame.HitHandle, 1);
    frame.DrawBorder = true;

    Gdiplus::Bitmap picture(kWidth, kHeight);
    Gdiplus::Graphics graphics(&picture);
    graphics.Clear(kPaper);
    frame.DrawFrame(&graphics, CRect(20, 20, 120, 70));
    frame.Draw(&graphics, CPoint(70, 45), 1.0);
    EXPECT_EQ(graphics.GetLastStatus(), Gdiplus::Ok);
    Gdiplus::Color border;
    picture.GetPixel(60, 20, &border);
    EXPECT_NE(border.GetValue(), kPaper.GetValue());
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    madeTooEarly = MakeTooEarly();
    const map_surround::kit::GdiplusSession session;
    return RUN_ALL_TESTS();
}
