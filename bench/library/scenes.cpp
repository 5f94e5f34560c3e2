#include "scenes.h"

#include <utility>

#include "legend/fake_sources.h"
#include "map_surround/map_surround.h"
#include "page/catalogue.h"

namespace bench {
namespace {

constexpr Gdiplus::ARGB kInk = 0xFF1B2733;
constexpr int kMany = 1000;

struct Named {
    std::string name;
    std::shared_ptr<CMapSurround> element;
};

/// A legend together with the sources that it explains.
class LegendOfRasters : public CMapLegend {
public:
    explicit LegendOfRasters(std::vector<fakes::Raster> rasters)
        : m_rasters(std::move(rasters)) {
        std::vector<CGISDataSource*> sources;
        for (fakes::Raster& raster : m_rasters) {
            sources.push_back(&raster);
        }
        SetDataSouce(sources);
        SetTitleValue(L"Legend");
        CMapLegend::ResetAspectRatio();
    }

private:
    std::vector<fakes::Raster> m_rasters;
};

fakes::Raster Rgb() { return fakes::Raster(L"landsat_2024.tif", DisplayRGB); }

fakes::Raster Grey() {
    fakes::Raster raster(L"elevation.tif", DisplayGray);
    raster.band.lowest = -3.7;
    raster.band.highest = 107.9;
    return raster;
}

fakes::Raster Classified(int classes) {
    fakes::Raster raster(L"land_cover.tif", DisplayClassified);
    for (int i = 0; i < classes; ++i) {
        const auto shade = static_cast<unsigned char>(i);
        raster.table.items.emplace_back(L"class " + std::to_wstring(10000 + i), shade,
                                        shade, shade);
    }
    return raster;
}

Named Legend(const char* name, std::vector<fakes::Raster> rasters) {
    return {name, std::make_shared<LegendOfRasters>(std::move(rasters))};
}

/// The whole bar is on the surface, where a call costs most.
void SetUp(CScaleBarBase& bar, double scale, int divisions) {
    const double division = divisions < kMany ? 36.0 : 1.0;
    bar.SetUnitsName(L"Kilometre");
    bar.SetMainDivCount(divisions);
    bar.SetPaper2DataScale(0.5);
    bar.SetPaper2ScreenScale(division * scale);
    bar.SetScreen2PaperByOneScale(division);
}

Named Usual(const host::CatalogueEntry& entry, double scale, int divisions = 4) {
    const std::shared_ptr<CMapSurround> element = entry.make();
    element->SetFrontColor(kInk);
    if (auto* const title = dynamic_cast<CMapTitle*>(element.get())) {
        title->SetFontValue(L"Land cover of Olinda");
        title->SetFontStyle(L"Arial");
        title->SetFontSize(40.0);
    } else if (auto* const picture = dynamic_cast<CDrawPicture*>(element.get())) {
        const std::string path = BENCH_PICTURE;
        picture->Open(std::wstring(path.begin(), path.end()).c_str());
        picture->SetSize(120);
    } else if (auto* const bar = dynamic_cast<CScaleBarBase*>(element.get())) {
        SetUp(*bar, scale, divisions);
    } else {
        element->SetSize(120);
        element->SetAngle(20.0f);
    }
    element->ResetAspectRatio();
    return {entry.name, element};
}

std::vector<Named> Elements(double scale) {
    std::vector<Named> elements;
    for (const host::CatalogueEntry& entry : host::kCatalogue) {
        if (entry.family != SurroundLegend) {
            elements.push_back(Usual(entry, scale));
        }
    }
    elements.push_back(Legend("legend, three bands", {Rgb()}));
    elements.push_back(Legend("legend, grey", {Grey()}));
    elements.push_back(Legend("legend, 12 classes", {Classified(12)}));
    elements.push_back(Legend("legend, all three", {Rgb(), Grey(), Classified(12)}));
    // What the library does itself would show here if it grew faster than its calls.
    for (const host::CatalogueEntry& entry : host::kCatalogue) {
        if (entry.is(CScaleLine()) || entry.is(CScaleAlternate())) {
            elements.push_back(Usual(entry, scale, kMany));
            elements.back().name += ", 1000 divisions";
        }
    }
    elements.push_back(Legend("legend, 1000 classes", {Classified(kMany)}));
    elements.push_back(
        Legend("legend, 1000 sources", std::vector<fakes::Raster>(kMany, Rgb())));
    return elements;
}

CFrameBase DecoratedFrame() {
    CFrameBase frame;
    frame.DrawBorder = true;
    frame.BorderGapX = 1;
    frame.BorderGapY = 1;
    frame.DrawShadow = true;
    frame.ShadowColor = Gdiplus::Color(0xFFB4BBC2);
    frame.ShadowRatioX = 0.02f;
    frame.ShadowRatioY = 0.05f;
    frame.DrawFill = true;
    frame.FillColor = Gdiplus::Color(0xFFF7F3E8);
    return frame;
}

CFrameBase DashedFrame() {
    CFrameBase frame;
    frame.DrawBorder = true;
    frame.DashedBorder = true;
    return frame;
}

/// How a host draws an element: slanted edges smoothed, lines along the axes not.
Gdiplus::SmoothingMode SmoothingOf(MapSurroundType type) {
    return type == SurroundScaleBar || type == SurroundLegend
               ? Gdiplus::SmoothingModeDefault
               : Gdiplus::SmoothingModeAntiAlias;
}

}  // namespace

std::vector<Gdiplus::ARGB> Surface::Pixels() {
    const Gdiplus::Rect all(0, 0, static_cast<INT>(m_bitmap.GetWidth()),
                            static_cast<INT>(m_bitmap.GetHeight()));
    Gdiplus::BitmapData data;
    std::vector<Gdiplus::ARGB> pixels;
    if (m_bitmap.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB,
                          &data) != Gdiplus::Ok) {
        return pixels;
    }
    for (INT y = 0; y < all.Height; ++y) {
        const auto* row = reinterpret_cast<const Gdiplus::ARGB*>(
            static_cast<const BYTE*>(data.Scan0) + y * data.Stride);
        pixels.insert(pixels.end(), row, row + all.Width);
    }
    m_bitmap.UnlockBits(&data);
    return pixels;
}

std::vector<Scene> Scenes(double scale) {
    const auto at = [scale](int length) { return static_cast<int>(length * scale); };
    const auto surface = std::make_shared<Surface>(at(1200), at(450));
    const CPoint centre(at(600), at(225));
    const CRect rect(at(400), at(100), at(800), at(350));

    std::vector<Scene> scenes;
    std::vector<std::function<void()>> page;
    for (const Named& named : Elements(scale)) {
        const MapSurroundType type = named.element->GetItemType();
        const std::function<void()> draw = [=, element = named.element] {
            surface->Graphics().SetSmoothingMode(SmoothingOf(type));
            element->Draw(&surface->Graphics(), centre, scale);
        };
        scenes.push_back({named.name, surface, draw});
        page.push_back(draw);
        if (type == SurroundMapTitle || type == SurroundPicture ||
            type == SurroundLegend) {
            scenes.push_back({named.name + ", measured", surface,
                              [element = named.element] { element->ResetAspectRatio(); },
                              false});
        }
    }
    const std::pair<const char*, CFrameBase> frames[] = {
        {"frame", DecoratedFrame()}, {"frame, a dashed border", DashedFrame()}};
    for (const auto& [name, frame] : frames) {
        const auto kept = std::make_shared<CFrameBase>(frame);
        scenes.push_back(
            {name, surface, [=] { kept->DrawFrame(&surface->Graphics(), rect); }});
        page.push_back(scenes.back().run);
    }
    const auto drawsAll = [](std::vector<std::function<void()>> parts) {
        return [parts = std::move(parts)] {
            for (const auto& draw : parts) {
                draw();
            }
        };
    };
    std::vector<std::function<void()>> usual;
    for (const char* name : {"frame", "title", "frame", "legend, all three", "frame",
                             "north-arrow-eight", "frame", "scale-bar-alternating"}) {
        for (const Scene& scene : scenes) {
            if (scene.name == name) {
                usual.push_back(scene.run);
            }
        }
    }
    scenes.push_back({"a page of furniture", surface, drawsAll(usual), true, true});
    scenes.push_back({"all of them", surface, drawsAll(page)});
    return scenes;
}

}  // namespace bench
