// A title drawn into the program's own array of pixels.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/map_surround.h"

static void DrawTitle(std::vector<std::uint32_t>& pixels, int width, int height) {
    Gdiplus::Bitmap bitmap(width, height, 4 * width, PixelFormat32bppPARGB,
                           reinterpret_cast<BYTE*>(pixels.data()));
    Gdiplus::Graphics graphics(&bitmap);

    CMapTitle title;
    title.SetFontValue(L"Olinda");
    title.SetFontStyle(L"Arial");
    title.SetFontSize(40.0);
    title.ResetAspectRatio();
    title.Draw(&graphics, CPoint(width / 2, height / 2), 1.0);
    graphics.Flush();
}

int main() {
    constexpr int kWidth = 320;
    constexpr int kHeight = 120;
    std::vector<std::uint32_t> pixels(std::size_t{kWidth} * kHeight, 0xFFB9CFA8);

    const map_surround::kit::GdiplusSession session;
    DrawTitle(pixels, kWidth, kHeight);

    std::FILE* const file = std::fopen("title.ppm", "wb");
    if (file == nullptr) {
        return 1;
    }
    std::fprintf(file, "P6 %d %d 255\n", kWidth, kHeight);
    for (const std::uint32_t pixel : pixels) {
        for (const int shift : {16, 8, 0}) {
            std::fputc(static_cast<int>(pixel >> shift & 0xFF), file);
        }
    }
    return std::fclose(file) == 0 ? 0 : 1;
}
