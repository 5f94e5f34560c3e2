#include <string>

#include "gallery.h"

namespace {

template <typename Arrow>
Arrow ArrowOf(int size, float angle, Gdiplus::Color color) {
    Arrow arrow;
    arrow.SetSize(size);
    arrow.SetAngle(angle);
    arrow.SetFrontColor(color);
    return arrow;
}

/// One style beside itself in four sizes, turned.
template <typename Arrow>
void AddSizes(gallery::Sheet& sheet, const std::wstring& caption, float angle,
              Gdiplus::Color color, gallery::Paper paper) {
    sheet.AddCell(
        caption, paper, [angle, color](Gdiplus::Graphics* graphics, CPoint centre) {
            struct Place {
                int size;
                int offset;
            };
            constexpr Place kPlaces[] = {{24, -180}, {48, -125}, {96, -35}, {180, 110}};
            for (const Place& place : kPlaces) {
                ArrowOf<Arrow>(place.size, angle, color)
                    .Draw(graphics, CPoint(centre.x + place.offset, centre.y), 1.0);
            }
        });
}

template <typename Arrow>
void AddArrows(gallery::Sheet& sheet, const std::wstring& name) {
    const Gdiplus::Color ink(0xFF1B2733);
    const Gdiplus::Color light(0xFFF2C14E);
    AddSizes<Arrow>(sheet, name, 0.0f, ink, gallery::Paper::White);
    AddSizes<Arrow>(sheet, name + L", turned by 30 degrees", 30.0f,
                    Gdiplus::Color(0xFFB3261E), gallery::Paper::White);
    AddSizes<Arrow>(sheet, name + L", turned by -90 degrees, light on dark", -90.0f,
                    light, gallery::Paper::Dark);
}

}  // namespace

gallery::Sheet gallery::DrawNorthArrows() {
    Sheet sheet(L"North arrows, in sizes 24, 48, 96 and 180", 3, 420, 260);
    AddArrows<CNorthArrowOneAngle>(sheet, L"one angle");
    AddArrows<CNorthArrowTwoAngle>(sheet, L"two angles");
    AddArrows<CNorthArrowFourAngle>(sheet, L"four angles");
    AddArrows<CNorthArrowEightAngle>(sheet, L"eight angles");
    return sheet;
}
