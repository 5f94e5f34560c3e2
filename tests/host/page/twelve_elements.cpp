#include "page/twelve_elements.h"

#include <utility>

#include "map_surround/map_surround.h"
#include "page/made_picture.h"
#include "page/placed_frame.h"

namespace host_tests {
namespace {

/// Squares, with a hole along a diagonal.
Gdiplus::ARGB Checkered(int x, int y) {
    const int alpha = x / 20 + y / 20 == 7 ? 0 : 255;
    return Gdiplus::Color::MakeARGB(static_cast<BYTE>(alpha), 120,
                                    static_cast<BYTE>(y / 20 % 2 * 120 + 100),
                                    static_cast<BYTE>(x / 20 % 2 * 90 + 60));
}

void Frame(host::Page& page, std::unique_ptr<CMapSurround> element, CBoundingBox extent) {
    element->ResetAspectRatio();
    std::unique_ptr<host::PlacedFrame> frame = host::FrameFor(std::move(element));
    if (auto* const bar = dynamic_cast<host::ScaleBarFrame*>(frame.get())) {
        bar->SetDivisionLength(60.0);
    }
    frame->SetExtent(extent);
    frame->DrawBorder = true;
    frame->BorderWidth = 2.0f;
    frame->DrawFill = true;
    frame->FillColor = Gdiplus::Color(0xFFFFFFF0);
    frame->DrawShadow = true;
    frame->ShadowColor = Gdiplus::Color(0xFFB0B0B0);
    frame->ShadowRatioX = 0.03f;
    frame->ShadowRatioY = 0.05f;
    page.Add(std::move(frame));
}

std::unique_ptr<CMapSurround> Title(const wchar_t* text, double size, float angle) {
    auto title = std::make_unique<CMapTitle>();
    title->SetFontValue(text);
    title->SetFontStyle(L"Arial");
    title->SetFontSize(size);
    title->SetAngle(angle);
    return title;
}

template <typename Arrow>
std::unique_ptr<CMapSurround> NorthArrow(float angle) {
    auto arrow = std::make_unique<Arrow>();
    arrow->SetSize(90);
    arrow->SetAngle(angle);
    return arrow;
}

template <typename Bar>
std::unique_ptr<CMapSurround> ScaleBar() {
    auto bar = std::make_unique<Bar>();
    bar->SetSize(40);
    bar->SetPaper2DataScale(30.0);
    bar->SetPaper2ScreenScale(60.0);
    bar->SetScreen2PaperByOneScale(60.0);
    bar->SetUnitsName(L"Kilometers");
    return bar;
}

}  // namespace

host::Page TwelveElements() {
    host::Page page(1123.0, 794.0);
    host::MapFrame map;
    map.frame.SetExtent(CBoundingBox(60.0, 60.0, 800.0, 660.0));
    map.frame.DrawBorder = true;
    map.picture = std::make_shared<MadePicture>(Checkered);
    page.Add(std::move(map));

    Frame(page, Title(L"Land cover of Olinda", 40.0, 0.0f), {200.0, 690.0, 740.0, 770.0});
    Frame(page, Title(L"遥感影像图", 24.0, 30.0f), {830.0, 640.0, 1080.0, 780.0});
    Frame(page, Title(L"(draft)", 18.0, -90.0f), {20.0, 300.0, 55.0, 420.0});
    Frame(page, NorthArrow<CNorthArrowOneAngle>(0.0f), {830.0, 500.0, 930.0, 610.0});
    Frame(page, NorthArrow<CNorthArrowTwoAngle>(20.0f), {960.0, 500.0, 1080.0, 610.0});
    Frame(page, NorthArrow<CNorthArrowFourAngle>(0.0f), {830.0, 370.0, 940.0, 490.0});
    Frame(page, NorthArrow<CNorthArrowEightAngle>(45.0f), {960.0, 360.0, 1090.0, 490.0});
    Frame(page, ScaleBar<CScaleLine>(), {100.0, 80.0, 440.0, 140.0});
    Frame(page, ScaleBar<CSteppedScaleLine>(), {420.0, 100.0, 790.0, 160.0});
    Frame(page, ScaleBar<CScaleAlternate>(), {820.0, 70.0, 1100.0, 130.0});
    Frame(page, ScaleBar<CScaleEquAltenate>(), {820.0, 20.0, 1100.0, 60.0});
    Frame(page, std::make_unique<CMapLegend>(), {830.0, 150.0, 1080.0, 350.0});
    return page;
}

}  // namespace host_tests
