#include "page/output/png_image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "page/output/image_file.h"
#include "png_encoder.h"
#include "scratch_folder.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Pixels of which each byte tells where it is; the fourth one must not matter.
Bytes Pattern(int width, int height) {
    Bytes pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (const int byte : {x * 7, y * 11, x + y * 3, x ^ y}) {
                pixels.push_back(static_cast<std::uint8_t>(byte));
            }
        }
    }
    return pixels;
}

TEST(PngImage, HoldsEveryPixel) {
    const ScratchFolder folder;
    for (const Gdiplus::Size size :
         {Gdiplus::Size(1, 1), Gdiplus::Size(3, 2), Gdiplus::Size(257, 64)}) {
        const Bytes pixels = Pattern(size.Width, size.Height);
        const Bytes file = host::EncodePng(
            {pixels.data(), size.Width, size.Height, size.Width * 4}, 96.0);
        const std::string path = folder.Write("image.png", {file.begin(), file.end()});

        Gdiplus::Bitmap read(std::wstring(path.begin(), path.end()).c_str());
        ASSERT_EQ(read.GetWidth(), static_cast<UINT>(size.Width));
        ASSERT_EQ(read.GetHeight(), static_cast<UINT>(size.Height));
        for (int y = 0; y < size.Height; ++y) {
            for (int x = 0; x < size.Width; ++x) {
                Gdiplus::Color color;
                read.GetPixel(x, y, &color);
                const std::uint8_t* pixel =
                    &pixels[static_cast<std::size_t>((y * size.Width + x) * 4)];
                ASSERT_EQ(color.GetValue(),
                          Gdiplus::Color(255, pixel[2], pixel[1], pixel[0]).GetValue())
                    << "at " << x << ", " << y;
            }
        }
    }
}

TEST(PngImage, ReadsRowsUpwardsToo) {
    const Bytes pixels = Pattern(5, 4);
    Bytes upsideDown;
    for (std::size_t y = 4; y-- > 0;) {
        upsideDown.insert(upsideDown.end(), &pixels[y * 20], &pixels[y * 20] + 20);
    }
    EXPECT_EQ(host::EncodePng({&upsideDown[60], 5, 4, -20}, 96.0),
              host::EncodePng({pixels.data(), 5, 4, 20}, 96.0));
}

TEST(PngImage, RecordsItsResolution) {
    const struct {
        double dpi;
        Bytes density;   // pixels a metre
        Bytes checksum;  // as published files of that resolution have it
    } rows[] = {
        {72.0, {0x00, 0x00, 0x0B, 0x13}, {0x00, 0x9A, 0x9C, 0x18}},
        {96.0, {0x00, 0x00, 0x0E, 0xC4}, {0x95, 0x2B, 0x0E, 0x1B}},
        {300.0, {0x00, 0x00, 0x2E, 0x23}, {0x78, 0xA5, 0x3F, 0x76}},
    };
    const Bytes pixels = Pattern(2, 2);
    for (const auto& row : rows) {
        Bytes chunk = {0, 0, 0, 9, 'p', 'H', 'Y', 's'};
        chunk.insert(chunk.end(), row.density.begin(), row.density.end());
        chunk.insert(chunk.end(), row.density.begin(), row.density.end());
        chunk.push_back(1);
        chunk.insert(chunk.end(), row.checksum.begin(), row.checksum.end());
        const Bytes file = host::EncodePng({pixels.data(), 2, 2, 8}, row.dpi);
        EXPECT_NE(std::search(file.begin(), file.end(), chunk.begin(), chunk.end()),
                  file.end())
            << row.dpi << " dpi";
    }
}

TEST(PngImage, RefusesAnImageWithoutPixels) {
    EXPECT_THROW(host::EncodePng({nullptr, 0, 0, 0}, 96.0), std::runtime_error);
    EXPECT_THROW(host::EncodePng({nullptr, 5, 0, 20}, 96.0), std::runtime_error);
}

/// What a page has on it: paper, lines, letters, a shaded map.
void DrawSomePage(Gdiplus::Graphics& graphics) {
    graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
    for (int i = 0; i < 300; ++i) {
        const auto shade = static_cast<BYTE>(i * 37 % 251);
        const Gdiplus::SolidBrush brush(Gdiplus::Color(255, shade, 128, 90));
        graphics.FillRectangle(&brush, 40 + i % 20 * 15, 40 + i / 20 * 15, 15, 15);
    }
    const Gdiplus::FontFamily family(L"Arial");
    const Gdiplus::Font font(&family, 30.0f, Gdiplus::FontStyleRegular,
                             Gdiplus::UnitPixel);
    const Gdiplus::SolidBrush black(Gdiplus::Color(0xFF000000));
    for (int i = 0; i < 8; ++i) {
        graphics.DrawString(L"Land cover of Olinda", -1, &font,
                            Gdiplus::PointF(380.0f, static_cast<float>(50 * i)), &black);
    }
}

TEST(PngImage, IsAtMostAFifthLargerThanTheOneOfGdiplus) {
    host::PageImage image(Gdiplus::Size(800, 600));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        DrawSomePage(graphics);
    }
    const ScratchFolder folder;
    const std::string path = folder.Path("gdiplus.png");
    ASSERT_EQ(image.Bitmap().Save(std::wstring(path.begin(), path.end()).c_str(),
                                  &host_tests::kPngEncoder),
              Gdiplus::Ok);
    const Bytes ours = host::Encode(image, host::OutputFormat::Png, 96.0);
    EXPECT_LE(static_cast<double>(ours.size()),
              1.2 * static_cast<double>(std::filesystem::file_size(path)));
}

}  // namespace
