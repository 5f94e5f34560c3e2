#include "page/output/image_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "page/output/image_resolution.h"
#include "scratch_folder.h"

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

std::uint32_t Number(const Bytes& bytes, std::size_t at, int size, bool bigEndian) {
    std::uint32_t number = 0;
    for (int i = 0; i < size; ++i) {
        const int index = bigEndian ? i : size - 1 - i;
        number = number << 8 | bytes.at(at + static_cast<std::size_t>(index));
    }
    return number;
}

/// The place of a tag's value in a TIFF file; 0 where it has none.
std::size_t TagIn(const Bytes& tiff, std::uint32_t tag) {
    const std::size_t directory = Number(tiff, 4, 4, false);
    const std::uint32_t count = Number(tiff, directory, 2, false);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = directory + 2 + 12 * i;
        if (Number(tiff, entry, 2, false) == tag) {
            const bool isRational = Number(tiff, entry + 2, 2, false) == 5;
            return isRational ? Number(tiff, entry + 8, 4, false) : entry + 8;
        }
    }
    return 0;
}

/// Dots an inch, as the bytes of a file say.
double ResolutionIn(const Bytes& file, OutputFormat format, bool across) {
    constexpr double kMetresInAnInch = 0.0254;
    const std::size_t which = across ? 0 : 1;
    switch (format) {
        case OutputFormat::Png: {
            const std::string chunk = "pHYs";
            const auto at =
                std::search(file.begin(), file.end(), chunk.begin(), chunk.end());
            return Number(file,
                          static_cast<std::size_t>(at - file.begin()) + 4 + 4 * which, 4,
                          true) *
                   kMetresInAnInch;
        }
        case OutputFormat::Jpeg:
            return file.at(13) == 1 ? Number(file, 14 + 2 * which, 2, true) : 0;
        case OutputFormat::Bmp:
            return Number(file, 38 + 4 * which, 4, false) * kMetresInAnInch;
        default: {
            const std::size_t at = TagIn(file, across ? 282 : 283);
            const bool isInch = Number(file, TagIn(file, 296), 2, false) == 2;
            return isInch
                       ? 1.0 * Number(file, at, 4, false) / Number(file, at + 4, 4, false)
                       : 0.0;
        }
    }
}

TEST(ImageFile, IsEncodedInItsFormatAndRecordsTheResolution) {
    const struct {
        OutputFormat format;
        Bytes magic;
        double within;  ///< of the resolution, dots an inch
    } rows[] = {
        {OutputFormat::Png, {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}, 0.02},
        {OutputFormat::Jpeg, {0xFF, 0xD8, 0xFF}, 0.5},
        {OutputFormat::Bmp, {'B', 'M'}, 0.02},
        {OutputFormat::Tiff, {'I', 'I', 42, 0}, 1e-5},
    };
    host::PageImage image(Gdiplus::Size(60, 40));
    Gdiplus::Graphics(&image.Bitmap()).Clear(Gdiplus::Color(0xFFFFFFFF));
    for (const auto& row : rows) {
        for (const double dpi : {72.0, 96.5, 300.0, 2400.0}) {
            const Bytes bytes = host::Encode(image, row.format, dpi);
            ASSERT_GT(bytes.size(), 64u);
            EXPECT_EQ(Sub(bytes, 0, row.magic.size()), row.magic);
            EXPECT_NEAR(ResolutionIn(bytes, row.format, true), dpi, row.within);
            EXPECT_NEAR(ResolutionIn(bytes, row.format, false), dpi, row.within);
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
    EXPECT_EQ(Number(bytes, TagIn(bytes, 277), 2, false), 3u) << "samples a pixel";
    EXPECT_EQ(Number(bytes, TagIn(bytes, 262), 2, false), 2u) << "RGB";
    EXPECT_EQ(Number(bytes, TagIn(bytes, 259), 2, false), 8u) << "deflated";
    EXPECT_EQ(TagIn(bytes, 338), 0u) << "extra samples";
    EXPECT_LT(bytes.size(), 900u * 500u * 3u / 50u);

    const ScratchFolder folder;
    const std::string path = folder.Write("page.tif", {bytes.begin(), bytes.end()});
    Gdiplus::Bitmap read(std::wstring(path.begin(), path.end()).c_str());
    Gdiplus::Color colour;
    read.GetPixel(150, 60, &colour);
    EXPECT_EQ(colour.GetValue(), 0xFF205080);
    read.GetPixel(150, 40, &colour);
    EXPECT_EQ(colour.GetValue(), 0xFFFFFFFF);
}

}  // namespace
