#include <memory>
#include <string>

#include "drawing.h"
#include "gallery.h"
#include "page/catalogue.h"

namespace {

constexpr int kSizes[] = {24, 40, 60};

/// How long a distance on the ground is: the map of each cell has its own.
struct Ground {
    double unitsOfDivision;
    double pixelsOfDivision;
    const wchar_t* unit;
};

constexpr Ground kKilometres = {0.5, 36.0, L"Kilometre"};

/// A bar whose width follows its divisions.
void SetUp(CScaleBarBase& bar, int size, ScaleBarPostion position, const Ground& ground) {
    bar.SetSize(size);
    bar.SetFrontColor(Gdiplus::Color(0xFF1B2733));
    bar.SetUnitPos(position);
    bar.SetUnitsName(ground.unit);
    bar.SetPaper2DataScale(ground.unitsOfDivision);
    bar.SetPaper2ScreenScale(ground.pixelsOfDivision);
    bar.SetScreen2PaperByOneScale(ground.pixelsOfDivision);
    bar.ResetAspectRatio();
}

template <typename Bar>
Bar Make(int size, ScaleBarPostion position, const Ground& ground) {
    Bar bar;
    SetUp(bar, size, position, ground);
    return bar;
}

void AddBars(gallery::Sheet& sheet, const host::CatalogueEntry& style) {
    const std::wstring name = gallery::Spoken(style.Style());
    for (const ScaleBarPostion position : {UnitPosAfter, UnitPosBefore}) {
        for (const int size : kSizes) {
            const std::shared_ptr<CScaleBarBase> bar =
                host::NewElement<CScaleBarBase>(style);
            SetUp(*bar, size, position, kKilometres);
            sheet.AddCell(
                name + L", size " + std::to_wstring(size) +
                    (position == UnitPosAfter ? L", unit after" : L", unit before"),
                gallery::Paper::White, [bar](Gdiplus::Graphics* graphics, CPoint centre) {
                    bar->Draw(graphics, centre, 1.0);
                });
        }
    }
}

}  // namespace

gallery::Sheet gallery::DrawScaleBars() {
    Sheet sheet(L"Scale bars", 3, 330, 130);
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundScaleBar)) {
        AddBars(sheet, *style);
    }

    sheet.Add(L"0.037 degrees are rounded down to 0.03",
              Make<CScaleLine>(40, UnitPosAfter, {0.037, 60.0, L"degree"}));
    auto light = Make<CScaleAlternate>(40, UnitPosBefore, {1.0, 60.0, L"metre"});
    light.SetFrontColor(Gdiplus::Color(0xFFF2F5F7));
    light.SetMainDivCount(3);
    light.SetSubDivCount(9);
    light.ResetAspectRatio();
    sheet.Add(L"light on dark, nine sub-divisions", light, 1.0, Paper::Dark);
    auto rounded = Make<CScaleEquAltenate>(40, UnitPosBefore, {2500.0, 60.0, L"metre"});
    rounded.SetMainDivCount(3);
    rounded.ResetAspectRatio();
    sheet.Add(L"2500 m are rounded down to 2000: boxes overlap", rounded);
    return sheet;
}
