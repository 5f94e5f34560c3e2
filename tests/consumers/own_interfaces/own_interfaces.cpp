// A frame with a title on a surface, made, asked, moved and drawn through the library
// with this host's own types. Exits with 0 when everything is where it must be.
#include <cstdio>

#include <host/common_functions.h>

#include "map_surround/map_surround.h"

namespace {

int failures = 0;

void Check(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "own_interfaces: %s\n", what);
        ++failures;
    }
}

void AskFrame() {
    CSurroundFrame frame;
    frame.SetExtent(CBoundingBox::OfSize(10.0, 20.0, 100.0, 50.0));
    Check(frame.HitTest(CPoint2D(60.0, 45.0), 3.0, false) == TopoWithin, "the middle");
    Check(frame.HitTest(CPoint2D(58.0, 69.0), 3.0, false) == TopoOnHandle &&
              frame.HitHandle == 1,
          "the handle at the middle of the top edge");
    Check(frame.HitTest(CPoint2D(60.0, 70.0), 3.0, false) == TopoDisjoint,
          "the boundary, which is outside of this host's boxes");

    frame.SetOffset(-10.0, 5.0);
    const CSurroundFrame copy(frame);
    CSurroundFrame assigned;
    assigned = copy;
    CBoundingBox extent = assigned.GetExtent();
    Check(extent.TopLeft().x == 0.0 && extent.TopLeft().y == 75.0 &&
              extent.GetWidth() == 100.0 && extent.GetHeight() == 50.0,
          "the extent of a moved and copied frame");
}

unsigned int ColorAt(Gdiplus::Bitmap& bitmap, int x, int y) {
    Gdiplus::Color color;
    bitmap.GetPixel(x, y, &color);
    return color.GetValue();
}

void DrawTitle() {
    Gdiplus::Bitmap bitmap(300, 100, PixelFormat32bppARGB);
    Gdiplus::Graphics graphics(&bitmap);
    graphics.Clear(Gdiplus::Color(0xFFFFFFFF));

    auto* title = new CMapTitle;
    title->SetFontValue(CommonFun::Trim(L"   Olinda"));
    title->SetFontStyle(L"Arial");
    title->SetFontProcess(FontProcessBold);
    title->SetFontSize(40.0);
    title->ResetAspectRatio();
    Check(title->GetSize() > 20, "the measured title");

    CSurroundFrame frame;
    frame.SetMapSurround(title);
    frame.DrawFill = true;
    frame.FillColor = Gdiplus::Color(0xFFC0E0FF);
    frame.DrawFrame(&graphics, CRect(20, 10, 280, 90));
    Check(ColorAt(bitmap, 25, 15) == 0xFFC0E0FF, "the background");
    Check(ColorAt(bitmap, 10, 50) == 0xFFFFFFFF, "the page beside the background");

    frame.Draw(&graphics, CPoint(150, 50), 1.0);
    int inked = 0;
    for (int x = 20; x < 280; ++x) {
        for (int y = 10; y < 90; ++y) {
            inked += ColorAt(bitmap, x, y) == 0xFF000000 ? 1 : 0;
        }
    }
    Check(inked > 200, "the letters");
}

}  // namespace

int main() {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        std::fprintf(stderr, "own_interfaces: GDI+ does not start\n");
        return 1;
    }
    AskFrame();
    DrawTitle();
    Gdiplus::GdiplusShutdown(token);
    Check(CPoint2D::Alive() == 0, "points are left behind");
    return failures == 0 ? 0 : 1;
}
