// The furniture of a page without its map: what the peers draw too.
//   furniture_page DPI OUT.png           draws it and writes the file
//   furniture_page DPI --redraw TIMES    prints a drawing's median milliseconds of
//   processor time

#include <gdiplus.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <deque>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/map_surround.h"
#include "page/output/png_image.h"

namespace {

constexpr double kWidth = 297.0 / 25.4;  // A4 landscape, inches
constexpr double kHeight = 210.0 / 25.4;

fakes::Raster GreySource() {
    fakes::Raster grey(L"elevation.tif", DisplayGray);
    grey.band.lowest = 0.0;
    grey.band.highest = 2481.0;
    return grey;
}

fakes::Raster ClassifiedSource() {
    fakes::Raster classified(L"land_cover.tif", DisplayClassified);
    const wchar_t* const names[] = {L"Water",   L"Forest", L"Meadow", L"Field",
                                    L"Village", L"Quarry", L"Marsh",  L"Rock"};
    unsigned char shade = 20;
    for (const wchar_t* name : names) {
        classified.table.items.emplace_back(name, shade,
                                            static_cast<unsigned char>(255 - shade), 90);
        shade = static_cast<unsigned char>(shade + 28);
    }
    return classified;
}

/// A framed element and where its frame is, in 96ths of an inch.
struct Placed {
    CSurroundFrame frame;
    CRect rect;
};

class FurniturePage {
public:
    FurniturePage() {
        auto title = std::make_unique<CMapTitle>();
        title->SetFontValue(L"Land cover of Olinda");
        title->SetFontStyle(L"Arial");
        title->SetFontSize(40.0);
        Place(std::move(title), {300, 20, 820, 90});

        auto legend = std::make_unique<CMapLegend>();
        legend->SetTitleValue(L"Legend");
        legend->SetDataSouce({&m_rgb, &m_grey, &m_classified});
        Place(std::move(legend), {860, 110, 1100, 600});

        auto rose = std::make_unique<CNorthArrowEightAngle>();
        rose->SetSize(130);
        Place(std::move(rose), {910, 620, 1050, 770});

        auto bar = std::make_unique<CScaleAlternate>();
        bar->SetMainDivCount(5);
        bar->SetSize(40);
        bar->SetPaper2DataScale(1000.0);
        bar->SetPaper2ScreenScale(70.0);
        bar->SetScreen2PaperByOneScale(70.0);
        bar->SetUnitsName(L"Kilometers");
        Place(std::move(bar), {60, 690, 620, 770});
    }

    void Draw(Gdiplus::Graphics& graphics, double dpi) {
        const double scale = dpi / 96.0;
        graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        for (Placed& placed : m_placed) {
            const CRect rect(At(placed.rect.left, scale), At(placed.rect.top, scale),
                             At(placed.rect.right, scale), At(placed.rect.bottom, scale));
            DrawFrame(placed.frame, graphics, rect);
            ScaleBarTo(*placed.frame.GetMapSurround(), scale);
            placed.frame.Draw(
                &graphics,
                CPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2),
                scale);
        }
    }

private:
    static int At(int length, double scale) { return static_cast<int>(length * scale); }

    /// The background first: in one call it would cover the inner half of the border.
    static void DrawFrame(CFrameBase frame, Gdiplus::Graphics& graphics,
                          const CRect& rect) {
        frame.DrawBorder = false;
        frame.DrawFrame(&graphics, rect);
        std::swap(frame.DrawBorder, frame.DrawFill);
        frame.DrawFrame(&graphics, rect);
    }

    /// The bar's lengths on the surface are the host's to set.
    static void ScaleBarTo(CMapSurround& element, double scale) {
        if (auto* const bar = dynamic_cast<CScaleBarBase*>(&element)) {
            bar->SetPaper2ScreenScale(70.0 * scale);
        }
    }

    void Place(std::unique_ptr<CMapSurround> element, CRect rect) {
        element->ResetAspectRatio();
        Placed& placed = m_placed.emplace_back();
        placed.rect = rect;
        placed.frame.SetMapSurround(element.release());
        placed.frame.DrawBorder = true;
        placed.frame.DrawFill = true;
        placed.frame.FillColor = Gdiplus::Color(0xFFFFFFFF);
    }

    fakes::Raster m_rgb{L"scene.tif", DisplayRGB};
    fakes::Raster m_grey = GreySource();
    fakes::Raster m_classified = ClassifiedSource();
    std::deque<Placed> m_placed;  // a moved frame would share its element
};

double MedianMilliseconds(FurniturePage& page, Gdiplus::Graphics& graphics, double dpi,
                          int times) {
    std::vector<double> all;
    for (int i = 0; i < times; ++i) {
        const std::clock_t start = std::clock();
        page.Draw(graphics, dpi);
        all.push_back(1000.0 * static_cast<double>(std::clock() - start) /
                      CLOCKS_PER_SEC);
    }
    std::sort(all.begin(), all.end());
    return all[all.size() / 2];
}

void Run(double dpi, const std::string& out, int times) {
    const int width = static_cast<int>(kWidth * dpi + 0.5);
    const int height = static_cast<int>(kHeight * dpi + 0.5);
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(width) *
                                     static_cast<std::size_t>(height) * 4);
    Gdiplus::Bitmap bitmap(width, height, width * 4, PixelFormat32bppRGB, pixels.data());
    Gdiplus::Graphics graphics(&bitmap);
    FurniturePage page;
    if (times > 0) {
        std::printf("%.4f\n", MedianMilliseconds(page, graphics, dpi, times));
        return;
    }
    page.Draw(graphics, dpi);
    graphics.Flush(Gdiplus::FlushIntentionSync);
    const std::vector<std::uint8_t> file =
        host::EncodePng({pixels.data(), width, height, width * 4}, dpi);
    std::ofstream(out, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()),
               static_cast<std::streamsize>(file.size()));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "furniture_page DPI OUT.png | DPI --redraw TIMES\n");
        return 2;
    }
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return 1;
    }
    const bool redraws = argc > 3 && std::string_view(argv[2]) == "--redraw";
    Run(std::atof(argv[1]), argv[2], redraws ? std::atoi(argv[3]) : 0);
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
