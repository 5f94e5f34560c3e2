#include "page/page.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "map_surround/title.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "recording/recording.h"

namespace {

using recording::BrushLook;
using recording::DrawRectangle;
using recording::FillRectangle;
using recording::FillRectangleI;
using recording::PenLook;
using recording::ResetWorld;

constexpr Gdiplus::ARGB kBorder = 0xFF102030;
constexpr Gdiplus::ARGB kShadow = 0xFF405060;
constexpr Gdiplus::ARGB kFill = 0xFF708090;

/// A map of which each pixel tells where it is.
class PixelMap : public host::MapPicture {
public:
    host::PixelImage Render(int width, int height, const host::Progress&) override {
        ++renderings;
        host::PixelImage image;
        image.width = width;
        image.height = height;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const bool hole = x == 0 && y == 1;
                image.bgra.push_back(static_cast<std::uint8_t>(x));
                image.bgra.push_back(static_cast<std::uint8_t>(y));
                image.bgra.push_back(200);
                image.bgra.push_back(hole ? 0 : 255);
            }
        }
        return image;
    }

    int renderings = 0;
};

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
        const double scale = row.dpi / 96.0;
        const auto pixels = [scale](double units) {
            return static_cast<int>(units * scale + 0.5);
        };
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
        const double scale = dpi / 96.0;
        const auto pixels = [scale](double units) {
            return static_cast<int>(units * scale + 0.5);
        };
        host::Page page(80.0, 60.0);
        host::MapFrame map;
        map.frame.SetExtent({11.0, 7.0, 67.0, 49.0});
        map.frame.DrawFill = true;
        map.frame.FillColor = Gdiplus::Color(kFill);
        auto picture = std::make_shared<PixelMap>();
        map.picture = picture;
        page.Add(std::move(map));

        recording::Surface surface(300, 200);
        page.Draw(*surface.Graphics(), dpi);
        EXPECT_EQ(picture->renderings, 1);

        const int left = pixels(11.0);
        const int top = pixels(60.0 - 49.0);
        const int width = pixels(67.0) - left;
        const int height = pixels(60.0 - 7.0) - top;
        int wrong = 0;
        for (int y = -1; y <= height; ++y) {
            for (int x = -1; x <= width; ++x) {
                const bool inside = x >= 0 && y >= 0 && x < width && y < height;
                const bool hole = x == 0 && y == 1;
                const Gdiplus::Color expected =
                    !inside ? Gdiplus::Color(0xFFFFFFFF)
                    : hole  ? Gdiplus::Color(kFill)
                            : Gdiplus::Color(200, static_cast<std::uint8_t>(y),
                                             static_cast<std::uint8_t>(x));
                Gdiplus::Color drawn;
                surface.Bitmap().GetPixel(left + x, top + y, &drawn);
                wrong += drawn.GetValue() != expected.GetValue() ? 1 : 0;
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
    map.picture = std::make_shared<PixelMap>();
    page.Add(std::move(map));
    recording::Surface surface(100, 100);
    page.Draw(*surface.Graphics(), 96.0);
    const auto at = [&surface](int x, int y) {
        Gdiplus::Color color;
        surface.Bitmap().GetPixel(x, y, &color);
        return color.GetValue();
    };
    EXPECT_EQ(at(21, 50), kBorder);  // the inner half of the border
    EXPECT_EQ(at(18, 50), kBorder);  // the outer half
    EXPECT_EQ(at(50, 84), kShadow);
    EXPECT_EQ(at(50, 50), Gdiplus::Color(200, 30, 30).GetValue());
}

TEST(Page, SmoothsEachKindAsItLooksBest) {
    const struct {
        MapSurroundType kind;
        Gdiplus::SmoothingMode smoothing;
    } rows[] = {
        {SurroundNorthArrow, Gdiplus::SmoothingModeAntiAlias},
        {SurroundScaleBar, Gdiplus::SmoothingModeDefault},
        {SurroundLegend, Gdiplus::SmoothingModeDefault},
        {SurroundPicture, Gdiplus::SmoothingModeAntiAlias},
    };
    // GDI+ tells the mode it comes to: the default is none.
    const auto isSmooth = [](Gdiplus::SmoothingMode mode) {
        return mode == Gdiplus::SmoothingModeAntiAlias ||
               mode == Gdiplus::SmoothingModeHighQuality;
    };
    host::Page page(100.0, 100.0);
    std::vector<bool> smooth;
    std::vector<Gdiplus::TextRenderingHint> hints;
    for (const auto& row : rows) {
        page.Add(FrameOf(new Probe(row.kind,
                                   [&](Gdiplus::Graphics& graphics, CPoint, double) {
                                       smooth.push_back(
                                           isSmooth(graphics.GetSmoothingMode()));
                                       hints.push_back(graphics.GetTextRenderingHint());
                                   }),
                         {0.0, 0.0, 100.0, 100.0}));
    }
    recording::Surface surface;
    page.Draw(*surface.Graphics(), 96.0);
    ASSERT_EQ(smooth.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(smooth[i], isSmooth(rows[i].smoothing)) << rows[i].kind;
        EXPECT_EQ(hints[i], Gdiplus::TextRenderingHintAntiAlias) << rows[i].kind;
    }
}

TEST(Page, GivesEveryItemACleanTransform) {
    host::Page page(100.0, 100.0);
    const auto turn = [](Gdiplus::Graphics& graphics, CPoint, double) {
        graphics.RotateTransform(30.0f);
    };
    page.Add(FrameOf(new Probe(SurroundLegend, turn), {0.0, 0.0, 100.0, 100.0}));
    recording::Surface surface;
    surface.Graphics()->RotateTransform(45.0f);
    std::vector<float> found;
    page.Add(FrameOf(
        new Probe(SurroundLegend, [&](Gdiplus::Graphics&, CPoint,
                                      double) { found = surface.WorldTransform(); }),
        {0.0, 0.0, 100.0, 100.0}));
    page.Draw(*surface.Graphics(), 96.0);
    EXPECT_EQ(found, (std::vector<float>{1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f}));
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
        const Gdiplus::Size size = host::PixelSize(page, row.dpi);
        recording::Surface surface(size.Width, size.Height);
        page.Draw(*surface.Graphics(), row.dpi);

        int left = size.Width, top = size.Height, right = -1, bottom = -1;
        for (int y = 0; y < size.Height; ++y) {
            for (int x = 0; x < size.Width; ++x) {
                Gdiplus::Color color;
                surface.Bitmap().GetPixel(x, y, &color);
                if (color.GetR() < 128) {
                    left = std::min(left, x);
                    top = std::min(top, y);
                    right = std::max(right, x + 1);
                    bottom = std::max(bottom, y + 1);
                }
            }
        }
        // Outlines are measured to whole pixels, and glyphs are set to them.
        EXPECT_NEAR((left + right) / 2.0, size.Width / 2.0, 2.0) << row.angle;
        EXPECT_NEAR((top + bottom) / 2.0, size.Height / 2.0, 2.0) << row.angle;
        EXPECT_GT(right - left, 20) << "nothing drawn";
    }
}

}  // namespace
