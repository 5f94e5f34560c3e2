// A north arrow on a Cairo image surface, between two drawings of Cairo's own.

#include <gdiplus/cairo.h>

#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/map_surround.h"

static void DrawNorthArrow(cairo_t* cairo) {
    Gdiplus::CairoGraphics graphics(cairo);
    CNorthArrowFourAngle arrow;
    arrow.SetSize(100);
    arrow.Draw(&graphics, CPoint(60, 60), 1.0);
}

int main() {
    const map_surround::kit::GdiplusSession session;

    cairo_surface_t* const surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 120, 120);
    cairo_t* const cairo = cairo_create(surface);
    cairo_set_source_rgb(cairo, 0.97, 0.95, 0.91);
    cairo_paint(cairo);
    DrawNorthArrow(cairo);
    cairo_set_source_rgb(cairo, 0.8, 0.2, 0.1);
    cairo_rectangle(cairo, 4.0, 4.0, 112.0, 112.0);
    cairo_stroke(cairo);
    const cairo_status_t status = cairo_surface_write_to_png(surface, "north.png");
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);

    return status == CAIRO_STATUS_SUCCESS ? 0 : 1;
}
