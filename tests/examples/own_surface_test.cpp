
#include "program.h"

namespace {

using namespace examples;

/// Whether so many of 320 by 120 pixels are black as six letters of 40 pixels have.
template <typename IsBlack>
void ExpectLetters(IsBlack isBlack) {
    int ink = 0;
    for (int x = 0; x < 320; ++x) {
        for (int y = 0; y < 120; ++y) {
            ink += isBlack(x, y) ? 1 : 0;
        }
    }
    EXPECT_GT(ink, 500);
    EXPECT_LT(ink, 3000);
}

TEST(OwnSurface, OfAnArrayIsDrawnOnInPlace) {
    const Program program(OWN_ARRAY, "");
    const std::string image = program.Contents("title.ppm");
    const std::string head = "P6 320 120 255\n";
    ASSERT_EQ(image.substr(0, head.size()), head);
    ASSERT_EQ(image.size(), head.size() + 320 * 120 * 3);

    const auto pixel = [&](int x, int y) {
        return image.substr(head.size() + static_cast<std::size_t>((y * 320 + x) * 3), 3);
    };
    const std::string paper = "\xB9\xCF\xA8";
    EXPECT_EQ(pixel(0, 0), paper);
    EXPECT_EQ(pixel(319, 119), paper);
    ExpectLetters([&](int x, int y) { return pixel(x, y) == std::string(3, '\0'); });
}

#ifdef CAIRO_SURFACE
// Cairo's paper is below the arrow, Cairo's border above everything.
TEST(OwnSurface, OfCairoIsDrawnOnBetweenDrawings) {
    const Session session;
    const Program program(CAIRO_SURFACE, "");
    const std::unique_ptr<Gdiplus::Bitmap> image = program.Image("north.png");
    ASSERT_EQ(image->GetWidth(), 120u);
    EXPECT_EQ(PixelAt(*image, 20, 20), 0xFFF8F3E8);  // 0.97, 0.95, 0.91 of 256
    EXPECT_EQ(PixelAt(*image, 4, 60), 0xFFCC3319);   // 0.8, 0.2, 0.1 of 256
    EXPECT_EQ(PixelAt(*image, 63, 60), 0xFF000000);  // the north arm's right half
}
#endif

#ifdef PDF_PAGE
TEST(OwnSurface, OfAPdfHasItsFontAndItsSize) {
    const Program program(PDF_PAGE, "");
    const std::string page = program.Contents("page.pdf");
    EXPECT_EQ(page.substr(0, 5), "%PDF-");
    // 148 by 105 mm.
    EXPECT_NE(page.find("/MediaBox [ 0 0 419.527559 297.637795 ]"), page.npos);
    EXPECT_NE(page.find("LiberationSans"), page.npos);
    EXPECT_EQ(page.find("/Subtype /Image"), page.npos);
}
#endif

/// The paper and the letters that an example left in a file.
[[maybe_unused]] std::unique_ptr<Gdiplus::Bitmap> ImageWithLetters(const Program& program,
                                                                   const char* file) {
    std::unique_ptr<Gdiplus::Bitmap> image = program.Image(file);
    EXPECT_EQ(image->GetWidth(), 320u);
    EXPECT_EQ(PixelAt(*image, 0, 0), 0xFFA8CFB9);
    ExpectLetters([&](int x, int y) { return PixelAt(*image, x, y) == 0xFF000000; });
    return image;
}

#ifdef QT_IMAGE
TEST(OwnSurface, OfQtIsDrawnOnInPlace) {
    const Session session;
    ImageWithLetters(Program(QT_IMAGE, ""), "title.png");
}
#endif

#ifdef SDL_SURFACE
// SDL's paper is below the letters, its line above everything.
TEST(OwnSurface, OfSdlIsDrawnOnBetweenDrawings) {
    const Session session;
    const auto image = ImageWithLetters(Program(SDL_SURFACE, ""), "title.bmp");
    EXPECT_EQ(PixelAt(*image, 160, 111), 0xFFCC331A);
}
#endif

}  // namespace
