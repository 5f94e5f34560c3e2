#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <gdiplus.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "gdiplus/cairo.h"
#include "portable/image_files.h"

using namespace Gdiplus;

namespace {

class HostSurfaces : public ImageFiles {
protected:
    static void Draw(Graphics& graphics) {
        const SolidBrush red(Color(0xFFFF0000));
        EXPECT_EQ(graphics.FillRectangle(&red, 100, 50, 30, 20), Ok);
        const Font font(L"Arial", 24.0f, FontStyleRegular, UnitPixel);
        EXPECT_EQ(graphics.DrawString(L"North", -1, &font, PointF(200, 300), &red), Ok);
    }
    std::string Contents() const {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const std::string file = (folder / "page").string();
};

TEST_F(HostSurfaces, OfSvgKeepShapesAndTexts) {
    cairo_surface_t* const surface = cairo_svg_surface_create(file.c_str(), 600, 400);
    cairo_t* const cairo = cairo_create(surface);
    {
        CairoGraphics graphics(cairo, 72.0f);
        EXPECT_EQ(graphics.GetLastStatus(), Ok);
        EXPECT_EQ(graphics.GetDpiX(), 72.0f);
        Draw(graphics);
    }
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
    const std::string page = Contents();
    EXPECT_NE(page.find("M 100 50 L 130 50 L 130 70 L 100 70 Z"), std::string::npos);
    EXPECT_NE(page.find("rgb(100%,0%,0%)"), std::string::npos);
    EXPECT_NE(page.find("<use xlink:href=\"#glyph0-"), std::string::npos);
}

TEST_F(HostSurfaces, HaveLinesAsThinAsAPixelOfTheirWorld) {
    // A pixel is a hundred units of the surface, whose extents are whole units.
    const struct {
        REAL width;
        double drawn;
    } rows[] = {{1.0f, 100.0}, {0.0f, 100.0}, {0.5f, 100.0}, {3.0f, 300.0}};
    for (const auto& row : rows) {
        cairo_surface_t* const surface =
            cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr);
        cairo_t* const cairo = cairo_create(surface);
        cairo_scale(cairo, 100.0, 100.0);
        {
            CairoGraphics graphics(cairo, 96.0f);
            const Pen pen(Color(0xFF000000), row.width);
            EXPECT_EQ(graphics.DrawLine(&pen, 10, 10, 30, 10), Ok);
        }
        double x = 0.0;
        double y = 0.0;
        double width = 0.0;
        double height = 0.0;
        cairo_recording_surface_ink_extents(surface, &x, &y, &width, &height);
        EXPECT_NEAR(height, row.drawn, 2.0) << row.width;
        cairo_destroy(cairo);
        cairo_surface_destroy(surface);
    }
}

TEST_F(HostSurfaces, AreToldTheLinesOfTexts) {
    cairo_surface_t* const surface = cairo_svg_surface_create(file.c_str(), 600, 400);
    cairo_t* const cairo = cairo_create(surface);
    std::vector<std::string> told;
    const auto tell = [](void* context, const CairoLine* line) {
        double x = line->x + line->width;
        double y = line->baseline;
        cairo_matrix_transform_point(&line->matrix, &x, &y);
        // Arial's ascent is 0.905 of an em; other faces of a line may have more.
        EXPECT_NEAR(y, 2.0 * (300.0 + 24.0 * 0.905), 3.0) << line->text;
        EXPECT_GT(x, 2.0 * (200.0 + 20.0));
        EXPECT_NEAR(line->size, 24.0, 1e-6);
        static_cast<std::vector<std::string>*>(context)->emplace_back(line->text);
    };
    cairo_scale(cairo, 2.0, 2.0);
    {
        CairoGraphics graphics(cairo, 72.0f);
        EXPECT_EQ(graphics.TellLines(tell, &told), Ok);
        Draw(graphics);
        const Font font(L"Arial", 24.0f, FontStyleRegular, UnitPixel);
        const SolidBrush red(Color(0xFFFF0000));
        graphics.DrawString(L"\x5F71\x50CF \xD83D\xDDFA", -1, &font, PointF(200, 300),
                            &red);
        EXPECT_EQ(graphics.TellLines(nullptr, nullptr), Ok);
        Draw(graphics);
    }
    EXPECT_EQ(told, (std::vector<std::string>{"North", "影像 🗺"}));
    CairoGraphics none(nullptr);
    EXPECT_EQ(none.TellLines(tell, &told), InvalidParameter);
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}

TEST_F(HostSurfaces, OfPdfHaveTheirFont) {
    cairo_surface_t* const surface = cairo_pdf_surface_create(file.c_str(), 600, 400);
    cairo_t* const cairo = cairo_create(surface);
    {
        CairoGraphics graphics(cairo, 72.0f);
        Draw(graphics);
    }
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
    EXPECT_NE(Contents().find("LiberationSans"), std::string::npos);
}

TEST_F(HostSurfaces, AreGivenBackAsTheyWere) {
    cairo_surface_t* const surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 40, 30);
    cairo_t* const cairo = cairo_create(surface);
    cairo_rectangle(cairo, 0, 0, 20, 30);
    cairo_clip(cairo);
    cairo_scale(cairo, 2.0, 2.0);
    {
        CairoGraphics graphics(cairo);
        const SolidBrush red(Color(0xFFFF0000));
        graphics.SetClip(Rect(0, 0, 40, 5));
        graphics.FillRectangle(&red, 5, 2, 40, 40);
    }
    cairo_matrix_t matrix;
    cairo_get_matrix(cairo, &matrix);
    EXPECT_EQ(matrix.xx, 2.0);
    double right = 0.0;
    double bottom = 0.0;
    double none = 0.0;
    cairo_clip_extents(cairo, &none, &none, &right, &bottom);
    EXPECT_EQ(right, 10.0);
    EXPECT_EQ(bottom, 15.0);
    cairo_surface_flush(surface);
    const auto* pixels =
        reinterpret_cast<const ARGB*>(cairo_image_surface_get_data(surface));
    int inked = 0;
    for (int i = 0; i < 40 * 30; ++i) {
        inked += pixels[i] == 0xFFFF0000;
    }
    // From (10, 4) to the host's clip at 20 across, and the surface's at 10 down.
    EXPECT_EQ(inked, 10 * 6);
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}

TEST_F(HostSurfaces, ThatAreNoneDrawNothing) {
    CairoGraphics graphics(nullptr);
    EXPECT_EQ(graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(graphics.Clear(Color(0xFFFFFFFF)), InvalidParameter);
}

}  // namespace
