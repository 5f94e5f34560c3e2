#include "drawing.h"
#include "gallery.h"
#include "sample_image.h"

namespace {

/// A cell with the same picture at an angle, as high as its size says.
void Add(gallery::Sheet& sheet, const wchar_t* caption, int size, float angle,
         double scale = 1.0) {
    sheet.AddCell(caption, gallery::Paper::White,
                  [size, angle, scale](Gdiplus::Graphics* graphics, CPoint centre) {
                      const gallery::SampleImage image;
                      CDrawPicture picture;
                      picture.Open(image.File());
                      picture.SetSize(size);
                      picture.SetAngle(angle);
                      picture.ResetAspectRatio();
                      picture.Draw(graphics, centre, scale);
                  });
}

}  // namespace

gallery::Sheet gallery::DrawPictures() {
    Sheet sheet(L"Picture", 3, 320, 250);
    Add(sheet, L"180 high", 180, 0.0f);
    Add(sheet, L"at half the scale", 180, 0.0f, 0.5);
    Add(sheet, L"turned by 20 degrees, as wide as its box", 120, 20.0f);
    return sheet;
}
