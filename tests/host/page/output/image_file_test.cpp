#include "page/output/image_file.h"

#include <gdal_priv.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "page/output/image_resolution.h"
#include "page/output/png_image.h"
#include "page/twelve_elements.h"
#include "png_encoder.h"
#include "scratch_folder.h"

namespace {

using host::OutputFormat;
using Bytes = std::vector<std::uint8_t>;

/// The bytes of an image file, read back.
struct ImageReadBack {
    explicit ImageReadBack(const Bytes& bytes)
        : path(folder.Write("image", {bytes.begin(), bytes.end()})),
          bitmap(std::wstring(path.begin(), path.end()).c_str()) {}

    Gdiplus::ARGB At(int x, int y) {
        Gdiplus::Color color;
        bitmap.GetPixel(x, y, &color);
        return color.GetValue();
    }

    ScratchFolder folder;
    std::string path;
    Gdiplus::Bitmap bitmap;
};

/// A file of zeros but for how it begins.
Bytes FileOf(Bytes magic) {
    magic.resize(100);
    return magic;
}

TEST(ImageFile, LeavesOtherBytesAsTheyAre) {
    for (const OutputFormat format :
         {OutputFormat::Png, OutputFormat::Jpeg, OutputFormat::Bmp, OutputFormat::Tiff}) {
        for (const Bytes& bytes : {Bytes{}, Bytes{'B'}, FileOf({'I', 'I', 42, 0})}) {
            Bytes file = bytes;
            host::RecordResolution(file, format, 150.0);
            EXPECT_EQ(file, bytes);
        }
    }
}

TEST(ImageFile, RecordsTheResolution) {
    const std::pair<OutputFormat, double> rows[] = {
        // and how far off, in dots an inch
        {OutputFormat::Png, 0.02},
        {OutputFormat::Jpeg, 0.5},
        {OutputFormat::Bmp, 0.02},
        {OutputFormat::Tiff, 1e-5},
    };
    host::PageImage image(Gdiplus::Size(60, 40));
    Gdiplus::Graphics(&image.Bitmap()).Clear(Gdiplus::Color(0xFFFFFFFF));
    for (const auto& [format, within] : rows) {
        for (const double dpi : {72.0, 96.5, 300.0, 2400.0}) {
            ImageReadBack read(host::Encode(image, format, dpi));
            EXPECT_NEAR(read.bitmap.GetHorizontalResolution(), dpi, within);
            EXPECT_NEAR(read.bitmap.GetVerticalResolution(), dpi, within);
        }
    }
}

TEST(ImageFile, OfTiffIsPackedAndHasNoAlpha) {
    host::PageImage image(Gdiplus::Size(900, 500));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
        const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF205080));
        graphics.FillRectangle(&brush, 100, 50, 300, 200);
    }
    const Bytes bytes = host::Encode(image, OutputFormat::Tiff, 150.0);
    EXPECT_LT(bytes.size(), 900u * 500u * 3u / 50u);
    ImageReadBack read(bytes);
    EXPECT_EQ(read.At(150, 60), 0xFF205080);
    EXPECT_EQ(read.At(150, 40), 0xFFFFFFFF);
    GDALAllRegister();
    const std::unique_ptr<GDALDataset> tiff(
        GDALDataset::Open(read.path.c_str(), GDAL_OF_RASTER));
    ASSERT_EQ(tiff->GetRasterCount(), 3);
    EXPECT_EQ(tiff->GetRasterBand(1)->GetColorInterpretation(), GCI_RedBand);
    EXPECT_STREQ(tiff->GetMetadataItem("COMPRESSION", "IMAGE_STRUCTURE"), "DEFLATE");
}

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
    for (const Gdiplus::Size size :
         {Gdiplus::Size(1, 1), Gdiplus::Size(3, 2), Gdiplus::Size(257, 64)}) {
        const Bytes pixels = Pattern(size.Width, size.Height);
        ImageReadBack read(host::EncodePng(
            {pixels.data(), size.Width, size.Height, size.Width * 4}, 96.0));
        ASSERT_EQ(read.bitmap.GetWidth(), static_cast<UINT>(size.Width));
        ASSERT_EQ(read.bitmap.GetHeight(), static_cast<UINT>(size.Height));
        for (int y = 0; y < size.Height; ++y) {
            for (int x = 0; x < size.Width; ++x) {
                const std::uint8_t* pixel =
                    &pixels[static_cast<std::size_t>((y * size.Width + x) * 4)];
                ASSERT_EQ(read.At(x, y),
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

struct ResolutionRow {
    double dpi;
    Bytes density;   // pixels a metre
    Bytes checksum;  // as published files of that resolution have it
};

TEST(PngImage, RecordsItsResolution) {
    const ResolutionRow rows[] = {
        {72.0, {0x00, 0x00, 0x0B, 0x13}, {0x00, 0x9A, 0x9C, 0x18}},
        {96.0, {0x00, 0x00, 0x0E, 0xC4}, {0x95, 0x2B, 0x0E, 0x1B}},
        {300.0, {0x00, 0x00, 0x2E, 0x23}, {0x78, 0xA5, 0x3F, 0x76}},
    };
    const Bytes pixels = Pattern(2, 2);
    for (const ResolutionRow& row : rows) {
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

TEST(PngImage, IsAtMostAFifthLargerThanTheOneOfGdiplus) {
    const host::Page page = host_tests::TwelveElements();
    host::PageImage image(host::PixelSize(page, 96.0));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        page.Draw(graphics, 96.0);
    }
    const ScratchFolder folder;
    ASSERT_EQ(host_tests::SavePng(image.Bitmap(), folder.Path("gdiplus.png")),
              Gdiplus::Ok);
    const Bytes ours = host::Encode(image, OutputFormat::Png, 96.0);
    EXPECT_LE(static_cast<double>(ours.size()),
              1.2 * static_cast<double>(
                        std::filesystem::file_size(folder.Path("gdiplus.png"))));
}

}  // namespace
