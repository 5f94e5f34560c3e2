// Moves and resizes elements on a page as an editor does: each four numbers are a drag of
// the pointer, from one page point to another.
//   edited_page [FROM_X FROM_Y TO_X TO_Y]...

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/kit/handles.h"
#include "map_surround/kit/image_file.h"
#include "map_surround/map_surround.h"

namespace {

namespace kit = map_surround::kit;

// The page unit is a tenth of a millimetre, the sheet A6 landscape.
constexpr double kPageHeight = 1050.0;
constexpr double kScale = 0.4;  // pixels per page unit
constexpr double kMargin = 70.0;
constexpr double kTolerance = 4.0 / kScale;  // four pixels around a handle
constexpr int kHandleSide = 7;               // pixels

int Pixel(double length) { return static_cast<int>(std::lround(length * kScale)); }

/// An element on the page. A scale bar has no getter for its division, so that is kept.
struct Placed {
    CSurroundFrame frame;
    double division = 200.0;  // page units; 500 m on a map at 1 : 25 000

    double Width() const {
        const CMapSurround& element = *frame.GetMapSurround();
        return element.GetSize() * double{element.GetAspectRatio()};
    }
    double Height() const { return frame.GetMapSurround()->GetSize(); }
};

void SetDivision(CScaleAlternate& bar, double length) {
    bar.SetPaper2DataScale(length * 2.5);  // metres per page unit
    bar.SetScreen2PaperByOneScale(length);
    bar.SetPaper2ScreenScale(length * kScale);
    bar.ResetAspectRatio();
}

/// Each kind of element grows by setters of its own.
void Enlarge(Placed& placed, double factor) {
    CMapSurround* const element = placed.frame.GetMapSurround();
    if (element == nullptr) {
        return;  // an empty frame, such as a neat line
    }
    if (auto* title = dynamic_cast<CMapTitle*>(element)) {
        title->SetFontSize(title->GetFontSize() * factor);
        title->ResetAspectRatio();  // sets the size
        return;
    }
    element->SetSize(static_cast<int>(std::lround(element->GetSize() * factor)));
    if (auto* bar = dynamic_cast<CScaleAlternate*>(element)) {
        placed.division *= factor;
        SetDivision(*bar, placed.division);
    }
}

/// Sizes the frame to its element. The point of the frame opposite to a direction stays.
void Fit(Placed& placed, kit::Pull pulled, CPoint2D anchor) {
    const double width = placed.Width() + kMargin;
    const double height = placed.Height() + kMargin;
    const double left = anchor.x - (1 - pulled.x) * width / 2.0;
    const double bottom = anchor.y - (1 - pulled.y) * height / 2.0;
    placed.frame.SetExtent(CBoundingBox(left, bottom, left + width, bottom + height));
}

void Resize(Placed& placed, kit::Pull pulled, CPoint2D to) {
    const CBoundingBox extent = placed.frame.GetExtent();
    const CPoint2D anchor(extent.TopLeft().x + extent.GetWidth() * (1 - pulled.x) / 2.0,
                          extent.TopLeft().y - extent.GetHeight() * (1 + pulled.y) / 2.0);
    double factor = 0.1;  // at least, so that nothing vanishes
    if (pulled.x != 0) {
        factor =
            std::max(factor, (pulled.x * (to.x - anchor.x) - kMargin) / placed.Width());
    }
    if (pulled.y != 0) {
        factor =
            std::max(factor, (pulled.y * (to.y - anchor.y) - kMargin) / placed.Height());
    }
    Enlarge(placed, factor);
    Fit(placed, pulled, anchor);
}

/// Drags what lies under a point: by a handle it is resized, otherwise moved.
void Drag(Placed (&page)[3], CPoint2D from, CPoint2D to) {
    for (Placed& placed : page) {
        const SpatialTopoRelation hit = placed.frame.HitTest(from, kTolerance, false);
        if (hit == TopoOnHandle) {
            Resize(placed, kit::PullOf(placed.frame.HitHandle), to);
            return;
        }
        if (hit == TopoWithin) {
            placed.frame.SetOffset(to.x - from.x, to.y - from.y);
            return;
        }
    }
}

void Draw(Gdiplus::Graphics& graphics, Placed& placed) {
    const CBoundingBox extent = placed.frame.GetExtent();
    const int left = Pixel(extent.TopLeft().x);
    const int top = Pixel(kPageHeight - extent.TopLeft().y);
    const CRect rect(left, top, left + Pixel(extent.GetWidth()),
                     top + Pixel(extent.GetHeight()));
    placed.frame.DrawFrame(&graphics, rect);
    placed.frame.Draw(
        &graphics, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}, kScale);
    kit::DrawHandles(graphics, rect, kHandleSide, Gdiplus::Color(0xFF2A6FDB));
    std::printf("%.0f %.0f %.0f %.0f\n", extent.TopLeft().x,
                extent.TopLeft().y - extent.GetHeight(),
                extent.TopLeft().x + extent.GetWidth(), extent.TopLeft().y);
}

/// A title, a north arrow and a scale bar; their frames own them.
void Lay(Placed (&page)[3]) {
    auto* title = new CMapTitle;
    title->SetFontValue(L"Olinda");
    title->SetFontStyle(L"Arial");
    title->SetFontSize(120.0);
    title->ResetAspectRatio();
    auto* arrow = new CNorthArrowFourAngle;
    arrow->SetSize(250);
    auto* bar = new CScaleAlternate;
    bar->SetSize(80);
    bar->SetMainDivCount(3);
    bar->SetUnitsName(L"m");
    SetDivision(*bar, page[2].division);

    page[0].frame.SetMapSurround(title);
    page[1].frame.SetMapSurround(arrow);
    page[2].frame.SetMapSurround(bar);
    const CPoint2D centres[] = {{740.0, 870.0}, {1220.0, 560.0}, {740.0, 170.0}};
    for (int i = 0; i < 3; ++i) {
        page[i].frame.DrawBorder = true;
        Fit(page[i], {0, 0}, centres[i]);
    }
}

bool DrawPage(Placed (&page)[3], const wchar_t* file) {
    Gdiplus::Bitmap bitmap(592, 420);
    {
        Gdiplus::Graphics graphics(&bitmap);
        graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
        for (Placed& placed : page) {
            Draw(graphics, placed);
        }
    }
    return kit::SaveImage(bitmap, file, kScale * 254.0) == Gdiplus::Ok;
}

}  // namespace

int main(int argc, char** argv) {
    const kit::GdiplusSession session;
    Placed page[3];
    Lay(page);
    for (int i = 1; i + 3 < argc; i += 4) {
        Drag(page, {std::atof(argv[i]), std::atof(argv[i + 1])},
             {std::atof(argv[i + 2]), std::atof(argv[i + 3])});
    }
    return DrawPage(page, L"edited_page.png") ? 0 : 1;
}
