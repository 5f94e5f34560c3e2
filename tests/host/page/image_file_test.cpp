#include "page/image_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "page/image_resolution.h"
#include "recording/expect.h"

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

struct PngRow {
    double dpi;
    Bytes density;   // pixels a metre
    Bytes checksum;  // as published files of that resolution have it
};

TEST(ImageFile, RecordsTheResolutionOfAPng) {
    const PngRow rows[] = {
        {72.0, {0x00, 0x00, 0x0B, 0x13}, {0x00, 0x9A, 0x9C, 0x18}},
        {96.0, {0x00, 0x00, 0x0E, 0xC4}, {0x95, 0x2B, 0x0E, 0x1B}},
        {300.0, {0x00, 0x00, 0x2E, 0x23}, {0x78, 0xA5, 0x3F, 0x76}},
    };
    for (const PngRow& row : rows) {
        Bytes file = FileOf({0x89, 'P', 'N', 'G'});
        host::RecordResolution(file, ImageFormat::Png, row.dpi);
        ASSERT_EQ(file.size(), 100u + 21u);
        EXPECT_EQ(Sub(file, 33, 8), (Bytes{0, 0, 0, 9, 'p', 'H', 'Y', 's'}));
        EXPECT_EQ(Sub(file, 41, 4), row.density);
        EXPECT_EQ(Sub(file, 45, 4), row.density);
        EXPECT_EQ(file[49], 1);
        EXPECT_EQ(Sub(file, 50, 4), row.checksum);
    }
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
    recording::Surface surface(60, 40);
    for (const EncodingRow& row : rows) {
        const Bytes bytes = host::Encode(surface.Bitmap(), row.format, 150.0);
        ASSERT_GT(bytes.size(), 64u);
        EXPECT_EQ(Sub(bytes, 0, row.magic.size()), row.magic);
    }
}

}  // namespace
