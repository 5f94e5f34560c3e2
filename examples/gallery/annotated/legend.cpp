#include <cmath>

#include "../drawing.h"
#include "../rasters.h"
#include "annotated.h"

namespace gallery::annotated {
namespace {

constexpr double kLegendScale = 2.0;
constexpr wchar_t kTitle[] = L"Land cover";

Gdiplus::Rect InkBox(const std::wstring& text, float size, int style) {
    const Gdiplus::FontFamily family(L"Arial");
    Gdiplus::GraphicsPath path;
    path.AddString(text.c_str(), static_cast<int>(text.size()), &family, style, size,
                   Gdiplus::Point(0, 0), nullptr);
    Gdiplus::Rect box;
    path.GetBounds(&box, nullptr, nullptr);
    return box;
}

int Drawn(int measured) { return static_cast<int>(measured * kLegendScale); }

/// The lengths of a legend with a 20 pixel title and 15 pixel rows.
struct Lengths {
    int gap = Drawn(12);
    int row = Drawn(InkBox(L"Band_1", 15.0f, 0).Height);
    int swatchHeight = Drawn(6 * InkBox(L"Band_1", 15.0f, 0).Height / 10);
    int swatchWidth = Drawn(InkBox(L"Band_1", 15.0f, 0).Width);
    int title =
        InkBox(kTitle, static_cast<float>(Drawn(InkBox(kTitle, 20.0f, 1).Height)), 1)
            .Height;
};

/// Where a drawn legend's rectangle begins, and how wide it is.
struct Outlined : CPoint {
    int width;
};

/// Draws a legend in the middle.
Outlined Draw(Drawing& drawing, CPoint centre, Rasters rasters, CMapLegend legend = {}) {
    legend.SetTitleValue(kTitle);
    legend.SetTitleColor(Gdiplus::Color(0xFF9AA6B2));
    legend.SetFileColor(Gdiplus::Color(0xFF9AA6B2));
    ExplainedRasters explained(legend, std::move(rasters));
    explained.Draw(drawing.Surface(), centre, kLegendScale);

    const int height = Drawn(explained.Legend().GetSize());
    const auto halfWidth = static_cast<int>(std::lround(
        static_cast<float>(height) * explained.Legend().GetAspectRatio() * 0.5f));
    const CPoint topLeft(centre.x - halfWidth, centre.y - height / 2);
    drawing.Outline({{topLeft.x, topLeft.y},
                     {centre.x + halfWidth, topLeft.y},
                     {centre.x + halfWidth, topLeft.y + height},
                     {topLeft.x, topLeft.y + height}});
    return {topLeft, 2 * halfWidth};
}

/// Draws the lengths from the top of a legend to its first entry, and returns them.
int NameHead(Drawing& drawing, CPoint at, int x, const Lengths& length) {
    const int title = at.y + 2 * length.gap + length.title;
    const int row = title + length.row;
    for (const int y : {at.y, title, row, row + length.gap}) {
        drawing.Guide(at.x, y, x + 10, y);
    }
    drawing.Down(at.y, title, x, L"2 gaps + title");
    drawing.Down(title, row, x, L"row");
    drawing.Down(row, row + length.gap, x, L"gap");
    return row + length.gap;
}

Drawing DrawLegend() {
    Drawing drawing(640, 420);
    const Lengths length;
    const CPoint at =
        Draw(drawing, CPoint(210, 160), Of(Raster::Rgb(L"landsat.tif", 3, 2, 1)));
    constexpr int kRight = 420;
    const int red = NameHead(drawing, at, kRight, length);
    drawing.Guide(at.x, red + length.swatchHeight, kRight + 10,
                  red + length.swatchHeight);
    drawing.Guide(at.x, red + length.swatchHeight + length.gap, kRight + 10,
                  red + length.swatchHeight + length.gap);
    drawing.Down(red, red + length.swatchHeight, kRight, L"swatch = 6/10 row");
    drawing.Down(red + length.swatchHeight, red + length.swatchHeight + length.gap,
                 kRight, L"gap");
    const int below = at.y + 300;
    const int label = at.x + length.swatchWidth * 18 / 10;
    drawing.Guide(at.x, red, at.x, below);
    drawing.Guide(at.x + length.swatchWidth, red, at.x + length.swatchWidth, below - 30);
    drawing.Guide(label, red, label, below);
    drawing.Across(at.x, at.x + length.swatchWidth, below - 30, L"swatch width");
    drawing.Across(at.x, label, below, L"1.8 swatch widths");
    return drawing;
}

Drawing DrawLegendRamp() {
    Drawing drawing(640, 330);
    const Lengths length;
    const CPoint at = Draw(drawing, CPoint(210, 150), Of(Elevation()));
    constexpr int kRight = 420;
    const int ramp = NameHead(drawing, at, kRight, length);
    const int end = ramp + 4 * length.swatchHeight;
    drawing.Guide(at.x, end, kRight + 10, end);
    drawing.Down(ramp, end, kRight, L"4 swatches");
    const int low = end - 2 * length.row;
    const int high = ramp + length.row / 2;
    drawing.Mark(at.x + length.swatchWidth * 18 / 10, low, L"low value", -76, -14);
    drawing.Mark(at.x + length.swatchWidth * 18 / 10, high, L"high value", -80, 4);
    return drawing;
}

Drawing DrawLegendColumns() {
    constexpr int kColumns = 2;
    Drawing drawing(760, 440);
    CMapLegend legend;
    legend.SetColumns(kColumns);
    legend.SetMostWidth(135.0f);
    legend.SetMostLines(2);
    legend.SetAlignedLabels(true);
    legend.SetSourceCaption(L"");
    legend.SetHighCaption(L"");
    legend.SetLowCaption(L"");
    const Gdiplus::Color low(0xFF2E6B4F);
    const Gdiplus::Color middle(0xFFC9D36A);
    const Gdiplus::Color high(0xFF7A3E2B);
    legend.SetShownSources({{L"", true, {high, middle, low}}});
    Rasters rasters = Of(
        Elevation(), Raster::Classified(L"cover_of_2024.tif",
                                        {{L"Water", Gdiplus::Color(0xFF4A7FB5)},
                                         {L"Mangrove swamp", Gdiplus::Color(0xFF2E6B4F)},
                                         {L"Sugar cane", Gdiplus::Color(0xFFC9D36A)},
                                         {L"Built-up", Gdiplus::Color(0xFFB5574A)}}));
    const Outlined at = Draw(drawing, CPoint(370, 190), std::move(rasters), legend);
    const int gap = Lengths().swatchWidth / 2;
    const int column = (at.width - (kColumns - 1) * gap) / kColumns;
    const int below = 400;
    for (int i = 0; i < kColumns; ++i) {
        const int x = at.x + i * (column + gap);
        drawing.Guide(x, at.y, x, below + 10);
        drawing.Guide(x + column, at.y, x + column, below + 10);
        drawing.Across(x, x + column, below, i == 0 ? L"the widest" : L"as wide");
        if (i > 0) {
            drawing.Across(x - gap, x, below - 26, L"½ swatch");
        }
    }
    return drawing;
}

}  // namespace

std::vector<Picture> Legends() {
    return {
        {L"legend", DrawLegend},
        {L"legend_ramp", DrawLegendRamp},
        {L"legend_columns", DrawLegendColumns},
    };
}

}  // namespace gallery::annotated
