#include <string>

#include "drawing.h"
#include "gallery.h"
#include "page/catalogue.h"

namespace {

/// One style beside itself in four sizes, turned.
void AddSizes(gallery::Sheet& sheet, const std::wstring& caption,
              const host::CatalogueEntry& style, float angle, Gdiplus::Color color,
              gallery::Paper paper) {
    sheet.AddCell(
        caption, paper,
        [&style, angle, color](Gdiplus::Graphics* graphics, CPoint centre) {
            struct Place {
                int size;
                int offset;
            };
            constexpr Place kPlaces[] = {{24, -180}, {48, -125}, {96, -35}, {180, 110}};
            for (const Place& place : kPlaces) {
                const auto arrow = style.make();
                arrow->SetSize(place.size);
                arrow->SetAngle(angle);
                arrow->SetFrontColor(color);
                arrow->Draw(graphics, CPoint(centre.x + place.offset, centre.y), 1.0);
            }
        });
}

void AddArrows(gallery::Sheet& sheet, const host::CatalogueEntry& style) {
    const std::wstring name = gallery::Spoken(style.name);
    const Gdiplus::Color ink(0xFF1B2733);
    const Gdiplus::Color light(0xFFF2C14E);
    AddSizes(sheet, name, style, 0.0f, ink, gallery::Paper::White);
    AddSizes(sheet, name + L", turned by 30 degrees", style, 30.0f,
             Gdiplus::Color(0xFFB3261E), gallery::Paper::White);
    AddSizes(sheet, name + L", turned by -90 degrees, light on dark", style, -90.0f,
             light, gallery::Paper::Dark);
}

}  // namespace

gallery::Sheet gallery::DrawNorthArrows() {
    Sheet sheet(L"North arrows, in sizes 24, 48, 96 and 180", 3, 420, 260);
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundNorthArrow)) {
        AddArrows(sheet, *style);
    }
    return sheet;
}
