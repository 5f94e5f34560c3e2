#include "legend/legend_model.h"

#include <algorithm>

#include "recording/lines.h"

namespace model {
namespace {

using recording::BrushLook;
using recording::FillRectangle;
using recording::FontLook;
using recording::Named;

bool TakesPart(const Source& source) {
    return source.kind != Kind::Unavailable && source.kind != Kind::NotRaster;
}

std::wstring Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

/// The drawing so far.
struct Sheet {
    std::vector<Named> calls;
    int style;
    float rowH, swH, swW, gap;
    float left, y;

    void Text(const std::string& name, const std::string& text, const std::string& family,
              float x, float top, Gdiplus::ARGB color) {
        calls.push_back({name, recording::DrawString(text, FontLook(family, rowH, style),
                                                     x, top, BrushLook(color))});
    }
    void Swatch(const std::string& name, Gdiplus::ARGB color, float top, float height) {
        calls.push_back({name, FillRectangle(BrushLook(color), left, top, swW, height)});
    }
};

void DrawRgb(Sheet& sheet, const Source& source) {
    const Gdiplus::ARGB colors[] = {0xFFFF0000, 0xFF008000, 0xFF0000FF};
    const char* names[] = {"red", "green", "blue"};
    for (int i = 0; i < 3; ++i) {
        sheet.Swatch(names[i], colors[i], sheet.y, sheet.swH);
        sheet.Text(std::string(names[i]) + " label",
                   "\u6CE2\u6BB5\u005F" + std::to_string(source.bands[i] + 1), "Arial",
                   sheet.left + 1.8f * sheet.swW, sheet.y, 0xFF000000);
        sheet.y += sheet.swH + sheet.gap;
    }
}

void DrawGray(Sheet& sheet, const Source& source) {
    const float labelX = sheet.left + 1.8f * sheet.swW;
    sheet.Text("high value", "\u9AD8 : " + std::to_string(source.high), "Arial", labelX,
               sheet.y + 0.5f * sheet.rowH, 0xFF000000);
    for (int k = 1; k <= 254; ++k) {
        const auto g = static_cast<Gdiplus::ARGB>(255 - k);
        sheet.Swatch("ramp strip " + std::to_string(k), 0xFF000000 | g << 16 | g << 8 | g,
                     sheet.y + 4.0f * sheet.swH * static_cast<float>(k) / 254.0f,
                     (3.0f * sheet.swH + 2.0f * sheet.rowH) / 254.0f);
    }
    sheet.y += 4.0f * sheet.swH;
    sheet.Text("low value", "\u4F4E : " + std::to_string(source.low), "Arial", labelX,
               sheet.y - 2.0f * sheet.rowH, 0xFF010101);
    sheet.y += sheet.gap;
}

void DrawClassified(Sheet& sheet, const Source& source) {
    const std::size_t count = source.classes.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::string name = "class " + std::to_string(i);
        sheet.Swatch(name, source.classes[i].color, sheet.y, sheet.swH);
        sheet.Text(name + " label", source.classes[i].label, "Arial",
                   sheet.left + 1.2f * sheet.swW, sheet.y, 0xFF000000);
        sheet.y += sheet.swH;
        if (i + 1 < count) {
            sheet.y += sheet.gap;
        }
    }
    sheet.y += sheet.gap;
}

std::unique_ptr<CGISDataSource> BuildSource(const Source& source) {
    if (source.kind == Kind::NotRaster) {
        return std::make_unique<fakes::Vector>();
    }
    const DataDisplayType display = source.kind == Kind::Rgb    ? DisplayRGB
                                    : source.kind == Kind::Gray ? DisplayGray
                                    : source.kind == Kind::Classified
                                        ? DisplayClassified
                                        : static_cast<DataDisplayType>(7);
    auto raster = std::make_unique<fakes::Raster>(Wide(source.name), display);
    raster->available = source.kind != Kind::Unavailable;
    raster->red = source.bands[0];
    raster->green = source.bands[1];
    raster->blue = source.bands[2];
    raster->band.lowest = source.low;
    raster->band.highest = source.high;
    for (const Class& one : source.classes) {
        raster->table.items.emplace_back(Wide(one.label),
                                         static_cast<unsigned char>(one.color >> 16),
                                         static_cast<unsigned char>(one.color >> 8),
                                         static_cast<unsigned char>(one.color), 0);
    }
    return raster;
}

}  // namespace

Natural Measured(const Legend& legend, const ink::Rule& ink) {
    Natural natural{};
    natural.titleEm = legend.title.emSize * legend.factor;
    natural.fileNameEm = legend.fileName.emSize * legend.factor;
    const ink::Size title = ink(legend.title.text, legend.title.family, natural.titleEm);
    const ink::Size band = ink("Band_1", legend.title.family, natural.fileNameEm);
    const int swatchH = 6 * band.height / 10;

    int width = std::max(title.width, 3 * band.width);
    int height = title.height + 24 - 12;
    for (const Source& source : legend.sources) {
        if (!TakesPart(source)) {
            continue;
        }
        height += band.height + 12;
        const auto widthOf = [&](const std::string& text) {
            return ink(text, legend.fileName.family, natural.fileNameEm).width;
        };
        width = std::max(width, widthOf(source.name));
        if (source.kind == Kind::Rgb) {
            height += 3 * swatchH + 36;
        } else if (source.kind == Kind::Gray) {
            height += 4 * swatchH + 12;
        } else if (source.kind == Kind::Classified) {
            height += static_cast<int>(source.classes.size()) * (swatchH + 12);
            for (const Class& one : source.classes) {
                width = std::max(width, 2 * band.width + widthOf(one.label));
            }
        }
    }
    const auto h = static_cast<float>(height);
    natural.height = height;
    natural.aspect = static_cast<float>(width) / h;
    natural.rowRatio = static_cast<float>(band.height) / h;
    natural.swatchHeightRatio = static_cast<float>(swatchH) / h;
    natural.swatchWidthRatio = static_cast<float>(3 * band.width) / 3.0f / h;
    natural.titleRatio = static_cast<float>(title.height) / h;
    natural.gapRatio = 12.0f / h;
    return natural;
}

std::vector<Named> Drawn(const Legend& legend, const Natural& natural, CPoint centre,
                         double scale, const ink::Rule& ink) {
    const int pixels = static_cast<int>(natural.height * scale);
    const auto hf = static_cast<float>(pixels);
    const int halfH = static_cast<int>(pixels * 0.5 + 0.5);
    const int halfW =
        static_cast<int>(static_cast<double>(hf * natural.aspect) * 0.5 + 0.5);

    Sheet sheet{};
    sheet.style = legend.fileName.style;
    sheet.rowH = hf * natural.rowRatio;
    sheet.swH = hf * natural.swatchHeightRatio;
    sheet.swW = hf * natural.swatchWidthRatio;
    sheet.gap = hf * natural.gapRatio;
    sheet.left = static_cast<float>(centre.x - halfW);
    sheet.y = static_cast<float>(centre.y - halfH);

    // GDI+ makes no font of em size 0, which an empty title comes to.
    const float titleEm = hf * natural.titleRatio;
    sheet.calls.push_back(
        {"title",
         recording::DrawString(
             legend.title.text,
             titleEm > 0 ? FontLook(legend.title.family, titleEm, legend.title.style)
                         : "null",
             sheet.left, sheet.y, BrushLook(legend.title.color))});
    sheet.y += 2.0f * sheet.gap;
    if (titleEm > 0) {
        sheet.y += static_cast<float>(
            ink(legend.title.text, legend.title.family, titleEm).height);
    }
    for (const Source& source : legend.sources) {
        if (!TakesPart(source)) {
            continue;
        }
        sheet.Text("file name", "\u5F71\u50CF\u540D\uFF1A" + source.name,
                   legend.fileName.family, sheet.left, sheet.y, legend.fileName.color);
        sheet.y += sheet.rowH + sheet.gap;
        if (source.kind == Kind::Rgb) {
            DrawRgb(sheet, source);
        } else if (source.kind == Kind::Gray) {
            DrawGray(sheet, source);
        } else if (source.kind == Kind::Classified) {
            DrawClassified(sheet, source);
        }
    }
    return sheet.calls;
}

Built Build(const Legend& legend) {
    Built built;
    std::vector<CGISDataSource*> pointers;
    for (const Source& source : legend.sources) {
        built.sources.push_back(BuildSource(source));
        pointers.push_back(built.sources.back().get());
    }
    CMapLegend& l = built.legend;
    l.SetDataSouce(pointers);
    l.SetSizeAspect(legend.factor);
    l.SetTitleValue(Wide(legend.title.text));
    l.SetTitle(Wide(legend.title.family));
    l.SetTitleSize(legend.title.emSize);
    l.SetTitleStyle(static_cast<Gdiplus::FontStyle>(legend.title.style));
    l.SetTitleColor(Gdiplus::Color(legend.title.color));
    l.SetFileName(Wide(legend.fileName.family));
    l.SetFileNameSize(legend.fileName.emSize);
    l.SetFileNameStyle(static_cast<Gdiplus::FontStyle>(legend.fileName.style));
    l.SetFileColor(Gdiplus::Color(legend.fileName.color));
    return built;
}

}  // namespace model
