// A title on a QImage.

#include <QImage>

#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/map_surround.h"

static void DrawTitle(QImage& image) {
    Gdiplus::Bitmap bitmap(image.width(), image.height(),
                           static_cast<INT>(image.bytesPerLine()), PixelFormat32bppPARGB,
                           image.bits());
    Gdiplus::Graphics graphics(&bitmap);
    CMapTitle title;
    title.SetFontValue(L"Olinda");
    title.SetFontStyle(L"Arial");
    title.SetFontSize(40.0);
    title.ResetAspectRatio();
    title.Draw(&graphics, CPoint(image.width() / 2, image.height() / 2), 1.0);
}

int main() {
    const map_surround::kit::GdiplusSession session;
    QImage image(320, 120, QImage::Format_ARGB32_Premultiplied);
    image.fill(0xFFA8CFB9);
    DrawTitle(image);
    return image.save("title.png") ? 0 : 1;
}
