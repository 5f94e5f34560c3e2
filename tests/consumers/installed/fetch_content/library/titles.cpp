#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/kit/image_file.h"
#include "map_surround/map_surround.h"

bool DrawTitle(const wchar_t* file) {
    const map_surround::kit::GdiplusSession session;
    Gdiplus::Bitmap page(640, 120);
    Gdiplus::Graphics graphics(&page);
    CMapTitle title;
    title.SetFontValue(L"Olinda");
    title.SetFontStyle(L"Arial");
    title.SetFontSize(40.0);
    title.ResetAspectRatio();
    title.Draw(&graphics, CPoint(320, 60), 1.0);
    return map_surround::kit::SaveImage(page, file, 96.0) == Gdiplus::Ok;
}
