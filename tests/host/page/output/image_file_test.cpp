#include "page/output/image_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "page/output/image_resolution.h"

namespace {

using host::OutputFormat;
using Bytes = std::vector<std::uint8_t>;

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
    host::RecordResolution(file, OutputFormat::Jpeg, 300.0);
    EXPECT_EQ(Sub(file, 13, 5), (Bytes{1, 0x01, 0x2C, 0x01, 0x2C}));
}

TEST(ImageFile, RecordsTheResolutionOfABmp) {
    Bytes file = FileOf({'B', 'M'});
    host::RecordResolution(file, OutputFormat::Bmp, 150.0);
    // 5906 pixels a metre
    EXPECT_EQ(Sub(file, 38, 8), (Bytes{0x12, 0x17, 0, 0, 0x12, 0x17, 0, 0}));
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

struct EncodingRow {
    OutputFormat format;
    Bytes magic;
};

TEST(ImageFile, IsEncodedInItsFormat) {
    const EncodingRow rows[] = {
        {OutputFormat::Png, {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}},
        {OutputFormat::Jpeg, {0xFF, 0xD8, 0xFF}},
        {OutputFormat::Bmp, {'B', 'M'}},
        {OutputFormat::Tiff, {'I', 'I', 42, 0}},
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
