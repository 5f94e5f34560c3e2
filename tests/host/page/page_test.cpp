#include "page/page.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "map_surround/title.h"
#include "page/made_picture.h"
#include "page/page_pixels.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "recording/recording.h"

namespace {

using host_tests::MadePicture;
using host_tests::PagePixels;
using recording::BrushLook;
using recording::DrawRectangle;
using recording::FillRectangle;
using recording::FillRectangleI;
using recording::PenLook;
using recording::ResetWorld;

constexpr Gdiplus::ARGB kBorder = 0xFF102030;
constexpr Gdiplus::ARGB kShadow = 0xFF405060;
constexpr Gdiplus::ARGB kFill = 0xFF708090;

/// A map of which each pixel tells where it is, with a hole.
constexpr int kHoleY = 1;
std::shared_ptr<MadePicture> PixelMap() {
    return std::make_shared<MadePicture>([](int x, int y) {
        const bool hole = x == 0 && y == kHoleY;
        return Gdiplus::Color::MakeARGB(hole ? 0 : 255, 200, static_cast<BYTE>(y),
                                        static_cast<BYTE>(x));
    });
}

/// An element that says how it is drawn.
class Probe : public CMapSurround {
public:
    using Drawn = std::function<void(Gdiplus::Graphics&, CPoint, double)>;
    Probe(MapSurroundType kind, Drawn drawn) : m_drawn(std::move(drawn)) {
        SetItemType(kind);
    }
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override {
        m_drawn(*graphics, centre, scale);
    }

private:
    Drawn m_drawn;
};

int PixelsAt(double units, double dpi) {
    return static_cast<int>(units * dpi / 96.0 + 0.5);
}

void Decorate(CFrameBase& frame) {
    frame.DrawBorder = true;
    frame.DrawShadow = true;
    frame.DrawFill = true;
    frame.BorderColor = Gdiplus::Color(kBorder);
    frame.ShadowColor = Gdiplus::Color(kShadow);
    frame.FillColor = Gdiplus::Color(kFill);
}

std::unique_ptr<CSurroundFrame> FrameOf(CMapSurround* element, CBoundingBox extent) {
    auto frame = std::make_unique<CSurroundFrame>();
    frame->SetMapSurround(element);
    frame->SetExtent(extent);
    return frame;
}

TEST(Page, DrawsItsItemsInOrder) {
    host::Page page(200.0, 100.0);
    auto frame =
        FrameOf(new Probe(SurroundScaleBar,
                          [](Gdiplus::Graphics& graphics, CPoint centre, double scale) {
                              const Gdiplus::Pen pen(Gdiplus::Color(0xFFFF0000), 1.0f);
                              graphics.DrawLine(&pen, centre.x, centre.y,
                                                static_cast<int>(scale * 1000.0), 0);
                          }),
                {110.0, 10.0, 190.0, 50.0});
    Decorate(*frame);
    frame->ShadowRatioX = 0.125f;
    frame->ShadowRatioY = 0.25f;
    frame->BorderWidth = 1.5f;
    page.Add(std::move(frame));
    auto second = FrameOf(nullptr, {0.0, 0.0, 200.0, 100.0});
    second->DrawBorder = true;
    page.Add(std::move(second));

    recording::Surface surface(400, 200);
    recording::Recording recording;
    page.Draw(*surface.Graphics(), 192.0);
    // At two pixels a unit the first frame is (220, 100) to (380, 180), its border 3
    // pixels wide. The shadow begins where the pen ends, 2 pixels beyond its line; it
    // falls 160 / 8 = 20 to the right and 80 / 4 = 20 down.
    const std::string shadow = BrushLook(kShadow);
    EXPECT_TRUE(recording::Equal(
        {{"start", ResetWorld()},
         {"before the first frame", ResetWorld()},
         {"shadow on the right",
          FillRectangle(shadow, 380.0f + 2, 100.0f + 20 + 2, 20.0f + 2, 80.0f + 2)},
         {"shadow below",
          FillRectangle(shadow, 220.0f + 20 + 2, 180.0f + 2, 160.0f + 2, 20.0f + 2)},
         {"background", FillRectangleI(BrushLook(kFill), 220, 100, 160, 80)},
         {"border", DrawRectangle(PenLook(kBorder, 3.0f), 220, 100, 160, 80)},
         {"before the element", ResetWorld()},
         {"element", recording::DrawLine(PenLook(0xFFFF0000, 1.0f), 300, 140, 2000, 0)},
         {"before the second frame", ResetWorld()},
         {"border around the page",
          DrawRectangle(PenLook(0xFF000000, 2.0f), 0, 0, 400, 200)}},
        recording.Drawing()));
}

TEST(Page, ScalesDecorationsWithTheResolution) {
    const struct {
        double dpi;
        float borderWidth;
        int borderGap;
        int fillGap;
        float widthDrawn;
        int borderGapDrawn;
        int fillGapDrawn;
    } rows[] = {
        {96.0, 1.0f, 3, 2, 1.0f, 3, 2},
        {150.0, 1.0f, 3, 2, 2.0f, 5, 3},   // 1.56, 4.69, 3.13
        {300.0, 1.0f, 3, 2, 3.0f, 9, 6},   // 3.13, 9.38, 6.25
        {96.0, 0.2f, 0, -1, 1.0f, 0, -1},  // a line never vanishes
        {48.0, 0.6f, 1, -4, 1.0f, 1, -2},  // 0.3; 0.5 goes up
    };
    for (const auto& row : rows) {
        const auto pixels = [&](double units) { return PixelsAt(units, row.dpi); };
        host::Page page(200.0, 100.0);
        auto frame = FrameOf(nullptr, {20.0, 20.0, 180.0, 80.0});
        Decorate(*frame);
        frame->DrawShadow = false;
        frame->BorderWidth = row.borderWidth;
        frame->BorderGapX = frame->BorderGapY = row.borderGap;
        frame->FillGapX = frame->FillGapY = row.fillGap;
        page.Add(std::move(frame));

        recording::Surface surface;
        recording::Recording recording;
        page.Draw(*surface.Graphics(), row.dpi);
        const int left = pixels(20.0);
        const int top = pixels(20.0);
        const int width = pixels(180.0) - left;
        const int height = pixels(80.0) - top;
        const int border = row.borderGapDrawn;
        const int fill = row.fillGapDrawn;
        EXPECT_TRUE(recording::Equal(
            {{"start", ResetWorld()},
             {"before the frame", ResetWorld()},
             {"background", FillRectangleI(BrushLook(kFill), left - fill, top - fill,
                                           width + 2 * fill, height + 2 * fill)},
             {"border",
              DrawRectangle(PenLook(kBorder, row.widthDrawn), left - border, top - border,
                            width + 2 * border, height + 2 * border)}},
            recording.Drawing()))
            << "at " << row.dpi;
    }
}

TEST(Page, LeavesItsFramesAsTheyAre) {
    host::Page page(100.0, 100.0);
    auto frame = FrameOf(nullptr, {10.0, 10.0, 90.0, 90.0});
    Decorate(*frame);
    const CSurroundFrame& kept = *frame;
    page.Add(std::move(frame));
    host::MapFrame map;
    map.frame.SetExtent({10.0, 10.0, 90.0, 90.0});
    Decorate(map.frame);
    page.Add(std::move(map));

    recording::Surface surface;
    page.Draw(*surface.Graphics(), 300.0);
    // Both shadow ratios are 0, which would bring a frame's own border width to 0.
    EXPECT_EQ(kept.BorderWidth, 1.0f);
    EXPECT_TRUE(kept.DrawBorder && kept.DrawShadow && kept.DrawFill);
    EXPECT_EQ(std::get<host::MapFrame>(page.Items()[1]).frame.BorderWidth, 1.0f);
}

TEST(Page, DrawsAMapPixelForPixel) {
    for (const double dpi : {96.0, 150.0, 300.0}) {
        const auto pixels = [&](double units) { return PixelsAt(units, dpi); };
        host::Page page(80.0, 60.0);
        host::MapFrame map;
        map.frame.SetExtent({11.0, 7.0, 67.0, 49.0});
        map.frame.DrawFill = true;
        map.frame.FillColor = Gdiplus::Color(kFill);
        const auto picture = PixelMap();
        map.picture = picture;
        page.Add(std::move(map));
        const PagePixels drawn(page, dpi);
        EXPECT_EQ(picture->readings, 1);

        const int left = pixels(11.0);
        const int top = pixels(60.0 - 49.0);
        const int width = pixels(67.0) - left;
        const int height = pixels(60.0 - 7.0) - top;
        int wrong = 0;
        for (int y = -1; y <= height; ++y) {
            for (int x = -1; x <= width; ++x) {
                const bool inside = x >= 0 && y >= 0 && x < width && y < height;
                const bool hole = x == 0 && y == kHoleY;
                const Gdiplus::Color expected =
                    !inside ? Gdiplus::Color(0xFFFFFFFF)
                    : hole  ? Gdiplus::Color(kFill)
                            : Gdiplus::Color(200, static_cast<std::uint8_t>(y),
                                             static_cast<std::uint8_t>(x));
                const Gdiplus::Color pixel = drawn.At(left + x, top + y);
                wrong += pixel.GetValue() != expected.GetValue() ? 1 : 0;
            }
        }
        EXPECT_EQ(wrong, 0) << "at " << dpi;
    }
}

TEST(Page, DrawsTheBorderOverTheMapAndTheShadowUnderIt) {
    host::Page page(100.0, 100.0);
    host::MapFrame map;
    map.frame.SetExtent({20.0, 20.0, 80.0, 80.0});
    Decorate(map.frame);
    map.frame.BorderWidth = 4.0f;
    map.frame.ShadowRatioX = -0.5f;
    map.frame.ShadowRatioY = 0.1f;
    map.picture = PixelMap();
    page.Add(std::move(map));
    const PagePixels drawn(page, 96.0);
    EXPECT_EQ(drawn.At(21, 50).GetValue(), kBorder);  // the inner half of the border
    EXPECT_EQ(drawn.At(18, 50).GetValue(), kBorder);  // the outer half
    EXPECT_EQ(drawn.At(50, 84).GetValue(), kShadow);
    EXPECT_EQ(drawn.At(50, 50).GetValue(), Gdiplus::Color(200, 30, 30).GetValue());
}

TEST(Page, SmoothsEachKindAsItLooksBest) {
    const std::pair<MapSurroundType, bool> rows[] = {{SurroundNorthArrow, true},
                                                     {SurroundScaleBar, false},
                                                     {SurroundLegend, false},
                                                     {SurroundPicture, true}};
    host::Page page(100.0, 100.0);
    int drawn = 0;
    for (const auto& [kind, isSmooth] : rows) {
        const auto check = [&, smooth = isSmooth](Gdiplus::Graphics& graphics, CPoint,
                                                  double) {
            // GDI+ tells the mode it comes to.
            const Gdiplus::SmoothingMode mode = graphics.GetSmoothingMode();
            EXPECT_EQ(mode == Gdiplus::SmoothingModeAntiAlias ||
                          mode == Gdiplus::SmoothingModeHighQuality,
                      smooth)
                << drawn;
            EXPECT_EQ(graphics.GetTextRenderingHint(),
                      Gdiplus::TextRenderingHintAntiAlias);
            ++drawn;
        };
        page.Add(FrameOf(new Probe(kind, check), {0.0, 0.0, 100.0, 100.0}));
    }
    recording::Surface surface;
    page.Draw(*surface.Graphics(), 96.0);
    EXPECT_EQ(drawn, 4);
}

TEST(Page, CentresTheInkOfATitle) {
    const struct {
        double dpi;
        float angle;
        const wchar_t* text;
    } rows[] = {
        {96.0, 0.0f, L"Typographic"},  {150.0, 0.0f, L"Typographic"},
        {300.0, 0.0f, L"Typographic"}, {150.0, 90.0f, L"Typographic"},
        {150.0, 180.0f, L"acme"},      {96.0, 0.0f, L"\u5965\u6797\u8fbe"},
    };
    for (const auto& row : rows) {
        auto* const title = new CMapTitle;
        title->SetFontValue(row.text);
        title->SetFontStyle(L"Arial");
        title->SetFontSize(24.0);
        title->SetAngle(row.angle);
        title->ResetAspectRatio();
        host::Page page(200.0, 200.0);
        page.Add(FrameOf(title, {20.0, 20.0, 180.0, 180.0}));
        const PagePixels drawn(page, row.dpi);
        int left = drawn.width, top = drawn.height, right = -1, bottom = -1;
        for (int y = 0; y < drawn.height; ++y) {
            for (int x = 0; x < drawn.width; ++x) {
                if (drawn.At(x, y).GetR() < 128) {
                    left = std::min(left, x);
                    top = std::min(top, y);
                    right = std::max(right, x + 1);
                    bottom = std::max(bottom, y + 1);
                }
            }
        }
        // Outlines are measured to whole pixels, and glyphs are set to them.
        EXPECT_NEAR((left + right) / 2.0, drawn.width / 2.0, 2.0) << row.angle;
        EXPECT_NEAR((top + bottom) / 2.0, drawn.height / 2.0, 2.0) << row.angle;
        EXPECT_GT(right - left, 20) << "nothing drawn";
    }
}

}  // namespace
