#include "page/output/image_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "page/output/image_resolution.h"

namespace {

using host::ImageFormat;
using Bytes = std::vector<std::uint8_t>;

TEST(ImageFile, HasTheFormatOfItsEnding) {
    EXPECT_EQ(host::FormatOf("page.png"), ImageFormat::Png);
    EXPECT_EQ(host::FormatOf("a.b/page.PNG"), ImageFormat::Png);
    EXPECT_EQ(host::FormatOf("page.jpg"), ImageFormat::Jpeg);
    EXPECT_EQ(host::FormatOf("page.Jpeg"), ImageFormat::Jpeg);
    EXPECT_EQ(host::FormatOf("page.bmp"), ImageFormat::Bmp);
    EXPECT_EQ(host::FormatOf("page.tif"), ImageFormat::Tiff);
    EXPECT_EQ(host::FormatOf("page.TIFF"), ImageFormat::Tiff);
    for (const char* path : {"", "page", "png", ".png", "page.gif", "page.png ",
                             "page.png/", "page.svg", "page.pngx"}) {
        EXPECT_EQ(host::FormatOf(path), std::nullopt) << path;
    }
}

Bytes Sub(const Bytes& bytes, std::size_t from, std::size_t count) {
    return {bytes.begin() + static_cast<std::ptrdiff_t>(from),
            bytes.begin() + static_cast<std::ptrdiff_t>(from + count)};
}

/// A file of zeros but for how it begins.
Bytes FileOf(Bytes magic) {
    magic.resize(100);
    return magic;
}

TEST(ImageFile, RecordsTheResolutionOfAJpeg) {
    Bytes file = FileOf({0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F'});
    host::RecordResolution(file, ImageFormat::Jpeg, 300.0);
    EXPECT_EQ(Sub(file, 13, 5), (Bytes{1, 0x01, 0x2C, 0x01, 0x2C}));
}

TEST(ImageFile, RecordsTheResolutionOfABmp) {
    Bytes file = FileOf({'B', 'M'});
    host::RecordResolution(file, ImageFormat::Bmp, 150.0);
    // 5906 pixels a metre
    EXPECT_EQ(Sub(file, 38, 8), (Bytes{0x12, 0x17, 0, 0, 0x12, 0x17, 0, 0}));
}

TEST(ImageFile, LeavesOtherBytesAsTheyAre) {
    for (const ImageFormat format :
         {ImageFormat::Png, ImageFormat::Jpeg, ImageFormat::Bmp, ImageFormat::Tiff}) {
        for (const Bytes& bytes : {Bytes{}, Bytes{'B'}, FileOf({'I', 'I', 42, 0})}) {
            Bytes file = bytes;
            host::RecordResolution(file, format, 150.0);
            EXPECT_EQ(file, bytes);
        }
    }
}

struct EncodingRow {
    ImageFormat format;
    Bytes magic;
};

TEST(ImageFile, IsEncodedInItsFormat) {
    const EncodingRow rows[] = {
        {ImageFormat::Png, {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}},
        {ImageFormat::Jpeg, {0xFF, 0xD8, 0xFF}},
        {ImageFormat::Bmp, {'B', 'M'}},
        {ImageFormat::Tiff, {'I', 'I', 42, 0}},
    };
    host::PageImage image(Gdiplus::Size(60, 40));
    Gdiplus::Graphics(&image.Bitmap()).Clear(Gdiplus::Color(0xFFFFFFFF));
    for (const EncodingRow& row : rows) {
        const Bytes bytes = host::Encode(image, row.format, 150.0);
        ASSERT_GT(bytes.size(), 64u);
        EXPECT_EQ(Sub(bytes, 0, row.magic.size()), row.magic);
    }
}

}  // namespace
