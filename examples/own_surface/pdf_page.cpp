// A title and a compass rose on an A6 page of a PDF file, in true size.

#include <cairo-pdf.h>
#include <gdiplus/cairo.h>

#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/map_surround.h"

static void DrawPage(cairo_t* cairo) {
    // Elements lie at whole pixels: 600 to the inch are finer than any printer needs.
    constexpr int kDpi = 600;
    constexpr double kScale = kDpi / 96.0;
    cairo_scale(cairo, 72.0 / kDpi, 72.0 / kDpi);
    Gdiplus::CairoGraphics graphics(cairo, kDpi);

    CMapTitle title;
    title.SetFontValue(L"Olinda");
    title.SetFontStyle(L"Arial");
    title.SetFontSize(32.0);
    title.ResetAspectRatio();
    title.Draw(&graphics, CPoint(3 * kDpi, kDpi), kScale);

    CNorthArrowEightAngle rose;
    rose.SetSize(150);
    rose.Draw(&graphics, CPoint(3 * kDpi, 5 * kDpi / 2), kScale);
}

int main() {
    const map_surround::kit::GdiplusSession session;

    // 148 by 105 millimetres, in points.
    cairo_surface_t* const surface =
        cairo_pdf_surface_create("page.pdf", 148 / 25.4 * 72, 105 / 25.4 * 72);
    cairo_t* const cairo = cairo_create(surface);
    DrawPage(cairo);
    cairo_destroy(cairo);
    cairo_surface_finish(surface);
    const cairo_status_t status = cairo_surface_status(surface);
    cairo_surface_destroy(surface);

    return status == CAIRO_STATUS_SUCCESS ? 0 : 1;
}
